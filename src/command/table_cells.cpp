#include "command/table_cells.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view WithoutBlanks(std::string_view text) {
    while (!text.empty() && kBlanks.find(text.front()) != std::string_view::npos) {
        text.remove_prefix(1);
    }
    while (!text.empty() && kBlanks.find(text.back()) != std::string_view::npos) {
        text.remove_suffix(1);
    }
    return text;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsQuoted(std::string_view cell) {
    return cell.size() >= 2 && cell.front() == '"' && cell.back() == '"';
}

// The position behind a cell that begins with a quote; npos when its quote is not closed.
std::size_t EndOfQuotedCell(std::string_view line, std::size_t start) {
    for (std::size_t quote = line.find('"', start + 1); quote != std::string_view::npos;
         quote = line.find('"', quote + 2)) {
        if (quote + 1 >= line.size() || line[quote + 1] != '"') return quote + 1;
    }
    return std::string_view::npos;
}

std::optional<double> WholeNumberText(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    double value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::size_t DigitsAt(std::string_view text, std::size_t place) {
    std::size_t count = 0;
    while (place + count < text.size() && IsDigit(text[place + count])) ++count;
    return count;
}

// Whether the text follows JSON's grammar of numbers, which knows no leading zero or plus sign.
bool IsJsonNumber(std::string_view text) {
    std::size_t place = text.starts_with('-') ? 1 : 0;
    const std::size_t whole = DigitsAt(text, place);
    if (whole == 0 || (whole > 1 && text[place] == '0')) return false;
    place += whole;
    if (place < text.size() && text[place] == '.') {
        const std::size_t decimals = DigitsAt(text, place + 1);
        if (decimals == 0) return false;
        place += 1 + decimals;
    }
    if (place < text.size() && (text[place] == 'e' || text[place] == 'E')) {
        ++place;
        if (place < text.size() && (text[place] == '+' || text[place] == '-')) ++place;
        const std::size_t digits = DigitsAt(text, place);
        if (digits == 0) return false;
        place += digits;
    }
    return place == text.size();
}

void AppendJsonCharacter(std::string& json, char c) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
        json += '\\';
        json += c;
    } else if (code < 0x20) {
        json += "\\u00";
        json += kHexDigits[code >> 4U];
        json += kHexDigits[code & 0xFU];
    } else {
        json += c;
    }
}

}  // namespace

bool SplitCells(std::string_view line, std::vector<std::string_view>& cells) {
    cells.clear();
    for (std::size_t start = 0;;) {
        const bool quoted = start < line.size() && line[start] == '"';
        std::size_t end = quoted ? EndOfQuotedCell(line, start) : line.find(',', start);
        if (quoted && end == std::string_view::npos) return false;
        if (end == std::string_view::npos) end = line.size();
        if (end < line.size() && line[end] != ',') return false;
        cells.push_back(line.substr(start, end - start));
        if (end == line.size()) return true;
        start = end + 1;
    }
}

std::string CellText(std::string_view cell) {
    if (!IsQuoted(cell)) return std::string(cell);
    std::string text;
    for (std::size_t i = 1; i + 1 < cell.size(); ++i) {
        text += cell[i];
        if (cell[i] == '"') ++i;
    }
    return text;
}

std::optional<double> NumberInCell(std::string_view cell) {
    cell = WithoutBlanks(cell);
    if (IsQuoted(cell)) cell = WithoutBlanks(cell.substr(1, cell.size() - 2));
    const auto comma = cell.find(',');
    if (comma == std::string_view::npos) return WholeNumberText(cell);
    if (cell.find('.') != std::string_view::npos) return std::nullopt;
    std::string text(cell);
    text[comma] = '.';
    return WholeNumberText(text);
}

void AppendNumber(std::string& text, double value) {
    std::array<char, 32> digits{};
    const double unsigned_zero = value + 0.0;  // a negative zero would be written with its sign
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), unsigned_zero).ptr;
    text.append(digits.data(), end);
}

void AppendJsonString(std::string& json, std::string_view text) {
    json += '"';
    for (const char c : DecodeText(text)) AppendJsonCharacter(json, c);
    json += '"';
}

void AppendJsonCell(std::string& json, std::string_view cell) {
    if (IsJsonNumber(cell) && NumberInCell(cell)) {
        json += cell;
    } else {
        AppendJsonString(json, CellText(cell));
    }
}

}  // namespace zandrell
