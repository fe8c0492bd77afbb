#include "desktop/planner_dialogs.h"

#include <QDialog>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/capacity_plot.h"
#include "desktop/grid_model.h"
#include "desktop/look.h"

namespace zandrell {

void ShowComparison(const Grid& comparison, const QString& title, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto* layout = new QVBoxLayout(&dialog);
    auto* table = new QTableView(&dialog);
    auto* model = new GridModel(comparison, table);
    model->Refresh();
    table->setModel(model);
    table->setAccessibleName(title);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->resizeColumnsToContents();
    for (int column = 0; column < model->columnCount(); ++column) {
        table->setColumnWidth(column, table->columnWidth(column) + Scaled(*parent, 16));
    }
    layout->addWidget(table);
    dialog.resize(Scaled(*parent, 900), Scaled(*parent, 360));
    dialog.exec();
}

void ShowCapacityPlot(const CapacityPlot& plot, const QString& title, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto* layout = new QVBoxLayout(&dialog);
    auto* view = new CapacityPlotView(plot, &dialog);
    view->setAccessibleName(title);
    layout->addWidget(view);
    dialog.exec();
}

}  // namespace zandrell
