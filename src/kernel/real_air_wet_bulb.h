#pragma once

#include <optional>

#include "kernel/real_air.h"

namespace zandrell {

// Enthalpy in kJ/kg of the water that wets a bulb at t in degC and p_bar: of ice up to 0.01 degC
// (Clapeyron's equation and the sublimation pressure of IAPWS R14-08), of liquid water above
// (IAPWS-IF97).
double CondensedEnthalpy(double t, double p_bar);

// The thermodynamic wet bulb in degC: air that takes up water of that temperature until it is
// saturated has it too. Up to 0.01 degC the bulb is iced.
struct WetBulb {
    double t = 0;
    // Within about 1 K of 0 degC a wet bulb can be a solution besides the iced one, and the
    // thermometer shows whichever it is.
    std::optional<double> liquid;
};

// Of a state at t (degC) and p_bar with this x (g/kg) and enthalpy (kJ/kg). Empty where it lies
// below -60 degC or the limits are passed.
std::optional<WetBulb> RealWetBulb(double t, double x, double enthalpy, double p_bar);

// By how much air of this x and enthalpy holds more than air whose wet bulb is t_wet, kJ/kg: 0 says
// that it is one. Rises with the temperature of air that keeps its humidity. Empty outside the
// limits.
std::optional<double> AboveWetBulb(double t_wet, double x, double enthalpy, double p_bar);

}  // namespace zandrell
