#pragma once

#include <optional>
#include <span>

#include "kernel/air_state.h"
#include "kernel/state_table.h"
#include "kernel/steam_terms.h"

namespace zandrell {

inline constexpr double kLatentHeat = 2501.6;  // kJ/kg at 0 degC

// What depends on the total pressure alone.
struct PressurePoint {
    double p_bar = 0;
    double boiling_temperature_k = 0;
};

// What depends on pressure and temperature: everything but the humidity.
struct TemperaturePoint {
    PressurePoint pressure;
    double T = 0;            // K
    bool tabulated = false;  // whether `entry` has the figures, or else what follows it
    StateTable::Entry entry;
    double saturated_density =
        0;  // kg/m3, of steam at saturation, or at the total pressure above boiling
    double dry_air_enthalpy = 0;            // kJ/kg
    double vapour_enthalpy_polynomial = 0;  // kJ/kg, without the latent heat
    // Of steam at T; there only where saturated air has a vapour pressure of 611 Pa or more, since
    // drier air does not ask for it.
    std::optional<EnthalpyTerms> steam;
};

// The state in three steps, for callers that keep pressure or temperature. Requires: arguments
// clamped and within the limits, tables loaded; who calls checks the result by AllFinite.
PressurePoint EvaluatePressure(const WaterAirTables& tables, double p_bar);
TemperaturePoint EvaluateTemperature(const WaterAirTables& tables, const PressurePoint& pressure,
                                     double t);
AirState EvaluateHumidity(const WaterAirTables& tables, const TemperaturePoint& point, double relF);

// The last two steps in one, for a pressure that is kept.
AirState EvaluateAt(const WaterAirTables& tables, const PressurePoint& pressure, double relF,
                    double t);

// Enthalpy of dry air at T (K) in kJ/kg: the integral of its specific heat from 0 degC.
double DryAirEnthalpy(const WaterAirTables& tables, double T);

// The second step by the formulas themselves, T in K: what the tables are made from, and what
// serves where they do not.
TemperaturePoint TemperatureByFormulas(const WaterAirTables& tables, const PressurePoint& pressure,
                                       double T);

// The state of humid air at relative humidity relF (0..1), t in degC and p_bar: a pure function,
// empty outside the limits and for tables that are not loaded. Arguments are clamped as above.
std::optional<AirState> EvaluateState(const WaterAirTables& tables, double relF, double t,
                                      double p_bar);

// The same for arrays: state i from relF[i], t[i] and p_bar[i], or p_bar[0] for all. Requires: as
// many states and temperatures as humidities, as many pressures or one.
void EvaluateStates(const WaterAirTables& tables, std::span<const double> relF,
                    std::span<const double> t, std::span<const double> p_bar,
                    std::span<std::optional<AirState>> states);

}  // namespace zandrell
