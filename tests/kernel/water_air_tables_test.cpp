#include "kernel/water_air_tables.h"

#include <gtest/gtest.h>

#include <string>

#include "kernel_support.h"

namespace zandrell {
namespace {

std::string Counting(int numbers) {
    std::string text;
    for (int i = 1; i <= numbers; ++i) text += std::to_string(i) + (i % 7 == 0 ? "\r\n" : ",");
    return text;
}

// Each place of the file's order is met: its running number, counted by hand from the lengths of
// the groups 14, 3, 6, 18, 7, 4, 7, 32, 9, 18.
TEST(WaterAirTables, TakesTheNumbersInTheirOrder) {
    const WaterAirTables c = ReadWaterAirTables(Counting(118));
    const struct {
        double actual;
        int expected;
    } places[] = {
        {c.KSatt[0], 0},
        {c.KSatt[1], 1},
        {c.KSatt[14], 14},
        {c.LGrenz[0], 15},
        {c.LGrenz[2], 17},
        {c.BWasser[0][0], 18},
        {c.BWasser[0][5], 23},
        {c.BWasser[0][6], 0},
        {c.BWasser[1][1], 24},
        {c.BWasser[2][1], 26},
        {c.BWasser[2][3], 28},
        {c.BWasser[5][3], 35},
        {c.BWasser[8][1], 40},
        {c.BWasser[8][2], 41},
        {c.BWasser[9][0], 42},
        {c.BWasser[9][6], 48},
        {c.NennerWasser[6][1], 49},
        {c.NennerWasser[7][1], 50},
        {c.NennerWasser[8][1], 51},
        {c.NennerWasser[8][2], 52},
        {c.ExpoB, 53},
        {c.IdealI1, 54},
        {c.RefDruck, 55},
        {c.RefVolumen, 56},
        {c.RefTemp, 57},
        {c.ReserveWertA, 58},
        {c.ReserveWertB, 59},
        {c.ExpZ[1][0], 60},
        {c.ExpZ[1][3], 63},
        {c.ExpZ[8][0], 88},
        {c.ExpZ[8][3], 91},
        {c.ExpX[6][0], 92},
        {c.ExpX[8][2], 100},
        {c.CpDampf[0], 101},
        {c.CpLuft[0], 102},
        {c.CpDampf[8], 117},
        {c.CpLuft[8], 118},
    };
    for (const auto& place : places) EXPECT_EQ(place.actual, place.expected);
    EXPECT_TRUE(c.Complete());
}

TEST(WaterAirTables, ShortAndSenselessTexts) {
    const struct {
        std::string text;
        bool loaded;
        int numbers;
    } cases[] = {
        {"", false, 0},
        {"   \r\n\r\n", false, 0},
        {Counting(1), true, 1},
        {Counting(117), true, 117},
        {Counting(200), true, 118},
        {"0," + Counting(117), false, 118},
        {std::string("\x7f"
                     "ELF\0\1\2\"\"\"",
                     10),
         false, 1},
        {std::string(5000, ','), false, 118},
        {"\"never closed", false, 1},
        {"1E999,1,2", false, 3},
    };
    for (const auto& each : cases) {
        const WaterAirTables c = ReadWaterAirTables(each.text);
        EXPECT_EQ(c.Loaded(), each.loaded) << each.text.substr(0, 20);
        EXPECT_EQ(c.numbers_read, each.numbers) << each.text.substr(0, 20);
        EXPECT_EQ(c.Complete(), each.loaded && each.numbers == 118) << each.text.substr(0, 20);
    }
}

TEST(WaterAirTables, PlanFollowsTheExponents) {
    WaterAirTables c = kernel_test::RealTables();
    EXPECT_TRUE(c.plan.whole_exponents);
    EXPECT_EQ(c.plan.z[5][1], 32);
    EXPECT_EQ(c.plan.x[8][1], 54);
    EXPECT_EQ(c.plan.z[1][3], ExponentPlan::kNoTerm) << "row 1 has two terms";
    for (const double exponent : {2.5, -1.0, 56.0}) {
        c.ExpZ[4][2] = exponent;
        PlanExponents(c);
        EXPECT_FALSE(c.plan.whole_exponents) << exponent;
    }
    for (const double count : {-1.0, 0.5, 7.0}) {  // 0.5 rounds to the even 0
        c.ExpX[8][0] = count;
        PlanExponents(c);
        EXPECT_EQ(c.plan.x[8][1] == ExponentPlan::kNoTerm, count < 1) << count;
    }
}

}  // namespace
}  // namespace zandrell
