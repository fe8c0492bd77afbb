#include "printing/page_printer.h"

#include "printing/date_text.h"

namespace zandrell {
namespace {

constexpr std::string_view kColumnSeparator = "§$&";
constexpr int kHeaderFontSize = 8;
constexpr int kRuleWidth = 3;

// Shares of the page.
constexpr double kRuleLeft = 0.04, kRuleRight = 0.94, kTextLeft = 0.041;
constexpr double kShortLeft = 0.1;
constexpr double kLogoLeft = 0.65, kLogoTop = 0.01, kLogoBottom = 0.092;
constexpr double kPageWordLeft = 0.85;
constexpr double kColumnOffset = 0.22;
constexpr double kGap = 0.01;  // between a text and what stands behind it

std::string WithoutTrailingBlanks(const std::string& text) {
    const auto last = text.find_last_not_of(' ');
    return last == std::string::npos ? std::string() : text.substr(0, last + 1);
}

}  // namespace

std::string PagePrinter::Worded(Caption word) const {
    return captions_[word] + std::string(ColonSuffix);
}

void PagePrinter::PrintPageHeader(const std::string& title, const std::string& pageText,
                                  double width, double height, int orientation) {
    constexpr int kShortHeader = 1;
    sheet_.landscape = orientation > 1;
    sheet_.font_name = "Arial";  // whatever PrintFontName says
    sheet_.SetFontSize(kHeaderFontSize);
    sheet_.SetBold(false);
    W_ = width != 0 ? width : sheet_.WidthMm();
    H_ = height != 0 ? height : sheet_.HeightMm();
    sheet_.SetScale({0, 0, W_, H_});
    if (shared_.HeaderStyle == kShortHeader) {
        PrintShortHeader(title, pageText);
    } else {
        PrintFramedHeader(title, pageText);
    }
}

void PagePrinter::PrintShortHeader(const std::string& title, const std::string& pageText) {
    const auto print = [this](double share, const std::string& text) {
        sheet_.Text(kShortLeft * W_, share * H_, text, kRuleRight * W_);
    };
    sheet_.SetBold(true);
    print(0.1, title);
    sheet_.SetBold(false);
    print(0.12, Worded(Caption::Company) + " " + WithoutTrailingBlanks(shared_.UserCompany) +
                    "  -  " + captions_[Caption::Page] + " : " + pageText);
    print(0.14, captions_[Caption::Project] + "  : " + shared_.ProjectTitle);
    print(0.16, captions_[Caption::Remark] + " : " + shared_.ProjectRemark);
}

void PagePrinter::PrintFramedHeader(const std::string& title, const std::string& pageText) {
    sheet_.SetLineWidth(kRuleWidth);
    for (const double share : {0.005, 0.096, 0.135}) {
        sheet_.Line(kRuleLeft * W_, share * H_, kRuleRight * W_, share * H_);
    }
    const double x = kTextLeft * W_, offset = kColumnOffset * W_;
    const double beside_logo = (logo_file_.empty() ? kRuleRight : kLogoLeft - kGap) * W_;
    PrintTwoColumns(
        x, 0.005 * H_,
        shared_.AppTitle + " " + shared_.VersionText + " - " + captions_[Caption::SheetKind],
        offset, beside_logo);
    PrintTwoColumns(x, 0.022 * H_, Worded(Caption::Company) + " " + shared_.UserCompany, offset,
                    beside_logo);
    PrintTwoColumns(x, 0.037 * H_, Worded(Caption::Project) + shared_.ProjectTitle, offset,
                    beside_logo);
    PrintTwoColumns(x, 0.052 * H_, Worded(Caption::Remark) + " " + shared_.ProjectRemark, offset,
                    beside_logo);
    FormatDate(0, shared_);
    sheet_.Text(x, 0.1 * H_, Worded(Caption::Date) + shared_.DateText, kRuleRight * W_);
    sheet_.Text(kPageWordLeft * W_, 0.116 * H_, Worded(Caption::Page) + pageText, kRuleRight * W_);
    sheet_.Text(x, 0.116 * H_, title, (kPageWordLeft - kGap) * W_);
    PrintLogo();
}

void PagePrinter::PrintLogo() {
    if (logo_file_.empty()) return;
    sheet_.Picture(kLogoLeft * W_, kLogoTop * H_, kRuleRight * W_, kLogoBottom * H_, logo_file_);
}

void PagePrinter::PrintTwoColumns(double x, double y, const std::string& text, double columnOffset,
                                  double room_right) {
    const auto place = text.find(kColumnSeparator);
    if (place == std::string::npos) {
        sheet_.Text(x, y, text, room_right);
        return;
    }
    sheet_.Text(x, y, text.substr(0, place), x + columnOffset - kGap * W_);
    sheet_.Text(x + columnOffset, y, text.substr(place + kColumnSeparator.size()), room_right);
}

}  // namespace zandrell
