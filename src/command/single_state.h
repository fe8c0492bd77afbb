#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "command/real_air_figures.h"
#include "command/row_calculations.h"

namespace zandrell {

// One state as it is shown: the point with the humidity and pressure that were used, after the
// clamps of the state function, and what was found there.
struct StateSheet {
    struct Row {
        std::string_view column, words, unit;
        std::optional<double> value;  // if it is a finite number
        bool may_lack = false;        // a figure that not every state has
    };
    StateQuestion point;
    std::vector<Row> rows;
    std::string remark{};  // what is to be said of it
};

// Empty, with the reason, where there is no state.
std::optional<StateSheet> SuiteSheet(const WaterAirTables& tables, StateQuestion question,
                                     std::string& reason);
std::optional<StateSheet> ExactSheet(StateSolver& solver, StateQuestion question,
                                     std::string& reason);
std::optional<StateSheet> RealSheet(const GivenFigures& given, double p_bar, std::string& reason);

// An aligned table for people: names, values of seven digits, units; without what may lack and
// does.
std::string SheetAsTable(const StateSheet& sheet);
// One JSON object with full digits and null for what there is not.
std::string SheetAsJson(const StateSheet& sheet);

}  // namespace zandrell
