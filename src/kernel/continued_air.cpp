#include "kernel/continued_air.h"

#include <algorithm>

#include "base/unit_factors.h"
#include "kernel/humid_air_state.h"
#include "kernel/real_air.h"
#include "kernel/real_air_wet_bulb.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

constexpr double kCriticalPoint = 373.9;    // degC, to which the saturation line reaches
constexpr double kHeatOfHotLiquid = 4.216;  // kJ/(kg K) at 100 degC (IAPWS-IF97)

double WithinPressures(double p_bar) {
    return std::clamp(p_bar, kRealAirLowestBar, kRealAirHighestBar);
}

// The ideal mixture with exactly this x.
std::optional<GasFigures> IdealGas(StateSolver& solver, double t, double x, double p_bar) {
    constexpr double kRatio = 1000 * kGasConstantAir / kGasConstantSteam;  // g/kg
    const WaterAirTables& tables = solver.Tables();
    const TemperaturePoint point = EvaluateTemperature(tables, EvaluatePressure(tables, p_bar), t);
    const double saturated =
        point.tabulated ? point.entry.saturated_density : point.saturated_density;
    const double vapour = p_bar * kPascalPerBar * x / (kRatio + x);
    const AirState state = EvaluateHumidity(
        tables, point, vapour / (kGasConstantSteam * (t + kKelvinOffset) * saturated));
    if (!AllFinite(state)) return std::nullopt;
    return GasFigures{state.ZustandH, 1 / DryAirInAir(state, t)};
}

}  // namespace

std::optional<GasFigures> ContinuedGas(StateSolver& solver, double t, double x, double p_bar) {
    if (!(x >= 0) || !WithinLimits(0, t, p_bar) || !solver.HasCoefficients()) return std::nullopt;
    if (const auto real = EvaluateRealGas(x, t, p_bar)) {
        return GasFigures{real->enthalpy, real->volume};
    }
    const double border_t = std::min(t, kRealAirHighest), border_x = std::min(x, kRealAirMostX);
    const double border_p = WithinPressures(p_bar);
    const auto real = EvaluateRealGas(border_x, border_t, border_p);
    const auto ideal = IdealGas(solver, border_t, border_x, border_p);
    const auto here = IdealGas(solver, t, x, p_bar);
    if (!real || !ideal || !here) return std::nullopt;
    return GasFigures{here->enthalpy + (real->enthalpy - ideal->enthalpy),
                      here->volume * (real->volume / ideal->volume)};
}

double ContinuedSaturation(double t, double p_bar) {
    const double border_t = std::min(t, kRealAirHighest);
    const double at_border = RealSaturatedVapour(border_t, WithinPressures(p_bar));
    if (t <= kRealAirHighest) return at_border;
    return at_border * RealSaturationPressure(std::min(t, kCriticalPoint)) /
           RealSaturationPressure(border_t);
}

double ContinuedCondensate(double t, double p_bar) {
    const double border_t = std::min(t, kRealAirHighest);
    return CondensedEnthalpy(border_t, p_bar) + kHeatOfHotLiquid * (t - border_t);
}

}  // namespace zandrell
