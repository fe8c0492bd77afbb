#include "kernel/exact_air.h"

#include <algorithm>
#include <cmath>

#include "base/unit_factors.h"
#include "kernel/continued_air.h"
#include "kernel/frost_point.h"
#include "kernel/real_air.h"
#include "kernel/real_air_wet_bulb.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kGramsPerKg = 1000;
constexpr double kCloseEnough = 1e-10;  // kJ/kg

double InGrains(double t) {
    constexpr double kGrains = 1e9;  // a kelvin
    return std::round(t * kGrains) / kGrains;
}

enum class Phase { Air, Water, Ice };  // beside the gas
Phase PhaseOf(const ExactAirState& state) {
    return !state.IsFog() ? Phase::Air : state.t <= kIceUpTo ? Phase::Ice : Phase::Water;
}

constexpr double kHeatOfAir = 1.006, kHeatOfVapour = 0.00186;  // kJ/(kg K), kJ/(g K)
constexpr double kLatent = 2.501;                              // kJ/g at 0 degC

double TemperatureOfIdealGas(double h, double x) {
    return (h - kLatent * x) / (kHeatOfAir + kHeatOfVapour * x);
}

// About by how much h rises with t at constant x, kJ/(kg K): in the fog it is mostly what
// condenses, by the equation of Clausius and Clapeyron.
double SlopeOf(const ExactAirState& state) {
    constexpr double kHeatOfIce = 0.0021, kHeatOfLiquid = 0.0042;  // kJ/(g K)
    constexpr double kGasConstant = 0.0004615;                     // of steam, kJ/(g K)
    const double condensed = state.liquid + state.ice, vapour = state.x - condensed;
    const double heat = kHeatOfAir + kHeatOfVapour * vapour;
    if (!state.IsFog()) return heat;
    const bool ice = PhaseOf(state) == Phase::Ice;
    const double T = state.t + kKelvinOffset, latent = ice ? 2.835 : kLatent - 0.0024 * state.t;
    const double rise = vapour * (1 + vapour / kRealAirRatio) * latent / (kGasConstant * T * T);
    return heat + condensed * (ice ? kHeatOfIce : kHeatOfLiquid) + latent * rise;
}

double StoppedWhereIceMelts(double from, double to) {
    if (from < kIceUpTo && to > kIceUpTo) return kIceUpTo;
    if (from > kLiquidFrom && to < kLiquidFrom) return kLiquidFrom;
    if (from == kIceUpTo && to > from) return kLiquidFrom;
    if (from == kLiquidFrom && to < from) return kIceUpTo;
    return to;
}

}  // namespace

ExactAir::ExactAir(StateSolver& solver) : solver_(solver), p_bar_(solver.ChartDruckBar) {
    double relF = 0;
    ClampArguments(relF, p_bar_);
}

bool ExactAir::Answers(double t) const {
    return WithinLimits(0, t, p_bar_) && p_bar_ > 0 && solver_.HasCoefficients();
}

double ExactAir::VapourPressureOf(double x) const {
    return p_bar_ * kPascalPerBar * x / (kRealAirRatio + x);
}

double ExactAir::XOf(double vapour_pressure) const {
    return kRealAirRatio * vapour_pressure / (p_bar_ * kPascalPerBar - vapour_pressure);
}

// `fraction` is the pressure of all x as vapour over the saturation pressure.
std::optional<ExactAirState> ExactAir::StateAt(double t, double x, double saturation,
                                               double fraction) const {
    ExactAirState state;
    state.t = t;
    state.x = x;
    state.fraction = fraction;
    state.vapour_pressure = std::min(fraction, 1.0) * saturation;
    const double vapour_x = fraction > 1 ? XOf(saturation) : x;
    const auto gas = ContinuedGas(solver_, t, vapour_x, p_bar_);
    if (!gas) return std::nullopt;
    state.enthalpy = gas->enthalpy;
    state.volume = gas->volume;
    state.density = (1 + x / kGramsPerKg) / gas->volume;
    if (fraction > 1) {
        (t <= kIceUpTo ? state.ice : state.liquid) = x - vapour_x;
        state.enthalpy += (x - vapour_x) / kGramsPerKg * ContinuedCondensate(t, p_bar_);
    }
    return state;
}

