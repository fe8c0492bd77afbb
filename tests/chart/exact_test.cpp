// The chart as an engineer reads it off: what is drawn, what is read and what the numbers say
// agree.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "chart/exact_painting.h"
#include "painted_chart.h"
#include "tests/processes/independent_air.h"

namespace zandrell {
namespace {

constexpr const char* kRanges[] = {"-20,40,0,40", "-50,100,0,100", "0,25,5,25", "-10,35,2.5,12",
                                   "-20,60,0,150"};
constexpr int kWidths[] = {480, 1024, 1280, 1920, 3840};  // pixels

std::string Settings(const std::string& range, int kind, const std::string& pressure = "1.013") {
    return pressure + "," + range + ",0," + std::to_string(kind) + ",1,1";
}

TEST(Exact, TheNinthItemOfTheSettingsAsksForItAndTheTenthForFogLines) {
    const struct {
        const char* items;
        bool exact, fog_lines = false;
    } cases[] = {
        {"1.013,-20,40,0,40,0,0,1,1", true},         {"1.013,-20,40,0,40,0,0,1", false},
        {"1.013,-20,40,0,40,0,0,1,0", false},        {"1.013,-20,40,0,40,0,0,1,2", false},
        {"1.013,-20,40,0,40,0,0,1,x", false},        {"1.013,-20,40,0,40", false},
        {"1.013,-20,40,0,40,0,0,1,1,1", true, true}, {"1.013,-20,40,0,40,0,0,1,1,0", true},
        {"1.013,-20,40,0,40,0,0,1,1,x", true},       {"1.013,-20,40,0,40,0,0,1,0,1", false}};
    const TestFolder folder;
    const DataFiles files(folder.Path());
    for (const auto& c : cases) {
        folder.Write("qv_par.dat", c.items);
        ChartSettings settings;
        settings.convention = Convention::Exact;
        settings.fog_lines = true;
        ReadChartSettings(files, settings);
        EXPECT_EQ(settings.convention == Convention::Exact, c.exact) << c.items;
        EXPECT_EQ(settings.fog_lines, c.fog_lines) << c.items;
        WriteChartSettings(files, settings);
        const std::string written = folder.Read("qv_par.dat");
        EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 8 + c.exact + c.fog_lines)
            << c.items;
    }
}

TEST(Exact, DrawingAndReadOutAreInverse) {
    std::mt19937 random(20);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    ChartScale scale;
    for (int i = 0; i < 10000; ++i) {
        if (i % 10 == 0) {
            ChartSettings settings;
            settings.convention = Convention::Exact;
            settings.DiagrammArt = i / 10 % 2;
            settings.ChartTMin = between(-50, 20);
            settings.ChartTMax = settings.ChartTMin + between(20, 150);
            settings.ChartXMin = between(0, 30);
            settings.ChartXMax = settings.ChartXMin + between(5, 150);
            scale.CarrierFaktor = between(3.4, 6);
            ApplyBaseScale(settings, scale);
            for (int zoom = 0; zoom < i / 20 % 11; ++zoom) {
                ApplyZoom({between(0, 900), between(0, 300), between(200, 900), between(60, 250)},
                          1, 1, scale);
            }
        }
        const CanvasPoint place{between(-10, 2000), between(0, 580)};
        const ChartState state = scale.StateAt(place);
        const CanvasPoint again = scale.PointOf(state.x, state.t);
        ASSERT_NEAR(again.x, place.x, 0.1) << i;
        ASSERT_NEAR(again.y, place.y, 0.1) << i;
    }
}

TEST(Exact, TheWholeRangeLiesOnTheCanvasAndTheAxesBeginWithIt) {
    for (const char* range : kRanges) {
        for (const int width : kWidths) {
            for (const int kind : {kMollier, kCarrier}) {
                PaintedChart chart(Settings(range, kind));
                chart.engine.FollowWidth(15 * width);
                chart.Paint();
                const auto& s = chart.engine.settings;
                const auto& scale = chart.engine.scale;
                EXPECT_NEAR(scale.CarrierFaktor,
                            ((15.0 * width + 2600) / (15.0 * width) * 2000 + 10) / 580, 1e-9);
                EXPECT_NEAR(scale.Xm(s.ChartXMin), 35, 1e-9) << range;
                for (const double t : {s.ChartTMin, s.ChartTMax}) {
                    for (const double x : {s.ChartXMin, s.ChartXMax}) {
                        const CanvasPoint corner = scale.PointOf(x, t);
                        EXPECT_TRUE(corner.x >= 0 && corner.x <= 1850 && corner.y >= 0 &&
                                    corner.y <= 565)
                            << range << ' ' << kind << ' ' << width << ": " << corner.x << ' '
                            << corner.y;
                    }
                }
            }
        }
    }
    PaintedChart chart(Settings("0,25,5,25", kMollier));
    chart.Paint();
    // 90 units a gram from 35 on.
    EXPECT_TRUE(FindLine(chart.engine.picture, 35 + 90 * 5, 563.44, 35 + 90 * 5, 0, kGrey));
    EXPECT_TRUE(HasTextAt(chart.engine.picture, " 10", 35 + 90 * 5 - 12, 565));
    chart.ReadAt(35 + 90 * 5.005, 300);
    EXPECT_EQ(chart.read_out.absF.text, " 10");
}

// Numbers at the axis of t or of x.
std::vector<double> NumbersAt(const PaintedChart& chart, bool of_t) {
    const bool mollier = chart.engine.settings.DiagrammArt == kMollier;
    std::vector<double> numbers;
    for (const auto& o : chart.engine.picture.Operations()) {
        if (o.stroke != Stroke::Text || o.role != TextRole::AxisNumber) continue;
        const bool at_side = o.x1 == (mollier ? -5 : 5);
        const bool at_foot = !at_side && o.y1 == (mollier ? 565 : 560);
        if (of_t == mollier ? at_side : at_foot) numbers.push_back(ParsedNumber(o.text));
    }
    return numbers;
}

TEST(Exact, AZoomShowsWhatTheFrameHeld) {
    for (const int kind : {kMollier, kCarrier}) {
        PaintedChart chart(Settings("-20,40,0,40", kind));
        chart.Paint();
        for (int zoom = 1; zoom <= 10; ++zoom) {
            const double left = 700, top = 200, width = 800, height = 220;
            const auto& scale = chart.engine.scale;
            const ChartState one = scale.StateAt({left, top});
            const ChartState other = scale.StateAt({left + width, top + height});
            chart.Zoom(left, top, width, height);
            const CanvasPoint upper_left = scale.PointOf(one.x, one.t);
            const CanvasPoint lower_right = scale.PointOf(other.x, other.t);
            const double margin_left = upper_left.x + 10, margin_right = 2000 - lower_right.x;
            const double margin_top = upper_left.y, margin_bottom = 580 - lower_right.y;
            EXPECT_NEAR(margin_left, margin_right, 0.1) << zoom;
            EXPECT_NEAR(margin_top, margin_bottom, 0.1) << zoom;
            EXPECT_GE(margin_left, 0);
            EXPECT_GE(margin_top, 0);
            EXPECT_LE(margin_left, 0.05 * (lower_right.x - upper_left.x)) << zoom;
            EXPECT_LE(margin_top, 0.05 * (lower_right.y - upper_left.y)) << zoom;
            // Both grids follow: some numbers at each axis, all of them within the picture.
            for (const bool of_t : {true, false}) {
                const auto numbers = NumbersAt(chart, of_t);
                EXPECT_GE(numbers.size(), 4U) << kind << ' ' << zoom;
                EXPECT_LE(numbers.size(), 20U) << kind << ' ' << zoom;
                const auto [low, high] =
                    of_t ? std::minmax(one.t, other.t) : std::minmax(one.x, other.x);
                for (const double number : numbers) {
                    EXPECT_GT(number, low - 0.1 * (high - low)) << kind << ' ' << zoom;
                    EXPECT_LT(number, high + 0.1 * (high - low)) << kind << ' ' << zoom;
                }
            }
        }
        chart.Paint();
        EXPECT_FALSE(chart.engine.scale.zoomed);
        EXPECT_EQ(chart.engine.scale.MassstabX, 45);
    }
}

TEST(Exact, FramesWithoutContentLeaveTheScale) {
    PaintedChart chart(Settings("-20,40,0,40", kMollier));
    chart.Paint();
    const double inf = std::numeric_limits<double>::infinity();
    for (const ZoomFrame& frame :
         {ZoomFrame{500, 100, 0, 100}, ZoomFrame{500, 100, 100, 0}, ZoomFrame{inf, 100, 100, 50},
          ZoomFrame{1, 1, 1e-7, 1e-7}, ZoomFrame{1, 1, inf, std::nan("")}}) {
        chart.Zoom(frame.left, frame.top, frame.width, frame.height);
        EXPECT_EQ(chart.engine.scale.MassstabX, 45);
    }
    for (int i = 0; i < 40; ++i) chart.Zoom(900, 250, 300, 90);
    for (const auto& o : chart.engine.picture.Operations()) {
        ASSERT_TRUE(std::isfinite(o.x1 + o.y1 + o.x2 + o.y2));
    }
    EXPECT_LT(chart.engine.picture.Operations().size(), 1'000'000U);
}

TEST(Exact, StepsAreRound) {
    const struct {
        double span;
        int parts;
        double step;
    } cases[] = {{60, 8, 5},  {40, 8, 5}, {39, 8, 2},        {16, 8, 2},    {15, 8, 1},
                 {1, 8, 0.1}, {40, 6, 5}, {0.012, 6, 0.002}, {1500, 6, 200}};
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(RoundStep(c.span, c.parts), c.step) << c.span;
}

// The scale of the vapour pressure: its row of numbers, with the tick under each.
TEST(Exact, VapourPressureIsThatOfTheHumidityBelow) {
    for (const char* pressure : {"1.013", "0.8", "1.05"}) {
        for (const bool zoomed : {false, true}) {
            PaintedChart chart(Settings("-20,40,0,40", kMollier, pressure));
            chart.Paint();
            if (zoomed) chart.Zoom(600, 150, 500, 200);
            int ticks = 0;
            const auto& all = chart.engine.picture.Operations();
            for (std::size_t i = 1; i < all.size(); ++i) {
                if (all[i].stroke != Stroke::Text || all[i].y1 != 548) continue;
                ++ticks;
                EXPECT_EQ(all[i - 1].x1, all[i - 1].x2);
                const double x = chart.engine.scale.StateAt({all[i - 1].x1, 0}).x / 1000;
                const double hectopascal = 1000 * chart.pressure * x / (0.621945 + x);
                const double number = ParsedNumber(all[i].text);
                EXPECT_NEAR(hectopascal, number, 1e-6 * number) << pressure;
                EXPECT_NEAR(10 * number, std::round(10 * number), 1e-9) << "no round number";
            }
            EXPECT_GE(ticks, 5) << pressure;
            EXPECT_LE(ticks, 25) << pressure;
        }
    }
}

// Relative humidity in per cent at a point of the chart, and density in kg/m3, by formulas that the
// program does not have.
double HumidityAt(const PaintedChart& chart, const ChartState& at) {
    const double p = 1e5 * chart.pressure;
    const double saturated = independent::ShareOfSteam(independent::X(1, at.t, p));
    return 100 * independent::ShareOfSteam(at.x) / saturated;
}
double DensityAt(const PaintedChart& chart, const ChartState& at) {
    return (1 + at.x / 1000) * independent::DryAir(at.t, at.x, 1e5 * chart.pressure);
}

TEST(Exact, ADensityLineLiesWhereItsDensityIs) {
    for (const char* pressure : {"1.013", "0.954", "0.8"}) {
        for (const int kind : {kMollier, kCarrier}) {
            PaintedChart chart(Settings("-20,40,0,40", kind, pressure));
            chart.Paint();
            int lines = 0;
            const auto& all = chart.engine.picture.Operations();
            for (std::size_t i = 0; i < all.size(); ++i) {
                if (all[i].text.find("kg/m³") == std::string::npos) continue;
                ++lines;
                const double density = ParsedNumber(all[i].text.substr(0, 5));
                std::size_t k = i;
                double x_last = -1;
                while (all[--k].stroke == Stroke::Line) {
                    for (const double share : {0.0, 0.5, 1.0}) {
                        const ChartState at = chart.engine.scale.StateAt(
                            {all[k].x1 + share * (all[k].x2 - all[k].x1),
                             all[k].y1 + share * (all[k].y2 - all[k].y1)});
                        EXPECT_NEAR(DensityAt(chart, at), density, 0.0005)
                            << pressure << ": " << at.t << " degC, " << at.x << " g/kg";
                        x_last = std::max(x_last, at.x);
                    }
                }
                EXPECT_GT(x_last, 0.5) << "up to saturation";
            }
            EXPECT_GE(lines, 4) << pressure;
            EXPECT_LE(lines, 7) << "those that have no part on the canvas are not drawn";
        }
    }
    // At 0.8 bar air of 1.35 kg/m3 is colder than any state.
    PaintedChart thin(Settings("-20,40,0,40", kMollier, "0.8"));
    thin.Paint();
    EXPECT_EQ(FindText(thin.engine.picture, " 1.35 kg/m³"), nullptr);
    EXPECT_NE(FindText(thin.engine.picture, " .95 kg/m³"), nullptr);
}

// The states along a line on the canvas, at its ends and in its middle.
std::vector<ChartState> StatesAlong(const PaintedChart& chart, const CanvasOperation& line) {
    std::vector<ChartState> states;
    for (const double share : {0.0, 0.5, 1.0}) {
        states.push_back(chart.engine.scale.StateAt(
            {line.x1 + share * (line.x2 - line.x1), line.y1 + share * (line.y2 - line.y1)}));
    }
    return states;
}

// Every piece of the saturation line and of the enthalpy lines, on the whole chart and in a zoom.
// An enthalpy line is what comes before its extension line and its number.
TEST(Exact, SaturationAndEnthalpyLinesLieWhereTheirFiguresAre) {
    for (const char* pressure : {"1.013", "0.8"}) {
        for (const int kind : {kMollier, kCarrier}) {
            for (const bool zoomed : {false, true}) {
                PaintedChart chart(Settings("-20,40,0,40", kind, pressure));
                chart.Paint();
                if (zoomed && kind == kMollier) chart.Zoom(200, 20, 600, 250);
                if (zoomed && kind == kCarrier) chart.Zoom(900, 250, 700, 240);
                int saturated = 0, lines = 0;
                const auto& all = chart.engine.picture.Operations();
                for (std::size_t i = 0; i < all.size(); ++i) {
                    if (all[i].stroke == Stroke::Line && all[i].colour == kDarkRed) {
                        ++saturated;
                        const auto states = StatesAlong(chart, all[i]);
                        EXPECT_NEAR(HumidityAt(chart, states.front()), 100, 0.1) << states[0].t;
                        EXPECT_NEAR(HumidityAt(chart, states.back()), 100, 0.1) << states[0].t;
                    }
                    if (all[i].text.find("kJ/kg") == std::string::npos) continue;
                    const double h = ParsedNumber(all[i].text.substr(0, all[i].text.find('k')));
                    for (std::size_t k = i - 2;
                         all[k].stroke == Stroke::Line && all[k].colour == kGrey; --k) {
                        const auto states = StatesAlong(chart, all[k]);
                        if (std::abs(states[0].t - states[2].t) < 1e-9) break;  // an extension line
                        ++lines;
                        for (const ChartState& at : states) {
                            EXPECT_NEAR(independent::H(at.t, at.x, 1e5 * chart.pressure), h,
                                        0.03 + 2e-4 * std::abs(h))
                                << pressure << ": " << at.t << " degC, " << at.x << " g/kg";
                        }
                    }
                }
                EXPECT_GE(saturated, 90) << pressure;
                EXPECT_GE(lines, 12 * (zoomed ? 3 : 10)) << pressure;
            }
        }
    }
}

// kJ per kg of dry air with x g of water, of which the air holds what saturates it. Water of 4.2
// kJ/(kg K), ice of 333.4 kJ/kg less at 0 degC and 2.06 kJ/(kg K).
double EnthalpyInFog(const PaintedChart& chart, const ChartState& at) {
    const double p = 1e5 * chart.pressure, saturated = independent::X(1, at.t, p);
    const double condensed = at.t <= 0.01 ? -333.4 + 2.06 * at.t : 4.2 * at.t;
    return independent::H(at.t, saturated, p) + (at.x - saturated) / 1000 * condensed;
}

// Each dash behind a number belongs to its line. Where ice melts h is not told by t and x.
TEST(Exact, FogLinesLieWhereTheirEnthalpyIs) {
    for (const int kind : {kMollier, kCarrier}) {
        PaintedChart without(Settings("-20,40,0,40", kind)),
            chart(Settings("-20,40,0,40", kind) + ",1");
        without.Paint();
        chart.Paint();
        double h = 0;
        int water = 0, ice = 0, numbers = 0;
        for (const CanvasOperation& drawn : chart.engine.picture.Operations()) {
            if (drawn.text.find("kg/m³") != std::string::npos) break;
            if (drawn.text.find("kJ/kg") != std::string::npos) {
                h = ParsedNumber(drawn.text.substr(0, drawn.text.find('k')));
                ++numbers;
                continue;
            }
            if (numbers == 0 || drawn.stroke != Stroke::Line || drawn.colour != kGrey) continue;
            const auto states = StatesAlong(chart, drawn);
            if (HumidityAt(chart, states[1]) < 101) continue;  // a line in air
            if (std::abs(states[1].t) < 0.3) continue;
            ++(states[1].t > 0 ? water : ice);
            EXPECT_NEAR(EnthalpyInFog(chart, states[1]), h, 0.1 + 5e-4 * h)
                << states[1].t << " degC, " << states[1].x << " g/kg";
        }
        EXPECT_GE(numbers, 10);
        EXPECT_GE(water, 300);
        EXPECT_GE(ice, 50);
        const auto& before = without.engine.picture.Operations();
        EXPECT_GT(chart.engine.picture.Operations().size(), before.size() + 300U);
    }
}

TEST(Exact, AHumidityLabelStandsAtItsOwnCurve) {
    for (const int width : {1024, 1920}) {
        for (const bool zoomed : {false, true}) {
            PaintedChart chart(Settings("-20,40,0,40", kCarrier));
            chart.engine.FollowWidth(15 * width);
            chart.Paint();
            if (zoomed) chart.Zoom(900, 150, 700, 300);
            int labels = 0;
            for (const auto& o : chart.engine.picture.Operations()) {
                if (o.stroke != Stroke::Text || !o.text.ends_with('%')) continue;
                ++labels;
                // The end of the curve: left of the text, at the middle of its height; or at the
                // upper edge where it was held down.
                const double y = o.y1 == 2 ? 0 : o.y1 + 5;
                const ChartState at = chart.engine.scale.StateAt({o.x1 - 6, y});
                const double humidity = HumidityAt(chart, at);
                EXPECT_NEAR(humidity, ParsedNumber(o.text.substr(0, o.text.size() - 1)), 1.5)
                    << o.text << " at " << at.t << " degC, " << at.x << " g/kg";
            }
            EXPECT_GE(labels, zoomed ? 4 : 9);
        }
    }
}

TEST(Exact, TheSuitesScaleIsLeftAloneByAWindowThatChanges) {
    PaintedChart chart("1.013,-20,40,0,40,0,1,1");
    chart.Paint();
    const double aspect = chart.engine.scale.CarrierFaktor;
    EXPECT_FALSE(chart.engine.FollowWidth(15 * 2000));
    chart.Paint();
    EXPECT_EQ(chart.engine.scale.CarrierFaktor, aspect);
    chart.engine.convention_override = Convention::Exact;
    chart.Paint();
    EXPECT_NE(chart.engine.scale.CarrierFaktor, aspect);
    EXPECT_TRUE(chart.engine.FollowWidth(15 * 1000));
    chart.Paint();
    chart.Zoom(500, 100, 900, 290);
    EXPECT_FALSE(chart.engine.FollowWidth(15 * 3000)) << "a zoomed picture stays";
}

}  // namespace
}  // namespace zandrell
