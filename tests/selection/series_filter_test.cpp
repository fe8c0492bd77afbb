#include "selection/series_filter.h"

#include <gtest/gtest.h>

#include "support/test_folder.h"

namespace zandrell {
namespace {

TEST(Ventp, HidesBySeriesTextsUpToTheFirstBlankLine) {
    struct Case {
        std::string list, name;
        int hidden;
    };
    const Case cases[] = {
        {"grauholt gx\r\nESKEDAL\r\n", "Grauholt GX 200", 1},
        {"grauholt gx\r\nESKEDAL\r\n", "Eskedal Öre", 1},
        {"grauholt gx\r\nESKEDAL\r\n", "Grauholt G", 0},
        {"\"GX, old\"\n", "Grauholt GX, old", 1},
        {"MÜHLRIED\n", "Mühlried K", 1},
        {"First\n\nSecond\n", "Second", 0},
        {"First\n  \nSecond\n", "Second", 0},
        {"First\n\"\"\nSecond\n", "Second", 0},
        {"First\r\nSecond", "Second", 1},
        {"\r\nFirst\r\n", "First", 0},
        {"", "First", 0},
        {"First\n", "", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Ventp(c.name, 1, "not used", ParseHiddenSeries(c.list)), c.hidden)
            << c.list << " / " << c.name;
    }
    const TestFolder folder;
    const DataFiles files(folder.Path());
    EXPECT_TRUE(ReadHiddenSeries(files).empty());
    folder.Write("PRODHIDE.DAT", "M\xFChlried\r\n");
    EXPECT_EQ(Ventp("MÜHLRIED K", 1, "", ReadHiddenSeries(files)), 1);
}

TEST(Ventp, SaysInMode2WhetherAWordIsMissing) {
    const HiddenSeries hidden = {"Eskedal"};
    EXPECT_EQ(Ventp("Eskedal Öre", 2, "  ÖRE ", hidden), 0);
    EXPECT_EQ(Ventp("Eskedal Öre", 2, "Alp", hidden), 1);
    EXPECT_EQ(Ventp("Eskedal Öre", 2, "", hidden), 0);
    EXPECT_EQ(Ventp("", 2, "Alp", hidden), 1);
    EXPECT_EQ(Ventp("2 ÷ 3", 2, "2 × 3", hidden), 1) << "signs have no capitals";
    EXPECT_EQ(Ventp("ß", 2, "ÿ", hidden), 1) << "its capital is not in the code page's row";
    EXPECT_EQ(Ventp("Eskedal", 3, "Alp", hidden), 0);
}

}  // namespace
}  // namespace zandrell