std::optional<ExactAirState> ExactAir::FromHumidity(double relF, double t) const {
    if (!(relF >= 0 && relF <= 1) || !Answers(t)) return std::nullopt;
    const double saturation = ContinuedSaturation(t, p_bar_);
    if (!(relF * saturation < p_bar_ * kPascalPerBar)) return std::nullopt;
    return StateAt(t, XOf(relF * saturation), saturation, relF);
}

std::optional<ExactAirState> ExactAir::FromX(double t, double x) const {
    if (!(x >= 0) || !std::isfinite(x) || !Answers(t)) return std::nullopt;
    constexpr double kRounding = 1e-12;  // x of saturated air is no fog
    const double saturation = ContinuedSaturation(t, p_bar_);
    const double fraction = VapourPressureOf(x) / saturation;
    return StateAt(t, x, saturation, std::abs(fraction - 1) < kRounding ? 1 : fraction);
}

std::optional<double> ExactAir::Enthalpy(double t, double x) const {
    const auto state = FromX(t, x);
    if (!state) return std::nullopt;
    return state->enthalpy;
}

std::optional<double> ExactAir::Fraction(double t, double x) const {
    if (!(x >= 0) || !Answers(t)) return std::nullopt;
    return VapourPressureOf(x) / ContinuedSaturation(t, p_bar_);
}

std::optional<double> ExactAir::XFromHumidity(double relF, double t) const {
    if (!(relF >= 0 && relF <= 1) || !Answers(t)) return std::nullopt;
    const double vapour = relF * ContinuedSaturation(t, p_bar_);
    if (!(vapour < p_bar_ * kPascalPerBar)) return std::nullopt;
    return XOf(vapour);
}

// Steps by the slope, each within what the values before leave; two values of the same phase give
// it better than constants do. Where ice melts h jumps, and the steps stop on either side of it.
std::optional<ExactAir::Found> ExactAir::Find(double h, double x) const {
    constexpr int kMostSteps = 80;
    constexpr double kClose = 1e-10;  // K and kJ/kg
    if (!std::isfinite(h)) return std::nullopt;
    double low = -1e9, high = 1e9;
    double at = std::clamp(TemperatureOfIdealGas(h, x), kLowestTemperature, kHighestTemperature);
    std::optional<ExactAirState> last;
    for (int i = 0; i < kMostSteps; ++i) {
        const auto state = FromX(at, x);
        if (!state) return std::nullopt;
        const double missing = h - state->enthalpy;
        (missing >= 0 ? low : high) = at;
        if (low == kIceUpTo && high == kLiquidFrom) return Melting(h, x);
        double slope = SlopeOf(*state);
        if (last && PhaseOf(*last) == PhaseOf(*state) && last->t != at) {
            const double secant = (state->enthalpy - last->enthalpy) / (at - last->t);
            if (secant > slope / 2 && secant < 2 * slope) slope = secant;
        }
        double next = at + missing / slope;
        if (std::abs(next - at) < kClose || std::abs(missing) < kClose)
            return Found{InGrains(next)};
        if (state->IsFog()) next = StoppedWhereIceMelts(at, next);
        next = std::clamp(next, kLowestTemperature, kHighestTemperature);
        if (next == at) return std::nullopt;  // beyond the limits
        if (!(next > low && next < high)) next = (low + high) / 2;
        last = state;
        at = next;
    }
    return Found{InGrains(at)};
}

// h lies between the enthalpies with all ice and with all water.
ExactAir::Found ExactAir::Melting(double h, double x) const {
    const double ice = Enthalpy(kIceUpTo, x).value_or(h);
    const double liquid = Enthalpy(kLiquidFrom, x).value_or(h);
    return {kIceUpTo, liquid > ice ? std::clamp((h - ice) / (liquid - ice), 0.0, 1.0) : 0.0};
}

