#include "command/table_rows.h"

#include <algorithm>
#include <cmath>

#include "base/text_helpers.h"
#include "command/record_writer.h"
#include "command/table_cells.h"

namespace zandrell {
namespace {

bool Fail(std::string& reason, std::string text) {
    reason = std::move(text);
    return false;
}

std::string Quoted(std::string_view text) { return '"' + Excerpt(text) + '"'; }

}  // namespace

RowMaker::RowMaker(RowCalculation& calculation, const TableLayout& layout)
    : calculation_(calculation),
      layout_(layout),
      inputs_(calculation.Inputs().size()),
      results_(calculation.Results().size()) {
    if (!layout.json) return;
    const auto add = [this](std::string_view name) {
        std::string& member = members_.emplace_back(members_.empty() ? "{" : ",");
        AppendJsonString(member, name);
        member += ':';
    };
    for (const auto& name : layout.names) add(name);
    for (const auto name : calculation.Results()) add(name);
}

void RowMaker::Make(const LineReader::Line& line, std::string& rows, std::string& reports) {
    std::string reason;
    std::fill(inputs_.begin(), inputs_.end(), std::nullopt);
    std::fill(results_.begin(), results_.end(), std::nullopt);
    calculated_ = false;
    if (ReadCells(line, reason) && ReadNumbers(reason)) FindResults(reason);
    if (!reason.empty()) {
        reports.append("line ").append(std::to_string(line.number)).append(": ").append(reason);
        reports += '\n';
    }
    if (layout_.json) {
        WriteJsonRow(rows);
    } else {
        // A row that cannot be taken apart would take its neighbours along in the next program.
        WriteCsvRow(cells_.empty() ? std::string_view() : line.text, rows);
    }
    rows += '\n';
}

bool RowMaker::ReadCells(const LineReader::Line& line, std::string& reason) {
    if (line.too_long || !SplitCells(line.text, cells_)) {
        cells_.clear();
        return Fail(reason, line.too_long ? "the line is longer than " +
                                                std::to_string(LineReader::kLongestLine) + " bytes"
                                          : "a quoted cell does not end where it should");
    }
    if (cells_.size() == layout_.names.size()) return true;
    return Fail(reason, std::to_string(cells_.size()) + " cells, but the header has " +
                            std::to_string(layout_.names.size()));
}

bool RowMaker::ReadNumbers(std::string& reason) {
    const auto columns = calculation_.Inputs();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (layout_.places[i] == TableLayout::kNoColumn) continue;
        const std::string_view cell = cells_[layout_.places[i]];
        if (columns[i].need == ColumnNeed::Text) {
            calculation_.TakeText(i, CellText(cell));
            continue;
        }
        inputs_[i] = NumberInCell(cell);
        const bool blank = cell.find_first_not_of(" \t\"") == std::string_view::npos;
        if (inputs_[i] || (blank && columns[i].need == ColumnNeed::NumberMayLack)) continue;
        const std::string name(columns[i].name);
        return Fail(reason,
                    blank ? name + " is empty" : name + " is no number: " + Quoted(CellText(cell)));
    }
    return true;
}

void RowMaker::FindResults(std::string& reason) {
    calculation_.Calculate(inputs_, results_, reason);
    calculated_ = true;
    for (std::size_t i = 0; i < results_.size(); ++i) {
        if (TextResult(i) != nullptr) continue;
        if (results_[i] && std::isfinite(*results_[i])) continue;
        results_[i].reset();
        if (reason.empty()) {
            reason.append(calculation_.Results()[i]).append(" is no finite number");
        }
    }
}

void RowMaker::WriteCsvRow(std::string_view text, std::string& rows) const {
    rows += text;
    // A row that is too short is filled up, so that later columns stay below their names.
    const std::size_t cells = std::max<std::size_t>(cells_.size(), 1);
    if (cells < layout_.names.size()) rows.append(layout_.names.size() - cells, ',');
    for (std::size_t i = 0; i < results_.size(); ++i) {
        rows += ',';
        if (const std::string* result = TextResult(i)) {
            AppendCsvText(rows, *result);
        } else if (results_[i]) {
            AppendNumber(rows, *results_[i]);
        }
    }
}

void RowMaker::AppendJsonInput(std::string& json, std::size_t column) const {
    if (column >= cells_.size()) {
        json += "null";
        return;
    }
    const auto input = std::find(layout_.places.begin(), layout_.places.end(), column);
    const auto value = input == layout_.places.end() ? std::nullopt : NumberInCell(cells_[column]);
    if (value) {
        AppendNumber(json, *value);
    } else {
        AppendJsonCell(json, cells_[column]);
    }
}

// Null for a number, and for every cell of a row that was not calculated.
const std::string* RowMaker::TextResult(std::size_t result) const {
    return calculated_ ? calculation_.TextResult(result) : nullptr;
}

void RowMaker::AppendJsonResult(std::string& json, std::size_t result) const {
    const std::string* text = TextResult(result);
    if (text != nullptr && !text->empty()) {
        AppendJsonString(json, *text);
    } else if (text == nullptr && results_[result]) {
        AppendNumber(json, *results_[result]);
    } else {
        json += "null";
    }
}

void RowMaker::WriteJsonRow(std::string& rows) const {
    const std::size_t columns = layout_.names.size();
    for (std::size_t i = 0; i < columns; ++i) {
        rows += members_[i];
        AppendJsonInput(rows, i);
    }
    for (std::size_t i = 0; i < results_.size(); ++i) {
        rows += members_[columns + i];
        AppendJsonResult(rows, i);
    }
    rows += '}';
}

}  // namespace zandrell
