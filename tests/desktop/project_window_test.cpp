#include <QClipboard>
#include <QDialog>
#include <QMimeData>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QUrl>

#include "projects/project_file.h"
#include "window_session.h"

namespace zandrell {
namespace {

class ProjectWindowTest : public WindowSession {
  protected:
    ProjectWindowTest() {
        form_.shared.ProjectFolder = folder_.Path().string();
        folder_.Write("Halle.prj", ProjectText({"<b>Halle</b>", "[*]", "", "QV"},
                                               "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,"
                                               "#TRUE#,#FALSE#,95"));
    }

    // Clicks a menu entry and acts in the window that opens.
    void Open(const char* entry, const std::function<void(QDialog&)>& acts) {
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            opened = true;
            dialog->activateWindow();
            QApplication::processEvents();
            acts(*dialog);
            if (dialog->isVisible()) dialog->close();
        });
        window_->Mirror().Click(entry);
        EXPECT_TRUE(opened) << entry;
    }
    template <class Widget>
    static Widget& Inside(QDialog& dialog, const char* name) {
        auto* widget = dialog.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
};

TEST_F(ProjectWindowTest, AProjectIsLoadedByKeysAlone) {
    Open("ProLad", [](QDialog& dialog) {
        auto& list = Inside<QListWidget>(dialog, "List1");
        EXPECT_EQ(dialog.focusWidget(), &list);
        Key(list, Qt::Key_Down);
        EXPECT_EQ(Inside<QLineEdit>(dialog, "ProNam").text(), QStringLiteral("Halle.prj"));
        const QString tip = QTextDocumentFragment::fromHtml(list.toolTip()).toPlainText();
        EXPECT_TRUE(tip.contains(QStringLiteral("<b>Halle</b>"))) << "a title is no markup";
        Key(list, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(Find<QLineEdit>("Proj_T")->text(), QStringLiteral("<b>Halle</b>"));
    EXPECT_EQ(Find<QLineEdit>("Taus")->text(), QStringLiteral("2"));
    EXPECT_FALSE(window_->isWindowModified());
    Type(*Find<QLineEdit>("Taus"), "35");
    EXPECT_TRUE(window_->isWindowModified());
}

// A new project has a name of its own: no project of the folder lends it one, neither when the
// window opens nor when the focus passes the list.
TEST_F(ProjectWindowTest, SavingOffersNoForeignName) {
    Find<QLineEdit>("Proj_T")->clear();
    form_.shared.ProjectTitle.clear();
    Open("ProSpeichU", [](QDialog& dialog) {
        auto& name = Inside<QLineEdit>(dialog, "ProNam");
        auto& list = Inside<QListWidget>(dialog, "List1");
        ASSERT_EQ(list.count(), 1);
        EXPECT_EQ(dialog.focusWidget(), &name);
        EXPECT_EQ(name.text(), QStringLiteral(".prj"));
        EXPECT_EQ(name.selectedText(), name.text());
        list.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(name.text(), QStringLiteral(".prj"));
        EXPECT_EQ(Inside<QLabel>(dialog, "PreviewFigures").text(), QString());
    });
}

TEST_F(ProjectWindowTest, ReturnInTheFolderPathStaysInTheWindow) {
    std::filesystem::create_directory(folder_ / "inside");
    Open("ProLad", [this](QDialog& dialog) {
        auto& path = Inside<QLineEdit>(dialog, "Text1");
        path.setFocus();
        Type(path, (folder_ / "inside").string());
        Key(path, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Inside<QListWidget>(dialog, "List1").count(), 0);
        auto& folders = Inside<QListWidget>(dialog, "Dir1");
        folders.setFocus();
        Key(folders, Qt::Key_Up);
        EXPECT_EQ(path.text().toStdString(), (folder_ / "inside").string()) << "a row is no choice";
        Key(folders, Qt::Key_Return);
        EXPECT_EQ(path.text().toStdString(), folder_.Path().string());
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(ProjectWindowTest, ADroppedProjectIsOpened) {
    const auto drop = [this](const std::string& name) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString((folder_ / name).string()))});
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent event(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &event);
        return true;
    };
    EXPECT_FALSE(drop("kparam.dat"));
    EXPECT_TRUE(drop("Halle.prj"));
    EXPECT_EQ(form_.shared.LastProjectFile, "Halle.prj");
    EXPECT_TRUE(window_->windowTitle().contains(QStringLiteral("<b>Halle</b>")));
}

TEST_F(ProjectWindowTest, UndoIsTheWindowsAlsoInAField) {
    auto* field = Find<QLineEdit>("Taus");
    const QString before = field->text();
    Type(*field, "35");
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    undo.ignore();
    QApplication::sendEvent(field, &undo);
    EXPECT_FALSE(undo.isAccepted()) << "the field leaves the key to the menu";
    window_->Mirror().Click("Undo");
    EXPECT_EQ(field->text(), before) << "the typing of one text is one step";
}

}  // namespace
}  // namespace zandrell
