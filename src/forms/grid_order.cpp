#include "forms/grid_order.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

struct SortKey {
    bool empty = false;
    std::optional<double> number;
    std::string text;
};

SortKey KeyOf(const Grid& grid, int row, int column) {
    SortKey key{grid.IsEmptyRow(row), std::nullopt, UpperCase(Trimmed(grid.Text(row, column)))};
    const bool numeric = !key.text.empty() &&
                         key.text.find_first_not_of("0123456789.,-+E") == std::string::npos &&
                         key.text.find_first_of("0123456789") != std::string::npos;
    if (numeric) key.number = ParsedNumber(key.text);
    return key;
}

bool ComesBefore(const SortKey& left, const SortKey& right, bool descending) {
    if (left.empty != right.empty) return right.empty;
    if (left.number.has_value() != right.number.has_value()) return left.number.has_value();
    if (left.number) {
        return descending ? *right.number < *left.number : *left.number < *right.number;
    }
    return descending ? right.text < left.text : left.text < right.text;
}

void SortByColumn(const Grid& grid, const GridOrder& order, std::vector<int>& rows) {
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(grid.RowCount()));
    for (int row = 0; row < grid.RowCount(); ++row) keys.push_back(KeyOf(grid, row, order.column));
    std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
        return ComesBefore(keys[static_cast<std::size_t>(left)],
                           keys[static_cast<std::size_t>(right)], order.descending);
    });
}

std::string CsvCell(const std::string& text) {
    std::string cell = Trimmed(text);
    if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
    for (auto quote = cell.find('"'); quote != std::string::npos;
         quote = cell.find('"', quote + 2)) {
        cell.insert(quote, 1, '"');
    }
    return "\"" + cell + "\"";
}

}  // namespace

void GridOrder::Ask(int asked_column) {
    const bool in_force = column == asked_column;
    column = in_force && descending ? -1 : asked_column;
    descending = in_force && !descending;
}

void SortRows(Grid& grid, const GridOrder& order) {
    const bool sorts = order.column >= 0 && order.column < grid.ColumnCount();
    grid.sort_mark.reset();
    if (sorts) grid.sort_mark = {order.column, order.descending};
    if (grid.RowCount() < 2) return;
    std::vector<int> rows(static_cast<std::size_t>(grid.RowCount() - 1));
    std::iota(rows.begin(), rows.end(), 1);
    if (sorts) {
        SortByColumn(grid, order, rows);
    } else {
        const auto made = [&grid](int row) { return grid.MadePlace(row); };
        if (std::ranges::is_sorted(rows, {}, made)) return;
        std::ranges::sort(rows, {}, made);
    }
    const auto chosen = std::find(rows.begin(), rows.end(), grid.row);
    if (chosen != rows.end()) grid.row = static_cast<int>(chosen - rows.begin()) + 1;
    grid.Reorder(rows);
}

std::string GridAsCsv(const Grid& grid) {
    std::string csv;
    for (int row = 0; row < grid.RowCount(); ++row) {
        if (grid.Height(row) == 0 || (row > 0 && grid.IsEmptyRow(row))) continue;
        bool first = true;
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            if (grid.Width(column) == 0) continue;
            if (!std::exchange(first, false)) csv += ',';
            csv += CsvCell(grid.Text(row, column));
        }
        csv += "\r\n";
    }
    return csv;
}

std::string SaveAsCsv(const Grid& grid, const std::string& file, const DataFiles& files,
                      const Captions& captions) {
    std::string reason;
    const FileStatus status =
        files.ReplaceBytes(file, GridAsCsv(grid), Durability::Flushed, &reason);
    if (status == FileStatus::Ok) return captions[Caption::Saved] + " " + file;
    return FilledIn(captions[Caption::SavingFailed], {file, reason});
}

}  // namespace zandrell
