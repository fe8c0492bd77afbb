#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace zandrell {

using CalendarDay = std::chrono::year_month_day;

// The day by the clock and the time zone of this machine.
CalendarDay Today();

// A day written YYYY-MM-DD; empty for anything else and for days that no calendar has.
std::optional<CalendarDay> ReadDay(std::string_view text);

// MM-DD-YYYY with leading zeros, the form in which the suite takes a date from its runtime.
std::string RuntimeDateText(CalendarDay day);

}  // namespace zandrell
