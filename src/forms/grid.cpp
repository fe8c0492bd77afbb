#include "forms/grid.h"

#include <algorithm>
#include <utility>

namespace zandrell {

const Grid::Cell* Grid::Find(int cell_row, int cell_column) const {
    if (cell_row < 0 || cell_row >= RowCount() || cell_column < 0) return nullptr;
    const auto& cells = rows_[static_cast<std::size_t>(cell_row)].cells;
    const auto place = static_cast<std::size_t>(cell_column);
    return place < cells.size() ? &cells[place] : nullptr;
}

void Grid::SetRows(int count, int height) {
    const auto wanted = static_cast<std::size_t>(std::max(count, 0));
    Row empty;
    empty.cells.resize(widths_.size());
    empty.height = height;
    const auto kept = rows_.size();
    rows_.resize(wanted, empty);
    for (auto made = kept; made < wanted; ++made) rows_[made].made_place = static_cast<int>(made);
    if (row >= RowCount()) row = std::max(RowCount() - 1, 0);
    if (top_row_ >= RowCount()) top_row_ = 1;
    ++revision_;
}

void Grid::SetColumns(int count) {
    widths_.resize(static_cast<std::size_t>(std::max(count, 0)));
    for (auto& one : rows_) one.cells.resize(widths_.size());
    ++revision_;
}

const std::string& Grid::Text(int cell_row, int cell_column) const {
    static const std::string nothing;
    const Cell* cell = Find(cell_row, cell_column);
    return cell == nullptr ? nothing : cell->text;
}

void Grid::SetText(int cell_row, int cell_column, std::string_view cell_text) {
    if (Find(cell_row, cell_column) == nullptr) return;
    rows_[static_cast<std::size_t>(cell_row)].cells[static_cast<std::size_t>(cell_column)].text =
        cell_text;
    ++revision_;
}

std::optional<int> Grid::Back(int cell_row, int cell_column) const {
    const Cell* cell = Find(cell_row, cell_column);
    return cell == nullptr ? std::nullopt : cell->back;
}

void Grid::SetBack(int cell_row, int cell_column, std::optional<int> palette_number) {
    if (Find(cell_row, cell_column) == nullptr) return;
    rows_[static_cast<std::size_t>(cell_row)].cells[static_cast<std::size_t>(cell_column)].back =
        palette_number;
    ++revision_;
}

int Grid::Width(int of_column) const {
    const bool there = of_column >= 0 && of_column < ColumnCount();
    return there ? widths_[static_cast<std::size_t>(of_column)] : 0;
}

void Grid::SetWidth(int of_column, int twips) {
    if (of_column < 0 || of_column >= ColumnCount()) return;
    widths_[static_cast<std::size_t>(of_column)] = twips;
    ++revision_;
}

int Grid::Height(int of_row) const {
    const bool there = of_row >= 0 && of_row < RowCount();
    return there ? rows_[static_cast<std::size_t>(of_row)].height : 0;
}

void Grid::SetHeight(int of_row, int twips) {
    if (of_row < 0 || of_row >= RowCount()) return;
    rows_[static_cast<std::size_t>(of_row)].height = twips;
    ++revision_;
}

bool Grid::SetTopRow(int row_number) {
    if (row_number < 1 || row_number >= RowCount()) return false;
    top_row_ = row_number;
    return true;
}

bool Grid::IsEmptyRow(int row_number) const {
    for (int c = 1; c < ColumnCount(); ++c) {
        if (!Text(row_number, c).empty()) return false;
    }
    return true;
}

void Grid::Reorder(const std::vector<int>& rows) {
    if (static_cast<int>(rows.size()) != RowCount() - 1) return;
    std::vector<Row> ordered;
    ordered.reserve(rows_.size());
    ordered.push_back(std::move(rows_[0]));
    for (const int place : rows)
        ordered.push_back(std::move(rows_[static_cast<std::size_t>(place)]));
    rows_ = std::move(ordered);
    ++revision_;
}

int Grid::MadePlace(int of_row) const {
    const bool there = of_row >= 0 && of_row < RowCount();
    return there ? rows_[static_cast<std::size_t>(of_row)].made_place : 0;
}

Grid* AsGrid(Control* control) {
    const bool grid = control != nullptr && control->kind == ControlKind::Grid;
    return grid ? static_cast<Grid*>(control) : nullptr;
}

}  // namespace zandrell
