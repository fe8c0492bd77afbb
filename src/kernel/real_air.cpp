#include "kernel/real_air.h"

#include <algorithm>
#include <cmath>

#include "kernel/real_air_fits.h"
#include "kernel/real_air_table.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kTriplePoint = 273.16, kOffset = 273.15;              // K
constexpr double kIceUpTo = 0.01;                                      // degC
constexpr double kMolarMassAir = 28.966, kMolarMassWater = 18.015268;  // g/mol
// The report takes one gas constant for the mixture and a newer one for the enhancement factor.
constexpr double kGasConstant = 8.314472, kGasConstantOfFactor = 8.314371;  // J/(mol K)
constexpr double kPascalPerBar = 100000;
constexpr double kCubicMetrePerCm3 = 1e-6;

double VariableAt(double t) { return kTriplePoint / (t + kOffset) - 1; }

template <typename Coefficients>
double ValueAt(const Coefficients& coefficients, double w) {
    double value = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) value = value * w + coefficients[i];
    return value;
}

// ln(1 - z) for the share of air that water dissolves, some 1E-05.
double LogOfOneLess(double z) { return -z * (1 + z / 2); }

// exp for the small logarithms of enhancement factors, to 1E-10.
double ExpOfSmall(double l) { return 1 + l * (1 + l / 2 * (1 + l / 3 * (1 + l / 4))); }

double Enhancement(const RealAirTable::Saturation& s, double T, double p) {
    if (s.pressure > p) return 1;  // above boiling there is no condensed phase
    const double per_pascal = kCubicMetrePerCm3 / (kGasConstantOfFactor * T);
    const double n = p * per_pascal, n_s = s.pressure * per_pascal, square = n * n;
    const double alone = (n - n_s) * s.volume + (square - n_s * n_s) * s.square;
    const double dissolved = s.henry * p * 1e-9;  // Pa to GPa
    const double first = n * s.first + square * s.second, second = square * s.third,
                 third = square * s.fourth;
    const auto log_factor = [&](double psi) {
        const double b = 1 - psi;
        return alone + LogOfOneLess(dissolved * b) + b * b * (first + b * (second + b * third));
    };
    // psi depends on f itself; the second time leaves 2E-06.
    const double share = s.pressure / p;
    const double psi = std::min(ExpOfSmall(log_factor(share)) * share, 1.0);
    return std::max(ExpOfSmall(log_factor(psi)), 1.0);
}

double SaturatedVapour(const RealAirTable::Saturation& s, double T, double p) {
    return Enhancement(s, T, p) * s.pressure;
}

// Pa, of vapour at saturation under p (Pa).
double SaturatedVapourAt(double t, double p) {
    const auto& table = RealAirTable::Get();
    if (t >= kRealAirLowest) {
        const double within = std::min(t, RealAirTable::kHighest);
        return SaturatedVapour(table.SaturationAt(within), within + kOffset, p);
    }
    // Below the fits' range the factor goes on as it came.
    constexpr double kReach = 5;  // K
    const auto at = [&](double low) {
        return Enhancement(table.SaturationAt(low), low + kOffset, p);
    };
    const double lowest = at(kRealAirLowest);
    const double rise = (lowest - at(kRealAirLowest + kReach)) / kReach;
    return (lowest + rise * (kRealAirLowest - t)) * RealSaturationPressure(t);
}

// The gas by mole fractions psi of water and a of air.
struct Mixture {
    Mixture(const RealAirTable::Gas& g, double psi) {
        const double a = 1 - psi, aa = a * a, aw = a * psi, ww = psi * psi;
        B = aa * g.baa + 2 * aw * g.baw + ww * g.bww;
        C = a * (aa * g.caaa + 3 * aw * g.caaw + 3 * ww * g.caww) + psi * ww * g.cwww;
        of_enthalpy_B = aa * g.raa + 2 * aw * g.raw + ww * g.rww;
        of_enthalpy_C = a * (aa * g.raaa + 3 * aw * g.raaw + 3 * ww * g.raww) + psi * ww * g.rwww;
    }
    // mol/cm3, where it is n = p / (R T) for an ideal gas: the root of r (1 + B r + C r^2) = n. Two
    // steps by the slope at the start leave the eighth power of B n.
    double Density(double n) const {
        const double bn = B * n;
        double r = n * (1 - bn + (2 * bn * bn - C * n * n));
        const double per_slope = 1 / (1 + r * (2 * B + 3 * C * r));
        for (int round = 0; round < 2; ++round) r -= (r * (1 + r * (B + C * r)) - n) * per_slope;
        return r;
    }
    double B = 0, C = 0, of_enthalpy_B = 0, of_enthalpy_C = 0;
};

