#pragma once

#include "selection/selection_context.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// Hands the documents of the unit to the viewer: "zdview.dat" with both names, the unit and the
// duty, each quoted. False, and nothing is written, when neither document holds anything.
bool HandDocumentsOver(const SelectionContext& context, const VentZeigControls& controls);

}  // namespace zandrell
