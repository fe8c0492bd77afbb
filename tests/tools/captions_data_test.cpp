// The delivered caption files, read the way the program reads them: a slot shifted by one, a slot
// left empty or a file in the wrong encoding shows in a label that a user would see.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/delimited_text.h"

namespace zandrell {
namespace {

const std::vector<std::string> kTags = {"ENG", "DEU", "NDL", "FRA", "ESP", "ITA", "POR", "TWA"};

DataFiles StagedFiles() { return DataFiles(ZANDRELL_STAGED_DATA); }

Captions Load(const std::string& tag) {
    Captions captions;
    LoadCaptions(StagedFiles(), tag, captions);
    LoadAirCoCaptions(StagedFiles(), tag, captions);
    LoadQVCaptions(StagedFiles(), tag, captions);
    return captions;
}

std::string Bytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Caption Named(std::string_view name) {
    for (const auto& [known, word] : kCaptionNames) {
        if (known == name) return word;
    }
    ADD_FAILURE() << "no caption is named " << name;
    return {};
}

// Replaces {Cooler} and the like by the word of that name.
std::string Compose(const Captions& captions, std::string_view pattern) {
    std::string label;
    for (std::size_t open = 0; (open = pattern.find('{')) != std::string_view::npos;) {
        const std::size_t close = pattern.find('}', open);
        label += pattern.substr(0, open);
        label += captions[Named(pattern.substr(open + 1, close - open - 1))];
        pattern.remove_prefix(close + 1);
    }
    return label.append(pattern);
}

TEST(CaptionsData, EveryFileHasAllItsFieldsInQuotesOnLinesOfTheirOwn) {
    const std::vector<std::pair<std::string, std::ptrdiff_t>> lists = {
        {"Caption.", 316}, {"AirCoCap.", 118}, {"QVCapt.", 20}};
    for (const std::string& tag : kTags) {
        for (const auto& [prefix, fields] : lists) {
            SCOPED_TRACE(prefix + tag);
            const FileText file = StagedFiles().OpenForInput(prefix + tag);
            ASSERT_EQ(file.status, FileStatus::Ok);
            DelimitedReader reader(file.text);
            std::string item;
            std::ptrdiff_t items = 0;
            while (reader.ReadText(item)) ++items;
            EXPECT_EQ(items, fields);
            EXPECT_EQ(std::count(file.text.begin(), file.text.end(), '"'), 2 * fields);
            EXPECT_EQ(std::count(file.text.begin(), file.text.end(), '\n'), fields);
            EXPECT_EQ(std::count(file.text.begin(), file.text.end(), '\r'), fields);
            EXPECT_TRUE(file.text.ends_with("\"\r\n"));
        }
    }
}

// A text in a slot without a name would be one that nobody can show.
TEST(CaptionsData, EveryNamedSlotIsFilledInEveryLanguageAndNoOther) {
    ASSERT_GT(kCaptionNames.size(), 110U);
    for (const std::string& tag : kTags) {
        const Captions captions = Load(tag);
        for (const auto& [name, word] : kCaptionNames)
            EXPECT_NE(captions[word], "") << tag << ' ' << name;
        std::size_t filled = 0;
        for (const char* prefix : {"Caption.", "AirCoCap.", "QVCapt."}) {
            const FileText file = StagedFiles().OpenForInput(prefix + tag);
            DelimitedReader reader(file.text);
            for (std::string item; reader.ReadText(item);) filled += item.empty() ? 0U : 1U;
        }
        EXPECT_EQ(filled, kCaptionNames.size()) << tag;
    }
}

// Windows-1252 wherever it can hold the words, UTF-8 for Chinese: one letter of each as bytes.
TEST(CaptionsData, FilesHaveTheEncodingOfTheSuite) {
    const std::vector<std::pair<std::string, std::string>> words = {
        {"Caption.DEU", "\"K\xFChler\""},
        {"QVCapt.DEU", "\"Au\xDF\x65nluft\""},
        {"Caption.FRA", "\"Temp\xE9rature\""},
        {"QVCapt.FRA", "\"M\xE9lange\""},
        {"Caption.ESP", "\"P\xE1gina\""},
        {"Caption.ITA", "\"Densit\xE0\""},
        {"Caption.POR", "\"Press\xE3o\""},
        {"Caption.NDL", "\"kopi\xEBren\""},
        {"Caption.TWA", "\"\xE5\xA3\x93\xE5\x8A\x9B\""}};
    for (const auto& [file, word] : words) {
        const std::string bytes = Bytes(std::string(ZANDRELL_STAGED_DATA) + "/" + file);
        EXPECT_NE(bytes.find(word), std::string::npos) << file;
    }
}

std::vector<std::string> CellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '\t');) cells.push_back(cell);
    return cells;
}

// What the windows, the page and the data sheet put together from several words, in all languages:
// words that are right alone may not read well side by side.
TEST(CaptionsData, ComposedLabelsRead) {
    std::ifstream table(std::string(ZANDRELL_SOURCE) + "/tests/tools/composed_labels.tsv");
    std::string line;
    std::getline(table, line);
    const std::vector<std::string> head = CellsOf(line);
    ASSERT_EQ(head.size(), 2 + kTags.size());
    std::vector<Captions> languages;
    for (std::size_t i = 2; i < head.size(); ++i) languages.push_back(Load(head[i]));
    int rows = 0;
    for (; std::getline(table, line); ++rows) {
        const std::vector<std::string> cells = CellsOf(line);
        ASSERT_EQ(cells.size(), head.size()) << line;
        for (std::size_t i = 2; i < cells.size(); ++i)
            EXPECT_EQ(Compose(languages[i - 2], cells[1]), cells[i]) << cells[0] << ", " << head[i];
    }
    EXPECT_GT(rows, 40);
}

}  // namespace
}  // namespace zandrell
