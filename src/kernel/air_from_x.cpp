#include "kernel/air_from_x.h"

#include <algorithm>
#include <cmath>

#include "base/unit_factors.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kGramsPerKg = 1000;
constexpr double kRatio = kGramsPerKg * kGasConstantAir / kGasConstantSteam;  // g/kg
constexpr double kHeatOfLiquid = 4.19;  // kJ/(kg K), mean from 0 to 50 degC (IAPWS-IF97)
constexpr double kCloseEnough = 1e-10;  // kJ/kg

double ShareOfPressure(double x) { return x / (kRatio + x); }

}  // namespace

std::optional<double> FractionFromX(StateSolver& solver, double t, double x) {
    if (!(x >= 0) || !solver.Evaluate(1, t)) return std::nullopt;
    const double fraction =
        solver.ChartDruckBar * kPascalPerBar * ShareOfPressure(x) / solver.ZustandPDampf;
    if (!std::isfinite(fraction)) return std::nullopt;
    return fraction;
}

std::optional<double> EnthalpyFromX(StateSolver& solver, double t, double x) {
    const auto fraction = FractionFromX(solver, t, x);
    if (!fraction) return std::nullopt;
    if (*fraction > 1) {
        const double liquid = (x - solver.ZustandX) / kGramsPerKg;
        return solver.ZustandH + liquid * kHeatOfLiquid * t;
    }
    if (!solver.Evaluate(*fraction, t)) return std::nullopt;
    return solver.ZustandH;
}

std::optional<double> TemperatureFromEnthalpy(StateSolver& solver, double h, double x) {
    constexpr double kHighest = 200;  // degC, above all that a plant or a chart has
    constexpr double kGrains = 1e9;   // a kelvin
    bool known = true;
    const auto missing = [&](double t) {
        const auto there = EnthalpyFromX(solver, t, x);
        known = known && there;
        return h - there.value_or(h);
    };
    if (!(missing(kLowestTemperature) >= 0 && missing(kHighest) <= 0) || !known)
        return std::nullopt;
    const double t = RootOfFalling(kLowestTemperature, kHighest, kCloseEnough, missing);
    if (!known) return std::nullopt;
    return std::round(t * kGrains) / kGrains;
}

std::optional<double> XFromEnthalpy(StateSolver& solver, double t, double h) {
    if (!solver.Evaluate(1, t)) return std::nullopt;
    const double saturated = solver.ZustandX;
    const auto missing = [&](double x) { return h - EnthalpyFromX(solver, t, x).value_or(h); };
    if (!(missing(0) >= 0 && missing(saturated) <= 0)) return std::nullopt;
    return RootOfFalling(0, saturated, kCloseEnough, missing);
}

double DryAirFromX(double p_bar, double t, double x) {
    return p_bar * kPascalPerBar * (1 - ShareOfPressure(x)) /
           (kGasConstantAir * (t + kKelvinOffset));
}

}  // namespace zandrell
