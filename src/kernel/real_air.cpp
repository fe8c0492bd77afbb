#include "kernel/real_air.h"

#include <algorithm>
#include <cmath>

#include "base/unit_factors.h"
#include "kernel/frost_point.h"
#include "kernel/real_air_fits.h"
#include "kernel/real_air_polynomial.h"
#include "kernel/real_air_table.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kMolarMassAir = 28.966, kMolarMassWater = 18.015268;  // g/mol
// The report takes one gas constant for the mixture and a newer one for the enhancement factor.
constexpr double kGasConstant = 8.314472, kGasConstantOfFactor = 8.314371;  // J/(mol K)
constexpr double kCubicMetrePerCm3 = 1e-6;

// ln(1 - z) for the share of air that water dissolves, some 1E-05.
double LogOfOneLess(double z) { return -z * (1 + 0.5 * z); }

// exp for the small logarithms of enhancement factors, to 1E-10; in pairs, whose terms do not wait
// for each other.
double ExpOfSmall(double l) {
    const double square = l * l;
    return (1 + l) + square * ((0.5 + l * (1. / 6)) + square * (1. / 24));
}

// A pressure in Pa and its reciprocal: what follows the saturation pressure need not wait for a
// division then.
struct Pressure {
    explicit Pressure(double p) : value(p), reciprocal(1 / p) {}
    double value, reciprocal;
};

double Enhancement(const RealAirTable::Saturation& s, double T, const Pressure& total) {
    const double p = total.value;
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
    const double share = s.pressure * total.reciprocal;
    const double about = log_factor(share);
    const double psi = std::min(share + share * (about + 0.5 * about * about), 1.0);
    return std::max(ExpOfSmall(log_factor(psi)), 1.0);
}

