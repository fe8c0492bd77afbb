#pragma once

#include "kernel/state_solver.h"

namespace zandrell {

// How a search ended.
enum class SearchEnd {
    Found,       // at the target, within the tolerance
    OutOfReach,  // the rounds ran out; the value is the nearest that the halving came to
    NoState      // a state on the way was refused, so that the value means nothing
};

struct SearchResult {
    double value = 0;  // always finite
    SearchEnd end = SearchEnd::Found;
    bool Found() const { return end == SearchEnd::Found; }
};

// Each search leaves the solver at its last state that was not refused.

// Relative humidity in per cent at t (degC) and the solver's ChartDruckBar for the humidity
// x_target (g/kg), by bisection to 0.005 g/kg in at most 59 rounds. A target above saturation ends
// close to 100, out of reach; one within the tolerance of 200 g/kg, where the search starts, gives
// 50.
SearchResult RelFeuchteAusX(StateSolver& solver, double t, double x_target);

// What TempAusEnthalpie holds constant.
enum class EnthalpySearch { DryAirEstimate = 1, RelativeHumidity = 2, HumidityRatio = 3 };

// Temperature in degC at which the enthalpy reaches h_target (kJ/kg). Halves `step` (K) in place
// before each move, so targets further than `step` from t_start are out of reach; at most 39 moves,
// to 0.01 kJ/kg. x (g/kg) serves HumidityRatio, rel_percent the other two. DryAirEstimate is one
// proportional step without a test of where it leads.
SearchResult TempAusEnthalpie(StateSolver& solver, double t_start, double h_target,
                              EnthalpySearch kind, double& step, int rel_percent, double x);

// What TempAusDichte holds constant: the dry edge of the chart (1 %) or the saturation line.
enum class DensitySearch { DryEdge = 1, Saturation = 2 };

// Temperature in degC at which the density reaches rho_target (kg/m3), about 16 K either side of
// t_start + 8; at most 30 moves, to 0.0001 kg/m3.
SearchResult TempAusDichte(StateSolver& solver, double t_start, double rho_target,
                           DensitySearch kind);

}  // namespace zandrell
