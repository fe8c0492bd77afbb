#include "command/row_run.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "command/record_writer.h"
#include "command/table_cells.h"

namespace zandrell {
namespace {

constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool Fail(std::string& error, std::string reason) {
    error = std::move(reason);
    return false;
}

std::string Quoted(std::string_view text) { return '"' + Excerpt(text) + '"'; }

std::string LineName(std::uint64_t number) { return "line " + std::to_string(number) + ": "; }

class RowRun {
  public:
    RowRun(RowCalculation& calculation, RowFormat format, const RowStreams& streams)
        : calculation_(calculation),
          columns_(calculation.Inputs()),
          json_(format == RowFormat::Json),
          output_(streams.output),
          reports_(streams.reports),
          // Before the next bytes are waited for, what is done is handed over.
          reader_([this, &streams](std::span<char> block) {
              Flush();
              return streams.input(block);
          }),
          inputs_(columns_.size()),
          results_(calculation.Results().size()) {}

    bool Run(std::string& error) {
        LineReader::Line line;
        if (reader_.Next(line) && !TakeHeader(line, error)) return false;
        if (line.number == 1 && places_.empty() && !reader_.Failed()) {
            return Fail(error, "the input is empty: its first line must name the columns");
        }
        while (!output_.Failed() && reader_.Next(line)) {
            if (line.too_long || !line.text.empty()) TakeRow(line);
        }
        Flush();
        if (reader_.Failed()) return Fail(error, "the input cannot be read");
        if (output_.Failed()) return Fail(error, "the output cannot be written");
        return true;
    }

  private:
    bool TakeHeader(const LineReader::Line& line, std::string& error);
    bool FindColumns(std::string& error);
    bool NamesAreFitForJson(std::string& error) const;
    void TakeRow(const LineReader::Line& line);
    bool ReadCells(const LineReader::Line& line, std::string& reason);
    bool ReadNumbers(std::string& reason);
    void FindResults(std::string& reason);
    void WriteCsvRow(std::string_view text);
    void WriteJsonRow();
    void AppendJsonInput(std::string& json, std::size_t column) const;
    void AppendJsonResult(std::string& json, std::size_t result) const;
    const std::string* TextResult(std::size_t result) const;

    void Flush() {
        output_.Flush();
        reports_.Flush();
    }

    RowCalculation& calculation_;
    std::span<const InputColumn> columns_;
    bool json_;
    BufferedSink output_, reports_;
    LineReader reader_;
    std::vector<std::string> names_;   // of all columns of the table
    std::vector<std::size_t> places_;  // of the inputs among them
    std::vector<std::string_view> cells_;
    std::vector<std::optional<double>> inputs_;
    std::vector<std::optional<double>> results_;
    bool calculated_ = false;  // the row; only then may its texts be asked for
};

bool RowRun::TakeHeader(const LineReader::Line& line, std::string& error) {
    std::string_view text = line.text;
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    if (line.too_long || !SplitCells(text, cells_)) {
        return Fail(error, "line 1: no header line that names the columns");
    }
    for (const auto cell : cells_) {
        std::string name = CellText(cell);
        const auto first = name.find_first_not_of(" \t");
        name.erase(0, std::min(first, name.size()));
        name.erase(name.find_last_not_of(" \t") + 1);
        names_.push_back(std::move(name));
    }
    if (!FindColumns(error)) return false;
    if (json_) return NamesAreFitForJson(error);
    output_.buffer += line.text;
    for (const auto result : calculation_.Results()) {
        output_.buffer += ',';
        AppendCsvText(output_.buffer, result);
    }
    output_.EndLine();
    return true;
}

bool RowRun::FindColumns(std::string& error) {
    for (const auto& column : columns_) {
        const auto found = std::find(names_.begin(), names_.end(), column.name);
        if (found == names_.end() && column.need == ColumnNeed::Always) {
            return Fail(error, "line 1: there is no column " + std::string(column.name));
        }
        if (found != names_.end() &&
            std::find(found + 1, names_.end(), column.name) != names_.end()) {
            return Fail(error, "line 1: there are two columns " + std::string(column.name));
        }
        places_.push_back(found == names_.end() ? kNoColumn
                                                : static_cast<std::size_t>(found - names_.begin()));
    }
    return true;
}

// An object whose members share a name would lose one of them.
bool RowRun::NamesAreFitForJson(std::string& error) const {
    std::set<std::string_view> taken(calculation_.Results().begin(), calculation_.Results().end());
    for (const auto& name : names_) {
        if (taken.insert(name).second) continue;
        return Fail(error, "line 1: a JSON object cannot hold two members " + Quoted(name));
    }
    return true;
}

void RowRun::TakeRow(const LineReader::Line& line) {
    std::string reason;
    std::fill(inputs_.begin(), inputs_.end(), std::nullopt);
    std::fill(results_.begin(), results_.end(), std::nullopt);
    calculated_ = false;
    if (ReadCells(line, reason) && ReadNumbers(reason)) FindResults(reason);
    if (!reason.empty()) {
        reports_.buffer.append(LineName(line.number)).append(reason);
        reports_.EndLine();
    }
    if (json_) {
        WriteJsonRow();
    } else {
        // A row that cannot be taken apart would take its neighbours along in the next program.
        WriteCsvRow(cells_.empty() ? std::string_view() : line.text);
    }
    output_.EndLine();
}

bool RowRun::ReadCells(const LineReader::Line& line, std::string& reason) {
    if (line.too_long || !SplitCells(line.text, cells_)) {
        cells_.clear();
        return Fail(reason, line.too_long ? "the line is longer than " +
                                                std::to_string(LineReader::kLongestLine) + " bytes"
                                          : "a quoted cell does not end where it should");
    }
    if (cells_.size() == names_.size()) return true;
    return Fail(reason, std::to_string(cells_.size()) + " cells, but the header has " +
                            std::to_string(names_.size()));
}

bool RowRun::ReadNumbers(std::string& reason) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (places_[i] == kNoColumn) continue;
        const std::string_view cell = cells_[places_[i]];
        if (columns_[i].need == ColumnNeed::Text) {
            calculation_.TakeText(i, CellText(cell));
            continue;
        }
        inputs_[i] = NumberInCell(cell);
        const bool blank = cell.find_first_not_of(" \t\"") == std::string_view::npos;
        if (inputs_[i] || (blank && columns_[i].need == ColumnNeed::NumberMayLack)) continue;
        const std::string name(columns_[i].name);
        return Fail(reason,
                    blank ? name + " is empty" : name + " is no number: " + Quoted(CellText(cell)));
    }
    return true;
}

