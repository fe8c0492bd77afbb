#include "base/calendar.h"

#include <charconv>
#include <ctime>

namespace zandrell {
namespace {

constexpr int kFirstYearOfTm = 1900;

CalendarDay DayOf(int year, unsigned month, unsigned day) {
    return CalendarDay(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day));
}

std::string Digits(unsigned number, std::size_t count) {
    std::string text = std::to_string(number);
    if (text.size() < count) text.insert(0, count - text.size(), '0');
    return text;
}

bool ReadDigits(std::string_view text, unsigned& number) {
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size();
}

}  // namespace

CalendarDay Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return DayOf(local.tm_year + kFirstYearOfTm, static_cast<unsigned>(local.tm_mon) + 1,
                 static_cast<unsigned>(local.tm_mday));
}

std::optional<CalendarDay> ReadDay(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    unsigned year = 0, month = 0, day = 0;
    if (!ReadDigits(text.substr(0, 4), year) || !ReadDigits(text.substr(5, 2), month) ||
        !ReadDigits(text.substr(8, 2), day)) {
        return std::nullopt;
    }
    const CalendarDay read = DayOf(static_cast<int>(year), month, day);
    return read.ok() ? std::optional(read) : std::nullopt;
}

std::string RuntimeDateText(CalendarDay day) {
    return Digits(static_cast<unsigned>(day.month()), 2) + "-" +
           Digits(static_cast<unsigned>(day.day()), 2) + "-" +
           Digits(static_cast<unsigned>(static_cast<int>(day.year())), 4);
}

}  // namespace zandrell
