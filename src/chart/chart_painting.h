#pragma once

#include <string_view>
#include <vector>

#include "canvas/canvas.h"
#include "chart/chart_scale.h"
#include "chart/chart_settings.h"
#include "chart/curve_cache.h"
#include "forms/control.h"

namespace zandrell {

class StateSolver;

// One painting of the chart: what every part of it needs.
struct ChartPainting {
    Canvas& canvas;
    StateSolver& solver;
    CurveCache& cache;
    const ChartSettings& settings;
    const ChartScale& scale;
    GridSteps steps;
    double width = 2000, height = 580;  // logical extent of the canvas
    bool on_printer = false;
    bool cache_is_good = false;
    Label* progress = nullptr;  // shows which humidity curve is being painted
    std::string_view progress_word = {};
    // Where the axis of t stands, in units of the Mollier chart: lines end there.
    double left_edge = kNoEdge;

    // Where enthalpy and density lines are cut, in units of the Mollier chart's y.
    double top_edge = 0;
    double level_end = 1800;  // canvas units, right end of the Carrier chart's lines of x

    static constexpr double kNoEdge = -1e300;
    bool Mollier() const { return scale.DiagrammArt == kMollier; }
    // Both ends are points of the Mollier chart, turned for the chart in force.
    void Line(CanvasPoint from, CanvasPoint to, int colour) const;
};

// Whole numbers from `first` to `last`, both to the nearest, that a state can have, by a fixed
// step. Limits that are no numbers, or that hold nothing, give an empty range.
struct WholeRange {
    int first = 0, last = -1;
};
WholeRange WholeDegrees(double first, double last, int step);

// The scales (chart_grid.cpp).
void PaintComfortField(const ChartPainting& painting);
void PaintIsotherms(const ChartPainting& painting);
void PaintHumidityGrid(const ChartPainting& painting);

// One line of a grid with its number; the titles of the axes.
void PaintIsotherm(const ChartPainting& painting, double t, double y);
void PaintHumidityLine(const ChartPainting& painting, double x, double line_x);
void PaintTemperatureTitle(const ChartPainting& painting);
void PaintHumidityTitles(const ChartPainting& painting);

// The densities that have a line: kFirstDensity - i * kDensityStep, in kg/m3.
inline constexpr double kFirstDensity = 1.35, kDensityStep = 0.05;
inline constexpr int kDensityLines = 9;

// The enthalpies of the settings that have a line, whole kJ/kg.
std::vector<int> EnthalpiesWithLine(const ChartSettings& settings);
// The piece from saturation into the fog, where its number has room; canvas units of the Mollier
// chart.
CanvasPoint EnthalpyExtensionEnd(const ChartPainting& painting, CanvasPoint saturated);
void PaintEnthalpyNumber(const ChartPainting& painting, int h, CanvasPoint extension_end);

// The curves (chart_curves.cpp).
void PaintHumidityCurves(const ChartPainting& painting);
void PaintEnthalpyLines(const ChartPainting& painting);
void PaintDensityLines(const ChartPainting& painting);

}  // namespace zandrell
