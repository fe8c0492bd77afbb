#include "kernel/real_air_wet_bulb.h"

#include <algorithm>
#include <cmath>

#include "kernel/air_state.h"
#include "kernel/real_air_fits.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kTriplePoint = 273.16;  // K
constexpr double kIceUpTo = 0.01;        // degC
constexpr double kCloseEnough = 1e-11;   // kJ/kg

double PolynomialAt(const auto& coefficients, double t) {
    const double w = kTriplePoint / (t + kKelvinOffset) - 1;
    double value = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) value = value * w + coefficients[i];
    return value;
}

// kJ/kg that water gains by being pressed together from saturation to p_bar.
double Pressed(double volume_cm3_per_mol, double t, double p_bar) {
    constexpr double kMolarMass = 18.015268;  // g/mol
    return volume_cm3_per_mol * 1e-6 * (1e5 * p_bar - RealSaturationPressure(t)) / kMolarMass;
}

double LiquidEnthalpy(double t, double p_bar) {
    return PolynomialAt(real_air::kLiquidEnthalpy, t) +
           Pressed(PolynomialAt(real_air::kLiquidVolume, t), t, p_bar);
}

double IceEnthalpy(double t, double p_bar) {
    return PolynomialAt(real_air::kIceEnthalpy, t) +
           Pressed(PolynomialAt(real_air::kIceVolume, t), t, p_bar);
}

double Excess(const RealAirState& saturated, double water_h, double x, double enthalpy) {
    return enthalpy - saturated.enthalpy + (saturated.x - x) / 1000 * water_h;
}

// The highest temperature up to `t` with saturated air that the model knows.
double HighestSaturated(double t, double p_bar) {
    if (EvaluateRealAir(1, t, p_bar)) return t;
    constexpr double kMostVapour = 0.9;  // of the pressure
    return std::min(t, RealDewPoint(kMostVapour * 1e5 * p_bar, p_bar).value_or(kRealAirLowest));
}

// From a guess by steps, where only one of the two bulbs can be; else empty.
std::optional<double> NearWetBulb(double t, double x, double enthalpy, double p_bar) {
    constexpr double kAway = 2;       // K off 0 degC, where both bulbs may be solutions
    constexpr double kClose = 1e-6;   // K, of a step; what is left is a thousandth of it
    constexpr double kRatio = 621.9;  // g/kg
    constexpr double kHeat = 1.006;   // kJ/(kg K)
    constexpr double kLatent = 2.5;   // kJ/g
    // Two steps with the equation of Magnus and constant heats bring it within some tenths.
    double bulb = std::min(t, 60.0) - 5;
    double slope = 1;
    for (int i = 0; i < 4; ++i) {
        const bool ice = bulb < 0;
        const double a = ice ? 22.46 : 17.62, b = ice ? 272.62 : 243.12;
        const double vapour = 0.006112 * std::exp(a * bulb / (b + bulb));
        if (!(vapour < 0.8 * p_bar)) return std::nullopt;
        const double x_s = kRatio * vapour / (p_bar - vapour);
        const double rise = x_s * p_bar / (p_bar - vapour) * a * b / ((b + bulb) * (b + bulb));
        slope = kHeat + kLatent * rise;
        bulb += (kHeat * (t - bulb) + kLatent * (x - x_s)) / slope;
    }
    if (!(std::abs(bulb) > 2 * kAway)) return std::nullopt;
    const bool ice = bulb < 0;
    return RootBySlope(bulb, -slope, ice ? kRealAirLowest : kAway, ice ? -kAway : kRealAirHighest,
                       kClose, [&](double at) {
                           const auto saturated = EvaluateSaturatedAir(at, p_bar);
                           return saturated ? Excess(saturated->air, saturated->condensed_enthalpy,
                                                     x, enthalpy)
                                            : 1e9;
                       });
}

}  // namespace

double CondensedEnthalpy(double t, double p_bar) {
    return t <= kIceUpTo ? IceEnthalpy(t, p_bar) : LiquidEnthalpy(t, p_bar);
}

std::optional<double> AboveWetBulb(double t_wet, double x, double enthalpy, double p_bar) {
    const auto saturated = EvaluateSaturatedAir(t_wet, p_bar);
    if (!saturated) return std::nullopt;
    return Excess(saturated->air, saturated->condensed_enthalpy, x, enthalpy);
}

std::optional<WetBulb> RealWetBulb(double t, double x, double enthalpy, double p_bar) {
    if (!EvaluateRealAir(0, t, p_bar)) return std::nullopt;
    const auto above = [&](auto water, double bulb) {
        const auto saturated = EvaluateRealAir(1, bulb, p_bar);
        return saturated ? Excess(*saturated, water(bulb, p_bar), x, enthalpy) : 0.0;
    };
    const auto iced = [&](double bulb) { return above(IceEnthalpy, bulb); };
    const auto liquid = [&](double bulb) { return above(LiquidEnthalpy, bulb); };
    if (const auto near = NearWetBulb(t, x, enthalpy, p_bar)) return WetBulb{*near, {}};
    const double highest = HighestSaturated(t, p_bar);
    const double most_iced = std::min(highest, kIceUpTo);
    constexpr double kRounding = 1e-9;  // kJ/kg; saturated air is its own wet bulb
    std::optional<WetBulb> found;
    if (iced(kRealAirLowest) >= 0 && iced(most_iced) <= kRounding) {
        found = WetBulb{RootOfFalling(kRealAirLowest, most_iced, kCloseEnough, iced), {}};
    }
    if (highest > kIceUpTo && liquid(kIceUpTo) >= -kRounding && liquid(highest) <= kRounding) {
        const double wet = RootOfFalling(kIceUpTo, highest, kCloseEnough, liquid);
        if (found) {
            found->liquid = wet;
        } else {
            found = WetBulb{wet, {}};
        }
    }
    return found;
}

}  // namespace zandrell
