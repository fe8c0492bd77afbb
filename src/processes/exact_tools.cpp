#include "processes/exact_tools.h"

#include "kernel/air_from_x.h"
#include "processes/tools.h"

namespace zandrell {
namespace {

std::optional<ToolOutlet> AtFraction(StateSolver& solver, double t, double fraction) {
    if (!solver.Evaluate(fraction, t)) return std::nullopt;
    const double x = solver.ZustandX;
    const auto h = EnthalpyFromX(solver, t, x);
    if (!h) return std::nullopt;
    return ToolOutlet{{t, x, *h}, 100 * fraction};
}

}  // namespace

std::optional<ToolOutlet> ExactBehindCooler(StateSolver& solver, const AirPoint& inlet, double t2) {
    const auto kept = ExactBehindHeater(solver, inlet, t2);
    if (!kept || kept->rel_percent <= 100 * kWettestBehindCooler) return kept;
    return AtFraction(solver, t2, kWettestBehindCooler);
}

std::optional<ToolOutlet> ExactBehindHeater(StateSolver& solver, const AirPoint& inlet, double t2) {
    const auto fraction = FractionFromX(solver, t2, inlet.x);
    const auto h = EnthalpyFromX(solver, t2, inlet.x);
    if (!fraction || !h) return std::nullopt;
    return ToolOutlet{{t2, inlet.x, *h}, 100 * *fraction};
}

std::optional<ToolOutlet> ExactBehindWaterHumidifier(StateSolver& solver, const AirPoint& inlet,
                                                     double t2) {
    if (const auto x = XFromEnthalpy(solver, t2, inlet.h)) {
        const auto fraction = FractionFromX(solver, t2, *x);
        if (!fraction) return std::nullopt;
        return ToolOutlet{{t2, *x, inlet.h}, 100 * *fraction};
    }
    auto shown = AtFraction(solver, t2, kShownForImpossible / 100);
    if (shown) shown->impossible = true;
    return shown;
}

std::optional<ToolOutlet> ExactBehindSteamHumidifier(StateSolver& solver, const AirPoint& inlet,
                                                     double rel_percent) {
    return AtFraction(solver, inlet.t, rel_percent / 100);
}

}  // namespace zandrell
