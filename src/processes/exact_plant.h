#pragma once

#include <optional>

#include "processes/plant.h"

// The plant of plant.h in exact balances, all per kg of dry air: fans and heater keep x, a water
// humidifier keeps h (its water counts from liquid of 0 degC), the mix has the temperature of its
// enthalpy, and a volume flow holds the dry air that its partial pressure tells. Which way the air
// goes and what is raised for what follows the rules of the suite.
namespace zandrell {

class ExactAir;

// The humidity ratios that a run counts with, in g/kg. What the program raises becomes the other
// figure to the last digit.
struct ExactHumidities {
    double xAb = 0, xZu = 0, xAus = 0, xKa = 0;
    bool nothing_to_cool = false;  // outside air is no warmer than the coil
};

// Raises the supply humidity to what coil or outside air leave in it, and then the exhaust humidity
// where the room could not take up moisture; `inputs` receives the percentages, at most 100. Air
// that cannot hold as much stays saturated.
std::optional<ExactHumidities> RaiseExactly(const ExactAir& air, PlantInputs& inputs);

struct ExactPlantRun : PlantRun {
    RoomLoads room;
    AirPoint heated;  // the heater's outlet
    double cooler_kw = 0, heater_kw = 0;
    double humidifier_kg_per_h = 0;
    double condensate_kg_per_h = 0;  // that the coil takes out of the mixed air; never negative
};

// Requires: inputs that RaiseExactly has seen, and its humidities.
std::optional<ExactPlantRun> RunExactly(const ExactAir& air, const PlantInputs& inputs,
                                        const ExactHumidities& humidities);

}  // namespace zandrell
