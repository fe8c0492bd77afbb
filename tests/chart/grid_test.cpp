// Positions worked by hand from the scale: at -20..40 degC and 0..40 g/kg the Mollier chart has
// 580 / (1.07 * 60) = 9.0342679 units per kelvin and 45 per g/kg, its shift is Floor(-180.685) =
// -181.
#include <gtest/gtest.h>

#include "canvas/palette.h"
#include "painted_chart.h"

namespace zandrell {
namespace {

TEST(ChartScale, BaseScaleOfBothKinds) {
    const struct {
        const char* settings;
        double per_gram, per_kelvin;
        int zero_x, zero_y, shift_x, shift_t;
    } cases[] = {
        {"1.013,-20,40,0,40,0,0,1", 45, 9.034267913, 35, 560, 0, -181},
        {"1.013,-20,40,0,40,0,1,1", 45, 8.055555556, 35, 500, 0, -162},
        // -50..100: 580 / 160.5; Floor(-50 * 3.613707) = -181; 0..120: 15 per g/kg
        {"1.013,-50,100,0,120,0,0,1", 15, 3.613707165, 35, 560, 0, -181},
        // 0..25: 580 / 26.75; 5..25: 90 per g/kg and a shift of 450
        {"1.013,0,25,5,25,0,0,1", 90, 21.682242991, 35, 560, 450, 0},
    };
    for (const auto& c : cases) {
        PaintedChart chart(c.settings);
        chart.Paint();
        const auto& scale = chart.engine.scale;
        EXPECT_NEAR(scale.MassstabX, c.per_gram, 1e-8) << c.settings;
        EXPECT_NEAR(scale.MassstabT, c.per_kelvin, 1e-8) << c.settings;
        EXPECT_EQ(scale.NullpunktX, c.zero_x);
        EXPECT_EQ(scale.NullpunktY, c.zero_y);
        EXPECT_EQ(scale.VersatzX, c.shift_x);
        EXPECT_EQ(scale.VersatzT, c.shift_t);
        EXPECT_NEAR(scale.CarrierFaktor, 3.839080460, 1e-8);
    }
}

TEST(ChartScale, StepsAtTheEndsOfTheirRanges) {
    const struct {
        double t_min, t_max, x_span;
        int temperature_step, humidity_step, curve_step;
    } cases[] = {
        {-20, 40, 30, 5, 5, 2},  {-20, 40, 29.9, 5, 2, 2}, {-20, 40, 10, 5, 2, 2},
        {-20, 40, 9.9, 5, 1, 2}, {0, 40, 40, 5, 5, 2},     {0, 39.9, 40, 2, 5, 1},
        {5, 30, 40, 2, 5, 1},    {10, 30, 40, 2, 5, 1},    {10, 29.9, 40, 1, 5, 1},
    };
    for (const auto& c : cases) {
        ChartSettings settings;
        settings.ChartTMin = c.t_min;
        settings.ChartTMax = c.t_max;
        ChartScale scale;
        scale.spanX = c.x_span;
        const GridSteps steps = StepsFor(settings, scale);
        EXPECT_EQ(steps.temperature_step, c.temperature_step) << c.t_max - c.t_min;
        EXPECT_EQ(steps.humidity_step, c.humidity_step) << c.x_span;
        EXPECT_EQ(steps.curve_step, c.curve_step) << c.t_max - c.t_min;
    }
}

TEST(ChartScale, ASpanThatIsNotPositiveLeavesTheFormerScale) {
    for (const char* settings : {"1.013,40,-20,0,40,0,0,1", "1.013,20,20,7,7,0,1,1",
                                 "1.013,1e300,-1e300,5,-5,0,0,1", "x,y"}) {
        PaintedChart chart;
        chart.Paint();
        const double per_kelvin = chart.engine.scale.MassstabT;
        chart.folder.Write("qv_par.dat", settings);
        chart.Paint();
        if (std::string(settings) != "x,y") {
            EXPECT_EQ(chart.engine.scale.MassstabT, per_kelvin) << settings;
        }
        for (const auto& o : chart.engine.picture.Operations()) {
            ASSERT_TRUE(std::isfinite(o.x1 + o.y1 + o.x2 + o.y2)) << settings;
        }
    }
}

TEST(ChartScale, ZoomsCompound) {
    PaintedChart chart;
    chart.Paint();
    // fx = 900 * 1.05 / 1800 = .525, fy = 290 * 1.05 / 580 = .525
    chart.Zoom(500, 100, 900, 290);
    const auto& scale = chart.engine.scale;
    EXPECT_NEAR(scale.MassstabX, 45 / 0.525, 1e-9);
    EXPECT_NEAR(scale.MassstabT, 9.034267913 / 0.525, 1e-7);
    EXPECT_EQ(scale.NullpunktY, 884);   // 560 + (560 - 390) / .525 = 883.81
    EXPECT_EQ(scale.NullpunktX, -917);  // 35 - Floor(952.38)
    EXPECT_EQ(scale.VersatzT, -345);    // -181 / .525 = -344.76
    // 19.95 g/kg wide now: the x grid goes to steps of 2, the temperature grid keeps its 5.
    EXPECT_EQ(StepsFor(chart.engine.settings, scale).humidity_step, 2);
    EXPECT_EQ(StepsFor(chart.engine.settings, scale).temperature_step, 5);
    chart.Zoom(0, 0, 900, 290);
    EXPECT_NEAR(scale.MassstabX, 45 / 0.525 / 0.525, 1e-9);
    EXPECT_EQ(scale.VersatzT, -657);  // -345 / .525 = -657.14
    chart.Paint();
    EXPECT_EQ(scale.MassstabX, 45) << "a paint of the whole chart takes the base scale back";
}

TEST(ChartGrid, MollierOnScreen) {
    PaintedChart chart;
    chart.Paint();
    const auto& picture = chart.engine.picture;
    // 0 degC: 560 - 181 = 379; 40 degC: 379 - 361.370717 = 17.629283
    EXPECT_TRUE(FindLine(picture, 30, 379, 2000, 379, kGrey));
    EXPECT_TRUE(HasTextAt(picture, " 0", -5, 374));
    EXPECT_TRUE(FindLine(picture, 30, 17.629283, 2000, 17.629283, kGrey));
    EXPECT_TRUE(HasTextAt(picture, " 40", -5, 12.629283));
    EXPECT_TRUE(HasTextAt(picture, "-20", -5, 554.685358));
    // 10 g/kg: 35 + 450; the foot of the grid is .968 * 580 + 2
    EXPECT_TRUE(FindLine(picture, 485, 563.44, 485, 0, kGrey));
    EXPECT_TRUE(HasTextAt(picture, " 10", 473, 565));
    // its tick of 20 hPa: 2 * (485 + 16.75) * 12 / 19 - 23 = 610.789474
    EXPECT_TRUE(FindLine(picture, 610.789474, 556.44, 610.789474, 561.44, kGrey));
    EXPECT_TRUE(HasTextAt(picture, " 20", 598.789474, 548));
    EXPECT_FALSE(HasTextAt(picture, " 0", -12 + 2 * 35 * 12.0 / 19 - 23, 548)) << "no tick at 0";
    for (const auto& [text, x, y] : {std::tuple{"t/[°C]", 0.0, 4.0},
                                     {"X/[g/kg]", 1740.0, 572.0},
                                     {"pD/[hPa]", 1740.0, 538.0}}) {
        EXPECT_TRUE(HasTextAt(picture, text, x, y)) << text;
    }
}

TEST(ChartGrid, CarrierOnScreen) {
    PaintedChart chart("1.013,-20,40,0,40,0,1,1");
    chart.Paint();
    const auto& picture = chart.engine.picture;
    // 0 degC: 500 - 162 = 338, turned to 1800 - 338 * 3.83908046 = 502.390805
    EXPECT_TRUE(FindLine(picture, 502.390805, 552.185629, 502.390805, 0, kGrey));
    EXPECT_TRUE(HasTextAt(picture, " 0", 502.390805, 560));
    // 10 g/kg: 560 - 485 / 3.83908046 = 433.667665
    EXPECT_TRUE(FindLine(picture, 45, 433.667665, 1800, 433.667665, kGrey));
    EXPECT_TRUE(HasTextAt(picture, " 10", 5, 428.667665));
    EXPECT_TRUE(HasTextAt(picture, "t/[°C]", 1860, 565));
    EXPECT_TRUE(HasTextAt(picture, "g/kg", 5, 2));
    EXPECT_EQ(FindText(picture, "pD/[hPa]"), nullptr);
}

TEST(ChartGrid, OnThePrinter) {
    PaintedChart chart;
    chart.Paint();
    chart.PaintOnPrinter();
    EXPECT_TRUE(HasTextAt(chart.paper, " 0", -25, 374));
    EXPECT_TRUE(HasTextAt(chart.paper, "t/[°C]", 0, -15));
    EXPECT_TRUE(HasTextAt(chart.paper, " 10", 463, 565));
    EXPECT_TRUE(FindLine(chart.paper, 610.789474, 555.44, 610.789474, 561.44, kGrey));
    EXPECT_TRUE(HasTextAt(chart.paper, " 20", 588.789474, 545));
    EXPECT_TRUE(HasTextAt(chart.paper, "X/[g/kg]", 1870, 575));
    // 40 g/kg lies at 1835, inside .93 * 2000; a zoom pushes most of the grid off the paper.
    EXPECT_TRUE(FindLine(chart.paper, 1835, 563.44, 1835, 0, kGrey));
    RecordingCanvas& paper = chart.paper;
    paper.Clear(kWhite, kBlack);
    chart.Zoom(500, 100, 900, 290);
    chart.PaintOnPrinter();
    EXPECT_EQ(FindLine(paper, 35 - 952, 563.44, 35 - 952, 0, kGrey), nullptr);
    // 11 steps of 2 g/kg (10.. 32) hit 0..1860: -917 + x * 85.714286, from x = 12 on
    EXPECT_TRUE(FindLine(paper, 111, 563.44, 111, 0, kGrey))
        << "-917 + 1028.57, cut to whole units";
}

TEST(ChartGrid, ARangeThatDoesNotStartAtZeroShiftsTheWrongWayAndTheReadOutToo) {
    PaintedChart chart("1.013,0,25,5,25,0,0,1");
    chart.Paint();
    // 5 g/kg: 35 + 450 + 5 * 90 = 935
    EXPECT_TRUE(FindLine(chart.engine.picture, 935, 563.44, 935, 0, kGrey));
    EXPECT_TRUE(HasTextAt(chart.engine.picture, " 5", 923, 565));
    EXPECT_TRUE(HasTextAt(chart.engine.picture, " 7", 1103, 565)) << "steps of 2 from 5 on";
    chart.ReadAt(935.5, 300);
    EXPECT_EQ(chart.read_out.absF.text, " 15") << "5 plus twice the minimum";
}

TEST(ChartGrid, BrokenSettingsEndInTime) {
    for (const char* settings :
         {"1.013,-1e9,1e9,0,1e9,0,0,1", "1.013,-2147483648,2147483647,-1e300,1e300,0,1,1",
          "0,-20,40,0,0.001,0,0,1", "9,-20,40,0,40,0,0,1", "-3,-20,40,0,40,0,0,1",
          "1.013,-60,900,0,4000,0,1,1"}) {
        PaintedChart chart(settings);
        chart.Paint();
        chart.Paint();
        EXPECT_LT(chart.engine.picture.Operations().size(), 50000U) << settings;
    }
}

TEST(ComfortField, CoversItsZoneAndStaysThin) {
    PaintedChart chart;
    chart.Paint();
    double left = 1e9, right = 0, top = 1e9, bottom = 0;
    int dots = 0;
    for (const auto& o : chart.engine.picture.Operations()) {
        if (o.stroke != Stroke::Dot) continue;
        EXPECT_EQ(o.colour, kGrey);
        ++dots;
        left = std::min(left, o.x1);
        right = std::max(right, o.x1);
        top = std::min(top, o.y1);
        bottom = std::max(bottom, o.y1);
    }
    // Rows every .7 / 9 K between 26 (144.11) and 22 degC (180.25). The published saturation
    // humidity at 22 degC is 16.67 g/kg, so 35 % is 5.83 g/kg (297 units); no dot lies beyond 12
    // g/kg (575).
    EXPECT_NEAR(bottom, 180.246, 0.01);
    EXPECT_GE(top, 144.109 - 0.01);
    EXPECT_NEAR(top, 144.109, 0.8);
    EXPECT_NEAR(left, 297, 2);
    EXPECT_LE(right, 575);
    EXPECT_NEAR(right, 575, 3);
    EXPECT_GT(dots, 1500);
    EXPECT_LT(dots, 2500);
    // Deep in a zoom the raster would have millions of dots; only those on the canvas are drawn.
    for (int i = 0; i < 3; ++i) chart.Zoom(300, 250, 90, 29);
    EXPECT_LT(chart.engine.picture.Operations().size(), 1'000'000U);
    // A wide and low frame, whose rows would hold hundreds of thousands.
    chart.Paint();
    chart.Zoom(0, 150, 1700, 1);
    EXPECT_GT(chart.engine.picture.Operations().size(), 1'000U);
    EXPECT_LT(chart.engine.picture.Operations().size(), 1'000'000U);
    // Ever deeper, until single units of the raster can no longer be counted.
    for (int i = 0; i < 30; ++i) {
        chart.Zoom(100, 300, 20, 1);
        ASSERT_LT(chart.engine.picture.Operations().size(), 1'000'000U) << i;
    }
}

}  // namespace
}  // namespace zandrell
