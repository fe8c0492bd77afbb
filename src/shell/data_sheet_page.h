#pragma once

#include <string>

#include "base/captions.h"
#include "base/shared_values.h"
#include "canvas/sheet.h"

namespace zandrell {

// A data sheet of the selection, and the files of the pictures that go with it.
struct DataSheetSource {
    std::string text;     // as DataSheetText made it
    std::string picture;  // path of the unit's picture; empty: none
    std::string logo;     // of the page header; empty: none
};

// The data sheet on one page below the header of the suite. Lines close up until all have room.
Sheet DataSheetPage(const DataSheetSource& source, SharedValues& shared, const Captions& captions);

}  // namespace zandrell
