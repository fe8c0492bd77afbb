#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "base/unit_factors.h"
#include "canvas/label_placer.h"
#include "canvas/palette.h"
#include "chart/exact_painting.h"
#include "kernel/exact_air.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr int kCurveParts = 96;  // pieces of a humidity curve, on every zoom
constexpr int kDensityParts = 10;
constexpr double kDensityTolerance = 0.0005;  // kg/m3
constexpr double kDensityReach = 80;          // K from dry air of a density to saturated air

using Polyline = std::vector<CanvasPoint>;  // on the chart in force

bool IsOnCanvas(const ChartPainting& painting, CanvasPoint point) {
    return point.x >= -10 && point.x <= painting.width && point.y >= 0 &&
           point.y <= painting.height;
}

// The points of one humidity within the picture, in the Mollier chart's units; a state that does
// not exist parts them.
std::vector<std::optional<CanvasPoint>> CurveOf(const ChartPainting& painting, double humidity) {
    const VisibleRanges visible = VisibleOn(painting);
    // Above its range the Mollier chart has room up to the top.
    const double top = painting.Mollier() ? painting.scale.StateAt({0, 0}).t : visible.t_to;
    const double step = (top - visible.t_from) / kCurveParts;
    std::vector<std::optional<CanvasPoint>> points;
    if (!(step > 0)) return points;
    const ExactAir air(painting.solver);
    points.reserve(kCurveParts + 1);
    for (int i = 0; i <= kCurveParts; ++i) {
        const double t = visible.t_from + i * step;
        const auto x = air.XFromHumidity(humidity, t);
        points.push_back(x ? std::optional(CanvasPoint{painting.scale.Xm(*x), painting.scale.Ym(t)})
                           : std::nullopt);
    }
    return points;
}

// Where the way from a point inside to one outside leaves the canvas.
CanvasPoint AtEdge(const ChartPainting& painting, CanvasPoint inside, CanvasPoint outside) {
    double share = 1;
    const auto reach = [&](double from, double to, double edge, bool passed) {
        if (passed) share = std::min(share, (edge - from) / (to - from));
    };
    reach(inside.y, outside.y, 0, outside.y < 0);
    reach(inside.x, outside.x, painting.width, outside.x > painting.width);
    return {inside.x + share * (outside.x - inside.x), inside.y + share * (outside.y - inside.y)};
}

// At the end of the curve, where it leaves the picture: below the upper edge or right of it. On the
// Mollier chart it comes to the upper edge from the right below, so the text stands to its left.
void LabelCurve(const ChartPainting& painting, CanvasPoint end, int percent) {
    constexpr double kAside = 6, kHalfText = 5, kBelowEdge = 2, kNearTop = 1;
    const std::string text = NumberText(percent) + "%";
    if (painting.Mollier() && end.y <= kNearTop) {
        painting.canvas.Text(end.x - 40 + 0.2 * percent, kBelowEdge, text);
    } else {
        painting.canvas.Text(end.x + kAside, std::max(end.y - kHalfText, kBelowEdge), text);
    }
}

void PaintCurve(const ChartPainting& painting, int percent) {
    const auto points = CurveOf(painting, percent / 100.0);
    const int colour = percent == 100 ? kDarkRed : kLightBlue;
    if (painting.on_printer) painting.canvas.SetLineWidth(percent == 100 ? 6 : 2);
    std::optional<CanvasPoint> end;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (!points[i - 1] || !points[i]) continue;
        painting.Line(*points[i - 1], *points[i], colour);
        const CanvasPoint before = painting.scale.Turned(*points[i - 1]);
        const CanvasPoint here = painting.scale.Turned(*points[i]);
        if (!IsOnCanvas(painting, before)) continue;
        end = IsOnCanvas(painting, here) ? here : AtEdge(painting, before, here);
    }
    painting.canvas.SetLineWidth(1);
    if (end && painting.scale.Unturned(*end).x >= painting.left_edge) {
        LabelCurve(painting, *end, percent);
    }
}

