#include "processes/tools.h"

#include <algorithm>
#include <cmath>

#include "kernel/state_solver.h"

namespace zandrell {
namespace {

constexpr double kNearlyDryFraction = 0.0001;

std::optional<double> WhenFinite(double value) {
    if (!std::isfinite(value)) return std::nullopt;
    return value;
}

}  // namespace

std::optional<double> HumidityBehindCooler(StateSolver& solver, double x1, double t2) {
    const auto fraction = HumidityBehindHeater(solver, x1, t2);
    if (!fraction) return std::nullopt;
    return std::min(*fraction, kWettestBehindCooler);
}

std::optional<double> HumidityBehindHeater(StateSolver& solver, double x1, double t2) {
    if (!solver.Evaluate(1, t2)) return std::nullopt;
    return WhenFinite(x1 / solver.ZustandX);
}

std::optional<WaterHumidified> BehindWaterHumidifier(StateSolver& solver, double h1, double t2) {
    if (!solver.Evaluate(kNearlyDryFraction, t2)) return std::nullopt;
    const double dry_h = solver.ZustandH;
    if (!solver.Evaluate(1, t2)) return std::nullopt;
    const auto percent = WhenFinite(100 * (h1 - dry_h) / (solver.ZustandH - dry_h));
    if (!percent) return std::nullopt;

    WaterHumidified result{*percent, solver.ZustandX * *percent / 100, false};
    result.impossible = *percent < 0 || *percent > 100;
    if (result.impossible) result.rel_percent = kShownForImpossible;
    return result;
}

std::optional<double> HumidityBehindSteamHumidifier(StateSolver& solver, double t1,
                                                    double rel_percent) {
    if (!solver.Evaluate(rel_percent / 100, t1)) return std::nullopt;
    return solver.ZustandX;
}

}  // namespace zandrell
