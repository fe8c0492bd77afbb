#include "processes/exact_plant.h"

#include <algorithm>

#include "base/unit_factors.h"
#include "kernel/exact_air.h"

namespace zandrell {
namespace {

constexpr double kGramsPerKg = 1000;

// A percentage above 100 counts as 100, as everywhere.
std::optional<double> XOf(const ExactAir& air, double percent, double t) {
    double fraction = percent / 100, p_bar = air.PressureBar();
    ClampArguments(fraction, p_bar);
    return air.XFromHumidity(fraction, t);
}

// The percentage of x at t, and x itself brought down to saturation.
bool Raise(const ExactAir& air, double t, double& percent, double& x) {
    const auto fraction = air.Fraction(t, x);
    if (!fraction) return false;
    percent = 100 * *fraction;
    if (percent <= 100) return true;
    percent = 100;
    x = air.SaturatedX(t).value_or(x);
    return true;
}

// Asks for state after state and remembers whether one is outside the limits.
class Airs {
  public:
    explicit Airs(const ExactAir& air) : air_(air) {}
    AirPoint At(double t, double x) { return {t, x, Known(air_.Enthalpy(t, x))}; }
    AirPoint WithEnthalpy(double h, double x) { return {Known(air_.Temperature(h, x)), x, h}; }
    // kg in 1 m3.
    double DryAir(double t, double x) {
        const auto state = air_.FromX(t, x);
        return 1 / Known(state ? std::optional(state->volume) : std::nullopt);
    }
    bool AllKnown() const { return all_known_; }

  private:
    double Known(std::optional<double> figure) {
        if (!figure) all_known_ = false;
        return figure.value_or(0);
    }
    const ExactAir& air_;
    bool all_known_ = true;
};

MixingSection MixingOf(Airs& airs, const PlantInputs& inputs, const ExactHumidities& humidities) {
    MixingSection section;
    section.exhaust = airs.At(inputs.tAb, humidities.xAb);
    section.behind_fan = airs.At(inputs.tAb + inputs.dt2, humidities.xAb);
    section.outside = airs.At(inputs.tAus, humidities.xAus);
    section.mL = inputs.V * airs.DryAir(inputs.tAb, humidities.xAb);
    const double outer_share = 1 / (1 + inputs.r);
    const AirPoint &inner = section.behind_fan, &outer = section.outside;
    section.mixed = airs.WithEnthalpy(inner.h + (outer.h - inner.h) * outer_share,
                                      inner.x + (outer.x - inner.x) * outer_share);
    return section;
}

RoomLoads LoadsOfRoom(Airs& airs, const MixingSection& mixing, const AirPoint& supply) {
    const AirPoint& room = mixing.exhaust;
    const double kg_per_s = mixing.mL / kSecondsPerHour;
    const double hR = airs.At(room.t, supply.x).h;
    return {kg_per_s * (room.h - supply.h), kg_per_s * (hR - supply.h), kg_per_s * (room.h - hR),
            mixing.mL * (room.x - supply.x) / kGramsPerKg};
}

}  // namespace

std::optional<ExactHumidities> RaiseExactly(const ExactAir& air, PlantInputs& inputs) {
    const auto xAb = XOf(air, inputs.phiAb, inputs.tAb);
    const auto xZu = XOf(air, inputs.phiZu, inputs.tZu);
    const auto xAus = XOf(air, inputs.phiAus, inputs.tAus);
    const auto xKa = XOf(air, inputs.phiKa, inputs.tKA);
    if (!xAb || !xZu || !xAus || !xKa) return std::nullopt;
    ExactHumidities found{*xAb, *xZu, *xAus, *xKa, inputs.tAus <= inputs.tKA};
    const double least = found.nothing_to_cool ? found.xAus : found.xKa;
    if (found.xZu < least) {
        found.xZu = least;
        if (!Raise(air, inputs.tZu, inputs.phiZu, found.xZu)) return std::nullopt;
    }
    if (found.xAb < found.xZu) {
        found.xAb = found.xZu;
        if (!Raise(air, inputs.tAb, inputs.phiAb, found.xAb)) return std::nullopt;
    }
    return found;
}

std::optional<ExactPlantRun> RunExactly(const ExactAir& air, const PlantInputs& inputs,
                                        const ExactHumidities& humidities) {
    Airs airs(air);
    ExactPlantRun run;
    run.inputs = inputs;
    run.mixing = MixingOf(airs, inputs, humidities);
    run.supply = airs.At(inputs.tZu, humidities.xZu);
    run.room = LoadsOfRoom(airs, run.mixing, run.supply);
    run.Anzeigefaktor = AnzeigefaktorOf(run.room.total_kw);
    run.fan_inlet.air = airs.At(inputs.tZu - inputs.dt1, humidities.xZu);
    run.coil.air = airs.At(inputs.tKA, humidities.xKa);
    const AirPoint &mixed = run.mixing.mixed, &before_fan = run.fan_inlet.air;
    const bool too_dry_and_cold = mixed.x < run.supply.x && mixed.t < before_fan.t;
    run.OhneKuehler = humidities.nothing_to_cool || too_dry_and_cold;

    const AirPoint& inlet = run.OhneKuehler ? mixed : run.coil.air;
    run.heated =
        inputs.steam ? airs.At(before_fan.t, inlet.x) : airs.WithEnthalpy(before_fan.h, inlet.x);
    const double kg_per_s = run.mixing.mL / kSecondsPerHour;
    run.cooler_kw = run.OhneKuehler ? 0 : kg_per_s * (mixed.h - inlet.h);
    run.heater_kw = kg_per_s * (run.heated.h - inlet.h);
    run.condensate_kg_per_h = std::max(0.0, run.mixing.mL * (mixed.x - inlet.x) / kGramsPerKg);
    run.humidifier_kg_per_h = run.mixing.mL * (run.supply.x - inlet.x) / kGramsPerKg;
    if (!airs.AllKnown()) return std::nullopt;
    return run;
}

}  // namespace zandrell
