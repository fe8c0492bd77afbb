#include "projects/temperature_lines.h"

#include <cmath>

#include "chart/saturation.h"

namespace zandrell {
namespace {

constexpr double kLeftEnd = 35;  // canvas units, where dry air stands on the whole chart
constexpr int kColours[] = {9, 12};

}  // namespace

void DrawTemperatureLines(const TemperatureLines& lines, const ChartScale& scale,
                          StateSolver& solver, Canvas& canvas) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double t = lines[i].temperature;
        const auto saturated = SaturatedX(scale.convention, solver, t);
        if (!saturated) continue;
        const CanvasPoint from = scale.Turned({kLeftEnd, scale.Ym(t)});
        const CanvasPoint to = scale.PointOf(*saturated, t);
        if (!std::isfinite(to.x) || !std::isfinite(to.y)) continue;
        canvas.Line(from.x, from.y, to.x, to.y, kColours[i]);
        canvas.Text(to.x, to.y, lines[i].text);
    }
}

}  // namespace zandrell
