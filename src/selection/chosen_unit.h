#pragma once

#include <optional>
#include <string>

#include "selection/catalogue_index.h"
#include "selection/selection_context.h"
#include "selection/selection_duty.h"
#include "selection/series_reader.h"
#include "selection/unit_figures.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// Where a unit stands: its series, and its position there from 1; 0: none.
struct UnitPlace {
    SeriesPlace series;
    int position = 0;
    bool operator==(const UnitPlace&) const = default;
};

// A unit out of a catalogue with its figures for a duty.
struct ChosenUnit {
    std::string name;
    KatalogSatz record;
    UnitNumbers numbers;
    UnitFigures figures;
    double power = 0;  // kW: stored for coolers and condensers, estimated for compressors, else 0
};

// The unit at a place; empty where the series has none. Its record lives as long as the reader.
std::optional<ChosenUnit> ReadChosenUnit(SeriesReader& reader, const UnitPlace& place,
                                         const SelectionDuty& duty, SelectionInputs inputs);

// What a year of it costs, in the currency of the settings, and brings in t of CO2.
struct YearlyFigures {
    double cost = 0, emission = 0, ratio = 0;  // ratio: capacity over power; 0 without a power
};

YearlyFigures YearlyFiguresOf(const ChosenUnit& unit, const SelectionDuty& duty);

// Writes captions and figures of the unit to the labels that the window leaves to its opener, and
// hides the pairs that its kind does not have. Without a unit those of the duty alone.
void ShowChosenUnit(const std::optional<ChosenUnit>& unit, const SelectionDuty& duty,
                    const SelectionContext& context, VentZeigControls& controls);

}  // namespace zandrell
