#include "printing/date_text.h"

namespace zandrell {

std::string RuntimeDate(const SharedValues& shared) {
    return RuntimeDateText(shared.clock_day.value_or(Today()));
}

std::string DateInStyle(std::string_view runtime_date, std::string_view code, int style) {
    const bool month_first = runtime_date.size() > 2 && runtime_date[2] == '-';
    const auto part = [&](std::size_t at, std::size_t length) {
        return std::string(at < runtime_date.size() ? runtime_date.substr(at, length) : "");
    };
    const std::string month = month_first ? part(0, 2) : part(5, 2);
    const std::string day = month_first ? part(3, 2) : part(8, 2);
    const std::string year = month_first ? part(6, 4) : part(0, 4);
    std::string text = day + "." + month + "." + year;
    if (code == "1") text = runtime_date;
    if (code == "2" || style == 2) text = month + "-" + day + "-" + year;
    if (code == "3" || style == 3) text = month + "/" + day + "/" + year;
    if (code == "4") text = month + "/" + day + "/" + year;
    if (style == 4) text = day + "/" + month + "/" + year;
    return text;
}

void FormatDate(int style, SharedValues& shared) {
    shared.DateText = DateInStyle(RuntimeDate(shared), shared.DateFormatCode, style);
}

}  // namespace zandrell
