#include "forms/scroll_bar.h"

#include <algorithm>

#include "base/number_text.h"

namespace zandrell {

ScrollBar::ScrollBar(std::string_view bar_name, int low_end, int high_end)
    : Control(bar_name, ControlKind::ScrollBar), low_end_(low_end), high_end_(high_end) {}

bool ScrollBar::SetPosition(std::optional<int> position) {
    if (!position) return false;
    const auto [least, most] = std::minmax(low_end_, high_end_);
    if (*position < least || *position > most) return false;
    MoveTo(*position);
    return true;
}

std::string ScrollBar::PositionText() const { return TrimmedNumberText(position_); }

std::string ScrollBar::TenthsText() const {
    return TrimmedNumberText(position_ / kBarUnitsPerField);
}

bool ScrollBar::ShowTenths(double value) {
    return SetPosition(RoundToInteger(kBarUnitsPerField * value));
}

void ScrollBar::SetRange(int low_end, int high_end) {
    low_end_ = low_end;
    high_end_ = high_end;
    const auto [least, most] = std::minmax(low_end_, high_end_);
    MoveTo(std::clamp(position_, least, most));
}

void ScrollBar::MoveTo(int position) {
    if (position == position_) return;
    position_ = position;
    if (on_change) on_change();
}

}  // namespace zandrell
