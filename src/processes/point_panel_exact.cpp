#include "base/number_text.h"
#include "canvas/palette.h"
#include "kernel/exact_air.h"
#include "processes/figure_text.h"
#include "processes/point_panel.h"

// What the point panel does under Exact in place of its ways by the suite.
namespace zandrell {

std::optional<PointPanel::GivenAir> PointPanel::ExactAirOf(double relF_percent, double t) {
    const auto state = ExactAir(context_.solver).FromHumidity(relF_percent / 100, t);
    if (!state) return std::nullopt;
    return GivenAir{state->x, state->enthalpy, 1 / state->volume};
}

std::optional<ToolOutlet> PointPanel::OutletOf(Calculation mode, const Inputs& inputs) {
    const ExactAir air(context_.solver);
    const AirPoint inlet = FirstState(inputs.t1);
    switch (mode) {
        case Calculation::Cooler:
            return ExactBehindCooler(air, inlet, inputs.t2);
        case Calculation::Heater:
            return ExactBehindHeater(air, inlet, inputs.t2);
        case Calculation::WaterHumidifier:
            return ExactBehindWaterHumidifier(air, inlet, inputs.t2);
        case Calculation::SteamHumidifier:
            return ExactBehindSteamHumidifier(air, inlet, inputs.relF2);
        case Calculation::None:
        case Calculation::StateChange:
        case Calculation::Capacity:
        case Calculation::Mixing:
        case Calculation::Plant:
            break;
    }
    return std::nullopt;
}

// State 2 is what the tool worked out; its texts are cut from it and are not read back.
bool PointPanel::FillInExactly(Calculation mode, const Inputs& inputs) {
    const auto outlet = OutletOf(mode, inputs);
    if (!outlet) return false;
    if (mode == Calculation::WaterHumidifier) {
        relF2.background = outlet->impossible ? kLightRed : kWhite;
    }
    if (mode == Calculation::SteamHumidifier) {
        Temp2.text = Temp1.text;
    } else {
        ShowNumber(relF2, Cut(outlet->rel_percent, 10));
    }
    ShowNumber(absF2, Cut(outlet->air.x, 100));
    ShowEnthalpy(enth2, outlet->air.h);
    if (!WithinChart(ReadInputs())) return false;
    ZustandX2 = outlet->air.x;
    enthalpy2_ = outlet->air.h;
    return true;
}

std::optional<Mixture> PointPanel::MixExactly(const Inputs& inputs) {
    return ExactMixtureOf(ExactAir(context_.solver),
                          {FirstState(inputs.t1), inputs.LuftM1 * density1_},
                          {SecondState(inputs.t2), inputs.LuftM2 * density2_});
}

}  // namespace zandrell
