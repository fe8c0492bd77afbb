#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zandrell {

// The text form of a number that the whole program shows and stores: a blank in front unless it is
// negative, decimal point, 15 significant digits without trailing zeros, no zero in front of the
// point below 1. Plain from 1E-15 to below 1E+15, else mantissa, "E", sign and at least two digits.
// Does not depend on the locale. A value that is not finite gives an empty text.
std::string NumberText(double value);

// NumberText without the leading blank.
std::string TrimmedNumberText(double value);

// The shortest text that reads back as exactly the same double, for files of other programs.
// A value that is not finite gives an empty text.
std::string ExactNumberText(double value);

// A text that a user or a file gave, as a number. A decimal comma without a point is rewritten to a
// point in `text` (leading blanks behind it are cut), so that a later parse sees the point form.
// With both marks the text stays and the comma ends the number. A blank or unreadable text gives 0.
double ParseNumber(std::string& text);

// ParseNumber of a copy, for callers that do not look at the rewritten text.
double ParsedNumber(std::string text);

// The longest number at the start of `text`: blanks, tabs and line feeds are passed over, one sign,
// digits, one point, an exponent after E or D; or &H / &O with digits of that base. Stops at the
// first character that cannot go on. Nothing readable, or a number beyond a double, gives 0.
double ToDouble(std::string_view text);

// floor(value * factor) / factor: figures on screen are cut, not rounded, negatives downwards too.
double Cut(double value, double factor);

// To the nearest whole number, a tie to the even one. Empty when the value does not fit an int.
std::optional<int> RoundToInteger(double value);

// Writes `value` to `target` if it is finite, else leaves the target. Returns whether it did.
bool AssignFinite(double& target, double value);

}  // namespace zandrell
