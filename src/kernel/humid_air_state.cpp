#include "kernel/humid_air_state.h"

#include <cmath>

#include "kernel/state_arithmetic.h"
#include "kernel/steam.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

constexpr double kDefaultPressureBar = 1.01;
constexpr double kReplacementHumidity = 0.01;

constexpr std::array<double, 9> kIntegrationWeights{1,       1.0 / 2, 1.0 / 3, 1.0 / 4, 1.0 / 5,
                                                    1.0 / 6, 1.0 / 7, 1.0 / 8, 1.0 / 9};

// The integral of a specific heat from 0 to t in degC, kJ/kg.
double IntegrateSpecificHeat(const std::array<double, 9>& cp, double t) {
    double sum = 0;
    for (std::size_t i = cp.size(); i-- > 0;) sum = (sum + cp[i] * kIntegrationWeights[i]) * t;
    return sum;
}

double SaturatedDensity(const WaterAirTables& tables, const PressurePoint& pressure,
                        const SteamPowers& at, double T) {
    // Above boiling there is no saturation; humidity then refers to steam at the total pressure.
    const double reference_bar = T > pressure.boiling_temperature_k
                                     ? pressure.p_bar
                                     : SaettigungsDruck(tables, at.theta, kPressureInBar);
    const double beta = reference_bar * kPascalPerBar / tables.RefDruck;
    return 1 / VolumeAt(tables, MakeVolumeTerms(tables, at), beta);
}

inline PressurePoint PressureAt(const WaterAirTables& tables, double p_bar) {
    const bool tabulated = tables.states && tables.states->CoversPressure(p_bar);
    return {p_bar,
            tabulated ? tables.states->BoilingTemperature(p_bar) : SiedeTemperatur(tables, p_bar)};
}

}  // namespace

void ClampArguments(double& relF, double& p_bar) {
    if (p_bar == 0) p_bar = kDefaultPressureBar;
    if (relF < 0) {
        relF = kReplacementHumidity;  // not 0, which is a humidity of its own
    } else if (relF > 1) {
        relF = 1;
    }
}

bool WithinLimits(double relF, double t, double p_bar) {
    return p_bar >= kLowestPressureBar && p_bar <= kHighestPressureBar && t >= kLowestTemperature &&
           t <= kHighestTemperature && relF >= 0 && relF <= 1;
}

bool AllFinite(const AirState& state) {
    // A sum is finite only if every summand is.
    return std::isfinite(state.ZustandX + state.ZustandH + state.ZustandHLuft + state.ZustandPLuft +
                         state.ZustandPDampf + state.ZustandDichte + state.ZustandDichteTrocken +
                         state.SiedeTempK);
}

double DryAirInAir(const AirState& state, double t) {
    return state.ZustandPLuft / (kGasConstantAir * (t + kKelvinOffset));
}

PressurePoint EvaluatePressure(const WaterAirTables& tables, double p_bar) {
    return PressureAt(tables, p_bar);
}

double DryAirEnthalpy(const WaterAirTables& tables, double T) {
    return IntegrateSpecificHeat(tables.CpLuft, T - kKelvinOffset);
}

TemperaturePoint TemperatureByFormulas(const WaterAirTables& tables, const PressurePoint& pressure,
                                       double T) {
    TemperaturePoint point;
    point.pressure = pressure;
    point.T = T;
    const SteamPowers at = MakeSteamPowers(tables, T);
    point.saturated_density = SaturatedDensity(tables, pressure, at, T);
    point.dry_air_enthalpy = DryAirEnthalpy(tables, T);
    point.vapour_enthalpy_polynomial = IntegrateSpecificHeat(tables.CpDampf, T - kKelvinOffset);
    if (!(kGasConstantSteam * T * point.saturated_density < kIdealVapourBelow)) {
        point.steam = MakeEnthalpyTerms(tables, at);
    }
    return point;
}

TemperaturePoint EvaluateTemperature(const WaterAirTables& tables, const PressurePoint& pressure,
                                     double t) {
    const double T = t + kKelvinOffset;
    if (!Tabulated(tables, pressure, t)) return TemperatureByFormulas(tables, pressure, T);
    TemperaturePoint point;
    point.pressure = pressure;
    point.T = T;
    point.entry = tables.states->At(t);
    point.tabulated = true;
    return point;
}

AirState EvaluateHumidity(const WaterAirTables& tables, const TemperaturePoint& point,
                          double relF) {
    return point.tabulated ? TabulatedState(tables, point.pressure, point.entry, point.T, relF)
                           : StateByFormulas(tables, point, relF);
}

AirState StateByFormulas(const WaterAirTables& tables, const TemperaturePoint& point, double relF) {
    const MixedAir air = MixAt(point.pressure.p_bar, point.T, point.saturated_density, relF);
    const double vapour_enthalpy =
        air.vapour_pressure < kIdealVapourBelow || !point.steam
            ? point.vapour_enthalpy_polynomial + kLatentHeat
            : EnthalpyAt(tables, *point.steam, air.vapour_pressure / tables.RefDruck);
    return StateOf(air, point.pressure, point.dry_air_enthalpy, vapour_enthalpy);
}

AirState StateByFormulas(const WaterAirTables& tables, const PressurePoint& pressure, double T,
                         double relF) {
    return StateByFormulas(tables, TemperatureByFormulas(tables, pressure, T), relF);
}

AirState EvaluateAt(const WaterAirTables& tables, const PressurePoint& pressure, double relF,
                    double t) {
    return StateAt(tables, pressure, relF, t);
}

std::optional<AirState> EvaluateState(const WaterAirTables& tables, double relF, double t,
                                      double p_bar) {
    ClampArguments(relF, p_bar);
    if (!tables.Loaded() || !WithinLimits(relF, t, p_bar)) return std::nullopt;
    const AirState state = StateAt(tables, PressureAt(tables, p_bar), relF, t);
    if (!AllFinite(state)) return std::nullopt;
    return state;
}

void EvaluateStates(const WaterAirTables& tables, std::span<const double> relF,
                    std::span<const double> t, std::span<const double> p_bar,
                    std::span<std::optional<AirState>> states) {
    PressurePoint pressure;
    const bool loaded = tables.Loaded(), one_pressure = p_bar.size() == 1;
    for (std::size_t i = 0; i < states.size(); ++i) {
        double humidity = relF[i], bar = p_bar[one_pressure ? 0 : i];
        ClampArguments(humidity, bar);
        states[i].reset();
        if (!loaded || !WithinLimits(humidity, t[i], bar)) continue;
        if (bar != pressure.p_bar) pressure = PressureAt(tables, bar);
        const AirState state = StateAt(tables, pressure, humidity, t[i]);
        if (AllFinite(state)) states[i] = state;
    }
}

}  // namespace zandrell
