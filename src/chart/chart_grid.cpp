#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "base/unit_texts.h"
#include "canvas/palette.h"
#include "chart/chart_painting.h"
#include "chart/saturation.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

// The comfort zone: 22 to 26 degC, 35 to 65 %, at most 12 g/kg.
constexpr double kComfortTMin = 22, kComfortTMax = 26;                // degC
constexpr double kComfortHumidityMin = 35, kComfortHumidityMax = 65;  // %
constexpr double kComfortXMax = 12;                                   // g/kg
constexpr int kComfortPrinterWidth = 3;
// A zoom into a wide and low frame would put more dots into a row than can be told apart.
constexpr double kMostDotsInRow = 500;

constexpr double kPrinterLastLine = 3000;
constexpr int kMostGridLines =
    2000;  // more would be a solid area, and a broken file could ask for it

// First and last whole step k at which start + k * step lies within both pairs of limits.
struct Steps {
    double first = 0, last = -1;
};

Steps StepsWithin(double start, double end, double step, double visible_from, double visible_to) {
    constexpr double kRoundingSlack = 1e-9;
    constexpr double kLastCountable = 1e15;  // from about here on adding 1 changes nothing
    const double last = std::floor((end - start) / step + kRoundingSlack);
    if (!(last < kLastCountable)) return {};
    return {std::max(0.0, std::floor((visible_from - start) / step)),
            std::min(last, std::ceil((visible_to - start) / step))};
}

void PaintComfortRow(const ChartPainting& painting, double t, double humidity_step) {
    const double xs = SaturatedX(painting.settings.convention, painting.solver, t).value_or(0);
    if (!(xs > 0)) return;
    // Only what lies on the canvas: deep in a zoom the raster has millions of dots elsewhere.
    const ChartState low = painting.scale.StateAt({-10, painting.height});
    const ChartState high = painting.scale.StateAt({painting.width, 0});
    const double shift = painting.scale.ReadOutShift();
    const double x_from = std::min(low.x, high.x) - shift;
    const double x_to = std::min(std::max(low.x, high.x) - shift, kComfortXMax);
    const Steps columns = StepsWithin(kComfortHumidityMin, kComfortHumidityMax, humidity_step,
                                      100 * x_from / xs, 100 * x_to / xs);
    const double stride = std::max(1.0, std::ceil((columns.last - columns.first) / kMostDotsInRow));
    for (double k = columns.first; k <= columns.last; k += stride) {
        const double x = xs * (kComfortHumidityMin + k * humidity_step) / 100;
        if (x > kComfortXMax) break;
        const CanvasPoint point = painting.scale.PointOf(x, t);
        painting.canvas.Dot(point.x, point.y, kGrey);
    }
}

void PaintVapourPressureTick(const ChartPainting& painting, double x, double line_x) {
    const double bottom = 0.968 * painting.height;
    // A fixed mapping of 2 hPa per 1 g/kg with an offset of its own: no vapour pressure is
    // computed.
    const double place = 2 * (line_x + 1.675 * x) * 12 / 19 - 23;
    const bool printed = painting.on_printer;
    painting.canvas.Line(place, bottom - (printed ? 6 : 5), place, bottom, kGrey);
    painting.canvas.Text(place - (printed ? 22 : 12), printed ? 545 : 548, NumberText(2 * x));
}

void PaintMollierLine(const ChartPainting& painting, double x, double line_x) {
    const double bottom = 0.968 * painting.height;
    painting.canvas.Line(line_x, bottom + 2, line_x, 0, kGrey);
    painting.canvas.Text(line_x - (painting.on_printer ? 22 : 12), 565, NumberText(x));
}

void PaintCarrierLine(const ChartPainting& painting, double x, double line_x) {
    const double y = 560 - line_x / painting.scale.CarrierFaktor;
    painting.canvas.Line(45, y, painting.level_end, y, kGrey);
    painting.canvas.Text(5, y - 5, NumberText(x));
}

bool HumidityLineFits(const ChartPainting& painting, double line_x) {
    if (!painting.on_printer) return true;
    return line_x >= 0 && line_x <= (painting.Mollier() ? 0.93 * painting.width : kPrinterLastLine);
}

}  // namespace

void ChartPainting::Line(CanvasPoint from, CanvasPoint to, int colour) const {
    if (from.x < left_edge || to.x < left_edge) {
        if (from.x <= left_edge && to.x <= left_edge) return;
        const double share = (left_edge - from.x) / (to.x - from.x);
        (from.x < left_edge ? from : to) = {left_edge, from.y + share * (to.y - from.y)};
    }
    const CanvasPoint a = scale.Turned(from), b = scale.Turned(to);
    canvas.Line(a.x, a.y, b.x, b.y, colour);
}

