#pragma once

#include <string>

#include "command/byte_streams.h"
#include "command/row_calculation.h"

namespace zandrell {

enum class RowFormat { Csv, Json };

struct RowStreams {
    ByteSource input;
    ByteSink output;
    ByteSink reports;
};

// Carries a calculation through a table of comma-separated values: the first line names the
// columns, in any order; every later line that is not blank is a row. Each row is passed through as
// it stands with the results behind it, or becomes a JSON object of one line. A row that
// lacks a result is reported with the number of its line, has an empty cell there (null in JSON),
// and the next one follows. Memory does not grow with the input. False, with one line in `error`,
// when the table as a whole cannot be read or written.
bool RunRows(RowCalculation& calculation, RowFormat format, const RowStreams& streams,
             std::string& error);

}  // namespace zandrell
