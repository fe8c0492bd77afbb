#pragma once

#include <optional>

#include "kernel/steam_terms.h"
#include "kernel/water_air_tables.h"

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

// What depends on the total pressure alone.
struct PressurePoint {
    double p_bar = 0;
    double boiling_temperature_k = 0;
};

// What depends on pressure and temperature: everything but the humidity.
struct TemperaturePoint {
    PressurePoint pressure;
    double T = 0;  // K
    double saturated_density =
        0;  // kg/m3, of steam at saturation, or at the total pressure above boiling
    double dry_air_enthalpy = 0;            // kJ/kg
    double vapour_enthalpy_polynomial = 0;  // kJ/kg, without the latent heat
    // Of steam at T; there only where saturated air has a vapour pressure of 611 Pa or more, since
    // drier air does not ask for it.
    std::optional<EnthalpyTerms> steam;
};

// Replaces what the state function does not take: a negative humidity becomes 0.01, one above 1
// becomes 1, a pressure of 0 becomes 1.01 bar.
void ClampArguments(double& relF, double& p_bar);

// Whether the state function has an answer (after the clamps). Not-a-number has none.
bool WithinLimits(double relF, double t, double p_bar);

// Whether every field is a number. One that is not counts as refused and reaches nobody.
bool AllFinite(const AirState& state);

// The state in three steps, for callers that keep pressure or temperature. Requires: arguments
// clamped and within the limits, tables loaded; who calls checks the result by AllFinite.
PressurePoint EvaluatePressure(const WaterAirTables& tables, double p_bar);
TemperaturePoint EvaluateTemperature(const WaterAirTables& tables, const PressurePoint& pressure,
                                     double t);
AirState EvaluateHumidity(const WaterAirTables& tables, const TemperaturePoint& point, double relF);

// The state of humid air at relative humidity relF (0..1), t in degC and p_bar: a pure function,
// empty outside the limits and for tables that are not loaded. Arguments are clamped as above.
std::optional<AirState> EvaluateState(const WaterAirTables& tables, double relF, double t,
                                      double p_bar);

}  // namespace zandrell
