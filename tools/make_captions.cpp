// make_captions SOURCE_FOLDER OUTPUT_FOLDER
//
// Turns the caption tables (slots.tsv and one table a language, UTF-8) into the suite's positional
// files Caption.XXX, AirCoCap.XXX and QVCapt.XXX: one field a line in double quotes, slots that
// nothing uses as "". A fault in a table is reported with file and line, and ends with status 1.

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

#include "base/captions.h"
#include "base/shared_values.h"
#include "base/text_encoding.h"

namespace {

using zandrell::Captions;
namespace fs = std::filesystem;

struct List {
    std::string_view name;  // in the tables and in front of the language tag
    int fields;
};

constexpr std::array<List, 3> kLists{{{"Caption", Captions::kCaptionFields},
                                      {"AirCoCap", Captions::kAirCoFields},
                                      {"QVCapt", Captions::kQvFields}}};

constexpr std::string_view kSlotTable = "slots.tsv";

using Slot = std::pair<std::string, int>;  // list name, number from 1
using Texts = std::map<Slot, std::string>;

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

Slot ReadSlot(const fs::path& file, const Row& row) {
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

std::vector<Slot> ReadSlots(const fs::path& file) {
    std::vector<Slot> slots;
    for (const Row& row : ReadTable(file, "list\tnumber\trole\twhere")) {
        const Slot slot = ReadSlot(file, row);
        if (std::find(slots.begin(), slots.end(), slot) != slots.end())
            Fail(file, row.line, "a second row for " + row.columns[0] + " " + row.columns[1]);
        CheckText(file, row, row.columns[2]);
        CheckText(file, row, row.columns[3]);
        slots.push_back(slot);
    }
    return slots;
}

// The tables of all languages stand in one order, so that they can be compared line by line.
Texts ReadLanguage(const fs::path& file, const std::vector<Slot>& slots) {
    Texts texts;
    std::size_t last_line = 1;
    for (const Row& row : ReadTable(file, "list\tnumber\ttext")) {
        last_line = row.line;
        const Slot slot = ReadSlot(file, row);
        if (texts.size() >= slots.size() || slot != slots[texts.size()])
            Fail(file, row.line,
                 row.columns[0] + " " + row.columns[1] + " is not the slot that " +
                     std::string(kSlotTable) + " has here");
        CheckText(file, row, row.columns[2]);
        texts[slot] = row.columns[2];
    }
    if (texts.size() < slots.size()) {
        const auto& [name, number] = slots[texts.size()];
        Fail(file, last_line, "the table ends before " + name + " " + std::to_string(number));
    }
    return texts;
}

std::string ListFile(const List& list, const Texts& texts) {
    std::string content;
    for (int number = 1; number <= list.fields; ++number) {
        const auto text = texts.find({std::string(list.name), number});
        content += '"' + (text == texts.end() ? std::string() : text->second) + '"';
        content += zandrell::CrLf;
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
    fs::create_directories(output);
    for (const auto& [tag, texts] : languages)
        for (const List& list : kLists)
            WriteList(output / (std::string(list.name) + "." + tag), ListFile(list, texts));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_captions SOURCE_FOLDER OUTPUT_FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        MakeCaptions(argv[1], argv[2]);
    } catch (const std::exception& fault) {
        std::cerr << "make_captions: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
