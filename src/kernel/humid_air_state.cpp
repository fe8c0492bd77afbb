#include "kernel/humid_air_state.h"

#include <cmath>

#include "kernel/steam.h"

namespace zandrell {
namespace {

constexpr double kPascalPerBar = 100000;
constexpr double kDefaultPressureBar = 1.01;
constexpr double kReplacementHumidity = 0.01;
constexpr double kLatentHeat = 2501.6;              // kJ/kg at 0 degC
constexpr double kIdealVapourBelow = 611;           // Pa, about the triple point
constexpr double kDensityFactor = 1.124;            // fitted to the density of humid air
constexpr double kMolarMassRatio = 18.015 / 28.96;  // water to air

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

PressurePoint EvaluatePressure(const WaterAirTables& tables, double p_bar) {
    return {p_bar, SiedeTemperatur(tables, p_bar)};
}

TemperaturePoint EvaluateTemperature(const WaterAirTables& tables, const PressurePoint& pressure,
                                     double t) {
    TemperaturePoint point;
    point.pressure = pressure;
    point.T = t + kKelvinOffset;
    const SteamPowers at = MakeSteamPowers(tables, point.T);
    point.saturated_density = SaturatedDensity(tables, pressure, at, point.T);
    const double celsius = point.T - kKelvinOffset;
    point.dry_air_enthalpy = IntegrateSpecificHeat(tables.CpLuft, celsius);
    point.vapour_enthalpy_polynomial = IntegrateSpecificHeat(tables.CpDampf, celsius);
    if (!(kGasConstantSteam * point.T * point.saturated_density < kIdealVapourBelow)) {
        point.steam = MakeEnthalpyTerms(tables, at);
    }
    return point;
}

AirState EvaluateHumidity(const WaterAirTables& tables, const TemperaturePoint& point,
                          double relF) {
    AirState state;
    const double T = point.T;
    const double total = point.pressure.p_bar * kPascalPerBar;
    const double vapour_density = relF * point.saturated_density;
    // The pressure that EquationOfStatePressure finds for this density is not carried into the
    // state: the ideal-gas vapour pressure stands, and so that pass is not run here.
    state.ZustandPDampf = kGasConstantSteam * T * vapour_density;
    state.ZustandPLuft = total - state.ZustandPDampf;
    const double air_density = state.ZustandPLuft / (kGasConstantAir * T);
    double x = vapour_density / air_density;
    if (!std::isfinite(x)) x = 0;
    state.ZustandDichteTrocken = total / (kGasConstantAir * T);
    state.ZustandHLuft = point.dry_air_enthalpy;
    const double vapour_enthalpy =
        state.ZustandPDampf < kIdealVapourBelow || !point.steam
            ? point.vapour_enthalpy_polynomial + kLatentHeat
            : EnthalpyAt(tables, *point.steam, state.ZustandPDampf / tables.RefDruck);
    state.ZustandX = 1000 * x;
    state.ZustandH = point.dry_air_enthalpy + x * vapour_enthalpy;
    state.ZustandDichte = state.ZustandDichteTrocken -
                          x * kDensityFactor * state.ZustandDichteTrocken * (1 - kMolarMassRatio);
    state.SiedeTempK = point.pressure.boiling_temperature_k;
    return state;
}

std::optional<AirState> EvaluateState(const WaterAirTables& tables, double relF, double t,
                                      double p_bar) {
    ClampArguments(relF, p_bar);
    if (!tables.Loaded() || !WithinLimits(relF, t, p_bar)) return std::nullopt;
    const TemperaturePoint point = EvaluateTemperature(tables, EvaluatePressure(tables, p_bar), t);
    const AirState state = EvaluateHumidity(tables, point, relF);
    if (!AllFinite(state)) return std::nullopt;
    return state;
}

}  // namespace zandrell