// Pa, of vapour at saturation under p.
double SaturatedVapourAt(double t, const Pressure& p) {
    const auto& table = RealAirTable::Get();
    if (t >= kRealAirLowest) {
        const double within = std::min(t, RealAirTable::kHighest);
        const RealAirTable::Saturation saturation = table.SaturationAt(within);
        return Enhancement(saturation, within + kKelvinOffset, p) * saturation.pressure;
    }
    // Below the fits' range the factor goes on as it came.
    constexpr double kReach = 5;  // K
    const auto at = [&](double low) {
        return Enhancement(table.SaturationAt(low), low + kKelvinOffset, p);
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
    // mol/cm3, where it is n = p / (R T) for an ideal gas: the root of r (1 + B r + C r^2) = n. A
    // step of Newton from four terms of its series leaves the ninth power of B n.
    double Density(double n) const {
        const double b = B * n, c = C * n * n, square = b * b;
        const double r = n * ((1 - b) + (2 * square - c) + 5 * b * (c - square));
        const double y = r * (2 * B + 3 * C * r);  // of the slope 1 + y
        return r - (r * (1 + r * (B + C * r)) - n) * ((1 - y) + y * y);
    }
    double B = 0, C = 0, of_enthalpy_B = 0, of_enthalpy_C = 0;
};

// A mole of the gas with the mole fraction psi of water, and what of the state takes more than a
// product or a quotient.
struct MolarGas {
    MolarGas(const RealAirTable::Gas& gas, double T, double p, double psi)
        : air((1 - psi) * kMolarMassAir), water(psi * kMolarMassWater), per_air(1 / air) {
        const Mixture mixture(gas, psi);
        r = mixture.Density(p * (kCubicMetrePerCm3 / (kGasConstant * T)));
        const double residual = r * (mixture.of_enthalpy_B + r * mixture.of_enthalpy_C);
        x = 1000 * water * per_air;
        enthalpy = gas.air_enthalpy +
                   (water * gas.vapour_enthalpy + kGasConstant * T * residual) * per_air;
    }
    double air, water, per_air;  // g in a mole of both
    double r, x, enthalpy;       // mol/cm3, g/kg, kJ/kg
};

RealAirState StateOf(const RealAirTable::Gas& gas, double T, double p, double psi) {
    const MolarGas mole(gas, T, p, psi);
    RealAirState state;
    state.x = mole.x;
    state.volume = mole.per_air / (1000 * mole.r);
    state.density = 1000 * (mole.air + mole.water) * mole.r;
    state.enthalpy = mole.enthalpy;
    state.vapour_pressure = psi * p;
    return state;
}

constexpr double kCloseEnough = 1e-11;  // of a logarithm of pressures

// ln(one / other), soon where they are near: twice the inverse hyperbolic tangent as a series.
double LogOfRatio(double one, double other) {
    const double y = (one - other) / (one + other), square = y * y;
    if (square > 1e-5) return std::log(one / other);
    return 2 * y * ((1 + square * (1. / 3)) + square * square * (1. / 5));
}

// The dew point on one side of the triple point, from that of pure water.
std::optional<double> NearDewPoint(double vapour_pressure, double p_bar) {
    constexpr double kClose = 1e-9, kClosePressure = 1e-12;  // K, and relative
    constexpr double kAboutTriple = 0.05, kReach = 0.1;      // K
    const double log_pressure = std::log(vapour_pressure) -
                                RealAirTable::Get().LogOfTriplePressure() -
                                RealAirTable::kUsualEnhancement * p_bar;
    const auto start = RealAirTable::Get().SaturationTemperatureAt(log_pressure);
    if (!start) return std::nullopt;
    const Pressure p(p_bar * kPascalPerBar);
    if (std::abs(*start - kIceUpTo) < kAboutTriple) {
        return FrostOrDewPoint(kIceUpTo - kReach, kIceUpTo + kReach, kClosePressure, [&](double t) {
            return std::log(vapour_pressure / SaturatedVapourAt(t, p));
        });
    }
    // The equation of Magnus (coefficients of Sonntag, Z. Meteorol. 40, 1990) by its slope.
    const bool ice = *start <= kIceUpTo;
    const double a = ice ? 22.46 : 17.62, b = ice ? 272.62 : 243.12, per_t = 1 / (b + *start);
    const double low = ice ? kRealAirLowest : kLiquidFrom;
    const double high = ice ? kIceUpTo : RealAirTable::kHighest;
    return RootByCourse(*start, {-a * b * per_t * per_t, -per_t}, low, high, kClose, [&](double t) {
        return LogOfRatio(vapour_pressure, SaturatedVapourAt(t, p));
    });
}

// IAPWS-IF97, table 34.
constexpr double kSaturationLine[] = {0.11670521452767e4,  -0.72421316703206e6, -0.17073846940092e2,
                                      0.12020824702470e5,  -0.32325550322333e7, 0.14915108613530e2,
                                      -0.48232657361591e4, 0.40511340542057e6,  -0.23855557567849,
                                      0.65017534844798e3};

}  // namespace

double RealSaturationPressure(double t) {
    if (t <= kIceUpTo)
        return RealAirTable::kTriplePressure *
               std::exp(FitAt(real_air::kSublimation, FitVariable(t)));
    const auto& n = kSaturationLine;
    const double T = t + kKelvinOffset, theta = T + n[8] / (T - n[9]);
    const double A = (theta + n[0]) * theta + n[1];
    const double B = (n[2] * theta + n[3]) * theta + n[4];
    const double C = (n[5] * theta + n[6]) * theta + n[7];
    const double root = 2 * C / (-B + std::sqrt(B * B - 4 * A * C));
    return 1e6 * root * root * root * root;
}

std::optional<double> RealBoilingTemperature(double p_bar) {
    constexpr double kTripleBar = 0.00611657, kCriticalBar = 220.64;
    if (!(p_bar >= kTripleBar && p_bar <= kCriticalBar)) return std::nullopt;
    const auto& n = kSaturationLine;
    const double square = std::sqrt(p_bar / 10), beta = std::sqrt(square);  // of MPa
    const double E = square + n[2] * beta + n[5];
    const double F = n[0] * square + n[3] * beta + n[6];
    const double G = n[1] * square + n[4] * beta + n[7];
    const double D = n[9] + 2 * G / (-F - std::sqrt(F * F - 4 * E * G));
    const double T = (D - std::sqrt(D * D - 4 * (n[8] + n[9] * (D - n[9])))) / 2;
    return T - kKelvinOffset;
}

