#pragma once

#include <optional>

#include "kernel/state_solver.h"

// The state function asked by the humidity ratio, at the solver's ChartDruckBar: what balances per
// kg of dry air need, in which x is kept to the last digit. Temperatures in degC, x in g/kg, h in
// kJ per kg of dry air. Empty outside the limits of the state function. The solver is left at some
// state on the way.
namespace zandrell {

// Relative humidity as a fraction, above 1 in the fog: vapour of x has the partial pressure
// p x / (622 + x), and pressures of vapour are to each other as its densities.
std::optional<double> FractionFromX(StateSolver& solver, double t, double x);

// In the fog the enthalpy of saturated air and of the liquid that is too much: below 0 degC of
// supercooled water too, of which the saturation line of this model is.
std::optional<double> EnthalpyFromX(StateSolver& solver, double t, double x);

// The temperature at which air of x has the enthalpy h, by bracketing from -50 to 200 degC; in
// whole millionths of a millikelvin, so that a figure cut after its hundredths keeps the last.
std::optional<double> TemperatureFromEnthalpy(StateSolver& solver, double h, double x);

// The x up to saturation at which air of t has the enthalpy h, by bracketing; empty where h lies
// beyond dry or saturated air.
std::optional<double> XFromEnthalpy(StateSolver& solver, double t, double h);

// Dry air in 1 m3 at t and x, up to saturation, kg.
double DryAirFromX(double p_bar, double t, double x);

}  // namespace zandrell
