#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/captions.h"
#include "base/data_files.h"
#include "selection/catalogue.h"
#include "selection/selection_duty.h"

namespace zandrell {

// A number of the duty as a planner types it.
struct DutyRow {
    std::string_view name, label;  // of the field and of its caption
    Caption word;
    std::string_view unit;  // behind the word; "$" stands for the currency
    double SelectionDuty::*value;
    unsigned families = ~0U;  // the kinds that ask for it, a bit each; see IsAskedFor
};

extern const std::array<DutyRow, 18> kDutyRows;

bool IsAskedFor(const DutyRow& row, KatalogFamilie family);

// A whole or decimal number, with a comma or a point, a sign at most in front.
bool IsDutyNumber(const std::string& text);

// The duty of the last time, from the data folder; numbers that are not there stay as they are.
void ReadDuty(const DataFiles& files, SelectionDuty& duty);
FileStatus WriteDuty(const DataFiles& files, const SelectionDuty& duty);

}  // namespace zandrell
