#pragma once

#include <string>

#include "selection/selection_context.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The name of the data sheet in the data folder.
inline constexpr std::string_view kDataSheetFile = "BT_calc.DAT";

// Marks inside the lines of a data sheet.
inline constexpr std::string_view kValueMark = "§$&";     // in front of a value
inline constexpr std::string_view kSectionMark = "&$$";   // in front of a section head
inline constexpr std::string_view kClassMark = "§§§$$$";  // in front of an efficiency class
inline constexpr std::string_view kPictureMark = "Part_Pic";
inline constexpr std::string_view kSketchMark = "VDBild";
inline constexpr std::string_view kClassLine = "Eff_class";

// The data sheet of the chosen unit as the suite's print module reads it: lines of a label, the
// mark and a value, CR LF behind each. A line whose figure cannot be formed is left out. `date` is
// the day in the style of the settings.
std::string DataSheetText(const SelectionContext& context, const VentZeigControls& controls,
                          const std::string& date);

}  // namespace zandrell
