#include "processes/state_change.h"

#include <algorithm>
#include <cmath>

#include "kernel/exact_air.h"
#include "kernel/inverse_state.h"
#include "processes/process_context.h"

namespace zandrell {
namespace {

Loads SplitLoads(const AirPoint& first, const AirPoint& second, double auxiliary_h,
                 double kg_per_s) {
    Loads loads;
    loads.total_kw = kg_per_s * (first.h - second.h);
    const bool first_is_warmer = first.t >= second.t;
    const AirPoint& warmer = first_is_warmer ? first : second;
    const AirPoint& colder = first_is_warmer ? second : first;
    loads.latent_kw = kg_per_s * (warmer.h - auxiliary_h);
    loads.sensible_kw = kg_per_s * (auxiliary_h - colder.h);
    loads.water_g_per_s = kg_per_s * (first.x - second.x);
    return loads;
}

}  // namespace

std::optional<Loads> LoadsBetween(StateSolver& solver, const AirPoint& first,
                                  const AirPoint& second, double air_kg_per_s) {
    const bool first_is_warmer = first.t >= second.t;
    const double t = first_is_warmer ? first.t : second.t;
    const double x = first_is_warmer ? second.x : first.x;
    if (!solver.Evaluate(RelFeuchteAusX(solver, t, x).value / 100, t)) return std::nullopt;
    return SplitLoads(first, second, solver.ZustandH, air_kg_per_s);
}

std::optional<Loads> ExactLoadsBetween(const ExactAir& air, const AirPoint& first,
                                       const AirPoint& second, double dry_air_kg_per_s) {
    const bool first_is_warmer = first.t >= second.t;
    const AirPoint& warmer = first_is_warmer ? first : second;
    const AirPoint& colder = first_is_warmer ? second : first;
    // Where the auxiliary point is one of the two states its enthalpy is theirs to the last digit:
    // a difference of 1E-14 would be cut to a hundredth.
    std::optional<double> auxiliary_h = warmer.h;
    if (colder.t == warmer.t) {
        auxiliary_h = colder.h;
    } else if (colder.x != warmer.x) {
        auxiliary_h = air.Enthalpy(warmer.t, colder.x);
    }
    if (!auxiliary_h) return std::nullopt;
    return SplitLoads(first, second, *auxiliary_h, dry_air_kg_per_s);
}

Loads LoadsOfTool(Calculation mode, const Loads& loads) {
    const double total = std::abs(loads.total_kw), latent = std::abs(loads.latent_kw);
    const double water = std::abs(loads.water_g_per_s);
    switch (mode) {
        case Calculation::Heater:
            return {total, 0, total, 0};
        case Calculation::WaterHumidifier:
            // At constant enthalpy the total is near 0: what the water takes up is the latent load.
            return {latent, latent, 0, water};
        case Calculation::SteamHumidifier:
            return {total, total, 0, water};
        case Calculation::None:
        case Calculation::StateChange:
        case Calculation::Capacity:
        case Calculation::Mixing:
        case Calculation::Plant:
        case Calculation::Cooler:
            break;
    }
    return loads;
}

Decimals DecimalsOf(const Loads& loads) {
    const double total = std::abs(loads.total_kw), water = std::abs(loads.water_g_per_s);
    Decimals decimals;
    if (total < 1000) decimals.capacity = 10;
    if (total < 100) decimals.capacity = 100;
    if (water < 10) decimals.water = 100;
    if (water < 1) decimals.water = 1000;
    return decimals;
}

Mixture MixtureOf(StateSolver& solver, const AirPoint& first, double flow1_m3_per_h,
                  const AirPoint& second, double flow2_m3_per_h) {
    const double weight = flow1_m3_per_h / (flow1_m3_per_h + flow2_m3_per_h);
    Mixture mixture;
    mixture.MischTemp = second.t + weight * (first.t - second.t);
    mixture.MischX = second.x + weight * (first.x - second.x);
    mixture.rel_percent = RelFeuchteAusX(solver, mixture.MischTemp, mixture.MischX).value;
    // Leaves the mixture as the solver's current state.
    solver.Evaluate(mixture.rel_percent / 100, mixture.MischTemp);
    return mixture;
}

std::optional<Mixture> ExactMixtureOf(const ExactAir& air, const AirFlow& first,
                                      const AirFlow& second) {
    const double weight =
        first.dry_air_kg_per_h / (first.dry_air_kg_per_h + second.dry_air_kg_per_h);
    Mixture mixture;
    mixture.MischX = second.air.x + weight * (first.air.x - second.air.x);
    const double h = second.air.h + weight * (first.air.h - second.air.h);
    const auto state = air.FromEnthalpy(h, mixture.MischX);
    if (!state) return std::nullopt;
    mixture.MischTemp = state->t;
    mixture.rel_percent = 100 * std::min(state->fraction, 1.0);
    return mixture;
}

}  // namespace zandrell
