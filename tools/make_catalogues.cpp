// make_catalogues SOURCE_FOLDER OUTPUT_FOLDER
// make_catalogues --tables DATA_FOLDER OUTPUT_FOLDER
//
// Turns the tables of catalogues (CSV) into the index files, series files and hidden list of the
// suite, or these back into tables; what was made from the one gives the other byte for byte.
// docs/catalogues.md is the page for makers. Every fault of the tables is reported with file, line
// and field; then nothing is written and the status is 1.

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

#include "base/text_encoding.h"
#include "catalogue_checks.h"
#include "catalogue_tables.h"

namespace {

namespace fs = std::filesystem;
using namespace zandrell;
using namespace zandrell::catalogues;

using NamedFiles = std::map<std::string, std::string>;  // content by name

constexpr std::string_view kHiddenName = "Prodhide";

std::string ReadBytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream || !fs::is_regular_file(file)) {
        throw std::runtime_error(file.string() + ": cannot be read");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

// The kind of an index by its name without ending, as 600 of "I600"; 0 for any other name.
int KindNamed(std::string_view name) {
    if (name.size() < 2 || std::string_view("IC").find(name[0]) == std::string_view::npos) return 0;
    for (const int kind : kKatalogArten) {
        if (name.substr(1) == std::to_string(kind)) return kind;
    }
    return 0;
}

void TakeIndex(const std::string& name, int kind, const Table& table, Sources& sources,
               NamedFiles& made, Faults& faults) {
    Sources::Index index{kind, table.file, {}, {}};
    const std::size_t before = faults.List().size();
    index.lines = IndexOf(table, faults);
    if (faults.List().size() != before) return;
    for (const auto& row : table.rows) index.line_numbers.push_back(row.line);
    made[name + ".DAT"] = IndexText(index.lines);
    sources.indexes[name] = std::move(index);
}

NamedFiles MakeFiles(const fs::path& folder, Faults& faults) {
    NamedFiles made;
    Sources sources;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".csv") continue;
        const std::string name = entry.path().stem().string();
        const std::size_t before = faults.List().size();
        const Table table =
            ReadTable(entry.path().filename().string(), ReadBytes(entry.path()), faults);
        if (faults.List().size() != before) continue;
        if (const int kind = KindNamed(name)) {
            TakeIndex(name, kind, table, sources, made, faults);
        } else if (name == kHiddenName) {
            made[name + ".dat"] = HiddenText(HiddenOf(table, faults));
        } else {
            made[KatalogDateiOf(name)] = sources.records[name] = RecordsOf(table, faults);
        }
    }
    if (made.empty() && faults.List().empty()) faults.Add(folder.string(), "holds no table");
    // What could not be read would be reported once more as missing.
    if (faults.List().empty()) CheckCatalogues(sources, faults);
    return made;
}

void MakeSeriesTable(const DataFiles& files, const std::string& SerieDatei, NamedFiles& made,
                     Faults& faults) {
    const std::string name = SerieDatei + ".csv";
    if (made.contains(name)) return;
    const fs::path file = files.Resolve(KatalogDateiOf(SerieDatei));
    const std::string bytes = ReadBytes(file);
    if (const auto rest = bytes.size() % KatalogSatz::kLength) {
        faults.Add(file.filename().string(),
                   "ends with a piece of a record, " + std::to_string(rest) + " bytes");
    }
    made[name] = WriteTable(TableOfRecords(name, bytes));
}

NamedFiles MakeTables(const fs::path& folder, Faults& faults) {
    NamedFiles made;
    const DataFiles files(folder);
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string stem = UpperCase(entry.path().stem().string());
        const bool is_data = EqualIgnoringCase(entry.path().extension().string(), ".dat");
        if (!is_data) continue;
        if (stem == UpperCase(kHiddenName)) {
            const std::string name = std::string(kHiddenName) + ".csv";
            made[name] = WriteTable(TableOfHidden(name, ReadHiddenSeries(files)));
        }
        if (KindNamed(stem) == 0) continue;
        const IndexFile index = ReadIndex(files, entry.path().filename().string());
        made[stem + ".csv"] = WriteTable(TableOfIndex(stem + ".csv", index.lines));
        for (const auto& line : index.lines) MakeSeriesTable(files, line.SerieDatei, made, faults);
    }
    if (made.empty()) faults.Add(folder.string(), "holds no catalogue");
    return made;
}

void WriteAll(const fs::path& folder, const NamedFiles& made) {
    fs::create_directories(folder);
    for (const auto& [name, bytes] : made) {
        std::ofstream stream(folder / name, std::ios::binary | std::ios::trunc);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!stream.flush())
            throw std::runtime_error((folder / name).string() + ": cannot be written");
    }
}

int Run(bool to_tables, const fs::path& source, const fs::path& output) {
    Faults faults;
    const NamedFiles made = to_tables ? MakeTables(source, faults) : MakeFiles(source, faults);
    for (const auto& fault : faults.List()) std::cerr << fault << '\n';
    if (!faults.List().empty()) return EXIT_FAILURE;
    WriteAll(output, made);
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    const bool to_tables = argc == 4 && std::string_view(argv[1]) == "--tables";
    if (argc != 3 && !to_tables) {
        std::cerr << "usage: make_catalogues SOURCE_FOLDER OUTPUT_FOLDER\n"
                     "       make_catalogues --tables DATA_FOLDER OUTPUT_FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        return Run(to_tables, argv[argc - 2], argv[argc - 1]);
    } catch (const std::exception& fault) {
        std::cerr << "make_catalogues: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}
