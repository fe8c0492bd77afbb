#pragma once

#include <optional>
#include <string>

#include "base/captions.h"
#include "selection/refrigerant.h"
#include "selection/selection_shared.h"

namespace zandrell {

// What a planner fixes before a component is selected.
struct SelectionDuty {
    int KatalogArt = 600;
    std::string refrigerant = "R134A";
    double capacity = 10;         // kW of cooling
    double added_load = 0;        // kW, for air coolers
    double heat_rejection = 0;    // kW, for condensers; 0: estimated, see EstimatedPower
    double evaporating = -10;     // degC
    double condensing = 45;       // degC
    double superheat = 8;         // K
    double subcooling = 3;        // K
    double loss_suction = 0;      // mbar
    double loss_discharge = 0;    // mbar
    double mean_difference = 8;   // K, of an air cooler
    double rating_basis = 0;      // 0, 1 or 2
    double correction = 1;        // of stored capacities
    double efficiency = 0.8;      // volumetric, of the reference compressor
    double opening = 100;         // %, largest one of a valve
    double mains_frequency = 50;  // Hz
    double price = 0.25;          // of a kilowatt-hour
    double hours = 5000;          // of operation a year
    double emission = 0.4;        // kg of CO2 a kilowatt-hour
};

// The electric power in kW that moves `capacity` kW between two temperatures in degC: an estimate,
// 55 % of what the ideal cycle would reach. 0 where there is nothing to lift.
double EstimatedPower(double capacity, double evaporating, double condensing);

// Works out all that the selection window expects of its opener and writes it to `selection`: the
// state of the refrigerant from its table, mass flow, wanted swept volume (`Label26`, m3/h) and
// power (`Label27`, kW). Answers a message, and changes nothing, when the duty cannot be computed:
// a capacity that is not above 0, condensation that is not above evaporation, a temperature outside
// the table.
//
// Evaporation is at dew pressure, condensation at bubble pressure. The suction gas is the saturated
// vapour, thinned by the superheat as an ideal gas. A density for kinds with a kv value is that of
// the vapour at the evaporating point for kind 50, of the liquid at the condensing point for
// others.
std::optional<std::string> ApplyDuty(const SelectionDuty& duty, const RefrigerantTables& tables,
                                     const Captions& words, SelectionShared& selection);

// The wanted swept volume (`Label26`, m3/h) of a mass flow that somebody else has set. Changes
// nothing when the evaporating temperature lies outside the table.
void FollowMassFlow(const SelectionDuty& duty, const RefrigerantTables& tables,
                    SelectionShared& selection);

}  // namespace zandrell
