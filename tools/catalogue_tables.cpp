#include "catalogue_tables.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>

#include "base/delimited_text.h"
#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "command/table_cells.h"

namespace zandrell::catalogues {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
const std::vector<std::string> kIndexHeader = {"SerieDatei", "SerieKennung", "SerieText",
                                               "SerieAdresse"};
const std::vector<std::string> kHiddenHeader = {"Text"};

int CodeOf(char c) { return static_cast<unsigned char>(c); }

std::string Escaped(char c) {
    const auto code = static_cast<unsigned>(CodeOf(c));
    return {'\\', 'x', kHexDigits[code >> 4U], kHexDigits[code & 0xFU]};
}

bool IsControl(int code) { return code < 0x20 || code == 0x7F; }

// The places that the Windows code page leaves free.
bool IsFree(int code) {
    return code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D;
}

// The DOS byte of a letter that both code pages have at different places; 0 for any other.
int OemByteOf(int ansi) {
    for (int code = 0x80; code <= 0xFF; ++code) {
        if (OemCharToAnsi(code) == ansi && code != ansi) return code;
    }
    return 0;
}

std::string LetterOf(const FieldPlace& place, char c) {
    const int code = CodeOf(c);
    if (c == '\\') return "\\\\";
    if (IsControl(code)) return Escaped(c);
    if (!place.oem || code < 0x80)
        return IsFree(code) ? Escaped(c) : DecodeByte(static_cast<unsigned char>(c));
    const int ansi = OemCharToAnsi(code);
    const bool taken = ansi == code && OemByteOf(code) != 0;  // the letter stands for a DOS byte
    if (taken || (ansi == code && IsFree(code))) return Escaped(c);
    return DecodeByte(static_cast<unsigned char>(ansi));
}

std::size_t LengthOfCharacter(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && (CodeOf(text[length]) & 0xC0) == 0x80) ++length;
    return length;
}

// The byte that stands for one character of UTF-8; empty when there is none.
std::optional<char> ByteOf(const FieldPlace& place, std::string_view character) {
    const std::string byte = EncodeText(character);
    if (byte.size() != 1 || (CodeOf(byte[0]) >= 0x80 && character.size() == 1)) return {};
    const int code = CodeOf(byte[0]);
    if (IsControl(code) || IsFree(code)) return {};
    if (!place.oem || code < 0x80) return byte[0];
    if (const int oem = OemByteOf(code)) return static_cast<char>(oem);
    if (OemCharToAnsi(code) != code) return {};  // its place is taken in the DOS code page
    return byte[0];
}

