#pragma once

#include <cmath>
#include <string>

#include "base/number_text.h"
#include "forms/control.h"

namespace zandrell {

// Shows a number; one that is not finite leaves the text as it was.
inline void ShowNumber(Control& control, double value) {
    if (std::isfinite(value)) control.text = NumberText(value);
}

// The same with a unit behind, its separating blank included.
inline void ShowNumber(Control& control, double value, std::string_view unit) {
    if (std::isfinite(value)) control.text = NumberText(value).append(unit);
}

// Enthalpies in kJ/kg are rounded to tenths, not cut.
inline void ShowEnthalpy(Control& control, double enthalpy) {
    constexpr double kHalfOfLastDecimal = 0.05;
    ShowNumber(control, Cut(enthalpy + kHalfOfLastDecimal, 10));
}

// Without the leading blank of the number.
inline void ShowTrimmedNumber(Control& control, double value, std::string_view unit) {
    if (std::isfinite(value)) control.text = TrimmedNumberText(value).append(unit);
}

}  // namespace zandrell
