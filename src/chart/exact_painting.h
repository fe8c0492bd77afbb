#pragma once

#include "chart/chart_painting.h"

namespace zandrell {

// The chart as an engineer reads it off (exact_grid.cpp, exact_curves.cpp): round numbers at lines
// that refine with the zoom, and curves that lie where the read-out has what their labels say.

// The part of the chart that the canvas shows, within the ranges of the settings.
struct VisibleRanges {
    double x_from = 0, x_to = 0;  // g/kg
    double t_from = 0, t_to = 0;  // degC
};
VisibleRanges VisibleOn(const ChartPainting& painting);

// The greatest step of 1, 2 or 5 times a power of ten that gives at least `parts` parts.
// Requires: span above 0, parts 1 or more.
double RoundStep(double span, int parts);

void PaintExactIsotherms(const ChartPainting& painting);
// With the scale of the vapour pressure on the Mollier chart.
void PaintExactHumidityGrid(const ChartPainting& painting);

void PaintExactHumidityCurves(const ChartPainting& painting);
void PaintExactEnthalpyLines(const ChartPainting& painting);
void PaintExactDensityLines(const ChartPainting& painting);

}  // namespace zandrell
