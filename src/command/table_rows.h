#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "command/byte_streams.h"
#include "command/row_calculation.h"

namespace zandrell {

// What the header line told of a table.
struct TableLayout {
    static constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);

    bool json = false;
    std::vector<std::string> names;   // of all columns
    std::vector<std::size_t> places;  // of the calculation's inputs among them, or kNoColumn
};

// Makes rows with results of the lines of a table. Keeps its calculation and nothing of a line, so
// that several can work at one table, each with a calculation of its own.
class RowMaker {
  public:
    // Both outlive the maker.
    RowMaker(RowCalculation& calculation, const TableLayout& layout);

    // Appends the row that becomes of the line to `rows`, and a line to `reports` if it lacks a
    // result.
    void Make(const LineReader::Line& line, std::string& rows, std::string& reports);

  private:
    bool ReadCells(const LineReader::Line& line, std::string& reason);
    bool ReadNumbers(std::string& reason);
    void FindResults(std::string& reason);
    void WriteCsvRow(std::string_view text, std::string& rows) const;
    void WriteJsonRow(std::string& rows) const;
    void AppendJsonInput(std::string& json, std::size_t column) const;
    void AppendJsonResult(std::string& json, std::size_t result) const;
    const std::string* TextResult(std::size_t result) const;

    RowCalculation& calculation_;
    const TableLayout& layout_;
    std::vector<std::string_view> cells_;
    std::vector<std::optional<double>> inputs_, results_;
    std::vector<std::string> members_;  // the starts of those of a JSON object, with their names
    bool calculated_ = false;           // the row; only then may its texts be asked for
};

}  // namespace zandrell
