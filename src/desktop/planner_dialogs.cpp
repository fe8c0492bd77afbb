#include "desktop/planner_dialogs.h"

#include <QDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/capacity_plot.h"
#include "desktop/grid_model.h"
#include "desktop/look.h"

namespace zandrell {
namespace {

constexpr int kColumnMargin = 16;                        // pixels at scale 1
constexpr int kLeastComparison = 420, kTableBorder = 4;  // pixels at scale 1
constexpr double kShareOfWindow = 0.95;

// Words at the left, all figures of all units at the right.
class ComparisonModel : public GridModel {
  public:
    using GridModel::GridModel;

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::TextAlignmentRole) return Alignment(index.column());
        return GridModel::data(index, role);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role == Qt::TextAlignmentRole) return Alignment(section);
        return GridModel::headerData(section, orientation, role);
    }

  private:
    static QVariant Alignment(int column) {
        return QVariant((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
};

// Adds the button that closes the dialog, and shows it.
void ShowUntilClosed(QDialog& dialog, const DialogWords& words) {
    dialog.setWindowTitle(words.title);
    auto* back = new QPushButton(words.back, &dialog);
    back->setObjectName(QStringLiteral("Back"));
    back->setDefault(true);
    QObject::connect(back, &QPushButton::clicked, &dialog, &QDialog::accept);
    auto* layout = qobject_cast<QVBoxLayout*>(dialog.layout());
    layout->addWidget(back, 0, Qt::AlignRight);
    dialog.exec();
}

QTableView* MakeComparison(const Grid& comparison, QWidget* parent) {
    auto* table = new QTableView(parent);
    auto* model = new ComparisonModel(comparison, table);
    model->Refresh();
    table->setModel(model);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setCurrentIndex(model->index(0, 0));
    table->resizeColumnsToContents();
    table->resizeRowsToContents();
    for (int column = 0; column < model->columnCount(); ++column) {
        table->setColumnWidth(column, table->columnWidth(column) + Scaled(*parent, kColumnMargin));
    }
    return table;
}

// All of the table, as far as the window behind leaves room for it.
QSize SizeOfTable(const QTableView& table, const QWidget& window) {
    const int border = Scaled(table, kTableBorder);
    const QSize whole(
        table.horizontalHeader()->length() + border,
        table.verticalHeader()->length() + table.horizontalHeader()->sizeHint().height() + border);
    return whole.expandedTo({Scaled(table, kLeastComparison), 0})
        .boundedTo(window.size() * kShareOfWindow);
}

}  // namespace

void ShowComparison(const Grid& comparison, const DialogWords& words, QWidget* parent) {
    QDialog dialog(parent);
    auto* layout = new QVBoxLayout(&dialog);
    auto* table = MakeComparison(comparison, &dialog);
    table->setAccessibleName(words.title);
    table->setMinimumSize(SizeOfTable(*table, *parent));
    layout->addWidget(table);
    ShowUntilClosed(dialog, words);
}

void ShowCapacityPlot(const CapacityPlot& plot, const DialogWords& words, QWidget* parent) {
    QDialog dialog(parent);
    auto* layout = new QVBoxLayout(&dialog);
    auto* view = new CapacityPlotView(plot, &dialog);
    view->setAccessibleName(words.title);
    layout->addWidget(view, 1);
    ShowUntilClosed(dialog, words);
}

std::string AskForCsvFile(const QString& title, const std::string& proposal, QWidget* parent) {
    QFileDialog dialog(parent, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(QStringLiteral("CSV (*.csv)"));
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(QString::fromStdString(proposal));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().first().toStdString();
}

}  // namespace zandrell
