// make_captions SOURCE_FOLDER OUTPUT_FOLDER
// make_captions --names SOURCE_FOLDER HEADER
//
// Turns the caption tables (slots.tsv and one table a language, UTF-8) into the suite's positional
// files (Caption.ENG, AirCoCap.ENG, QVCapt.ENG): one field a line in double quotes, slots that
// nothing uses as "". With --names it writes the header by which the program addresses a word
// through the name of its slot. A fault in a table is reported with file and line, and ends with
// status 1.

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/caption_lists.h"
#include "base/text_encoding.h"

namespace {

namespace fs = std::filesystem;

struct List {
    std::string_view name;  // in the tables and in front of the language tag
    int fields;
};

constexpr std::array<List, 3> kLists{{{"Caption", zandrell::kCaptionFields},
                                      {"AirCoCap", zandrell::kAirCoFields},
                                      {"QVCapt", zandrell::kQvFields}}};

constexpr std::string_view kSlotTable = "slots.tsv";
const std::string kReference = "ENG";

using Place = std::pair<std::string, int>;  // list name, number from 1
using Texts = std::map<Place, std::string>;

struct Slot {
    Place place;
    std::string name;  // by which program and language tables address it
    std::string role;
};

struct Row {
    std::size_t line;
    std::vector<std::string> columns;
};

[[noreturn]] void Fail(const fs::path& file, std::size_t line, const std::string& fault) {
    throw std::runtime_error(file.string() + ":" + std::to_string(line) + ": " + fault);
}

std::string ReadFile(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream || !fs::is_regular_file(file))
        throw std::runtime_error(file.string() + ": can not be read");
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> SplitAt(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

// The rows under the head line, each with exactly as many columns as that.
std::vector<Row> ReadTable(const fs::path& file, const std::string& head) {
    std::vector<std::string> lines = SplitAt(ReadFile(file), '\n');
    if (lines.size() > 1 && lines.back().empty()) lines.pop_back();
    const std::size_t columns = SplitAt(head, '\t').size();
    std::vector<Row> rows;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::string& line = lines[i];
        if (line.ends_with('\r')) line.pop_back();
        if (i == 0 && line != head) Fail(file, 1, "the head line is not \"" + head + "\"");
        if (i == 0) continue;
        rows.push_back({i + 1, SplitAt(line, '\t')});
        if (rows.back().columns.size() != columns)
            Fail(file, i + 1, "not " + std::to_string(columns) + " columns");
    }
    return rows;
}

Place ReadPlace(const fs::path& file, const Row& row) {
    const std::string& name = row.columns[0];
    const std::string& digits = row.columns[1];
    const auto list = std::find_if(kLists.begin(), kLists.end(),
                                   [&](const List& each) { return each.name == name; });
    if (list == kLists.end()) Fail(file, row.line, "no list \"" + name + "\"");
    int number = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc{} || stop != end || number < 1 || number > list->fields)
        Fail(file, row.line, name + " has no slot \"" + digits + "\"");
    return {name, number};
}

void CheckText(const fs::path& file, const Row& row, const std::string& text) {
    const auto unfit = [](char c) { return c == '"' || (c >= '\0' && c < ' ') || c == '\x7F'; };
    if (zandrell::Trimmed(text).empty()) Fail(file, row.line, "the text is empty");
    if (std::any_of(text.begin(), text.end(), unfit))
        Fail(file, row.line, "a double quote or control character in \"" + text + "\"");
}

bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }

// The name becomes one of the program's own: a capital first, then letters and digits.
void CheckName(const fs::path& file, const Row& row, const std::string& name) {
    const auto fits = [](char c) {
        return IsCapital(c) || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    };
    if (name.empty() || !IsCapital(name[0]) || !std::all_of(name.begin(), name.end(), fits))
        Fail(file, row.line, "\"" + name + "\" is no name such as SupplyAir");
}

std::vector<Slot> ReadSlots(const fs::path& file) {
    std::vector<Slot> slots;
    for (const Row& row : ReadTable(file, "list\tnumber\tname\trole\twhere")) {
        const Slot slot{ReadPlace(file, row), row.columns[2], row.columns[3]};
        CheckName(file, row, slot.name);
        CheckText(file, row, slot.role);
        CheckText(file, row, row.columns[4]);
        for (const Slot& before : slots) {
            if (before.place == slot.place)
                Fail(file, row.line, "a second row for " + row.columns[0] + " " + row.columns[1]);
            if (before.name == slot.name) Fail(file, row.line, "a second slot named " + slot.name);
        }
        slots.push_back(slot);
    }
    return slots;
}

// The places %1 to %9 of a message, for values that are known at run time only, in order.
std::string ValuePlaces(std::string_view text) {
    std::string places;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i - 1] == '%' && text[i] >= '1' && text[i] <= '9') places += text[i];
    }
    std::sort(places.begin(), places.end());
    return places;
}

