#pragma once

#include <optional>
#include <string>

#include "selection/unit_figures.h"

namespace zandrell {

// The first input that the figures of the kind cannot do without and that is not set, in a few
// words for a message; no text when all is there.
std::string MissingInput(const SelectionInputs& shared);

// By how much a unit does more than its duty: the fewer, the better the choice. Empty when it does
// not meet the duty at all.
//
// Kinds with a capacity: kW above TargetCapacity. Regulating components: mbar above the lowest
// pressure drop that they need, within OeffnungMax if that is above 0. Other line components: mbar
// below `largest_pressure_drop`. Kinds that the program does not handle: always empty.
std::optional<double> Surplus(const UnitNumbers& unit, const UnitFigures& figures,
                              const SelectionInputs& shared, double largest_pressure_drop);

}  // namespace zandrell
