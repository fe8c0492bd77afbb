#pragma once

#include <string>

#include "command/real_air_calculation.h"

namespace zandrell {

struct WaterAirTables;

// What a state is asked for: degC, per cent, bar.
struct StateQuestion {
    double t = 0, rh = 0, p = 0;
};

// One state as an aligned table for people: names, values of seven digits, units. It shows the
// humidity and pressure that were used, after the clamps of the state function. False, with the
// reason, where there is no state.
bool StateAsTable(const WaterAirTables& tables, const StateQuestion& question, std::string& text,
                  std::string& reason);

// Of a state of real air; a figure that it does not have is left out.
bool RealStateAsTable(const GivenFigures& given, double p_bar, std::string& text,
                      std::string& reason);
bool RealStateAsJson(const GivenFigures& given, double p_bar, std::string& text,
                     std::string& reason);

// The same as one JSON object with the question's own figures and full digits.
bool StateAsJson(const WaterAirTables& tables, const StateQuestion& question, std::string& text,
                 std::string& reason);

}  // namespace zandrell
