#include "processes/plant.h"

#include <cmath>

#include "base/number_text.h"
#include "base/unit_factors.h"
#include "kernel/inverse_state.h"

namespace zandrell {
namespace {

constexpr double kGramsPerKg = 1000;
constexpr double kEnthalpySearchStep = 50;  // K, first move of the search is half of it

std::optional<double> HumidityRatio(StateSolver& solver, double percent, double t) {
    if (!solver.Evaluate(percent / 100, t)) return std::nullopt;
    return solver.ZustandX;
}

// Enthalpy at t and humidity ratio x; saturated when x lies above saturation.
std::optional<double> EnthalpyAt(StateSolver& solver, double t, double x) {
    if (!solver.Evaluate(1, t)) return std::nullopt;
    if (!solver.Evaluate(x / solver.ZustandX, t)) return std::nullopt;
    return solver.ZustandH;
}

double PerMoistAir(double value, double x) { return value / (1 - x / kGramsPerKg); }

// Between dry and saturated air at t by the humidity, not a state of its own.
std::optional<double> InterpolatedEnthalpy(StateSolver& solver, double t, double x) {
    if (!solver.Evaluate(1, t)) return std::nullopt;
    const double dry = solver.ZustandHLuft;
    return dry + (solver.ZustandH - dry) * x / solver.ZustandX;
}

// The heater's outlet in front of a water humidifier.
struct WaterHumidifierInlet {
    double tH = 0;  // degC
    double hW = 0;  // enthalpy of the line that the humidifier follows
};

// Heats air of humidity x only so far that the humidifier can then follow a line of constant
// enthalpy to t1 and the supply humidity. The relative humidity there is cut to whole per cents,
// finer than any control holds it.
std::optional<WaterHumidifierInlet> InletFor(StateSolver& solver, const AirPoint& before_fan,
                                             double x) {
    if (!solver.Evaluate(1, before_fan.t)) return std::nullopt;
    const double fraction = std::floor(100 * before_fan.x / solver.ZustandX) / 100;
    if (!solver.Evaluate(fraction, before_fan.t)) return std::nullopt;
    WaterHumidifierInlet inlet;
    inlet.hW = solver.ZustandH;
    double step = kEnthalpySearchStep;
    inlet.tH =
        TempAusEnthalpie(solver, before_fan.t, inlet.hW, EnthalpySearch::HumidityRatio, step, 0, x)
            .value;
    return inlet;
}

}  // namespace

std::optional<RoomHumidities> HumiditiesOfRoom(StateSolver& solver, const PlantInputs& inputs) {
    const auto xAb = HumidityRatio(solver, inputs.phiAb, inputs.tAb);
    const auto xZu = HumidityRatio(solver, inputs.phiZu, inputs.tZu);
    if (!xAb || !xZu) return std::nullopt;
    return RoomHumidities{*xAb, *xZu};
}

std::optional<bool> RaiseHumidities(StateSolver& solver, const RoomHumidities& room,
                                    PlantInputs& inputs) {
    auto xBoden = HumidityRatio(solver, inputs.phiKa, inputs.tKA);
    if (!xBoden) return std::nullopt;
    if (room.xAb <= room.xZu) {
        // Nothing else is looked at then, not even whether there is anything to cool.
        AssignFinite(inputs.phiAb, 100 * room.xZu / solver.SaturationHumidity(inputs.tAb));
        return false;
    }
    const bool nothing_to_cool = inputs.tAus <= inputs.tKA;
    if (nothing_to_cool) xBoden = HumidityRatio(solver, inputs.phiAus, inputs.tAus);
    if (!xBoden) return std::nullopt;
    if (room.xZu <= *xBoden) {
        AssignFinite(inputs.phiZu, 100 * *xBoden / solver.SaturationHumidity(inputs.tZu));
    }
    return nothing_to_cool;
}

std::optional<MixingSection> MixingOf(StateSolver& solver, const PlantInputs& inputs) {
    MixingSection section;
    if (!solver.Evaluate(inputs.phiAb / 100, inputs.tAb)) return std::nullopt;
    section.exhaust = {inputs.tAb, solver.ZustandX, solver.ZustandH};
    AssignFinite(section.mL,
                 inputs.V * solver.ZustandDichte * (1 - section.exhaust.x / kGramsPerKg));

    section.behind_fan = section.exhaust;
    section.behind_fan.t += inputs.dt2;
    if (inputs.dt2 != 0) {
        const auto h = EnthalpyAt(solver, section.behind_fan.t, section.behind_fan.x);
        if (!h) return std::nullopt;
        section.behind_fan.h = *h;
    }

    if (!solver.Evaluate(inputs.phiAus / 100, inputs.tAus)) return std::nullopt;
    section.outside = {inputs.tAus, solver.ZustandX, solver.ZustandH};

    const double outer_share = 1 / (1 + inputs.r);
    const AirPoint &inner = section.behind_fan, &outer = section.outside;
    section.mixed = {inner.t + (outer.t - inner.t) * outer_share,
                     inner.x + (outer.x - inner.x) * outer_share,
                     inner.h + (outer.h - inner.h) * outer_share};
    return section;
}

std::optional<AirPoint> SupplyOf(StateSolver& solver, const PlantInputs& inputs) {
    if (!solver.Evaluate(inputs.phiZu / 100, inputs.tZu)) return std::nullopt;
    return AirPoint{inputs.tZu, solver.ZustandX, solver.ZustandH};
}

std::optional<FanInlet> FanInletOf(StateSolver& solver, const AirPoint& supply, double dt1) {
    FanInlet inlet{supply, 0};
    inlet.air.t -= dt1;
    if (dt1 == 0) return inlet;
    if (!solver.Evaluate(1, inlet.air.t)) return std::nullopt;
    inlet.xs1 = solver.ZustandX;
    if (!solver.Evaluate(supply.x / inlet.xs1, inlet.air.t)) return std::nullopt;
    inlet.air.h = solver.ZustandH;
    return inlet;
}

std::optional<RoomLoads> RoomLoadsOf(StateSolver& solver, const MixingSection& mixing,
                                     const AirPoint& supply) {
    const AirPoint& room = mixing.exhaust;
    const double percent = RelFeuchteAusX(solver, room.t, supply.x).value;
    if (!solver.Evaluate(percent / 100, room.t)) return std::nullopt;
    const double hR = solver.ZustandH;
    const double kg_per_s = mixing.mL / kSecondsPerHour;
    RoomLoads loads;
    loads.total_kw = kg_per_s * (room.h - supply.h);
    loads.sensible_kw = kg_per_s * (hR - supply.h);
    loads.latent_kw = kg_per_s * (room.h - hR);
    loads.water_kg_per_h = mixing.mL * (room.x - supply.x) / kGramsPerKg;
    return loads;
}

double AnzeigefaktorOf(double total_kw) {
    if (total_kw > 1000) return 1;
    if (total_kw > 100) return 10;
    return total_kw > 10 ? 100 : 1000;
}

std::optional<CoilSection> CoilOf(StateSolver& solver, const PlantInputs& inputs, double t1) {
    CoilSection section;
    if (!solver.Evaluate(inputs.phiKa / 100, inputs.tKA)) return std::nullopt;
    section.air = {inputs.tKA, solver.ZustandX, solver.ZustandH};
    const auto reheated = EnthalpyAt(solver, t1, section.air.x);
    if (!reheated) return std::nullopt;
    section.hDiff = *reheated - section.air.h;
    return section;
}

std::optional<CoolerWay> CoolerWayOf(StateSolver& solver, bool steam, const CoilSection& coil,
                                     const AirPoint& before_fan) {
    const auto hKaus = InterpolatedEnthalpy(solver, coil.air.t, coil.air.x);
    if (!hKaus) return std::nullopt;
    CoolerWay way;
    way.BefeuchterNoetig = coil.air.x < before_fan.x;
    way.hKaus = *hKaus;
    way.hDiff = coil.hDiff;
    way.heated = {before_fan.t, coil.air.x, 0};
    if (steam) return way;
    const auto inlet = InletFor(solver, before_fan, coil.air.x);
    if (!inlet) return std::nullopt;
    way.hDiff = inlet->hW - coil.air.h;
    way.heated.t = inlet->tH;
    return way;
}

std::optional<AirPoint> HeaterWayOf(StateSolver& solver, bool steam, const AirPoint& mixed,
                                    const AirPoint& before_fan, double hKa) {
    const auto hH = InterpolatedEnthalpy(solver, before_fan.t, mixed.x);
    if (!hH) return std::nullopt;
    if (steam) return AirPoint{before_fan.t, mixed.x, *hH};
    const auto inlet = InletFor(solver, before_fan, mixed.x);
    if (!inlet) return std::nullopt;
    return AirPoint{inlet->tH, mixed.x, inlet->hW - hKa};
}

double CapacityKw(double mL, double from_h, double from_x, double to_h, double to_x) {
    return mL * (PerMoistAir(to_h, to_x) - PerMoistAir(from_h, from_x)) / kSecondsPerHour;
}

double HumidifierWater(double mL, double from_x, double to_x) {
    return mL * (PerMoistAir(to_x, to_x) - PerMoistAir(from_x, from_x)) / kGramsPerKg;
}

}  // namespace zandrell
