#include <algorithm>
#include <optional>
#include <vector>

#include "canvas/palette.h"
#include "chart/exact_painting.h"
#include "kernel/exact_air.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr int kEnthalpyParts = 12;  // pieces of a line: vapour of more heat bends it a little

// The temperature at which saturated air has the enthalpy.
std::optional<double> SaturatedTemperature(const ExactAir& air, double h, double low, double high) {
    constexpr double kCloseEnough = 1e-6;  // kJ/kg
    constexpr double kBoils = 1e6;         // kJ/kg, above all that the chart shows
    const auto missing = [&](double t) {
        const auto state = air.FromHumidity(1, t);
        return h - (state ? std::min(state->enthalpy, kBoils) : kBoils);
    };
    if (!(missing(low) >= 0 && missing(high) <= 0)) return std::nullopt;
    return RootOfFalling(low, high, kCloseEnough, missing);
}

// The part of the chart in which a line is drawn: up to the edge above the range, and as wide as
// the canvas.
struct Window {
    double x_from = 0, x_to = 0;  // g/kg
    double t_from = 0, t_to = 0;  // degC
};
Window WindowOf(const ChartPainting& painting) {
    const ChartState one = painting.scale.StateAt({-10, painting.height});
    const ChartState other = painting.scale.StateAt({painting.width, 0});
    const ChartState top = painting.scale.StateAt(painting.scale.Turned({0, painting.top_edge}));
    return {std::max({std::min(one.x, other.x), painting.settings.ChartXMin, 0.0}),
            std::max(one.x, other.x), std::min(one.t, other.t), top.t};
}

// From the dry end to saturation, as far as it lies in the window, in the Mollier chart's units.
std::vector<CanvasPoint> EnthalpyLine(const ChartPainting& painting, const ExactAir& air,
                                      const Window& window, double h, double saturated_t) {
    const double saturated_x = air.SaturatedX(saturated_t).value_or(0);
    double from = window.x_from, to = std::min(saturated_x, window.x_to);
    if (window.t_to <= saturated_t) return {};
    if (const auto x = air.XFromEnthalpy(window.t_to, h)) from = std::max(from, *x);
    if (window.t_from > saturated_t) {
        to = std::min(to, air.XFromEnthalpy(window.t_from, h).value_or(0));
    }
    std::vector<CanvasPoint> points;
    if (!(to > from)) return points;
    points.reserve(kEnthalpyParts + 1);
    for (int i = 0; i <= kEnthalpyParts; ++i) {
        const double x = from + (to - from) * i / kEnthalpyParts;
        const auto t = x == saturated_x ? saturated_t : air.Temperature(h, x);
        if (t) points.push_back({painting.scale.Xm(x), painting.scale.Ym(*t)});
    }
    return points;
}

// On paper the numbers stay off the margin.
bool LineFits(const ChartPainting& painting, CanvasPoint saturated) {
    if (saturated.x < painting.left_edge) return false;
    if (!painting.on_printer) return true;
    if (!painting.Mollier()) return true;
    return saturated.x <= painting.width &&
           EnthalpyStubEnd(painting, saturated).x < 0.93 * painting.width;
}

}  // namespace

void PaintExactEnthalpyLines(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::StubLabel);
    const auto& settings = painting.settings;
    const ExactAir air(painting.solver);
    const Window window = WindowOf(painting);
    const double highest = settings.ChartTMax + painting.steps.temperature_step;
    for (const int h : EnthalpiesWithLine(settings)) {
        const auto t =
            SaturatedTemperature(air, h, std::max(settings.ChartTMin, kLowestTemperature),
                                 std::min(highest, kHighestTemperature));
        if (!t) continue;
        const CanvasPoint saturated{painting.scale.Xm(air.SaturatedX(*t).value_or(0)),
                                    painting.scale.Ym(*t)};
        if (!LineFits(painting, saturated)) continue;
        const auto points = EnthalpyLine(painting, air, window, h, *t);
        for (std::size_t i = 1; i < points.size(); ++i) {
            painting.Line(points[i - 1], points[i], kGrey);
        }
        PaintEnthalpyStub(painting, h, saturated);
    }
}

}  // namespace zandrell
