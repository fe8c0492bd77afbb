#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace zandrell {

// A table of texts with a head row, row 0. Sizes are in twips; a width or height of 0 hides its
// column or row. A statement on a cell that is not there changes nothing.
class Grid : public Control {
  public:
    explicit Grid(std::string_view grid_name) : Control(grid_name, ControlKind::Grid) {}

    int row = 1, column = 1;  // the chosen cell
    int hovered_row = 0;      // under the pointer; 0: none
    int asked_column = 0;     // whose head was acted on last

    // The column by which the rows are sorted; empty while they stand as they were filled.
    struct SortMark {
        int column = 0;
        bool descending = false;
    };
    std::optional<SortMark> sort_mark;

    // What a head says of sorting, behind its own words; empty: nothing.
    std::string head_tip;
    // Its cells are names, also where a name is a figure; empty: none.
    std::optional<int> name_column;

    int RowCount() const { return static_cast<int>(rows_.size()); }
    int ColumnCount() const { return static_cast<int>(widths_.size()); }
    // New rows are empty and have `height`; rows that stay keep what they hold.
    void SetRows(int count, int height);
    void SetColumns(int count);
    void ReserveRows(int count) { rows_.reserve(static_cast<std::size_t>(count)); }

    const std::string& Text(int cell_row, int cell_column) const;
    void SetText(int cell_row, int cell_column, std::string_view cell_text);
    // Empty where the colour of the grid stands.
    std::optional<int> Back(int cell_row, int cell_column) const;
    void SetBack(int cell_row, int cell_column, std::optional<int> palette_number);

    int Width(int of_column) const;
    void SetWidth(int of_column, int twips);
    int Height(int of_row) const;
    void SetHeight(int of_row, int twips);

    // The first row below the head. One outside the rows is refused.
    int TopRow() const { return top_row_; }
    bool SetTopRow(int row_number);

    // Nothing stands in it but its number.
    bool IsEmptyRow(int row_number) const;
    // Puts the rows behind the head into the order of `rows`, their present numbers.
    void Reorder(const std::vector<int>& rows);
    // Where the row stood when it was made, whatever has been put into order since.
    int MadePlace(int of_row) const;

    // Grows with every change of rows, columns, texts or colours.
    long Revision() const { return revision_; }

  private:
    struct Cell {
        std::string text;
        std::optional<int> back;
    };
    struct Row {
        std::vector<Cell> cells;
        int height = 0;
        int made_place = 0;
    };

    const Cell* Find(int cell_row, int cell_column) const;

    std::vector<Row> rows_;
    std::vector<int> widths_;
    int top_row_ = 1;
    long revision_ = 0;
};

// Null unless the control is a grid.
Grid* AsGrid(Control* control);

}  // namespace zandrell
