#pragma once

#include <memory>
#include <string>

#include "command/catalogue_folder.h"
#include "command/row_calculation.h"
#include "command/selection_verbs.h"

namespace zandrell {

// Duties as rows: the inputs of a selection by name, each one over that of the request where a row
// gives it. Added for each maker of the catalogue: series, unit, figure and class of the unit that
// meets the duty most closely, empty cells when none does. The catalogue is read at once. Null,
// with one line in `error`, without it.
std::unique_ptr<RowCalculation> MakeDutyCalculation(const CatalogueFolder& folder,
                                                    const CapacityRequest& request,
                                                    std::string& error);

}  // namespace zandrell
