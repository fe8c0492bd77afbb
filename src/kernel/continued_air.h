#pragma once

#include <optional>

#include "kernel/state_solver.h"

// Real air within the limits of its model (real_air.h), and beyond them the suite's ideal mixture,
// joined to it: what lies outside takes the mixture's figures and what real air has more, or is
// greater by, at the nearest state on the border. So no figure jumps there. t in degC, within the
// limits of the state function.
namespace zandrell {

// A gas with x g of vapour for each kg of dry air, up to about saturation.
struct GasFigures {
    double enthalpy = 0;  // kJ per kg of dry air
    double volume = 0;    // m3 per kg of dry air
};

// Empty outside the limits of the state function, for a negative x and without coefficients.
std::optional<GasFigures> ContinuedGas(StateSolver& solver, double t, double x, double p_bar);

// The pressure in Pa of vapour that saturates air. Above boiling it exceeds the total pressure;
// from the critical point of water on it stays.
double ContinuedSaturation(double t, double p_bar);

// Enthalpy of ice up to 0.01 degC, of liquid water above, kJ/kg. Above 100 degC by the specific
// heat that water has there.
double ContinuedCondensate(double t, double p_bar);

}  // namespace zandrell
