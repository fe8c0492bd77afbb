#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "command/byte_streams.h"
#include "command/row_run.h"

namespace zandrell {

// Appends a text as a cell of a table: in quotes where it needs them, control characters as blanks,
// so that it stays on its line.
void AppendCsvText(std::string& csv, std::string_view text);

// Writes records of the same columns: a table with a header line, or an object a line with null
// for what a record lacks.
class RecordWriter {
  public:
    RecordWriter(std::vector<std::string_view> columns, RowFormat format, ByteSink output);

    // The next cell of the record; an empty text counts as lacking.
    RecordWriter& Text(std::string_view text);
    RecordWriter& Number(double value);
    RecordWriter& Lacking();
    // What remains of the record is lacking.
    void EndRecord();

    // False when not all could be written.
    bool Finish();

  private:
    void StartCell();

    std::vector<std::string_view> columns_;
    bool json_;
    BufferedSink output_;
    std::size_t cell_ = 0;
};

}  // namespace zandrell
