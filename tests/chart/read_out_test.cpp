#include "chart/read_out.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "painted_chart.h"
#include "tests/processes/independent_air.h"

namespace zandrell {
namespace {

// Mollier, first settings: x = 35 + 45 X, y = 379 - 9.034267913 t.
TEST(ReadOut, ShowsTheStateUnderThePointer) {
    PaintedChart chart;
    chart.Paint();
    // 20 degC and 7.27 g/kg: the independently computed state of 50 % has 7.264747888 g/kg, 38.5275
    // kJ/kg, 1.200148 kg/m3 and 1169.54 Pa.
    chart.ReadAt(35 + 45 * 7.27, 379 - 9.0342679 * 20.001);
    const auto& panel = chart.read_out;
    EXPECT_EQ(panel.Temp.text, " 20");
    EXPECT_EQ(panel.absF.text, " 7.2");
    EXPECT_EQ(panel.relF.text, " 50");
    EXPECT_EQ(panel.EnthL.text, " 38.5");
    EXPECT_EQ(panel.DichtL.text, " 1.2");
    EXPECT_EQ(panel.DampfDS.text, " 11.7");
    EXPECT_EQ(panel.AbsDruck.text, " 1.013");
    EXPECT_EQ(panel.relF.background, kWhite);
}

TEST(ReadOut, TheSameStateOnTheCarrierChart) {
    PaintedChart chart("1.013,-20,40,0,40,0,1,1");
    chart.Paint();
    // Turned: (1800 - (338 - 8.0555556 * 20.01) * 3.8390805, 560 - (35 + 45 * 7.27) / 3.8390805)
    chart.ReadAt(1800 - (338 - 8.0555556 * 20.01) * 3.8390805, 560 - (35 + 45 * 7.27) / 3.8390805);
    EXPECT_EQ(chart.read_out.Temp.text, " 20");
    EXPECT_EQ(chart.read_out.absF.text, " 7.2");
    EXPECT_EQ(chart.read_out.relF.text, " 50");
}

TEST(ReadOut, TheFogAndTheLeftOfTheAxisHaveNoState) {
    PaintedChart chart;
    chart.Paint();
    const struct {
        double x, t;
        const char* humidity;
        int ground;
    } cases[] = {
        {20, 10, "> 100", kLightRed},
        {-1, 10, "< 0", kLightRed},
        {0, 10, " 0", kWhite},
        {5, 10, nullptr, kWhite},
    };
    for (const auto& c : cases) {
        chart.ReadAt(35 + 45 * c.x, 379 - 9.0342679 * c.t);
        if (c.humidity != nullptr) {
            EXPECT_EQ(chart.read_out.relF.text, c.humidity);
        }
        EXPECT_EQ(chart.read_out.relF.background, c.ground);
        const bool state = c.ground == kWhite;
        EXPECT_EQ(chart.read_out.EnthL.text == "-", !state) << c.x;
        EXPECT_EQ(chart.read_out.DichtL.text == "-", !state) << c.x;
        EXPECT_EQ(chart.read_out.DampfDS.text == "-", !state) << c.x;
        EXPECT_EQ(ParsedNumber(chart.read_out.absF.text), c.x);
    }
}

constexpr double kPascal = 101300;

// kJ per kg of dry air of x g/kg of water at t, by formulas that the program does not have; what
// does not fit into saturated air is water of 4.2 kJ/(kg K), or ice of 333.4 kJ/kg less at 0 degC
// and 2.06 kJ/(kg K).
double CondensateHeat(double t) { return (t <= 0.01 ? -333.4 + 2.06 * t : 4.2 * t) / 1000; }
double HeatOf(double t, double x) {
    const double gas = std::min(x, independent::X(1, t, kPascal));
    return independent::H(t, gas, kPascal) + (x - gas) * CondensateHeat(t);
}
// Of air that takes up water at t until it is saturated: rises with t.
double HeatAtWetBulb(double t, double x) {
    const double saturated = independent::X(1, t, kPascal);
    return independent::H(t, saturated, kPascal) - (saturated - x) * CondensateHeat(t);
}

TEST(ReadOut, UnderExactTheFogIsAStateToo) {
    PaintedChart chart("1.013,-20,40,0,40,0,0,1,1");
    Captions words;
    words[Caption::DewPoint] = "dew", words[Caption::FrostPoint] = "frost";
    words[Caption::Water] = "water", words[Caption::Ice] = "ice";
    chart.read_out.TakeWords(words);
    chart.Paint();
    const auto& panel = chart.read_out;
    const auto number = [](const Label& label) { return ParsedNumber(label.text); };
    const struct {
        double t, x;
        const char *dew_word, *condensed_word;
    } cases[] = {{25.001, 10, "dew", "water"}, {34.999, 0.5, "frost", "water"},
                 {10.001, 12, "dew", "water"}, {-9.999, 1, "frost", "ice"},
                 {-19.999, 3, "frost", "ice"}, {38, 39, "dew", "water"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.t);
        const CanvasPoint at = chart.engine.scale.PointOf(c.x, c.t);
        chart.ReadAt(at.x, at.y);
        const double saturated = independent::X(1, c.t, kPascal), gas = std::min(c.x, saturated);
        const bool fog = c.x > saturated;
        if (fog) {
            EXPECT_EQ(panel.relF.text, "> 100");
            EXPECT_NEAR(number(panel.CondensedWater), c.x - saturated, 0.02);
        } else {
            EXPECT_NEAR(number(panel.relF),
                        100 * independent::ShareOfSteam(c.x) / independent::ShareOfSteam(saturated),
                        0.16);
            EXPECT_EQ(panel.CondensedWater.text, "-");
        }
        EXPECT_NEAR(number(panel.EnthL) + 0.05, HeatOf(c.t, c.x), 0.07);
        const double dry = independent::DryAir(c.t, gas, kPascal);
        EXPECT_NEAR(number(panel.DichtL) + 0.0005, dry * (1 + c.x / 1000), 0.0007);
        EXPECT_NEAR(number(panel.SpecificVolume) + 0.0005, 1 / dry, 0.0007);
        // Both are cut after their tenths.
        const double dew = number(panel.DewPoint), wet = number(panel.WetBulb);
        EXPECT_GE(gas, independent::X(1, dew - 0.02, kPascal));
        EXPECT_LE(gas, independent::X(1, dew + 0.12, kPascal));
        EXPECT_GE(HeatOf(c.t, c.x), HeatAtWetBulb(wet - 0.03, c.x));
        EXPECT_LE(HeatOf(c.t, c.x), HeatAtWetBulb(wet + 0.13, c.x));
        EXPECT_EQ(panel.rows[7].word.tool_tip, c.dew_word);
        EXPECT_EQ(panel.rows[10].word.tool_tip, c.condensed_word);
        EXPECT_TRUE(panel.DewPoint.visible && panel.rows[7].word.visible);
    }
    const CanvasPoint left = chart.engine.scale.PointOf(-1, 25);
    chart.ReadAt(left.x, left.y);
    EXPECT_EQ(panel.relF.text, "< 0");
    for (const Label* label : {&panel.EnthL, &panel.DewPoint, &panel.WetBulb, &panel.SpecificVolume,
                               &panel.CondensedWater}) {
        EXPECT_EQ(label->text, "-");
    }
    chart.engine.convention_override = Convention::Suite;
    chart.ReadAt(500, 300);
    EXPECT_FALSE(panel.DewPoint.visible || panel.rows[7].word.visible);
    EXPECT_TRUE(panel.DampfDS.visible);
}

TEST(ReadOut, TheFogBeginsAtSaturation) {
    PaintedChart chart;
    chart.Paint();
    // Saturated air of 20 degC at 1.013 bar holds 14.70120866 g/kg, computed independently.
    const double saturated = 14.70120866;
    const struct {
        double share;
        bool fog;
    } cases[] = {{0.9995, false}, {1.0005, true}, {1.004, true}};
    for (const auto& c : cases) {
        chart.ReadAt(35 + 45 * saturated * c.share, 379 - 9.0342679128 * 20);
        EXPECT_EQ(chart.read_out.relF.text, c.fog ? "> 100" : " 99.9") << c.share;
        EXPECT_EQ(chart.read_out.relF.background, c.fog ? kLightRed : kWhite) << c.share;
    }
}

TEST(ReadOut, FarBelowTheChartThereIsNoState) {
    PaintedChart chart("1.013,-50,100,0,40,0,0,1");
    chart.Paint();
    chart.ReadAt(500, 579);
    EXPECT_EQ(chart.read_out.relF.text, "-");
    EXPECT_EQ(chart.read_out.EnthL.text, "-");
    EXPECT_LT(ParsedNumber(chart.read_out.Temp.text), -50);
}

TEST(ReadOut, WhileAPrintOutRunsNothingIsRead) {
    PaintedChart chart;
    chart.Paint();
    chart.engine.printing = true;
    chart.read_out.Temp.text = "kept";
    chart.ReadAt(500, 300);
    EXPECT_EQ(chart.read_out.Temp.text, "kept");
}

TEST(Overlay, AMarkIsHitWithinThirteenUnitsOfItsCornerAndOnlyWhenShown) {
    Mark mark("PP1");
    mark.PlaceAt({100, 200}, 6);
    const struct {
        double x, y;
        bool hit;
    } cases[] = {{94, 194, true}, {107, 207, true}, {107.1, 200, false}, {93.9, 200, false}};
    for (const auto& c : cases) {
        mark.visible = true;
        EXPECT_EQ(mark.IsHitBy({c.x, c.y}), c.hit) << c.x << ' ' << c.y;
        mark.visible = false;
        EXPECT_FALSE(mark.IsHitBy({c.x, c.y}));
    }
}

}  // namespace
}  // namespace zandrell
