#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "selection/catalogue.h"
#include "selection/catalogue_index.h"
#include "selection/series_filter.h"

// Tables for people (CSV in UTF-8) and the catalogue files of the suite, each made from the other
// without loss.
namespace zandrell::catalogues {

// What is wrong with a source, each with file, line and field.
class Faults {
  public:
    void Add(const std::string& file, std::size_t line, const std::string& fault) {
        list_.push_back(file + ":" + std::to_string(line) + ": " + fault);
    }
    void Add(const std::string& file, const std::string& fault) {
        list_.push_back(file + ": " + fault);
    }
    const std::vector<std::string>& List() const { return list_; }

  private:
    std::vector<std::string> list_;
};

// A table under its header line. An empty line is a row of its own.
struct Table {
    struct Row {
        std::size_t line = 0;
        std::vector<std::string> cells;  // as many as the header has, or none
    };
    std::string file;
    std::vector<std::string> header;
    std::vector<Row> rows;
};

Table ReadTable(const std::string& file, std::string_view text, Faults& faults);
std::string WriteTable(const Table& table);

// One field as a cell. A byte that has no letter of its own stands as \xHH, a backslash as \\, so
// that every field finds its way back; blanks at its end are cut.
std::string CellOf(const FieldPlace& place, std::string_view field);

// The bytes of a cell, padded to the field. False, with the reason, when it does not fit.
bool FieldOf(const FieldPlace& place, std::string_view cell, std::string& bytes,
             std::string& reason);

// A series file: a column for each field that any record uses, a line for each record. A record
// without any text is an empty line.
std::string RecordsOf(const Table& table, Faults& faults);
Table TableOfRecords(const std::string& file, std::string_view records);

// An index: the four items of a series in a line.
std::vector<IndexLine> IndexOf(const Table& table, Faults& faults);
Table TableOfIndex(const std::string& file, const std::vector<IndexLine>& lines);
std::string IndexText(const std::vector<IndexLine>& lines);

// The hidden series: one text a line.
HiddenSeries HiddenOf(const Table& table, Faults& faults);
Table TableOfHidden(const std::string& file, const HiddenSeries& hidden);
std::string HiddenText(const HiddenSeries& hidden);

}  // namespace zandrell::catalogues