void RowRun::FindResults(std::string& reason) {
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

void RowRun::WriteCsvRow(std::string_view text) {
    std::string& buffer = output_.buffer;
    buffer += text;
    // A row that is too short is filled up, so that later columns stay below their names.
    const std::size_t cells = std::max<std::size_t>(cells_.size(), 1);
    if (cells < names_.size()) buffer.append(names_.size() - cells, ',');
    for (std::size_t i = 0; i < results_.size(); ++i) {
        buffer += ',';
        if (const std::string* text_result = TextResult(i)) {
            AppendCsvText(buffer, *text_result);
        } else if (results_[i]) {
            AppendNumber(buffer, *results_[i]);
        }
    }
}

void RowRun::AppendJsonInput(std::string& json, std::size_t column) const {
    if (column >= cells_.size()) {
        json += "null";
        return;
    }
    const auto input = std::find(places_.begin(), places_.end(), column);
    const auto value = input == places_.end() ? std::nullopt : NumberInCell(cells_[column]);
    if (value) {
        AppendNumber(json, *value);
    } else {
        AppendJsonCell(json, cells_[column]);
    }
}

// Null for a number, and for every cell of a row that was not calculated.
const std::string* RowRun::TextResult(std::size_t result) const {
    return calculated_ ? calculation_.TextResult(result) : nullptr;
}

void RowRun::AppendJsonResult(std::string& json, std::size_t result) const {
    const std::string* text = TextResult(result);
    if (text != nullptr && !text->empty()) {
        AppendJsonString(json, *text);
    } else if (text == nullptr && results_[result]) {
        AppendNumber(json, *results_[result]);
    } else {
        json += "null";
    }
}

void RowRun::WriteJsonRow() {
    std::string& buffer = output_.buffer;
    char mark = '{';
    for (std::size_t i = 0; i < names_.size(); ++i, mark = ',') {
        buffer += mark;
        AppendJsonString(buffer, names_[i]);
        buffer += ':';
        AppendJsonInput(buffer, i);
    }
    for (std::size_t i = 0; i < results_.size(); ++i) {
        buffer += ',';
        AppendJsonString(buffer, calculation_.Results()[i]);
        buffer += ':';
        AppendJsonResult(buffer, i);
    }
    buffer += '}';
}

}  // namespace

bool RunRows(RowCalculation& calculation, RowFormat format, const RowStreams& streams,
             std::string& error) {
    return RowRun(calculation, format, streams).Run(error);
}

}  // namespace zandrell
