#include "selection/compressor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zandrell {
namespace {

constexpr double kSixDigits = 1e-6;

// At pc = 9.7 and po = 2 the ratio is 4.85, where the bracket of both families is 1.
// First family, size v: bracket x 0.796 x (1 - 1/(1.2 v^0.92 + 10)).
//   v = 100: 100^0.92 = 69.18310, 1/93.01972 = 0.01075041, 0.796 x 0.98924959 = 0.7874427
//   v = 6:   6^0.92 = 5.198749, 1/16.238499 = 0.06158205, 0.796 x 0.93841795 = 0.7469807
//   v = 5:   5^0.92 = 4.395947, 1/15.275136 = 0.06546587, 0.796 x 0.93453413 = 0.7438892
// Second family: bracket x F x (1 - 1/(7 v + 10)).
//   v = 100: 1 - 1/710 = 0.9985915; v = 6: 1 - 1/52 = 0.9807692
// Brackets: ratio 2: 1 + (2.85/4.85)/10 = 1.0587629, /30: 1.0195876;
//           ratio 10: 1 - (5.15/4.85)/6.5 = 0.8366376, /85: 0.9875076.
TEST(VerdichterWirkungsgrad, AgreesWithHandCalculations) {
    struct Case {
        double ratio, size;
        CompressorKind kind;
        double expected;
    };
    const Case cases[] = {
        {4.85, 100, {1, 2, ""}, 0.7874427 * 1.02},
        {4.85, 100, {0, 0, ""}, 0.7874427 * 1.02},
        {4.85, 100, {1, 4, ""}, 0.7874427 * 1.02},
        {2, 100, {1, 1, ""}, 1.0587629 * 0.7874427 * 1.03},
        {10, 100, {1, 3, ""}, 0.8366376 * 0.7874427 * 0.982},
        {4.85, 6, {1, 2, ""}, 0.7469807 * 1.02},
        {4.85, 5, {1, 2, ""}, 0.7438892 * 1.02 * 0.982},
        {4.85, 100, {3, 2, ""}, 0.835 * 0.9985915 * 1.02},
        {4.85, 6, {3, 3, ""}, 0.835 * 0.9807692 * 0.982},
        // F = P + (4.85 - 2)/50 = P + 0.057
        {2, 100, {3, 2, ""}, 1.0195876 * 0.892 * 0.9985915 * 1.02},
        {2, 100, {2, 2, "R134a"}, 1.0195876 * 0.912 * 0.9985915 * 1.02},
        {2, 100, {5, 2, ""}, 1.0195876 * 0.912 * 0.9985915 * 1.02},
        {10, 100, {3, 2, ""}, 0.9875076 * 0.835 * 0.9985915 * 1.02},
        {10, 100, {3, 2, " r22 "}, 0.9875076 * 0.855 * 0.9985915 * 1.02},
        {10, 100, {3, 2, "R407c"}, 0.9875076 * 0.855 * 0.9985915 * 1.02},
        {4.85, 100, {1, 2, "co2"}, 0.7874427 * 1.02 * 0.88},
        {4.85, 100, {1, 2, "R744 "}, 0.7874427 * 1.02 * 0.88},
        {4.85, 100, {3, 1, "R23"}, 0.835 * 0.9985915 * 1.03 * 0.83},
        {4.85, 100, {6, 2, ""}, 0},
        {4.85, 100, {-1, 2, ""}, 0},
    };
    for (const auto& c : cases) {
        EXPECT_NEAR(VerdichterWirkungsgrad(2 * c.ratio, 0, 2, 0, c.size, c.kind), c.expected,
                    kSixDigits)
            << c.ratio << " " << c.size << " " << c.kind.VerdichterArt << c.kind.VerdichterStufe
            << c.kind.KaelteMittel;
    }
}

TEST(VerdichterWirkungsgrad, CountsTheLossesInTheRatio) {
    const CompressorKind kind{1, 2, ""};
    // (9.5 + 0.2) / (2.1 - 0.1) = 4.85
    EXPECT_NEAR(VerdichterWirkungsgrad(9.5, 200, 2.1, 100, 100, kind), 0.7874427 * 1.02,
                kSixDigits);
    // Ratio beyond number counts as 0: bracket 1.1.
    EXPECT_NEAR(VerdichterWirkungsgrad(9.7, 0, 0.1, 100, 100, kind), 1.1 * 0.7874427 * 1.02,
                kSixDigits);
}

TEST(VerdichterWirkungsgrad, IsFiniteForAnySize) {
    const double sizes[] = {0, -1, -10.0 / 7, -1e300, 1e300, 1e-300, std::nan(""), HUGE_VAL};
    for (const double size : sizes) {
        for (const int family : {1, 3}) {
            EXPECT_TRUE(std::isfinite(VerdichterWirkungsgrad(9, 0, 2, 0, size, {family, 1, ""})))
                << size << " " << family;
        }
    }
    // A negative base has no power of 0.92, so the efficiency stays at its start.
    EXPECT_EQ(VerdichterWirkungsgrad(9, 0, 2, 0, -1, {1, 1, ""}), 0);
}

TEST(CompressorCode, NamesFamilyAndStep) {
    struct Case {
        std::string code;
        int VerdichterArt, VerdichterStufe;
    };
    const Case cases[] = {{"S1", 3, 1}, {" s-3 ", 3, 3}, {"H2", 1, 2}, {"H4", 1, 2},  {"3", 1, 3},
                          {"1S", 1, 2}, {"S0", 3, 2},    {"", 8, 9},   {"    ", 8, 9}};
    for (const auto& c : cases) {
        SelectionInputs shared;
        shared.VerdichterArt = 8;
        shared.VerdichterStufe = 9;
        SetCompressorKind(c.code, shared);
        EXPECT_EQ(shared.VerdichterArt, c.VerdichterArt) << c.code;
        EXPECT_EQ(shared.VerdichterStufe, c.VerdichterStufe) << c.code;
    }
}

}  // namespace
}  // namespace zandrell