RealAirState StateOf(const RealAirTable::Gas& gas, double T, double p, double psi) {
    const double a = 1 - psi;
    const Mixture mixture(gas, psi);
    const double r = mixture.Density(p * kCubicMetrePerCm3 / (kGasConstant * T));
    const double residual = r * (mixture.of_enthalpy_B + r * mixture.of_enthalpy_C);
    const double air = a * kMolarMassAir, water = psi * kMolarMassWater;  // g in a mole of both
    const double per_air = 1 / air;
    RealAirState state;
    state.x = 1000 * water * per_air;
    state.volume = per_air / (1000 * r);
    state.density = 1000 * (air + water) * r;
    state.enthalpy =
        gas.air_enthalpy + (water * gas.vapour_enthalpy + kGasConstant * T * residual) * per_air;
    state.vapour_pressure = psi * p;
    return state;
}

std::optional<RealAirState> AtHumidity(const RealAirTable::Saturation& saturation, double relF,
                                       double t, double p) {
    const double T = t + kOffset, factor = Enhancement(saturation, T, p);
    const double psi = relF * factor * saturation.pressure / p;
    if (!(psi <= kRealAirMostWater)) return std::nullopt;
    RealAirState state = StateOf(RealAirTable::Get().GasAt(t), T, p, psi);
    state.enhancement = factor;
    return state;
}

constexpr double kCloseEnough = 1e-11;  // of a logarithm of pressures

bool TemperatureWithinLimits(double t) { return t >= kRealAirLowest && t <= kRealAirHighest; }

bool PressureWithinLimits(double p_bar) {
    return p_bar >= kRealAirLowestBar && p_bar <= kRealAirHighestBar;
}

// The dew point from the equation of Magnus (coefficients of Sonntag, Z. Meteorol. 40, 1990), which
// is off by some tenths of a kelvin, on one side of the triple point.
template <typename Saturation>
std::optional<double> NearDewPoint(double vapour_pressure, const Saturation& saturation) {
    constexpr double kPressure = 611.2;  // Pa
    constexpr double kAway = 0.5;        // K, off which the branches are not mixed up
    constexpr double kClose = 1e-6;      // K, of a step; what is left is a thousandth of it
    const double l = std::log(vapour_pressure / kPressure);
    const bool ice = l < 0;
    const double a = ice ? 22.46 : 17.62, b = ice ? 272.62 : 243.12;
    const double start = b * l / (a - l);
    if (std::abs(start) < 2 * kAway) return std::nullopt;
    const double slope = a * b / ((b + start) * (b + start));
    return RootBySlope(start, -slope, ice ? -100 : kAway, ice ? -kAway : RealAirTable::kHighest,
                       kClose, [&](double t) { return std::log(vapour_pressure / saturation(t)); });
}

}  // namespace

double RealSaturationPressure(double t) {
    constexpr double kTriplePressure = 611.657;  // Pa
    if (t <= kIceUpTo)
        return kTriplePressure * std::exp(ValueAt(real_air::kSublimation, VariableAt(t)));
    constexpr double n[] = {0.11670521452767e4,  -0.72421316703206e6, -0.17073846940092e2,
                            0.12020824702470e5,  -0.32325550322333e7, 0.14915108613530e2,
                            -0.48232657361591e4, 0.40511340542057e6,  -0.23855557567849,
                            0.65017534844798e3};
    const double T = t + kOffset, theta = T + n[8] / (T - n[9]);
    const double A = (theta + n[0]) * theta + n[1];
    const double B = (n[2] * theta + n[3]) * theta + n[4];
    const double C = (n[5] * theta + n[6]) * theta + n[7];
    const double root = 2 * C / (-B + std::sqrt(B * B - 4 * A * C));
    return 1e6 * root * root * root * root;
}

