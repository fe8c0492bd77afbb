#pragma once

#include <optional>

#include "processes/air_point.h"
#include "processes/calculation.h"

// Capacity of a change between two states, and the mixture of two flows.
namespace zandrell {

class ExactAir;
class StateSolver;

// What it takes to bring air from one state to another. Positive where the air gives off.
struct Loads {
    double total_kw = 0;
    double latent_kw = 0;
    double sensible_kw = 0;
    double water_g_per_s = 0;
};

// Loads of a flow in kg/s from the first state to the second. The split goes over an auxiliary
// point at the higher of the two temperatures and the humidity of the other state (the usual split,
// as in ASHRAE Handbook Fundamentals): at constant temperature for the latent share, at constant
// humidity for the sensible one. When state 2 is the warmer, total and water count from state 1 to
// 2 and both shares the other way round, so that heating shows positive shares. Empty when the
// auxiliary point is outside the limits of the state function.
std::optional<Loads> LoadsBetween(StateSolver& solver, const AirPoint& first,
                                  const AirPoint& second, double air_kg_per_s);

// The same for a flow of dry air, the auxiliary point at exactly the other x: where x is kept there
// is no latent load, where t is kept no sensible one.
std::optional<Loads> ExactLoadsBetween(const ExactAir& air, const AirPoint& first,
                                       const AirPoint& second, double dry_air_kg_per_s);

// The loads as the tool of that mode reports them: without sign, and with the share that cannot
// occur in the apparatus set to 0. The other modes keep the signed values.
Loads LoadsOfTool(Calculation mode, const Loads& loads);

// By how much figures are spread before they are cut: 1, 10, 100 or 1000.
struct Decimals {
    double capacity = 1;
    double water = 10;
};

// Finer for small loads; 100 kW itself has one decimal and 1000 kW none.
Decimals DecimalsOf(const Loads& loads);

struct Mixture {
    double MischTemp = 0;    // degC
    double MischX = 0;       // g/kg
    double rel_percent = 0;  // close to 100 for a mixture that would lie in the fog
};

// The mixture of two flows, both positive. The weights are volume flows, as they are measured in
// ducts; with mass flows the mixture would lie nearer to the colder, denser air.
Mixture MixtureOf(StateSolver& solver, const AirPoint& first, double flow1_m3_per_h,
                  const AirPoint& second, double flow2_m3_per_h);

struct AirFlow {
    AirPoint air;
    double dry_air_kg_per_h = 0;
};

// The mixture by the dry air of both flows: x and h lie between those of the two states, and t is
// the temperature that belongs to them. Empty when there is none.
std::optional<Mixture> ExactMixtureOf(const ExactAir& air, const AirFlow& first,
                                      const AirFlow& second);

}  // namespace zandrell
