#pragma once

#include <optional>

#include "processes/air_point.h"

// The apparatuses of tools.h in exact balances: what leaves is a state of its own, not one read
// back from a humidity that was cut for its field. All answer empty when a state that they need is
// outside the limits.
namespace zandrell {

class ExactAir;

struct ToolOutlet {
    AirPoint air;
    double rel_percent = 0;
    bool impossible = false;  // the state asked for lies below dry air or in the fog
};

// Behind a cooler the x of the inlet, or less where 90 % end it: a coil does not leave saturated
// air.
std::optional<ToolOutlet> ExactBehindCooler(const ExactAir& air, const AirPoint& inlet, double t2);

// Behind a heater the x of the inlet. Above 100 % tells that t2 lies below the dew point.
std::optional<ToolOutlet> ExactBehindHeater(const ExactAir& air, const AirPoint& inlet, double t2);

// Behind a water humidifier the h of the inlet, and the x that it takes at t2. Where there is no
// such air the humidity is shown as 99 % and the state is that of it.
std::optional<ToolOutlet> ExactBehindWaterHumidifier(const ExactAir& air, const AirPoint& inlet,
                                                     double t2);

// Behind a steam humidifier the t of the inlet.
std::optional<ToolOutlet> ExactBehindSteamHumidifier(const ExactAir& air, const AirPoint& inlet,
                                                     double rel_percent);

}  // namespace zandrell