int HexValue(char c) {
    const auto place = kHexDigits.find(static_cast<char>(std::toupper(CodeOf(c))));
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

// Takes "\\" or "\xHH" off the front of the text.
std::optional<char> TakeEscape(std::string_view& text) {
    if (text.starts_with("\\\\")) {
        text.remove_prefix(2);
        return '\\';
    }
    if (!text.starts_with("\\x") || text.size() < 4) return {};
    const int high = HexValue(text[2]), low = HexValue(text[3]);
    if (high < 0 || low < 0) return {};
    text.remove_prefix(4);
    return static_cast<char>(high * 16 + low);
}

std::string QuotedIfNeeded(const std::string& cell) {
    const bool edge = !cell.empty() && (cell.front() == ' ' || cell.back() == ' ');
    if (!edge && cell.find_first_of(",\"") == std::string::npos) return cell;
    std::string quoted = "\"";
    for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

bool HasHeader(const Table& table, const std::vector<std::string>& header, Faults& faults) {
    if (table.header == header) return true;
    std::string wanted;
    for (const auto& name : header) wanted += (wanted.empty() ? "" : ",") + name;
    faults.Add(table.file, 1, "the header line is not " + wanted);
    return false;
}

// What stands between double quotes in a file of the suite.
bool IsFitForQuotes(std::string_view text) {
    const FieldPlace windows{"", 0, 0, false};
    for (; !text.empty(); text.remove_prefix(LengthOfCharacter(text))) {
        const auto character = text.substr(0, LengthOfCharacter(text));
        if (character == "\"" || !ByteOf(windows, character)) return false;
    }
    return true;
}

bool CheckQuoted(const Table& table, const Table::Row& row, Faults& faults) {
    bool fit = true;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        if (IsFitForQuotes(row.cells[i])) continue;
        faults.Add(table.file, row.line,
                   table.header[i] +
                       ": a double quote, or a character that is not in the Windows "
                       "code page");
        fit = false;
    }
    return fit;
}

const FieldPlace* PlaceNamed(std::string_view name) {
    const auto found = std::find_if(kFieldPlaces.begin(), kFieldPlaces.end(),
                                    [&](const FieldPlace& place) { return place.name == name; });
    return found == kFieldPlaces.end() ? nullptr : &*found;
}

std::vector<const FieldPlace*> PlacesOf(const Table& table, Faults& faults) {
    std::vector<const FieldPlace*> places;
    for (const auto& name : table.header) {
        const FieldPlace* place = PlaceNamed(name);
        if (place == nullptr) {
            faults.Add(table.file, 1, "there is no field " + name);
        } else if (std::find(places.begin(), places.end(), place) != places.end()) {
            faults.Add(table.file, 1, "two columns " + name);
        }
        places.push_back(place);
    }
    return places;
}

}  // namespace

Table ReadTable(const std::string& file, std::string_view text, Faults& faults) {
    Table table;
    table.file = file;
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    const auto lines = LinesOf(text);
    std::vector<std::string_view> cells;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        Table::Row row{i + 1, {}};
        if (!SplitCells(lines[i], cells)) {
            faults.Add(file, row.line, "a quoted cell does not end where it should");
            continue;
        }
        if (i == 0 || !lines[i].empty()) {
            for (const auto cell : cells) row.cells.push_back(CellText(cell));
        }
        if (i == 0) {
            table.header = row.cells;
        } else if (row.cells.empty() || row.cells.size() == table.header.size()) {
            table.rows.push_back(std::move(row));
        } else {
            faults.Add(file, row.line,
                       std::to_string(row.cells.size()) + " cells, but the header has " +
                           std::to_string(table.header.size()));
        }
    }
    if (lines.empty()) faults.Add(file, "the file is empty: its first line must name the columns");
    return table;
}

std::string WriteTable(const Table& table) {
    std::string text;
    const auto write = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            text += (i == 0 ? "" : ",") + QuotedIfNeeded(cells[i]);
        }
        text += '\n';
    };
    write(table.header);
    for (const auto& row : table.rows) write(row.cells);
    return text;
}

std::string CellOf(const FieldPlace& place, std::string_view field) {
    field = field.substr(0, field.find_last_not_of(' ') + 1);
    std::string cell;
    for (const char c : field) cell += LetterOf(place, c);
    return cell;
}

bool FieldOf(const FieldPlace& place, std::string_view cell, std::string& bytes,
             std::string& reason) {
    bytes.clear();
    while (!cell.empty()) {
        if (cell.front() == '\\') {
            const auto byte = TakeEscape(cell);
            if (!byte) {
                reason = "behind a backslash stands xHH or another backslash";
                return false;
            }
            bytes += *byte;
            continue;
        }
        const auto character = cell.substr(0, LengthOfCharacter(cell));
        const auto byte = ByteOf(place, character);
        if (!byte) {
            reason = "no byte of its code page stands for \"" + std::string(character) + "\"";
            return false;
        }
        bytes += *byte;
        cell.remove_prefix(character.size());
    }
    if (bytes.size() > place.width) {
        reason = std::to_string(bytes.size()) + " characters do not fit into " +
                 std::to_string(place.width);
        return false;
    }
    bytes.resize(place.width, ' ');
    return true;
}

