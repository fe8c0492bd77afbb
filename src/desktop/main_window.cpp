#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>
#include <algorithm>
#include <map>

#include "desktop/plant_panel_view.h"
#include "desktop/point_panel_view.h"
#include "desktop/tool_column.h"

namespace zandrell {
namespace {

bool OpensMenu(std::string_view entry) {
    return std::any_of(kMenuTree.begin(), kMenuTree.end(),
                       [entry](const MenuBranch& branch) { return branch.parent == entry; });
}

using Keys = QList<QKeySequence>;

const std::map<std::string_view, Keys>& StandardKeys() {
    static const std::map<std::string_view, Keys> keys = {
        {"Undo", {QKeySequence::Undo}},
        {"Redo", {QKeySequence(QStringLiteral("Ctrl+Y")), QKeySequence::Redo}},
        {"NeuPro", {QKeySequence::New}},
        {"ProLad", {QKeySequence::Open}},
        {"ProSpeich", {QKeySequence::Save}},
        {"ProSpeichU", {QKeySequence(QStringLiteral("Ctrl+Shift+S"))}},
    };
    return keys;
}

// The first project among what is dragged; empty: none.
QString ProjectIn(const QMimeData& dragged) {
    for (const QUrl& url : dragged.urls()) {
        QString path = url.toLocalFile();
        if (path.endsWith(QStringLiteral(".prj"), Qt::CaseInsensitive)) return path;
    }
    return {};
}

}  // namespace

MainWindow::MainWindow(MainForm& form, const DataFiles& files, QtUser& user)
    : form_(form), pictures_(files), printing_(user, form.captions), mirror_(form, pictures_) {
    form.printing.SetDevice(&printing_);
    form.help.viewer = &viewer_;
    mirror_.skinned = !form.controls.FunktButtPn.picture.empty();
    auto* centre = new QWidget(this);
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    chart_ = new ChartWidget(form, pictures_, centre);
    chart_->perform = [this](const auto& act) { mirror_.Perform(act); };
    layout->addWidget(chart_, 1);
    MakePanels();
    layout->addWidget(new ToolColumn(form, mirror_, centre));
    setCentralWidget(centre);
    MakeMenus();
    mirror_.after_act = [this] { Refresh(); };
    setAcceptDrops(true);
    for (QLineEdit* field : findChildren<QLineEdit*>()) field->installEventFilter(this);
    user.Attach({this, &form, &pictures_, [this] {
                     mirror_.Mirror();
                     Refresh();
                     repaint();
                 }});
}

void MainWindow::MakePanels() {
    point_view_ = MakePointPanelView(form_, mirror_, *chart_);
    plant_view_ = MakePlantPanelView(form_, mirror_, *chart_);
    chart_->covered = [this] { return point_view_->Opaque() + plant_view_->Opaque(); };
}

void MainWindow::MakeMenus() {
    std::map<std::string_view, QMenu*> menus;
    for (const MenuBranch& branch : kMenuTree) {
        const auto* entry = static_cast<const MenuEntry*>(form_.form.Find(branch.entry));
        const auto parent = menus.find(branch.parent);
        QWidget* place = parent == menus.end() ? static_cast<QWidget*>(menuBar()) : parent->second;
        if (OpensMenu(branch.entry)) {
            auto* menu = new QMenu(place);
            place->addAction(menu->menuAction());
            menus[branch.entry] = menu;
            mirror_.Bind(menu, *entry);
        } else {
            auto* action = new QAction(place);
            place->addAction(action);
            mirror_.Bind(action, *entry);
            const auto key = StandardKeys().find(branch.entry);
            if (key != StandardKeys().end()) action->setShortcuts(key->second);
            if (branch.entry == form_.controls.HelpHere.name) action->setShortcut(Qt::Key_F1);
        }
    }
}

void MainWindow::Start() {
    started_ = true;
    TellSize();
    mirror_.Perform([this] { form_.Activate(); });
}

void MainWindow::TellSize() { form_.Resize(centralWidget()->width(), centralWidget()->height()); }

void MainWindow::Refresh() {
    // "[*]" is the place of the mark for unsaved changes, and such signs in a title stand twice.
    QString title = ShownText(form_.title);
    title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    title += QStringLiteral("[*]");
    if (windowTitle() != title) setWindowTitle(title);
    if (isWindowModified() != form_.modified) setWindowModified(form_.modified);
    chart_->Sync();
    point_view_->Place();
    plant_view_->Place();
    if (form_.ended) close();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (!started_) return;
    // The layout has not run yet; the form is told the size that the centre will have.
    centralWidget()->layout()->activate();
    mirror_.Perform([this] { TellSize(); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!form_.ended) {
        form_.ende_qv();
        mirror_.Mirror();
    }
    event->setAccepted(form_.ended);
}

void MainWindow::OpenProject(const QString& path) {
    mirror_.Perform([&] { form_.OpenProject(path.toStdString()); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!ProjectIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = ProjectIn(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    OpenProject(path);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool ours = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
        if (ours) return true;  // not accepted: it goes on to the menu's shortcuts
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace zandrell
