#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include "desktop/modal_window.h"
#include "desktop/state_table_window.h"
#include "window_session.h"

namespace zandrell {
namespace {

class PrintAndHelpWindows : public WindowSession {
  protected:
    // Runs `act`, which opens a window, and `inside` once that window is there.
    template <class Window>
    void Within(const std::function<void()>& act, const std::function<void(Window&)>& inside) {
        bool came = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto* open = dynamic_cast<Window*>(QApplication::activeModalWidget());
            came = open != nullptr;
            if (open) inside(*open);
            if (QWidget* left = QApplication::activeModalWidget()) left->close();
        });
        act();
        EXPECT_TRUE(came);
    }

    void OpenSetup(const std::function<void(ModalWindow&)>& inside) {
        Within<ModalWindow>([this] { Click(*Find<QPushButton>("druckbutt")); }, inside);
    }

    template <class Widget>
    static Widget* In(QWidget& window, const char* name) {
        auto* widget = window.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
};

TEST_F(PrintAndHelpWindows, ThePageIsPrintedToTheChosenFile) {
    user_.print_file = (folder_ / "sheet.pdf").string();
    OpenSetup([&](ModalWindow& setup) {
        EXPECT_EQ(setup.windowTitle(), QStringLiteral("Zandrell 10.11.2 - Printer Settings"));
        auto* size = In<QComboBox>(setup, "Size_combo");
        size->setCurrentIndex(1);
        Q_EMIT size->activated(1);
        EXPECT_GT(In<QListWidget>(setup, "fontlist")->count(), 0);
        Click(*In<QPushButton>(setup, "Okbutt"));
    });
    EXPECT_TRUE(folder_.Read("sheet.pdf").starts_with("%PDF"));
    EXPECT_EQ(form_.shared.PaperSize, "A3");
}

TEST_F(PrintAndHelpWindows, EscapeCancelsTheSetup) {
    user_.print_file = (folder_ / "sheet.pdf").string();
    OpenSetup([&](ModalWindow& setup) { Key(setup, Qt::Key_Escape); });
    EXPECT_FALSE(std::filesystem::exists(folder_ / "sheet.pdf"));
    EXPECT_EQ(form_.shared.DialogMode, 0);
}

TEST_F(PrintAndHelpWindows, AFileThatCannotBeWrittenIsReported) {
    user_.print_file = "/no/such/folder/sheet.pdf";
    std::vector<std::string> messages;
    user_.on_message = [&](const Message& message) {
        messages.push_back(message.text);
        QTimer::singleShot(0, window_.get(), [] {
            if (QWidget* box = QApplication::activeModalWidget()) box->close();
        });
    };
    OpenSetup([&](ModalWindow& setup) { Click(*In<QPushButton>(setup, "Okbutt")); });
    ASSERT_FALSE(messages.empty());
    EXPECT_TRUE(messages.back().starts_with("/no/such/folder/sheet.pdf: ")) << messages.back();
}

TEST_F(PrintAndHelpWindows, ThePreviewShowsOnePage) {
    Within<QPrintPreviewDialog>([this] { window_->Mirror().Click("PrintPreview"); },
                                [](QPrintPreviewDialog& preview) {
                                    EXPECT_EQ(preview.windowTitle(),
                                              QStringLiteral("Print Preview"));
                                    auto* pages = preview.findChild<QPrintPreviewWidget*>();
                                    ASSERT_NE(pages, nullptr);
                                    EXPECT_EQ(pages->pageCount(), 1);
                                });
}

TEST_F(PrintAndHelpWindows, TheHelpOfAWindowCanBeRewritten) {
    OpenSetup([&](ModalWindow& setup) {
        Within<ModalWindow>([&] { Key(setup, Qt::Key_F1); },
                            [&](ModalWindow& help) {
                                EXPECT_NE(&help, &setup);
                                auto* text = In<QPlainTextEdit>(help, "InfoText");
                                EXPECT_GT(text->toPlainText().size(), 400);
                                text->selectAll();
                                text->insertPlainText(QStringLiteral("own\nwords"));
                                Click(*In<QPushButton>(help, "Command3D2"));
                            });
        EXPECT_TRUE(setup.isVisible()) << "the window below is still there";
    });
    EXPECT_EQ(form_.help.InfoText.text, "own\nwords");
    EXPECT_NE(folder_.Read("Zandhelp.ENG").find("#own\r\nwords "), std::string::npos);
}

// What the form says reaches the table, and a click on a head sorts it.
TEST_F(PrintAndHelpWindows, TheTableOfStatesShowsThePlant) {
    for (const auto& [field, text] : {std::pair{"tabLuft", "26"},
                                      {"PHIAbluft", "50"},
                                      {"Taus", "32"},
                                      {"PhiAussen", "40"},
                                      {"TZuluft", "18"},
                                      {"PHIZuluft", "60"},
                                      {"tKA", "12"},
                                      {"phiKanal", "95"},
                                      {"vhAnlage", "10000"},
                                      {"aussenAnt", "3"},
                                      {"dtVent1", "1"},
                                      {"dtVent2", "0"}}) {
        form_.UserSetText(field, text);
    }
    window_->Mirror().Click("AnlageButt");
    window_->Mirror().Click("StateList");
    auto* table = window_->findChild<StateTableWindow*>();
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->isVisible());
    EXPECT_EQ(table->windowTitle(), QStringLiteral("State Table - AHU - 1.013 bar"));
    EXPECT_EQ(In<QPushButton>(*table, "CloseStates")->text(), QStringLiteral("O.K."));
    auto* grid = In<QTableView>(*table, "States");
    QAbstractItemModel* cells = grid->model();
    ASSERT_EQ(cells->rowCount(), form_.state_table.States.RowCount() - 1);
    ASSERT_GT(cells->rowCount(), 4);
    const auto shown = [cells](int row, int column) {
        return cells->index(row, column).data().toString().toStdString();
    };
    EXPECT_EQ(shown(0, 0), "Extract Air");
    EXPECT_EQ(shown(0, 1), "26");
    QHeaderView* heads = grid->horizontalHeader();
    EXPECT_TRUE(cells->headerData(1, Qt::Horizontal, Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("key S")));
    const QPoint head(heads->sectionViewportPosition(1) + 5, heads->height() / 2);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, head, heads->viewport()->mapToGlobal(head), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(heads->viewport(), &event);
    }
    EXPECT_EQ(shown(0, 1), "12") << "the coldest comes first";
    // The main window stays in use, and the table follows it in the order asked for.
    int told = 0;  // that what is painted is old
    QObject::connect(cells, &QAbstractItemModel::dataChanged, table, [&told] { ++told; });
    QObject::connect(cells, &QAbstractItemModel::modelReset, table, [&told] { ++told; });
    auto* coil = Find<QLineEdit>("tKA");
    Type(*coil, "11");
    Key(*coil, Qt::Key_Return);
    EXPECT_EQ(shown(0, 1), "11");
    EXPECT_GT(told, 0);
    Key(*table, Qt::Key_Escape);
    EXPECT_FALSE(table->isVisible());
    EXPECT_TRUE(form_.state_table.closed);
    EXPECT_TRUE(window_->isVisible());
    window_->Mirror().Click("StateList");
    table = window_->findChild<StateTableWindow*>();
    ASSERT_TRUE(table != nullptr && table->isVisible()) << "it opens again";
    EXPECT_EQ(table->findChild<QTableView*>()->model()->index(0, 1).data(), QStringLiteral("26"));
    window_->close();
    EXPECT_FALSE(table->isVisible()) << "it ends with the main window";
}

}  // namespace
}  // namespace zandrell
