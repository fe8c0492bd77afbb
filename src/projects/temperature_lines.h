#pragma once

#include "canvas/canvas.h"
#include "chart/chart_scale.h"
#include "projects/hand_over.h"

namespace zandrell {

class StateSolver;

// Draws the two isotherms that a sibling module wants to see on the finished chart: from the edge
// of the chart to the saturation curve, where the text of the line stands. A temperature that has
// no saturation is left out.
void DrawTemperatureLines(const TemperatureLines& lines, const ChartScale& scale,
                          StateSolver& solver, Canvas& canvas);

}  // namespace zandrell
