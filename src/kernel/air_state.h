#pragma once

namespace zandrell {

inline constexpr double kKelvinOffset = 273.15;
// Specific gas constants, J/(kg K), rounded as the suite's other modules round them.
inline constexpr double kGasConstantSteam = 461.5, kGasConstantAir = 287.04;

// Limits of the state function, all inclusive.
inline constexpr double kLowestPressureBar = 0, kHighestPressureBar = 8.5;
inline constexpr double kLowestTemperature = -50, kHighestTemperature = 800;  // degC

// The state of humid air, per kg of dry air where not said otherwise.
struct AirState {
    double ZustandX = 0;              // humidity ratio, g/kg
    double ZustandH = 0;              // enthalpy, kJ/kg
    double ZustandHLuft = 0;          // enthalpy of the dry-air share alone, kJ/kg
    double ZustandPLuft = 0;          // partial pressure of the dry air, Pa
    double ZustandPDampf = 0;         // partial pressure of the vapour, Pa
    double ZustandDichte = 0;         // density of the humid air, kg/m3
    double ZustandDichteTrocken = 0;  // density of dry air at the total pressure, kg/m3
    double SiedeTempK = 0;            // boiling temperature of water at the total pressure, K
};

// The dry air in 1 m3 of the humid air at its partial pressure, kg; t in degC. ZustandDichte, an
// empirical form, lies up to 1 % off what both gases weigh at 50 degC.
double DryAirInAir(const AirState& state, double t);

// Replaces what the state function does not take: a negative humidity becomes 0.01, one above 1
// becomes 1, a pressure of 0 becomes 1.01 bar.
void ClampArguments(double& relF, double& p_bar);

// Whether the state function has an answer (after the clamps). Not-a-number has none.
bool WithinLimits(double relF, double t, double p_bar);

// Whether every field is a number. One that is not counts as refused and reaches nobody.
bool AllFinite(const AirState& state);

}  // namespace zandrell
