#include "chart/read_out.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "painted_chart.h"

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