double RealSaturatedVapour(double t, double p_bar) {
    return SaturatedVapourAt(t, Pressure(p_bar * kPascalPerBar));
}

std::optional<RealAirState> EvaluateRealAir(double relF, double t, double p_bar) {
    if (!(relF >= 0 && relF <= 1) || !RealAirKnows(t, p_bar)) return std::nullopt;
    const auto& table = RealAirTable::Get();
    const Pressure p(p_bar * kPascalPerBar);
    const RealAirTable::Saturation saturation = table.SaturationAt(t);
    const double factor = Enhancement(saturation, t + kKelvinOffset, p);
    const double psi = relF * factor * (saturation.pressure * p.reciprocal);
    if (!(psi <= kRealAirMostWater)) return std::nullopt;
    RealAirState state = StateOf(table.GasAt(t), t + kKelvinOffset, p.value, psi);
    state.enhancement = factor;
    return state;
}

std::optional<SaturatedRealAir> EvaluateSaturatedAir(double t, double p_bar) {
    if (!RealAirKnows(t, p_bar)) return std::nullopt;
    const auto& table = RealAirTable::Get();
    const Pressure p(p_bar * kPascalPerBar);
    const RealAirTable::Saturation saturation = table.SaturationAt(t);
    const double psi =
        Enhancement(saturation, t + kKelvinOffset, p) * (saturation.pressure * p.reciprocal);
    if (!(psi <= kRealAirMostWater)) return std::nullopt;
    const MolarGas mole(table.GasAt(t), t + kKelvinOffset, p.value, psi);
    // What water gains by being pressed together from saturation to p.
    constexpr double kPerMolarMass = kCubicMetrePerCm3 / kMolarMassWater;
    const double pressed =
        saturation.condensed_volume * kPerMolarMass * (p.value - saturation.pressure);
    return SaturatedRealAir{mole.x, mole.enthalpy, saturation.condensed_enthalpy + pressed};
}

std::optional<RealAirState> EvaluateRealGas(double x, double t, double p_bar) {
    if (!(x >= 0 && x <= kRealAirMostX) || !RealAirKnows(t, p_bar)) return std::nullopt;
    RealAirState state = StateOf(RealAirTable::Get().GasAt(t), t + kKelvinOffset,
                                 p_bar * kPascalPerBar, x / (kRealAirRatio + x));
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
    if (!RealAirKnowsPressure(p_bar)) return std::nullopt;
    constexpr double kLowest = -100;    // degC
    constexpr double kMostLower = 1.2;  // K, by the factor, which stays below 1.02
    const Pressure p(p_bar * kPascalPerBar);
    const auto pure = [](double t) { return RealSaturationPressure(t); };
    const auto humid = [p](double t) { return SaturatedVapourAt(t, p); };
    static const double lowest = pure(kLowest), highest = pure(kRealAirHighest + kMostLower);
    if (!(vapour_pressure >= lowest && vapour_pressure <= highest)) return std::nullopt;
    // How far the vapour's pressure lies above saturation, as a logarithm, which is nearly straight
    // in the variable of the fits.
    const auto excess = [vapour_pressure](const auto& saturation) {
        return [&](double w) {
            return std::log(vapour_pressure / saturation(kTriplePoint / (1 + w) - kKelvinOffset));
        };
    };
    const auto temperature = [](double w) { return kTriplePoint / (1 + w) - kKelvinOffset; };
    if (const auto near = NearDewPoint(vapour_pressure, p_bar)) {
        return *near > kRealAirHighest ? std::nullopt : near;
    }
    // First without the factor, which costs most, then with it in what is left.
    constexpr double kRounding = 1e-6;  // K
    const double start = temperature(RootOfFalling(
        FitVariable(kLowest - kRounding), FitVariable(kRealAirHighest + kMostLower + kRounding),
        kCloseEnough, excess(pure)));
    const double found =
        temperature(RootOfFalling(FitVariable(start - kMostLower), FitVariable(start + kRounding),
                                  kCloseEnough, excess(humid)));
    if (found > kRealAirHighest) return std::nullopt;
    return found;
}

}  // namespace zandrell