double RealSaturatedVapour(double t, double p_bar) {
    return SaturatedVapourAt(t, p_bar * kPascalPerBar);
}

std::optional<RealAirState> EvaluateRealAir(double relF, double t, double p_bar) {
    if (!(relF >= 0 && relF <= 1) || !TemperatureWithinLimits(t) || !PressureWithinLimits(p_bar)) {
        return std::nullopt;
    }
    const auto& table = RealAirTable::Get();
    return AtHumidity(table.SaturationAt(t), relF, t, p_bar * kPascalPerBar);
}

std::optional<SaturatedRealAir> EvaluateSaturatedAir(double t, double p_bar) {
    if (!TemperatureWithinLimits(t) || !PressureWithinLimits(p_bar)) return std::nullopt;
    const double p = p_bar * kPascalPerBar;
    const RealAirTable::Saturation saturation = RealAirTable::Get().SaturationAt(t);
    const auto air = AtHumidity(saturation, 1, t, p);
    if (!air) return std::nullopt;
    // What water gains by being pressed together from saturation to p.
    const double pressed = saturation.condensed_volume * kCubicMetrePerCm3 *
                           (p - saturation.pressure) / kMolarMassWater;
    return SaturatedRealAir{*air, saturation.condensed_enthalpy + pressed};
}

std::optional<RealAirState> EvaluateRealGas(double x, double t, double p_bar) {
    if (!(x >= 0 && x <= kRealAirMostX && t >= kRealAirLowest && t <= kRealAirHighest) ||
        !PressureWithinLimits(p_bar)) {
        return std::nullopt;
    }
    RealAirState state = StateOf(RealAirTable::Get().GasAt(t), t + kOffset, p_bar * kPascalPerBar,
                                 x / (kRealAirRatio + x));
    state.x = x;
    return state;
}

void EvaluateRealAirs(std::span<const double> relF, std::span<const double> t,
                      std::span<const double> p_bar,
                      std::span<std::optional<RealAirState>> states) {
    const bool one_pressure = p_bar.size() == 1;
    for (std::size_t i = 0; i < states.size(); ++i) {
        states[i] = EvaluateRealAir(relF[i], t[i], p_bar[one_pressure ? 0 : i]);
    }
}

std::optional<double> RealDewPoint(double vapour_pressure, double p_bar) {
    if (!PressureWithinLimits(p_bar)) return std::nullopt;
    constexpr double kLowest = -100;    // degC
    constexpr double kMostLower = 1.2;  // K, by the factor, which stays below 1.02
    const double p = p_bar * kPascalPerBar;
    const auto pure = [](double t) { return RealSaturationPressure(t); };
    const auto humid = [p](double t) { return SaturatedVapourAt(t, p); };
    const double lowest = pure(kLowest), highest = pure(kRealAirHighest + kMostLower);
    if (!(vapour_pressure >= lowest && vapour_pressure <= highest)) return std::nullopt;
    // How far the vapour's pressure lies above saturation, as a logarithm, which is nearly straight
    // in the variable of the fits.
    const auto excess = [vapour_pressure](const auto& saturation) {
        return [&](double w) {
            return std::log(vapour_pressure / saturation(kTriplePoint / (1 + w) - kOffset));
        };
    };
    const auto temperature = [](double w) { return kTriplePoint / (1 + w) - kOffset; };
    if (const auto near = NearDewPoint(vapour_pressure, humid)) {
        return *near > kRealAirHighest ? std::nullopt : near;
    }
    // First without the factor, which costs most, then with it in what is left.
    constexpr double kRounding = 1e-6;  // K
    const double start = temperature(RootOfFalling(
        VariableAt(kLowest - kRounding), VariableAt(kRealAirHighest + kMostLower + kRounding),
        kCloseEnough, excess(pure)));
    const double found =
        temperature(RootOfFalling(VariableAt(start - kMostLower), VariableAt(start + kRounding),
                                  kCloseEnough, excess(humid)));
    if (found > kRealAirHighest) return std::nullopt;
    return found;
}

}  // namespace zandrell
