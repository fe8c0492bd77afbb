#include "printing/state_page.h"

#include <algorithm>

namespace zandrell {
namespace {

constexpr PageScale kPage{0, 0, 1000, 1000};
constexpr double kLeft = 45, kRight = 940, kTop = 180, kLine = 22, kGap = 8;
constexpr double kWordShare = 0.3;   // of the width, for the words of the figures
constexpr double kLeastColumns = 4;  // fewer states do not make wider columns
constexpr double kTitleHeight = 30;
constexpr int kFontSize = 8, kTitleSize = 10, kRuleWidth = 3;
// From so many states on the names are smaller and plain: upright A4 has no room for them else.
constexpr std::size_t kManyStates = 7;
constexpr int kNarrowNameSize = 7;

// In two lines where it has two words, so that no column is set in a size of its own.
void PrintName(Sheet& sheet, double x, double y, double right, const std::string& name) {
    const auto blank = name.find(' ');
    if (blank == std::string::npos) return sheet.Text(x, y + kLine, name, right, TextFit::Shrink);
    sheet.Text(x, y, name.substr(0, blank), right, TextFit::Shrink);
    sheet.Text(x, y + kLine, name.substr(blank + 1), right, TextFit::Shrink);
}

}  // namespace

void PrintStates(const StateList& list, const std::string& title, Sheet& sheet) {
    if (list.rows.empty()) return;
    sheet.SetScale(kPage);
    sheet.SetFontSize(kTitleSize);
    sheet.SetBold(true);
    sheet.Text(kLeft, kTop, title, kRight);
    sheet.SetFontSize(kFontSize);
    const double words = kWordShare * (kRight - kLeft);
    const double width =
        (kRight - kLeft - words) / std::max(kLeastColumns, static_cast<double>(list.rows.size()));
    const auto column = [&](std::size_t state) {
        return kLeft + words + static_cast<double>(state) * width;
    };
    double y = kTop + kTitleHeight;
    const bool narrow = list.rows.size() >= kManyStates;
    if (narrow) sheet.SetFontSize(kNarrowNameSize);
    sheet.SetBold(!narrow);
    for (std::size_t state = 0; state < list.rows.size(); ++state) {
        PrintName(sheet, column(state), y, column(state + 1) - kGap, list.rows[state][0]);
    }
    sheet.SetFontSize(kFontSize);
    sheet.SetBold(true);
    y += kLine;
    sheet.Text(kLeft, y, list.heads[0], kLeft + words - kGap, TextFit::Shrink);
    y += kLine;
    sheet.SetBold(false);
    sheet.SetLineWidth(kRuleWidth);
    sheet.Line(kLeft, y, kRight, y);
    y += kGap;
    for (std::size_t figure = 1; figure < list.heads.size(); ++figure) {
        sheet.Text(kLeft, y, list.heads[figure], kLeft + words - kGap, TextFit::Shrink);
        for (std::size_t state = 0; state < list.rows.size(); ++state) {
            sheet.Text(column(state), y, list.rows[state][figure], column(state + 1) - kGap,
                       TextFit::Shrink);
        }
        y += kLine;
    }
}

}  // namespace zandrell