// The state of this humidity that has the density; empty when there is none.
std::optional<ExactAirState> StateOfDensity(const ExactAir& air, double density, double humidity,
                                            double low, double high) {
    constexpr double kCloseEnough = 1e-6;  // kg/m3
    // Air that would boil has no state: it counts as too thin.
    const auto excess = [&](double t) {
        const auto state = air.FromHumidity(humidity, t);
        return state ? state->density - density : -1;
    };
    if (!(excess(low) >= 0 && excess(high) <= 0)) return std::nullopt;
    const auto found = air.FromHumidity(humidity, RootOfFalling(low, high, kCloseEnough, excess));
    if (!found || std::abs(found->density - density) > kDensityTolerance) return std::nullopt;
    return found;
}

// From dry to saturated air, in the Mollier chart's units.
Polyline DensityLine(const ChartPainting& painting, double density) {
    constexpr double kSlack = 2;  // K that dry air may lie off the gas law
    const ExactAir air(painting.solver);
    const double dry =
        air.PressureBar() * kPascalPerBar / (kGasConstantAir * density) - kKelvinOffset;
    Polyline line;
    double high = dry + kSlack;
    for (int i = 0; i <= kDensityParts; ++i) {
        const double low = std::max(kLowestTemperature, high - kDensityReach);
        const auto state = StateOfDensity(air, density, static_cast<double>(i) / kDensityParts, low,
                                          std::min(high, kHighestTemperature));
        if (!state) break;
        line.push_back({painting.scale.Xm(state->x), painting.scale.Ym(state->t)});
        // Moist air is lighter, so it has this density when it is colder.
        high = state->t + kSlack;
    }
    return line;
}

void LabelDensityLine(const ChartPainting& painting, CanvasPoint end, double density) {
    const std::string text = NumberText(density) + " kg/m³";
    if (painting.Mollier()) {
        painting.canvas.Text(end.x, end.y, text);
    } else {
        painting.canvas.Text(end.x - 120, end.y - 10, text);
    }
}

// The Carrier chart ends with its range; the Mollier chart has room above it.
void EndWithTheRange(const ChartPainting& painting, Polyline& line) {
    if (painting.Mollier()) return;
    const double end = painting.scale.Ym(painting.settings.ChartTMax);
    // From dry to saturated air it gets colder, so what is too warm comes first.
    const auto inside = std::find_if(line.begin(), line.end(),
                                     [end](const CanvasPoint& point) { return point.y >= end; });
    if (inside == line.begin() || inside == line.end()) {
        if (inside == line.end()) line.clear();
        return;
    }
    CanvasPoint& last = *std::prev(inside);
    const double share = (end - inside->y) / (last.y - inside->y);
    last = {inside->x + share * (last.x - inside->x), end};
    line.erase(line.begin(), std::prev(inside));
}

void PaintDensityLine(const ChartPainting& painting, double density) {
    Polyline line = DensityLine(painting, density);
    EndWithTheRange(painting, line);
    const LabelBox canvas{-10, 0, painting.width, painting.height};
    std::optional<CanvasPoint> end;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const CanvasPoint from = painting.scale.Turned(line[i - 1]);
        const CanvasPoint to = painting.scale.Turned(line[i]);
        if (!ClearLine{from.x, from.y, to.x, to.y}.Crosses(canvas)) continue;
        painting.Line(line[i - 1], line[i], kGrey);
        end = IsOnCanvas(painting, to) ? to : from;
    }
    const bool has_label =
        end && IsOnCanvas(painting, *end) && painting.scale.Unturned(*end).x >= painting.left_edge;
    if (has_label) LabelDensityLine(painting, *end, density);
}

}  // namespace

void PaintExactHumidityCurves(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::CurveLabel);
    for (int percent = 10; percent <= 100; percent += 10) {
        if (painting.progress != nullptr) {
            painting.progress->text =
                std::string(painting.progress_word) + " " + TrimmedNumberText(percent) + "%";
        }
        PaintCurve(painting, percent);
    }
}

void PaintExactDensityLines(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::CurveLabel);
    for (int i = 0; i < kDensityLines; ++i) {
        PaintDensityLine(painting, kFirstDensity - kDensityStep * i);
    }
}

}  // namespace zandrell
