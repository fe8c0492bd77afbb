#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/control.h"

namespace zandrell {

// Bars of temperatures and humidities count in tenths of what their field shows.
inline constexpr double kBarUnitsPerField = 10;

// A scroll bar: a position within a range, and a handler that runs whenever the position really
// changes, at once and inside the call that moves it. A range whose low end lies above its high end
// spans the numbers between them.
class ScrollBar : public Control {
  public:
    explicit ScrollBar(std::string_view bar_name, int low_end = 0, int high_end = 1000);

    int Position() const { return position_; }
    int LowEnd() const { return low_end_; }
    int HighEnd() const { return high_end_; }

    // Refuses a position outside the range: nothing moves, nothing fires, and the result is false.
    // An empty position, a number that could not be rounded, is refused too.
    bool SetPosition(std::optional<int> position);

    // The position as text, and as what a field shows for it that the bar counts in tenths.
    std::string PositionText() const;
    std::string TenthsText() const;

    // The position that stands for a field's value; one outside the range is refused.
    bool ShowTenths(double value);

    // A position that no longer fits moves to the nearer end and fires.
    void SetRange(int low_end, int high_end);
    void SetLowEnd(int low_end) { SetRange(low_end, high_end_); }
    void SetHighEnd(int high_end) { SetRange(low_end_, high_end); }

    std::function<void()> on_change;

  private:
    void MoveTo(int position);

    int low_end_;
    int high_end_;
    int position_ = 0;
};

}  // namespace zandrell
