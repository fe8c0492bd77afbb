#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
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

}  // namespace

MainWindow::MainWindow(MainForm& form, const DataFiles& files, QtUser& user)
    : form_(form), pictures_(files), mirror_(form, pictures_) {
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
    const QString title = ShownText(form_.title);
    if (windowTitle() != title) setWindowTitle(title);
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

}  // namespace zandrell
