#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace zandrell {

// Lines of a data sheet. Some bring an empty line of their own; where that meets an empty line that
// stands there anyway, one remains.
class SheetWriter {
  public:
    void Line(std::string_view text);
    void LineWithBlank(std::string_view text);
    void Empty();
    // The rule across the page.
    void Rule();
    // A label and its value; `join` stands between them.
    void Pair(std::string_view label, std::string_view join, std::string_view value);

    const std::string& Text() const { return text_; }

  private:
    std::string text_;
    bool blank_is_own_ = false;
};

// A text in front of the first `mark` and behind it, both trimmed. Without a mark all of it is in
// front.
std::pair<std::string, std::string> SplitAt(std::string_view text, std::string_view mark);

}  // namespace zandrell
