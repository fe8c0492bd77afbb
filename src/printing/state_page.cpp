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
    double y = kTop + kTitleHeight;
    for (std::size_t figure = 0; figure < list.heads.size(); ++figure) {
        sheet.Text(kLeft, y, list.heads[figure], kLeft + words - kGap, TextFit::Shrink);
        double x = kLeft + words;
        for (const auto& state : list.rows) {
            sheet.Text(x, y, state[figure], x + width - kGap, TextFit::Shrink);
            x += width;
        }
        y += kLine;
        if (figure > 0) continue;
        sheet.SetBold(false);
        sheet.SetLineWidth(kRuleWidth);
        sheet.Line(kLeft, y, kRight, y);
        y += kGap;
    }
}

}  // namespace zandrell
