#include "desktop/grid_model.h"

#include <algorithm>

#include "desktop/form_mirror.h"
#include "desktop/look.h"
#include "desktop/look_colours.h"

namespace zandrell {
namespace {

constexpr int kLightGrey = 7;

// Figures stand at the right, words at the left.
bool IsFigure(const QString& text) {
    if (text.isEmpty()) return false;
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.isDigit() || c == QLatin1Char('.') || c == QLatin1Char(',') ||
               c == QLatin1Char('-');
    });
}

// A long word of a head may break where a unit or its second half begins, and never in a unit.
QString Breakable(const QString& head) {
    const QChar break_here(0x200B), keep_together(0x2060);
    QString text;
    bool in_unit = false;
    for (const QChar c : head) {
        if (c == QLatin1Char('[')) text += break_here;
        in_unit = (in_unit || c == QLatin1Char('[')) && c != QLatin1Char(']');
        text += c;
        if (c == QLatin1Char('/')) text += in_unit ? keep_together : break_here;
    }
    return text;
}

}  // namespace

QColor CellGround(int palette_number) {
    if (palette_number == kLightGrey) return ColourOf(LookColour::Stripe);
    return GroundColour(palette_number);
}

bool GridModel::Refresh() {
    if (shown_ == grid_.Revision()) return false;
    const int rows = std::max(grid_.RowCount() - 1, 0);
    const bool same_shape = rows == rows_ && grid_.ColumnCount() == columns_;
    shown_ = grid_.Revision();
    // A table of the same shape keeps its place and its chosen cell.
    if (same_shape && rows_ > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
        return true;
    }
    beginResetModel();
    rows_ = rows;
    columns_ = grid_.ColumnCount();
    endResetModel();
    return true;
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int row = index.row() + 1, column = index.column();
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return ShownText(grid_.Text(row, column));
        case Qt::TextAlignmentRole: {
            const bool figure = column != grid_.name_column.value_or(-1) &&
                                IsFigure(ShownText(grid_.Text(row, column)));
            return QVariant((figure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        }
        case Qt::BackgroundRole:
            if (const auto back = grid_.Back(row, column)) return CellGround(*back);
            return {};
        case kSignalRole:
            return grid_.Back(row, column).value_or(kLightGrey) != kLightGrey;
        // A screen reader says what the colour says to the eye.
        case Qt::AccessibleDescriptionRole:
            return ShownText(grid_.Text(0, column));
        default:
            return {};
    }
}

QString GridModel::SortMarkOf(int section) const {
    if (!grid_.sort_mark || grid_.sort_mark->column != section) return {};
    return grid_.sort_mark->descending ? QStringLiteral(" ▼") : QStringLiteral(" ▲");
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const QString head = ShownText(grid_.Text(0, section));
    switch (role) {
        case Qt::DisplayRole:
            return Breakable(head) + SortMarkOf(section);
        case Qt::ToolTipRole: {
            const QString tip = ShownText(grid_.head_tip);
            return head + SortMarkOf(section) + (tip.isEmpty() ? tip : QLatin1Char('\n') + tip);
        }
        case Qt::AccessibleTextRole:
            return head + SortMarkOf(section);
        default:
            return {};
    }
}

}  // namespace zandrell
