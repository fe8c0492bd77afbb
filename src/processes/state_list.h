#pragma once

#include <string>
#include <vector>

#include "processes/process_panels.h"

namespace zandrell {

// The states of the process in force as a table of texts, a row each. The figures have the
// decimals of the panels. Under Exact they are those of ExactAir, with dew point, wet bulb,
// specific volume and flows everywhere; the suite's air has no such figures.
struct StateList {
    std::string pressure;  // of all of them, with its unit
    std::vector<std::string> heads;
    std::vector<std::vector<std::string>> rows;  // as many cells as heads
    bool operator==(const StateList&) const = default;
};

StateList ListStates(const ProcessPanels& processes);

}  // namespace zandrell
