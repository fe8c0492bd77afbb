#pragma once

#include <optional>

#include "chart/chart_settings.h"

namespace zandrell {

class StateSolver;

// Humidity ratio in g/kg of saturated air at t (degC) and the solver's ChartDruckBar, as the
// convention counts it: the line at which its air ends on the chart. Empty outside the limits, and
// under Exact above boiling.
std::optional<double> SaturatedX(Convention convention, StateSolver& solver, double t);

}  // namespace zandrell
