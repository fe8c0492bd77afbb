#include "selection/sheet_writer.h"

#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr std::string_view kIndent = "        ";
constexpr std::string_view kLineEnd = "\r\n";
constexpr int kRuleLength = 155;

}  // namespace

void SheetWriter::Line(std::string_view text) {
    text_.append(kIndent).append(text).append(kLineEnd);
    blank_is_own_ = false;
}

void SheetWriter::LineWithBlank(std::string_view text) {
    Line(text);
    text_.append(kLineEnd);
    blank_is_own_ = true;
}

void SheetWriter::Empty() {
    if (!std::exchange(blank_is_own_, false)) text_.append(kLineEnd);
}

void SheetWriter::Rule() { LineWithBlank(std::string(kRuleLength, '-')); }

void SheetWriter::Pair(std::string_view label, std::string_view join, std::string_view value) {
    Line(std::string(label).append(join).append(value));
}

std::pair<std::string, std::string> SplitAt(std::string_view text, std::string_view mark) {
    const auto place = text.find(mark);
    if (place == std::string_view::npos) return {Trimmed(text), ""};
    return {Trimmed(text.substr(0, place)), Trimmed(text.substr(place + mark.size()))};
}

}  // namespace zandrell
