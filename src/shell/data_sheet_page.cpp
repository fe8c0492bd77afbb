#include "shell/data_sheet_page.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/text_encoding.h"
#include "printing/page_printer.h"
#include "selection/data_sheet.h"

namespace zandrell {
namespace {

enum class LineKind { Blank, Rule, Head, Picture, Class, Sketch, Pair };

struct SheetLine {
    LineKind kind = LineKind::Blank;
    std::string label, value;
};

// Of the page; the header of the suite ends above kTop.
constexpr double kTop = 0.15, kBottom = 0.975, kLeft = 0.06, kRight = 0.94, kTab = 0.48;
constexpr double kLargestPitch = 4.6;  // mm
constexpr double kPictureSide = 25;    // mm

// In pitches.
double HeightOf(LineKind kind) {
    switch (kind) {
        case LineKind::Blank:
            return 0.3;
        case LineKind::Rule:
            return 0.5;
        case LineKind::Picture:
            return 0;
        case LineKind::Class:
            return 1.5;
        case LineKind::Sketch:
            return 9;
        case LineKind::Head:
        case LineKind::Pair:
            break;
    }
    return 1;
}

// A point with blanks behind it only places a word on the print module's page; the point of a
// figure below 1 has none.
std::string WithoutPlacing(std::string_view text) {
    if (text.starts_with(". ")) text.remove_prefix(1);
    return Trimmed(text);
}

SheetLine LineOf(std::string_view text) {
    const std::string line = Trimmed(text);
    if (line.empty()) return {};
    if (line.find_first_not_of('-') == std::string::npos) return {LineKind::Rule, "", ""};
    if (line == kPictureMark) return {LineKind::Picture, "", ""};
    if (line == kSketchMark) return {LineKind::Sketch, "", ""};
    if (line.starts_with(kSectionMark)) {
        return {LineKind::Head, Trimmed(line.substr(kSectionMark.size())), ""};
    }
    if (const auto mark = line.find(kClassMark); mark != std::string::npos) {
        return {LineKind::Class, "", Trimmed(line.substr(mark + kClassMark.size()))};
    }
    const auto mark = line.find(kValueMark);
    if (mark == std::string::npos) return {LineKind::Pair, line, ""};
    return {LineKind::Pair, WithoutPlacing(line.substr(0, mark)),
            WithoutPlacing(line.substr(mark + kValueMark.size()))};
}

std::vector<SheetLine> LinesOf(std::string_view text) {
    std::vector<SheetLine> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(LineOf(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

class PageWriter {
  public:
    PageWriter(Sheet& sheet, const DataSheetSource& source, const std::vector<SheetLine>& lines)
        : sheet_(sheet), source_(source), lines_(lines) {
        double height = 0;
        for (const SheetLine& line : lines) height += HeightOf(line.kind);
        const double room = (kBottom - kTop) * sheet.HeightMm();
        pitch_ = std::min(kLargestPitch, height > 0 ? room / height : kLargestPitch);
        font_size_ = pitch_ < 3.4 ? 7 : 8;
        y_ = kTop * sheet.HeightMm();
    }

    void Write() {
        sheet_.SetScale({0, 0, sheet_.WidthMm(), sheet_.HeightMm()});
        sheet_.SetFontSize(font_size_);
        sheet_.SetLineWidth(1);
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            if (lines_[i].kind == LineKind::Sketch) {
                i += WriteSketch(i);
            } else {
                WriteLine(lines_[i]);
            }
        }
    }

  private:
    double X(double share) const { return share * sheet_.WidthMm(); }

    void WriteLine(const SheetLine& line) {
        const double height = HeightOf(line.kind) * pitch_;
        if (line.kind == LineKind::Rule) {
            sheet_.Line(X(kLeft), y_ + height / 2, X(kRight), y_ + height / 2);
        }
        if (line.kind == LineKind::Head) {
            sheet_.SetBold(true);
            sheet_.Text(X(kLeft), y_, line.label, X(kRight));
            sheet_.SetBold(false);
        }
        if (line.kind == LineKind::Picture && !source_.picture.empty()) {
            sheet_.Picture(X(kRight) - kPictureSide, y_ + pitch_, X(kRight),
                           y_ + pitch_ + kPictureSide, source_.picture);
        }
        if (line.kind == LineKind::Class) WriteClass(line.value);
        if (line.kind == LineKind::Pair) {
            const double tab = line.value.empty() ? X(kRight) : X(kTab) - 2;
            sheet_.Text(X(kLeft), y_, line.label, tab, TextFit::Shrink);
            sheet_.Text(X(kTab), y_, line.value, X(kRight), TextFit::Shrink);
        }
        y_ += height;
    }

    // The scale of the classes, a frame around the one of the unit.
    void WriteClass(const std::string& name) {
        constexpr std::array<const char*, 7> kClasses = {"A++", "A+", "A", "B", "C", "D", "E"};
        constexpr double kStep = 11;  // mm
        for (std::size_t i = 0; i < kClasses.size(); ++i) {
            const double x = X(kLeft) + static_cast<double>(i) * kStep;
            const bool own = name == kClasses[i];
            sheet_.SetBold(own);
            sheet_.Text(x + 2, y_ + 0.2 * pitch_, kClasses[i], x + kStep);
            if (own) Frame(x, y_, x + kStep - 1, y_ + 1.2 * pitch_);
        }
        sheet_.SetBold(false);
    }

    void Frame(double left, double top, double right, double bottom) {
        sheet_.Line(left, top, right, top);
        sheet_.Line(right, top, right, bottom);
        sheet_.Line(right, bottom, left, bottom);
        sheet_.Line(left, bottom, left, top);
    }

    // The air cools down from right to left above the evaporating temperature. The words are those
    // of the three lines behind the mark, which the sketch takes in.
    std::size_t WriteSketch(std::size_t mark) {
        std::array<SheetLine, 3> words;
        std::size_t taken = 0;
        for (std::size_t i = mark + 1; i < lines_.size() && taken < words.size(); ++i) {
            if (lines_[i].kind == LineKind::Pair) words[taken++] = lines_[i];
        }
        const double left = X(kLeft) + 38, right = X(kRight) - 60;
        const double top = y_ + pitch_, bottom = y_ + 7.5 * pitch_;
        const double leaving = y_ + 4 * pitch_, middle = (left + right) / 2;
        sheet_.SetLineWidth(3);
        sheet_.Line(left, bottom, right, bottom);
        sheet_.Line(left, leaving, right, top);
        sheet_.SetLineWidth(1);
        sheet_.Line(left, leaving, left, bottom);
        sheet_.Line(right, top, right, bottom);
        Arrow(middle, (leaving + top) / 2, bottom);
        sheet_.Text(left - 36, leaving - pitch_ / 2, words[0].label, left - 1);
        sheet_.Text(right + 3, top - pitch_ / 2, words[0].value, X(kRight));
        sheet_.Text(right + 3, (top + bottom) / 2, words[1].value, X(kRight));
        sheet_.Text(middle + 2, bottom - 2.5 * pitch_, words[2].label, right);
        sheet_.Text(right + 3, bottom - pitch_ / 2, words[2].value, X(kRight));
        y_ += HeightOf(LineKind::Sketch) * pitch_;
        std::size_t passed = mark;
        for (std::size_t i = mark + 1; i < lines_.size() && taken > 0; ++i) {
            passed = i;
            if (lines_[i].kind == LineKind::Pair) --taken;
        }
        return passed - mark;
    }

    void Arrow(double x, double top, double bottom) {
        constexpr double kHead = 1.2;  // mm
        sheet_.Line(x, top, x, bottom);
        for (const double side : {-kHead, kHead}) {
            sheet_.Line(x, top, x + side, top + 2 * kHead);
            sheet_.Line(x, bottom, x + side, bottom - 2 * kHead);
        }
    }

    Sheet& sheet_;
    const DataSheetSource& source_;
    const std::vector<SheetLine>& lines_;
    double pitch_ = kLargestPitch;
    int font_size_ = 8;
    double y_ = 0;
};

}  // namespace

Sheet DataSheetPage(const DataSheetSource& source, SharedValues& shared, const Captions& captions) {
    Sheet sheet;
    sheet.paper = shared.PaperSize;
    sheet.title = captions[Caption::ComponentSelection];
    PagePrinter(sheet, shared, captions, source.logo)
        .PrintPageHeader(sheet.title, "1", 0, 0, shared.PaperOrientation);
    const auto lines = LinesOf(source.text);
    PageWriter(sheet, source, lines).Write();
    return sheet;
}

}  // namespace zandrell
