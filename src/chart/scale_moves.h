#pragma once

#include "chart/chart_scale.h"

namespace zandrell {

// How the wheel and a dragging hand change what is seen of the chart. Under the suite's convention
// the origin is kept in whole units, so many small moves are best made from one scale: each is off
// by half a unit, not all of them together.

// The chart `factor` times as large; the state under `place`, a point of the canvas, stays there.
ChartScale Magnified(ChartScale scale, CanvasPoint place, double factor);

// The chart moved on the canvas, so that what lay at `from` lies at `to`.
ChartScale Shifted(ChartScale scale, CanvasPoint from, CanvasPoint to);

// How many times larger than the whole chart this is, in the direction that shows less.
double Magnification(const ChartScale& scale, const ChartSettings& settings);

// Whether the middle of the canvas shows a part of the range: else the chart is lost to the eye.
bool ShowsTheRange(const ChartScale& scale, const ChartSettings& settings);

}  // namespace zandrell
