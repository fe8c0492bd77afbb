#pragma once

#include "kernel/state_solver.h"

namespace zandrell {

// Relative humidity in per cent at t (degC) and the solver's ChartDruckBar for the humidity
// x_target (g/kg), by bisection to 0.005 g/kg in at most 59 rounds. A target above saturation ends
// close to 100; one within the tolerance of 200 g/kg, where the search starts, gives 50.
double RelFeuchteAusX(StateSolver& solver, double t, double x_target);

// What TempAusEnthalpie holds constant.
enum class EnthalpySearch { DryAirEstimate = 1, RelativeHumidity = 2, HumidityRatio = 3 };

// Temperature in degC at which the enthalpy reaches h_target (kJ/kg). Halves `step` (K) in place
// before each move, so targets further than `step` from t_start are not reached; at most 39 moves,
// to 0.01 kJ/kg. x (g/kg) serves HumidityRatio, rel_percent the other two. The solver is left at
// the last state.
double TempAusEnthalpie(StateSolver& solver, double t_start, double h_target, EnthalpySearch kind,
                        double& step, int rel_percent, double x);

// What TempAusDichte holds constant: the dry edge of the chart (1 %) or the saturation line.
enum class DensitySearch { DryEdge = 1, Saturation = 2 };

// Temperature in degC at which the density reaches rho_target (kg/m3), about 16 K either side of
// t_start + 8; at most 30 moves, to 0.0001 kg/m3. The solver is left at the last state.
double TempAusDichte(StateSolver& solver, double t_start, double rho_target, DensitySearch kind);

}  // namespace zandrell
