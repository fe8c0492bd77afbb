#pragma once

#include <string_view>

namespace zandrell {

// Files of the data folder that more than one room of the house knows.
inline constexpr std::string_view kChartSettingsFile = "qv_par.dat";
inline constexpr std::string_view kCoefficientFile = "qvdata.dat";
// The inputs of the main window, unless a hand-over names another file.
inline constexpr std::string_view kWorkingStateFile = "QV_ACT.dat";

}  // namespace zandrell
