#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

// Cuts a line of comma-separated values into its cells, as they stand: quotes and blanks are part
// of them. A cell that begins with a double quote runs to its closing quote, commas included; two
// quotes stand for one. False when a quote is not closed on its line or text follows the closing
// one.
bool SplitCells(std::string_view line, std::vector<std::string_view>& cells);

// What a cell says: without its quotes, doubled ones single.
std::string CellText(std::string_view cell);

// A cell, or a text that a user gave, as a number. Unlike a text field of the program, which takes
// what is readable at the start, the whole of it must be one finite number: decimal digits with a
// point or comma, perhaps a sign and an exponent; blanks around it and quotes are passed over.
// Empty for anything else.
std::optional<double> NumberInCell(std::string_view cell);

// Appends the shortest text that reads back as the same number. Requires: finite.
void AppendNumber(std::string& text, double value);

// A text as a JSON string with its quotes. What is not UTF-8 is read as Windows-1252.
void AppendJsonString(std::string& json, std::string_view text);

// A cell as a JSON value: a number as it stands where that is how JSON writes numbers, else a
// string, so that "007" keeps its zeros.
void AppendJsonCell(std::string& json, std::string_view cell);

}  // namespace zandrell
