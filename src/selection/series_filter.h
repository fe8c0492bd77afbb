#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/data_files.h"

namespace zandrell {

// Texts of series that are not to be offered.
using HiddenSeries = std::vector<std::string>;

// One text a line, up to the first line that is blank, `""` among them. A list that begins with
// a blank line hides nothing.
HiddenSeries ParseHiddenSeries(std::string_view text);

// From Prodhide.dat; a missing file hides nothing.
HiddenSeries ReadHiddenSeries(const DataFiles& files);

// What Ventp is asked.
inline constexpr int kIsHidden = 1;
inline constexpr int kIsMissing = 2;

// Mode 1: 1 if a hidden text occurs inside `name`, else 0; `list` is not used. Mode 2: 0 if the
// trimmed `list` occurs inside `name`, which an empty one does, else 1. The two answer in opposite
// senses: each says 1 where a series is to be left out. Any other mode: 0. Upper and lower case
// make no difference.
int Ventp(std::string_view name, int mode, std::string_view list, const HiddenSeries& hidden);

}  // namespace zandrell