std::optional<double> ExactAir::Temperature(double h, double x) const {
    const auto found = Find(h, x);
    if (!found) return std::nullopt;
    return found->t;
}

std::optional<ExactAirState> ExactAir::FromEnthalpy(double h, double x) const {
    const auto found = Find(h, x);
    auto state = found ? FromX(found->t, x) : std::nullopt;
    if (!state) return std::nullopt;
    state->enthalpy = h;
    state->liquid += found->melted * state->ice;
    state->ice -= found->melted * state->ice;
    return state;
}

std::optional<double> ExactAir::XFromEnthalpy(double t, double h) const {
    if (!Answers(t)) return std::nullopt;
    constexpr double kClose = 1e-9;  // g/kg, of a step
    const double most = SaturatedX(t).value_or(kRealAirMostX);
    bool known = true;
    const auto missing = [&](double x) {
        const auto gas = ContinuedGas(solver_, t, x, p_bar_);
        known = known && gas;
        return gas ? h - gas->enthalpy : 0.0;
    };
    const double dry = missing(0);
    if (!(dry >= 0 && missing(most) <= 0) || !known) return std::nullopt;
    constexpr double kBend = 1e-5;  // per g/kg, by the forces between the molecules
    const double slope = kLatent + kHeatOfVapour * t;
    const auto near =
        RootByCourse(std::clamp(dry / slope, 0.0, most), {-slope, kBend}, 0, most, kClose, missing);
    return near ? *near : RootOfFalling(0, most, kCloseEnough, missing);
}

std::optional<double> ExactAir::BracketedDewPoint(double vapour_pressure) const {
    constexpr double kLowest = -100, kHighest = 373;  // degC
    constexpr double kClose = 1e-11;                  // of a logarithm
    const auto above = [&](double t) {
        return std::log(vapour_pressure / ContinuedSaturation(t, p_bar_));
    };
    if (!(above(kLowest) >= 0 && above(kHighest) <= 0)) return std::nullopt;
    return FrostOrDewPoint(kLowest, kHighest, kClose, above);
}

std::optional<double> ExactAir::DewPoint(const ExactAirState& state) const {
    if (state.IsFog()) return state.t;
    if (!(state.vapour_pressure > 0)) return std::nullopt;
    auto found = RealDewPoint(state.vapour_pressure, p_bar_);
    if (!found) found = BracketedDewPoint(state.vapour_pressure);
    if (!found) return std::nullopt;
    return WithinAir(*found, state.t, state.fraction);
}

// Between the dew point and the temperature, both ends of which it lies within.
std::optional<double> ExactAir::BracketedWetBulb(const ExactAirState& state) const {
    constexpr double kMostVapour = 0.9;  // of the pressure
    const auto highest = BracketedDewPoint(kMostVapour * p_bar_ * kPascalPerBar);
    const double high = std::min(state.t, highest.value_or(state.t));
    bool known = true;
    const auto missing = [&](double t) {
        const auto saturated = FromHumidity(1, t);
        known = known && saturated;
        if (!saturated) return 0.0;
        return state.enthalpy - saturated->enthalpy +
               (saturated->x - state.x) / kGramsPerKg * ContinuedCondensate(t, p_bar_);
    };
    constexpr double kRounding = 1e-9;  // kJ/kg; saturated air is its own wet bulb
    if (!(missing(kLowestTemperature) >= 0 && missing(high) <= kRounding) || !known) {
        return std::nullopt;
    }
    return RootOfFalling(kLowestTemperature, high, kCloseEnough, missing);
}

std::optional<double> ExactAir::WetBulb(const ExactAirState& state) const {
    if (state.IsFog()) return state.t;
    const auto real = RealWetBulb(state.t, state.x, state.enthalpy, p_bar_);
    const auto found = real ? std::optional(real->t) : BracketedWetBulb(state);
    if (!found) return std::nullopt;
    return WithinAir(*found, state.t, state.fraction);
}

}  // namespace zandrell
