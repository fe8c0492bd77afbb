#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "command/row_run.h"
#include "selection/selection_inputs.h"
#include "shell/start_up.h"

namespace zandrell {

// What is asked of the catalogues of the data folder.
struct CatalogueRequest {
    std::optional<int> KatalogArt;  // without it the kinds are listed
    bool units = false;             // the units of the kind in place of its series
    bool hidden = false;            // hidden series too
    std::string ModuleTag = "QV";
};

// An operating point for the units of a kind, or the one that the rows of a table go out from.
struct CapacityRequest {
    SelectionInputs shared;
    double largest_pressure_drop = 0;  // mbar, of a line component that may be chosen
    bool hidden = false;
    std::optional<std::string> duties;  // the table, "-" for the standard input
};

// What the command line calls the limit of the pressure drop; the other inputs have their names.
inline constexpr std::string_view kLargestPressureDropName = "dp_max_mbar";

// Takes "NAME=VALUE". False, with the reason, for a name that is none or a value that is no number.
bool TakeInput(std::string_view argument, CapacityRequest& request, std::string& error);

// The verb `catalogue`: lists kinds, series or units. A series file that cannot be read is
// reported, and its series are listed as empty. False, with one line in `error`, when the index
// cannot be read.
bool RunCatalogue(const NamedFolder& data, const CatalogueRequest& request, RowFormat format,
                  const RowStreams& streams, std::string& error);

// The verb `capacity`: the figures of each unit, or with a table of duties the best unit of each
// maker for each of them.
bool RunCapacity(const NamedFolder& data, const CapacityRequest& request, RowFormat format,
                 const RowStreams& streams, std::string& error);

}  // namespace zandrell
