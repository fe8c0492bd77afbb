#pragma once

#include <string>
#include <string_view>

#include "base/shared_values.h"

namespace zandrell {

// The date text of the runtime for the day that the program sees, MM-DD-YYYY.
std::string RuntimeDate(const SharedValues& shared);

// The date in a style: by the shared code "1" to "4", or by `style` 2 to 4, which wins over the
// code. `runtime_date` is MM-DD-YYYY, or YYYY-MM-DD. Code "4" gives M/D/Y although style 4 gives
// D/M/Y; this asymmetry is meant.
std::string DateInStyle(std::string_view runtime_date, std::string_view code, int style);

// Sets `DateText` to the present date by DateFormatCode and `style`; 0 leaves it to the code.
void FormatDate(int style, SharedValues& shared);

}  // namespace zandrell
