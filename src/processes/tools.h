#pragma once

#include <optional>

#include "processes/air_point.h"

// The four apparatuses that work out the second of two states from the first and one figure of the
// second. All answer empty when a state that they need is outside the limits.
namespace zandrell {

class StateSolver;

inline constexpr double kWettestBehindCooler = 0.9;
inline constexpr double kShownForImpossible = 99;  // per cent, for a state that does not exist

// Relative humidity as a fraction behind a cooler that leaves at t2 (degC) with the humidity x1
// (g/kg) of the entering air. Capped at 0.9: a coil does not leave saturated air.
std::optional<double> HumidityBehindCooler(StateSolver& solver, double x1, double t2);

// The same behind a heater. Has no cap: above 1 tells that t2 lies below the dew point, where no
// heater leads.
std::optional<double> HumidityBehindHeater(StateSolver& solver, double x1, double t2);

struct WaterHumidified {
    double rel_percent = 0;   // 99 when the state asked for does not exist
    double x = 0;             // g/kg; of the state asked for, even if that does not exist
    bool impossible = false;  // it would lie below dry air or in the fog
};

// Air humidified by water at constant enthalpy h1 (kJ/kg) until it has t2 (degC). The relative
// humidity is interpolated linearly in enthalpy between dry and saturated air at t2.
std::optional<WaterHumidified> BehindWaterHumidifier(StateSolver& solver, double h1, double t2);

// Humidity ratio in g/kg of air humidified by steam at constant temperature t1 (degC) up to
// rel_percent.
std::optional<double> HumidityBehindSteamHumidifier(StateSolver& solver, double t1,
                                                    double rel_percent);

}  // namespace zandrell
