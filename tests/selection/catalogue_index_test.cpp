#include "selection/catalogue_index.h"

#include <gtest/gtest.h>

#include "support/test_folder.h"

namespace zandrell {
namespace {

TEST(CatalogueIndex, ReadsFourItemsALine) {
    const auto lines = ParseIndex(
        "\"ULM01\",\"1\",\"Ulmrain UL, low noise\",\"0\"\r\n"
        "\r\n"
        "ESK0001 , 2,Eskedal Öre,  9999\n"
        "\"\",\"3\",\"no file\",\"1\"\r\n"
        "\"LAST1\",\"4\"");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].SerieText, "Ulmrain UL, low noise");
    EXPECT_EQ(lines[1].SerieDatei, "ESK0001");
    EXPECT_EQ(lines[1].SerieText, "Eskedal Öre");
    EXPECT_EQ(AddressOf(lines[1]), 9999);
    EXPECT_EQ(lines[2].SerieKennung, "3") << "one of the two may be empty";
    EXPECT_EQ(lines[3].SerieDatei, "LAST1");
    EXPECT_EQ(AddressOf(lines[3]), 0) << "the file is short";
}

TEST(CatalogueIndex, EndsAtALineWithoutFileAndMark) {
    EXPECT_EQ(
        ParseIndex("A1234,1,First one,0\n\"\",\"\",\"Second one\",\"7\"\nB1234,1,Third,0\n").size(),
        1U);
    EXPECT_EQ(ParseIndex(",,,\nB1234,1,Third,0\n").size(), 0U);
}

TEST(CatalogueIndex, IsReadInEitherEncoding) {
    const TestFolder folder;
    folder.Write("i600.dat", "A1234,1,M\xFChlried K\xE4lte,0\r\n");
    folder.Write("I650.DAT", "A1234,1,Mühlried Kälte,0\r\n");
    const DataFiles files(folder.Path());
    for (const int kind : {600, 650}) {
        const IndexFile index = ReadIndex(files, "I" + std::to_string(kind) + ".DAT");
        ASSERT_EQ(index.lines.size(), 1U) << kind;
        EXPECT_EQ(index.lines[0].SerieText, "Mühlried Kälte");
    }
    EXPECT_EQ(ReadIndex(files, "I100.DAT").status, FileStatus::Missing);
}

TEST(CatalogueIndex, SplitsTheTextOfASeries) {
    struct Case {
        std::string text, maker, series;
        bool listed;
    };
    const Case cases[] = {{"Ulmrain UL 2, low", "Ulmrain", "UL 2, low", true},
                          {"Ulmrain", "Ulmrain", "", true},
                          {"  ab  ", "", "ab", false},
                          {"äöü", "äöü", "", true},
                          {"äö", "äö", "", false},
                          {"", "", "", false}};
    for (const auto& c : cases) {
        EXPECT_EQ(MakerOf(c.text), c.maker) << c.text;
        EXPECT_EQ(SeriesNameOf(c.text), c.series) << c.text;
        EXPECT_EQ(IsListed({"A1234", "1", c.text, "0"}), c.listed) << c.text;
    }
}

TEST(Locator, HasTwoReadersThatAreNotAlike) {
    struct Case {
        std::string locator;
        SeriesPlace open, preview;
    };
    const Case cases[] = {
        {Locator({"ULM01", "1", "", "0"}), {0, "ULM01N.rdm"}, {0, "ULM01N.rdm"}},
        {Locator({"ESKEDAL", "1", "", "7"}), {7, "ESKEDALN.rdm"}, {7, "ESKEDALN.rdm"}},
        {Locator({"ESKE01", "1", "", "1234"}), {1234, "ESKE01N.rdm"}, {1234, "ESKE01N.rdm"}},
        {"12 #$§  ULM01 ", {12, "ULM01N.rdm"}, {12, "ULM01N.rdm"}},
        // Five digits: the last four open, all of them preview.
        {"12345#$§  ULM01", {2345, "ULM01N.rdm"}, {12345, "ULM01N.rdm"}},
        // Four letters bring a piece of the marker along.
        {"7#$§  ULM1", {7, "§  ULM1N.rdm"}, {7, "ULM1N.rdm"}},
        {"7#$§  LONGNAME", {7, "ONGNAMEN.rdm"}, {7, "LONGNAMEN.rdm"}},
        {"7#$§  ÄÖÜÄÖÜÄ", {7, "ÄÖÜÄÖÜÄN.rdm"}, {7, "ÄÖÜÄÖÜÄN.rdm"}},
        {"", {0, "N.rdm"}, {0, "N.rdm"}},
        {"99", {0, "99N.rdm"}, {99, "N.rdm"}},
        {"1E99#$§  ULM01", {0, "ULM01N.rdm"}, {0, "ULM01N.rdm"}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PlaceToOpen(c.locator).SerieStart, c.open.SerieStart) << c.locator;
        EXPECT_EQ(PlaceToOpen(c.locator).KatalogDatei, c.open.KatalogDatei) << c.locator;
        EXPECT_EQ(PlaceToPreview(c.locator).SerieStart, c.preview.SerieStart) << c.locator;
        EXPECT_EQ(PlaceToPreview(c.locator).KatalogDatei, c.preview.KatalogDatei) << c.locator;
    }
}

}  // namespace
}  // namespace zandrell
