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

constexpr double kPaperEnd = 0.93;  // of the width, where the numbers of an axis begin

// On paper the numbers stay off the margin.
bool NumberFits(const ChartPainting& painting, CanvasPoint saturated) {
    if (saturated.x < painting.left_edge) return false;
    if (!painting.on_printer || !painting.Mollier()) return true;
    return saturated.x <= painting.width &&
           EnthalpyExtensionEnd(painting, saturated).x < kPaperEnd * painting.width;
}

// The line behind saturation: of liquid water it hardly falls, of ice it rises, and where ice melts
// it is level. From `from` to the right end of the canvas, in the Mollier chart's units.
std::vector<CanvasPoint> FogLine(const ChartPainting& painting, const ExactAir& air, double h,
                                 double x_from, double x_to) {
    constexpr int kParts = 24;
    std::vector<CanvasPoint> points;
    if (!(x_to > x_from)) return points;
    points.reserve(kParts + 1);
    for (int i = 0; i <= kParts; ++i) {
        const double x = x_from + (x_to - x_from) * i / kParts;
        const auto t = air.Temperature(h, x);
        if (t) points.push_back({painting.scale.Xm(x), painting.scale.Ym(*t)});
    }
    return points;
}

struct Gap {
    double from = 0, to = 0;  // in the Mollier chart's x
    bool Touches(double one, double other) const { return other > from && one < to; }
};

// Dashes are faint on every ground and on paper. None where the number stands.
void PaintDashes(const ChartPainting& painting, const std::vector<CanvasPoint>& points,
                 const Gap& number) {
    constexpr double kDash = 12;  // canvas units, and as much between two
    for (std::size_t i = 1; i < points.size(); ++i) {
        const CanvasPoint &from = points[i - 1], &to = points[i];
        const double length = to.x - from.x;
        const int dashes = std::max(1, static_cast<int>(length / (2 * kDash)));
        for (int k = 0; k < dashes; ++k) {
            // Half a gap comes first: a dash that touched the line in air would be drawn as its
            // bend.
            const double start = (k + 0.25) / dashes, end = start + 0.5 / dashes;
            const CanvasPoint one{from.x + start * length, from.y + start * (to.y - from.y)};
            const CanvasPoint other{from.x + end * length, from.y + end * (to.y - from.y)};
            if (!number.Touches(one.x, other.x)) painting.Line(one, other, kGrey);
        }
    }
}

class EnthalpyPainter {
  public:
    explicit EnthalpyPainter(const ChartPainting& painting)
        : painting_(painting), air_(painting.solver), window_(WindowOf(painting)) {}

    void Paint(int h) const {
        const auto& settings = painting_.settings;
        const double highest = settings.ChartTMax + painting_.steps.temperature_step;
        const auto t =
            SaturatedTemperature(air_, h, std::max(settings.ChartTMin, kLowestTemperature),
                                 std::min(highest, kHighestTemperature));
        if (!t) return;
        const double x = air_.SaturatedX(*t).value_or(0);
        const CanvasPoint saturated{painting_.scale.Xm(x), painting_.scale.Ym(*t)};
        const bool fits = NumberFits(painting_, saturated);
        if (fits) PaintInAir(h, *t);
        if (settings.fog_lines) {
            PaintInFog(h, x, saturated, fits);
        } else if (fits) {
            const CanvasPoint extension = EnthalpyExtensionEnd(painting_, saturated);
            painting_.Line(saturated, extension, kGrey);
            PaintEnthalpyNumber(painting_, h, extension);
        }
    }

  private:
    void PaintInAir(int h, double saturated_t) const {
        const auto points = EnthalpyLine(painting_, air_, window_, h, saturated_t);
        for (std::size_t i = 1; i < points.size(); ++i) {
            painting_.Line(points[i - 1], points[i], kGrey);
        }
    }

    // The number stands where it does without the line, at the height of the line.
    void PaintInFog(int h, double saturated_x, CanvasPoint saturated, bool with_number) const {
        constexpr double kBefore = 6, kNumberWidth = 120;  // canvas units
        const double edge = painting_.on_printer && painting_.Mollier()
                                ? painting_.scale.StateAt({kPaperEnd * painting_.width, 0}).x
                                : window_.x_to;
        Gap number;
        if (with_number) {
            const double place = EnthalpyExtensionEnd(painting_, saturated).x;
            const double x = saturated_x + (place - saturated.x) / painting_.scale.MassstabX;
            const auto t = air_.Temperature(h, x);
            if (t) PaintEnthalpyNumber(painting_, h, {place, painting_.scale.Ym(*t)});
            number = {place - kBefore, place + kNumberWidth};
        }
        PaintDashes(painting_,
                    FogLine(painting_, air_, h, std::max(saturated_x, window_.x_from), edge),
                    number);
    }

    const ChartPainting& painting_;
    ExactAir air_;
    Window window_;
};

}  // namespace

void PaintExactEnthalpyLines(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::ExtensionLabel);
    const EnthalpyPainter painter(painting);
    for (const int h : EnthalpiesWithLine(painting.settings)) painter.Paint(h);
}

}  // namespace zandrell