// The tables of all languages stand in one order, so that they can be compared line by line. A word
// that a language still lacks stands there in English.
Texts ReadLanguage(const fs::path& file, const std::vector<Slot>& slots) {
    Texts texts;
    auto next = slots.begin();
    for (const Row& row : ReadTable(file, "name\ttext")) {
        const std::string& name = row.columns[0];
        const std::string& text = row.columns[1];
        const auto slot = std::find_if(next, slots.end(),
                                       [&name](const Slot& each) { return each.name == name; });
        if (slot == slots.end())
            Fail(file, row.line,
                 name + " is not a slot that " + std::string(kSlotTable) + " has from here on");
        CheckText(file, row, text);
        if (ValuePlaces(text) != ValuePlaces(slot->role))
            Fail(file, row.line, name + " has not the places of \"" + slot->role + "\"");
        texts[slot->place] = text;
        next = slot + 1;
    }
    return texts;
}

// English has every word; what another language lacks is told, and taken from there.
void CompleteLanguages(std::map<std::string, Texts>& languages, const std::vector<Slot>& slots) {
    const Texts english = languages[kReference];
    for (auto& [tag, texts] : languages) {
        for (const Slot& slot : slots) {
            if (texts.contains(slot.place)) continue;
            const auto text = english.find(slot.place);
            if (text == english.end())
                throw std::runtime_error(kReference + ".tsv: no text for " + slot.name);
            std::cerr << tag << ".tsv: " << slot.name << " is not translated yet\n";
            texts[slot.place] = text->second;
        }
    }
}

std::string ListFile(const List& list, const Texts& texts) {
    std::string content;
    for (int number = 1; number <= list.fields; ++number) {
        const auto text = texts.find({std::string(list.name), number});
        content += '"' + (text == texts.end() ? std::string() : text->second) + '"';
        content += "\r\n";
    }
    return content;
}

// The encoding is chosen for each file by itself. What does not read back as it was written is a
// fault of the table, such as bytes that are no UTF-8.
void WriteList(const fs::path& file, const std::string& content) {
    const std::string bytes = zandrell::EncodeText(content);
    if (zandrell::DecodeText(bytes) != content)
        throw std::runtime_error(file.string() + ": the text can not be stored; is it UTF-8?");
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush()) throw std::runtime_error(file.string() + ": can not be written");
}

std::vector<fs::path> LanguageTables(const fs::path& folder) {
    std::vector<fs::path> tables;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const fs::path& file = entry.path();
        if (file.extension() == ".tsv" && file.filename() != kSlotTable) tables.push_back(file);
    }
    if (tables.empty()) throw std::runtime_error(folder.string() + ": no language table");
    std::sort(tables.begin(), tables.end());
    return tables;
}

void MakeCaptions(const fs::path& source, const fs::path& output) {
    const std::vector<Slot> slots = ReadSlots(source / kSlotTable);
    std::map<std::string, Texts> languages;
    for (const fs::path& table : LanguageTables(source)) {
        const std::string tag = table.stem().string();
        if (tag.size() != 3) throw std::runtime_error(table.string() + ": no tag of three letters");
        languages[tag] = ReadLanguage(table, slots);
    }
    CompleteLanguages(languages, slots);
    fs::create_directories(output);
    for (const auto& [tag, texts] : languages)
        for (const List& list : kLists)
            WriteList(output / (std::string(list.name) + "." + tag), ListFile(list, texts));
}

// The lists laid end to end: "316 + 6" is the sixth of the second one.
std::string Position(const Place& place) {
    int before = 0;
    for (const List& list : kLists) {
        if (list.name == place.first) break;
        before += list.fields;
    }
    const std::string number = std::to_string(place.second);
    return before == 0 ? number : std::to_string(before) + " + " + number;
}

std::string NamesHeader(const std::vector<Slot>& slots) {
    std::string words, names;
    for (const Slot& slot : slots) {
        words += "    " + slot.name + " = " + Position(slot.place) + ",  // " + slot.role + "\n";
        names += "    {\"" + slot.name + "\", Caption::" + slot.name + "},\n";
    }
    return "// Made from " + std::string(kSlotTable) +
           " at build time.\n#pragma once\n\n#include <array>\n#include <string_view>\n"
           "#include <utility>\n\nnamespace zandrell {\n\n"
           "// The words of the program by name.\nenum class Caption {\n" +
           words + "};\n\nusing CaptionName = std::pair<std::string_view, Caption>;\n" +
           "inline constexpr std::array<CaptionName, " + std::to_string(slots.size()) +
           "> kCaptionNames{{\n" + names + "}};\n\n}  // namespace zandrell\n";
}

// Leaves an equal header untouched, so that a new word alone makes the program compile anew.
void MakeNames(const fs::path& source, const fs::path& header) {
    const std::string content = NamesHeader(ReadSlots(source / kSlotTable));
    if (fs::exists(header) && ReadFile(header) == content) return;
    if (header.has_parent_path()) fs::create_directories(header.parent_path());
    std::ofstream stream(header, std::ios::binary | std::ios::trunc);
    if (!(stream << content).flush())
        throw std::runtime_error(header.string() + ": can not be written");
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool names = !arguments.empty() && arguments[0] == "--names";
    if (arguments.size() != (names ? 3U : 2U)) {
        std::cerr << "usage: make_captions SOURCE_FOLDER OUTPUT_FOLDER\n"
                     "       make_captions --names SOURCE_FOLDER HEADER\n";
        return EXIT_FAILURE;
    }
    try {
        if (names) {
            MakeNames(arguments[1], arguments[2]);
        } else {
            MakeCaptions(arguments[0], arguments[1]);
        }
    } catch (const std::exception& fault) {
        std::cerr << "make_captions: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
