#include "processes/state_change.h"

#include <cmath>

#include "kernel/inverse_state.h"
#include "processes/process_context.h"

namespace zandrell {

std::optional<Loads> LoadsBetween(StateSolver& solver, const AirPoint& first,
                                  const AirPoint& second, double air_kg_per_s) {
    const bool first_is_warmer = first.t >= second.t;
    const double t = first_is_warmer ? first.t : second.t;
    const double x = first_is_warmer ? second.x : first.x;
    if (!solver.Evaluate(RelFeuchteAusX(solver, t, x).value / 100, t)) return std::nullopt;
    const double auxiliary_h = solver.ZustandH;

    Loads loads;
    loads.total_kw = air_kg_per_s * (first.h - second.h);
    if (first_is_warmer) {
        loads.latent_kw = air_kg_per_s * (first.h - auxiliary_h);
        loads.sensible_kw = air_kg_per_s * (auxiliary_h - second.h);
    } else {
        loads.latent_kw = air_kg_per_s * (second.h - auxiliary_h);
        loads.sensible_kw = air_kg_per_s * (auxiliary_h - first.h);
    }
    loads.water_g_per_s = air_kg_per_s * (first.x - second.x);
    return loads;
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

}  // namespace zandrell
