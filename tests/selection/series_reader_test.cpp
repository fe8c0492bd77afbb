#include "selection/series_reader.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "support/catalogue_files.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

using selection_test::EndMark;
using selection_test::RecordBytes;
using selection_test::Unit;

std::string Units(const std::string& name, int count) {
    std::string bytes;
    for (int i = 1; i <= count; ++i) bytes += Unit(name + std::to_string(i));
    return bytes;
}

TEST(SeriesReader, FindsTheSeriesOfAFileByTheirAddress) {
    const TestFolder folder;
    const std::string piece = Unit("cut").substr(0, 44);
    folder.Write("ulm01n.RDM", Units("A", 1) + EndMark() + Units("B", 48) + Units("C", 47) +
                                   EndMark() + Units("D", 2) + piece);
    const DataFiles files(folder.Path());
    SeriesReader reader(files);
    struct Case {
        long SerieAdresse;
        int units;
        std::string first, last;
    };
    const Case cases[] = {
        {0, 1, "A1", "A1"},     {2, 48, "B1", "B48"}, {50, 47, "C1", "C47"},
        {98, 3, "D1", "cut"},  // the piece at the end of a file of odd length still counts
        {100, 1, "cut", "cut"}, {101, 0, "", ""},     {9999, 0, "", ""},
        {1, 0, "", ""},         {-1, 0, "", ""},      {-3, 0, "", ""},
    };
    for (const auto& c : cases) {
        const Serie series = reader.SerieLesen("ULM01N.rdm", c.SerieAdresse - 2);
        ASSERT_EQ(series.Units(), c.units) << c.SerieAdresse;
        if (c.units == 0) continue;
        EXPECT_EQ(series.Satz(1).Text(KatalogFeld::KatTyp), c.first);
        EXPECT_EQ(series.Satz(c.units).Text(KatalogFeld::KatTyp), c.last);
    }
    const Serie series = reader.SerieLesen("ULM01N.rdm", 0);
    EXPECT_EQ(series.Satz(0)[KatalogFeld::KatTyp], "");
    EXPECT_EQ(series.Satz(49)[KatalogFeld::KatTyp], "");
}

TEST(SeriesReader, WhatCanNotBeReadIsAnEmptySeries) {
    const TestFolder folder;
    folder.Write("GOOD1N.rdm", Units("A", 3));
    folder.Write("VOID1N.rdm", "");
    std::filesystem::create_directory(folder / "FOLD1N.rdm");
    const DataFiles files(folder.Path());
    SeriesReader reader(files);
    struct Case {
        std::string file;
        FileStatus status;
        int units;
    };
    const Case cases[] = {{"GOOD1N.rdm", FileStatus::Ok, 3},
                          {"NONE1N.rdm", FileStatus::Missing, 0},
                          {"GOOD1N.rdm", FileStatus::Ok, 3},
                          {"FOLD1N.rdm", FileStatus::Unreadable, 0},
                          {"VOID1N.rdm", FileStatus::Ok, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(reader.SerieLesen(c.file, -2).Units(), c.units) << c.file;
        EXPECT_EQ(reader.Status(), c.status) << c.file;
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "NONE1N.rdm"));
}

// Reading all of it would take minutes and more memory than there is.
TEST(SeriesReader, TakesFromAHugeFileWhatItNeeds) {
    const TestFolder folder;
    folder.Write("HUGE1N.rdm", Units("A", 3));
    ASSERT_EQ(::truncate((folder / "HUGE1N.rdm").c_str(), 10L << 30U), 0);
    const DataFiles files(folder.Path());
    SeriesReader reader(files);
    const Serie series = reader.SerieLesen("HUGE1N.rdm", -2);
    EXPECT_EQ(series.Units(), 3);
    EXPECT_EQ(series.bytes.size(), 48 * KatalogSatz::kLength);
    EXPECT_EQ(reader.SerieLesen("HUGE1N.rdm", 9997).Units(), 0);
}

}  // namespace
}  // namespace zandrell
