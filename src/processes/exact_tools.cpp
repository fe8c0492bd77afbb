#include "processes/exact_tools.h"

#include "kernel/exact_air.h"
#include "processes/tools.h"

namespace zandrell {
namespace {

ToolOutlet OutletOf(const ExactAirState& state) {
    return {{state.t, state.x, state.enthalpy}, 100 * state.fraction};
}

std::optional<ToolOutlet> AtFraction(const ExactAir& air, double t, double fraction) {
    const auto state = air.FromHumidity(fraction, t);
    if (!state) return std::nullopt;
    return OutletOf(*state);
}

}  // namespace

std::optional<ToolOutlet> ExactBehindCooler(const ExactAir& air, const AirPoint& inlet, double t2) {
    const auto kept = ExactBehindHeater(air, inlet, t2);
    if (!kept || kept->rel_percent <= 100 * kWettestBehindCooler) return kept;
    return AtFraction(air, t2, kWettestBehindCooler);
}

std::optional<ToolOutlet> ExactBehindHeater(const ExactAir& air, const AirPoint& inlet, double t2) {
    const auto state = air.FromX(t2, inlet.x);
    if (!state) return std::nullopt;
    return OutletOf(*state);
}

std::optional<ToolOutlet> ExactBehindWaterHumidifier(const ExactAir& air, const AirPoint& inlet,
                                                     double t2) {
    if (const auto x = air.XFromEnthalpy(t2, inlet.h)) {
        const auto fraction = air.Fraction(t2, *x);
        if (!fraction) return std::nullopt;
        return ToolOutlet{{t2, *x, inlet.h}, 100 * *fraction};
    }
    auto shown = AtFraction(air, t2, kShownForImpossible / 100);
    if (shown) shown->impossible = true;
    return shown;
}

std::optional<ToolOutlet> ExactBehindSteamHumidifier(const ExactAir& air, const AirPoint& inlet,
                                                     double rel_percent) {
    return AtFraction(air, inlet.t, rel_percent / 100);
}

}  // namespace zandrell
