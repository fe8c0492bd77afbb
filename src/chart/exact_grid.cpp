#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "chart/exact_painting.h"
#include "kernel/air_state.h"
#include "kernel/real_air.h"

namespace zandrell {
namespace {

constexpr int kTemperatureParts = 8, kHumidityParts = 6, kPressureParts = 8;
constexpr double kWidestStep = 5;    // K and g/kg
constexpr double kMostLines = 2000;  // a broken file could ask for more
constexpr double kHectopascalPerBar = 1000;

// Calls `draw` for each multiple of `step` from `from` to `to`.
template <class Draw>
void ForMultiples(double from, double to, double step, const Draw& draw) {
    constexpr double kSlack = 1e-9;  // so that a limit that is a multiple counts
    const double first = std::ceil(from / step - kSlack), last = std::floor(to / step + kSlack);
    // Counted from 0: a number beyond 2 to the 53rd does not grow by 1.
    const double count = std::min(last - first, kMostLines);
    for (double i = 0; i <= count; ++i) draw((first + i) * step);
}

void PaintMollierPressure(const ChartPainting& painting, const VisibleRanges& visible) {
    const double p = painting.settings.pressure_bar * kHectopascalPerBar;
    const auto pressure_of = [p](double x) { return p * x / (kRealAirRatio + x); };
    const double from = pressure_of(visible.x_from), to = pressure_of(visible.x_to);
    if (!(to > from) || !(p > 0)) return;
    const double bottom = 0.968 * painting.height;
    const bool printed = painting.on_printer;
    ForMultiples(from, to, RoundStep(to - from, kPressureParts), [&](double vapour) {
        if (!(vapour > 0 && vapour < p)) return;
        const double place = painting.scale.Xm(kRealAirRatio * vapour / (p - vapour));
        painting.canvas.Line(place, bottom - (printed ? 6 : 5), place, bottom, kGrey);
        painting.canvas.Text(place - (printed ? 22 : 12), printed ? 545 : 548, NumberText(vapour));
    });
}

}  // namespace

VisibleRanges VisibleOn(const ChartPainting& painting) {
    const auto& settings = painting.settings;
    const ChartState one = painting.scale.StateAt({-10, painting.height});
    const ChartState other = painting.scale.StateAt({painting.width, 0});
    return {std::max(settings.ChartXMin, std::min(one.x, other.x)),
            std::min(settings.ChartXMax, std::max(one.x, other.x)),
            std::max({settings.ChartTMin, std::min(one.t, other.t), kLowestTemperature}),
            std::min({settings.ChartTMax, std::max(one.t, other.t), kHighestTemperature})};
}

double RoundStep(double span, int parts) {
    const double most = span / parts;
    const double ten = std::pow(10, std::floor(std::log10(most) + 1e-12));
    for (const double step : {5.0, 2.0}) {
        if (step * ten <= most * (1 + 1e-12)) return step * ten;
    }
    return ten;
}

void PaintExactIsotherms(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::AxisNumber);
    const VisibleRanges visible = VisibleOn(painting);
    if (visible.t_to > visible.t_from) {
        const double step =
            std::min(kWidestStep, RoundStep(visible.t_to - visible.t_from, kTemperatureParts));
        ForMultiples(visible.t_from, visible.t_to, step,
                     [&](double t) { PaintIsotherm(painting, t, painting.scale.Ym(t)); });
    }
    PaintTemperatureTitle(painting);
}

void PaintExactHumidityGrid(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::AxisNumber);
    const VisibleRanges visible = VisibleOn(painting);
    if (visible.x_to > visible.x_from) {
        const double step =
            std::min(kWidestStep, RoundStep(visible.x_to - visible.x_from, kHumidityParts));
        ForMultiples(visible.x_from, visible.x_to, step,
                     [&](double x) { PaintHumidityLine(painting, x, painting.scale.Xm(x)); });
        if (painting.Mollier()) PaintMollierPressure(painting, visible);
    }
    PaintHumidityTitles(painting);
}

}  // namespace zandrell