std::string RecordsOf(const Table& table, Faults& faults) {
    const auto places = PlacesOf(table, faults);
    std::string records, bytes, reason;
    for (const auto& row : table.rows) {
        std::string record(KatalogSatz::kLength, ' ');
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            if (places[i] == nullptr) continue;
            if (FieldOf(*places[i], row.cells[i], bytes, reason)) {
                record.replace(places[i]->offset, places[i]->width, bytes);
            } else {
                faults.Add(table.file, row.line, table.header[i] + ": " + reason);
            }
        }
        records += record;
    }
    return records;
}

Table TableOfRecords(const std::string& file, std::string_view records) {
    Table table;
    table.file = file;
    const auto field_of = [&](std::size_t record, const FieldPlace& place) {
        return records.substr(record * KatalogSatz::kLength + place.offset, place.width);
    };
    const auto is_blank = [](std::string_view text) {
        return text.find_first_not_of(' ') == std::string_view::npos;
    };
    const std::size_t count = records.size() / KatalogSatz::kLength;
    std::vector<const FieldPlace*> used;
    for (const auto& place : kFieldPlaces) {
        bool blank = &place != &PlaceOf(KatalogFeld::KatTyp);
        for (std::size_t i = 0; i < count && blank; ++i) blank = is_blank(field_of(i, place));
        if (blank) continue;
        used.push_back(&place);
        table.header.emplace_back(place.name);
    }
    for (std::size_t i = 0; i < count; ++i) {
        Table::Row row{i + 2, {}};
        if (!is_blank(records.substr(i * KatalogSatz::kLength, KatalogSatz::kLength))) {
            for (const auto* place : used) row.cells.push_back(CellOf(*place, field_of(i, *place)));
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

std::vector<IndexLine> IndexOf(const Table& table, Faults& faults) {
    std::vector<IndexLine> lines;
    if (!HasHeader(table, kIndexHeader, faults)) return lines;
    for (const auto& row : table.rows) {
        if (row.cells.empty()) {
            faults.Add(table.file, row.line, "an empty line");
        } else if (CheckQuoted(table, row, faults)) {
            lines.push_back({row.cells[0], row.cells[1], row.cells[2], row.cells[3]});
        }
    }
    return lines;
}

Table TableOfIndex(const std::string& file, const std::vector<IndexLine>& lines) {
    Table table{file, kIndexHeader, {}};
    for (const auto& line : lines) {
        table.rows.push_back(
            {table.rows.size() + 2,
             {line.SerieDatei, line.SerieKennung, line.SerieText, line.SerieAdresse}});
    }
    return table;
}

std::string IndexText(const std::vector<IndexLine>& lines) {
    DelimitedWriter writer;
    for (const auto& line : lines) {
        writer.Text(line.SerieDatei).Text(line.SerieKennung).Text(line.SerieText);
        writer.Text(line.SerieAdresse).EndLine();
    }
    return EncodeText(writer.Result());
}

HiddenSeries HiddenOf(const Table& table, Faults& faults) {
    HiddenSeries hidden;
    if (!HasHeader(table, kHiddenHeader, faults)) return hidden;
    for (const auto& row : table.rows) {
        if (row.cells.empty() || Trimmed(row.cells[0]).empty()) {
            faults.Add(table.file, row.line, "a blank text would end the list");
        } else if (CheckQuoted(table, row, faults)) {
            hidden.push_back(row.cells[0]);
        }
    }
    return hidden;
}

Table TableOfHidden(const std::string& file, const HiddenSeries& hidden) {
    Table table{file, kHiddenHeader, {}};
    for (const auto& text : hidden) table.rows.push_back({table.rows.size() + 2, {text}});
    return table;
}

std::string HiddenText(const HiddenSeries& hidden) {
    DelimitedWriter writer;
    for (const auto& text : hidden) writer.Text(text).EndLine();
    return EncodeText(writer.Result());
}

}  // namespace zandrell::catalogues
