#pragma once

#include <cmath>

#include "base/unit_factors.h"
#include "kernel/humid_air_state.h"
#include "kernel/water_air_tables.h"

// The state function in pieces that the compiler joins: the kernel's own sources ask for as much of
// a state as they need. For all others there is humid_air_state.h.
namespace zandrell {

inline constexpr double kIdealVapourBelow = 611;           // Pa, about the triple point
inline constexpr double kDensityFactor = 1.124;            // fitted to the density of humid air
inline constexpr double kMolarMassRatio = 18.015 / 28.96;  // water to air

// What a mixture is made of, but for the enthalpy of its vapour.
struct MixedAir {
    double total_pressure = 0, vapour_pressure = 0, air_pressure = 0;  // Pa
    double gas_term = 0;                                               // of dry air, R T in J/kg
    double vapour_density = 0;                                         // kg/m3
    double x = 0;                                                      // kg/kg
};

inline MixedAir MixAt(double p_bar, double T, double saturated_density, double relF) {
    MixedAir air;
    air.total_pressure = p_bar * kPascalPerBar;
    air.gas_term = kGasConstantAir * T;
    air.vapour_density = relF * saturated_density;
    // The pressure that EquationOfStatePressure finds for this density is not carried into the
    // state: the ideal-gas vapour pressure stands, and so that pass is not run here.
    air.vapour_pressure = kGasConstantSteam * T * air.vapour_density;
    air.air_pressure = air.total_pressure - air.vapour_pressure;
    air.x = air.vapour_density * air.gas_term / air.air_pressure;
    if (!std::isfinite(air.x)) air.x = 0;
    return air;
}

inline double DensityOf(const MixedAir& air) {
    const double dry = air.total_pressure / air.gas_term;
    return dry - air.x * kDensityFactor * dry * (1 - kMolarMassRatio);
}

inline AirState StateOf(const MixedAir& air, const PressurePoint& pressure, double dry_air_enthalpy,
                        double vapour_enthalpy) {
    AirState state;
    state.ZustandPDampf = air.vapour_pressure;
    state.ZustandPLuft = air.air_pressure;
    state.ZustandDichteTrocken = air.total_pressure / air.gas_term;
    state.ZustandHLuft = dry_air_enthalpy;
    state.ZustandX = 1000 * air.x;
    state.ZustandH = dry_air_enthalpy + air.x * vapour_enthalpy;
    state.ZustandDichte = state.ZustandDichteTrocken - air.x * kDensityFactor *
                                                           state.ZustandDichteTrocken *
                                                           (1 - kMolarMassRatio);
    state.SiedeTempK = pressure.boiling_temperature_k;
    return state;
}

// Requires: a point made by TemperatureByFormulas.
AirState StateByFormulas(const WaterAirTables& tables, const TemperaturePoint& point, double relF);
// The same from pressure and T (K); out of line, to leave the way by the table short.
[[gnu::noinline]] AirState StateByFormulas(const WaterAirTables& tables,
                                           const PressurePoint& pressure, double T, double relF);

// Where the digits that the table lacks would show: close to the change of the vapour's enthalpy,
// and where little but vapour is left, so that humidity and density hang on small differences.
inline bool TableIsTooCoarse(const MixedAir& air) {
    constexpr double kNear = 1e-6;  // Pa
    constexpr double kLeastShareOfAir = 0.25;
    return std::abs(air.vapour_pressure - kIdealVapourBelow) < kNear ||
           !(air.air_pressure > kLeastShareOfAir * air.total_pressure);
}

inline double DryAirEnthalpy(const StateTable::Entry& entry, double T) {
    return entry.mean_heat_of_air * (T - kKelvinOffset);
}

inline double VapourEnthalpy(const StateTable::Entry& entry, const MixedAir& air, double relF) {
    double steam = 0;
    for (std::size_t k = entry.steam.size(); k-- > 0;) steam = steam * relF + entry.steam[k];
    const double vapour = entry.vapour_enthalpy + kLatentHeat;
    return air.vapour_pressure < kIdealVapourBelow ? vapour : steam;
}

inline AirState TabulatedState(const WaterAirTables& tables, const PressurePoint& pressure,
                               const StateTable::Entry& entry, double T, double relF) {
    const MixedAir air = MixAt(pressure.p_bar, T, entry.saturated_density, relF);
    if (TableIsTooCoarse(air)) [[unlikely]] {
        return StateByFormulas(tables, pressure, T, relF);
    }
    return StateOf(air, pressure, DryAirEnthalpy(entry, T), VapourEnthalpy(entry, air, relF));
}

inline bool Tabulated(const WaterAirTables& tables, const PressurePoint& pressure, double t) {
    return tables.states && tables.states->Covers(t) &&
           t + kKelvinOffset <= pressure.boiling_temperature_k;
}

inline AirState StateAt(const WaterAirTables& tables, const PressurePoint& pressure, double relF,
                        double t) {
    const double T = t + kKelvinOffset;
    if (Tabulated(tables, pressure, t)) {
        return TabulatedState(tables, pressure, tables.states->At(t), T, relF);
    }
    return StateByFormulas(tables, pressure, T, relF);
}

}  // namespace zandrell
