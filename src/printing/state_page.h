#pragma once

#include <string>

#include "canvas/sheet.h"
#include "processes/state_list.h"

namespace zandrell {

// The table of states under the header of a page: a line for each figure, a column for each state.
void PrintStates(const StateList& list, const std::string& title, Sheet& sheet);

}  // namespace zandrell
