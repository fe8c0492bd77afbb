#pragma once

#include <QAbstractTableModel>

#include "forms/grid.h"

namespace zandrell {

// A grid of a form as a table of the toolkit: its head row is the header, the rows behind it are
// the rows. What is shown is what the grid held at the last Refresh.
class GridModel : public QAbstractTableModel {
  public:
    // The grid outlives the model.
    GridModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

    // Whether the ground of a cell says something, and is no stripe.
    static constexpr int kSignalRole = Qt::UserRole;

    // Takes over what the grid holds now; answers whether anything had changed.
    bool Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString SortMarkOf(int section) const;

    const Grid& grid_;
    long shown_ = -1;
    int rows_ = 0, columns_ = 0;
};

// The ground of a cell by its palette number.
QColor CellGround(int palette_number);

}  // namespace zandrell