void PaintIsotherm(const ChartPainting& painting, double t, double y) {
    if (painting.Mollier()) {
        painting.canvas.Line(30, y, painting.width, y, kGrey);
        painting.canvas.Text(painting.on_printer ? -25 : -5, y - 5, NumberText(t));
        return;
    }
    const double factor = painting.scale.CarrierFaktor;
    const double x = 1800 - y * factor;
    painting.canvas.Line(x, 560 - 30 / factor, x, 0, kGrey);
    painting.canvas.Text(x, 560, NumberText(t));
}

void PaintHumidityLine(const ChartPainting& painting, double x, double line_x) {
    (painting.Mollier() ? PaintMollierLine : PaintCarrierLine)(painting, x, line_x);
}

void PaintTemperatureTitle(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::AxisTitle);
    const std::string title = "t/[" + std::string(UnitDegC) + "]";
    if (painting.Mollier()) {
        painting.canvas.Text(0, painting.on_printer ? -15 : 4, title);
    } else {
        painting.canvas.Text(0.93 * painting.width, 565,
                             painting.on_printer ? " " + title + " " : title);
    }
}

void PaintHumidityTitles(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::AxisTitle);
    if (!painting.Mollier()) {
        painting.canvas.Text(5, 2, "g/kg");
        return;
    }
    const double place = (painting.on_printer ? 0.935 : 0.87) * painting.width;
    painting.canvas.Text(place, painting.on_printer ? 575 : 572, "X/[g/kg]");
    painting.canvas.Text(place, painting.on_printer ? 534 : 538, "pD/[hPa]");
}

WholeRange WholeDegrees(double first, double last, int step) {
    const auto rounded_first = RoundToInteger(first), rounded_last = RoundToInteger(last);
    if (!rounded_first || !rounded_last) return {};
    constexpr int kLowest = static_cast<int>(kLowestTemperature);
    constexpr int kHighest = static_cast<int>(kHighestTemperature);
    WholeRange range{*rounded_first, std::min(*rounded_last, kHighest)};
    if (range.first > kHighest) return {};
    // The steps are counted from the first limit, also where no state is that cold.
    if (range.first < kLowest) {
        const auto missing = static_cast<long long>(kLowest) - range.first;
        range.first = static_cast<int>(range.first + (missing + step - 1) / step * step);
    }
    return range;
}

void PaintComfortField(const ChartPainting& painting) {
    const double units_per_kelvin = std::floor(painting.scale.MassstabT);
    if (!(units_per_kelvin > 0)) return;
    const double temperature_step = 0.7 / units_per_kelvin, humidity_step = 7 / units_per_kelvin;
    const double t_one = painting.scale.StateAt({-10, painting.height}).t;
    const double t_other = painting.scale.StateAt({painting.width, 0}).t;
    const Steps rows = StepsWithin(kComfortTMin, kComfortTMax, temperature_step,
                                   std::min(t_one, t_other), std::max(t_one, t_other));
    if (painting.on_printer) painting.canvas.SetLineWidth(kComfortPrinterWidth);
    for (double k = rows.first; k <= rows.last; ++k) {
        PaintComfortRow(painting, kComfortTMin + k * temperature_step, humidity_step);
    }
    painting.canvas.SetLineWidth(1);
}

void PaintIsotherms(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::AxisNumber);
    const int step = painting.steps.temperature_step;
    const auto range = WholeDegrees(painting.settings.ChartTMin, painting.settings.ChartTMax, step);
    for (int t = range.first; t <= range.last; t += step) {
        const double y = painting.scale.Ym(t);
        if (y > 0 && y - 5 < 600) PaintIsotherm(painting, t, y);
    }
    PaintTemperatureTitle(painting);
}

void PaintHumidityGrid(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::AxisNumber);
    const int step = painting.steps.humidity_step;
    const double from = painting.settings.ChartXMin, to = painting.settings.ChartXMax;
    for (int k = 0; k < kMostGridLines; ++k) {
        const double x = from + static_cast<double>(k) * step;
        if (!(x <= to)) break;
        const double line_x = std::floor(painting.scale.Xm(x));
        if (!HumidityLineFits(painting, line_x)) continue;
        PaintHumidityLine(painting, x, line_x);
        if (painting.Mollier() && x > 0) PaintVapourPressureTick(painting, x, line_x);
    }
    PaintHumidityTitles(painting);
}

}  // namespace zandrell
