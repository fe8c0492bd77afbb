#include "base/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>

namespace zandrell {
namespace {

TEST(NumberText, ShowsFifteenDigitsWithLeadingBlank) {
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {0, " 0"},
        {-0.0, " 0"},
        {0.5, " .5"},
        {-0.25, "-.25"},
        {1.35 - 0.05 * 3, " 1.2"},
        {100, " 100"},
        {1013.25, " 1013.25"},
        {0.1 + 0.2, " .3"},
        {123456789012345.0, " 123456789012345"},
        {1e15, " 1E+15"},
        {-2.5e20, "-2.5E+20"},
        {1e-15, " .000000000000001"},
        {9.5e-16, " 9.5E-16"},
        {1.7e308, " 1.7E+308"},
        {1.0 / 3, " .333333333333333"},
        {std::numeric_limits<double>::infinity(), ""},
        {std::nan(""), ""},
    };
    for (const auto& c : cases) EXPECT_EQ(NumberText(c.value), c.text) << c.value;
    EXPECT_EQ(TrimmedNumberText(0.5), ".5");
    EXPECT_EQ(TrimmedNumberText(-0.5), "-.5");
}

TEST(ToDouble, ReadsTheLongestNumberAtTheStart) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"1 000.5", 1000.5},
        {"- 3", -3},
        {"2D3", 2000},
        {"12 kW", 12},
        {"1,5 bar", 1},
        {"kW", 0},
        {"< 0", 0},
        {"> 100", 0},
        {"", 0},
        {".", 0},
        {".5", 0.5},
        {"5.", 5},
        {"1E", 1},
        {"1E+", 1},
        {"1e-2", 0.01},
        {"1e999", 0},
        {"-1e999", 0},
        {"1e-999", 0},
        {"--5", 0},
        {"+7", 7},
        {"1.2.3", 1.2},
        {"&H1F", 31},
        {"&hff", 255},
        {"&O17", 15},
        {"&O8", 0},
        {"-&H10", 0},
        {"&", 0},
        {"12\r\n3", 12},
        {"1\n2\t3", 123},
        {"nan", 0},
        {"inf", 0},
        {"1e99999999999999999999", 0},
    };
    for (const auto& c : cases) EXPECT_EQ(ToDouble(c.text), c.value) << c.text;
    EXPECT_EQ(ToDouble("&H" + std::string(400, 'F')), 0);
    EXPECT_EQ(ToDouble(std::string(1'000'000, '9')), 0);
    EXPECT_EQ(ToDouble("." + std::string(1'000'000, '0') + "1"), 0);
}

class CommaForPoint : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

TEST(NumberText, KnowsNoLocale) {
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaForPoint));
    EXPECT_EQ(ToDouble("1.5"), 1.5);
    EXPECT_EQ(ToDouble("1,5"), 1);
    EXPECT_EQ(NumberText(1.5), " 1.5");
    EXPECT_EQ(ExactNumberText(1.5), "1.5");
    std::locale::global(before);
}

TEST(ParseNumber, RewritesADecimalCommaInItsArgument) {
    const struct {
        const char* text;
        double value;
        const char* rewritten;
    } cases[] = {
        {"", 0, ""},
        {"   ", 0, "   "},
        {",", 0, "."},
        {"3,", 3, "3."},
        {",5", 0.5, ".5"},
        {"  1 ,  5", 1.5, "  1 .5"},
        {"1,5,5", 1.5, "1.5,5"},
        {"12,5,7", 12.5, "12.5,7"},
        {"1,234.5", 1, "1,234.5"},
        {"1.234,5", 1.234, "1.234,5"},
        {"-2,75 kW", -2.75, "-2.75 kW"},
    };
    for (const auto& c : cases) {
        std::string text = c.text;
        EXPECT_EQ(ParseNumber(text), c.value) << c.text;
        EXPECT_EQ(text, c.rewritten);
    }
}

TEST(Rounding, TiesGoToTheEvenNumberAndCutsGoDown) {
    EXPECT_EQ(RoundToInteger(2.5), 2);
    EXPECT_EQ(RoundToInteger(3.5), 4);
    EXPECT_EQ(RoundToInteger(-2.5), -2);
    EXPECT_EQ(RoundToInteger(3e9), std::nullopt);
    EXPECT_EQ(RoundToInteger(std::nan("")), std::nullopt);
    EXPECT_EQ(Cut(-1.25, 10), -1.3);
    EXPECT_EQ(Cut(1.29, 10), 1.2);
    double kept = 7;
    EXPECT_FALSE(AssignFinite(kept, 1 / 0.0));
    EXPECT_EQ(kept, 7);
}

}  // namespace
}  // namespace zandrell
