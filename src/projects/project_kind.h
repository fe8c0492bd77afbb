#pragma once

#include <string>
#include <string_view>

namespace zandrell {

// What a kind of start (`ProjektArt`) does with the working state. Kind 0 is a start without a
// hand-over; the others are asked for by a sibling module.
struct ProjectKind {
    bool takes_items = true;         // of the hand-over, behind the kind itself
    bool keeps_state = true;         // loads and saves the working state at all
    bool loads_own_file = true;      // at the start: the file that was handed over, else QV_ACT.dat
    bool saves_own_file = true;      // the same at the end
    bool temperature_lines = false;  // two lines on the chart
    bool own_pressure = false;       // and the plant opens at once
};

inline constexpr int kPlainStart = 0, kFirstKindWithLines = 1, kLastKindWithLines = 4,
                     kKindWithoutState = 5, kKindWithPressure = 111;

constexpr ProjectKind KindOf(int ProjektArt) {
    if (ProjektArt == kPlainStart) return {.loads_own_file = false, .saves_own_file = false};
    if (ProjektArt >= kFirstKindWithLines && ProjektArt <= kLastKindWithLines) {
        return {.temperature_lines = true};
    }
    if (ProjektArt == kKindWithoutState) return {.takes_items = false, .keeps_state = false};
    if (ProjektArt == kKindWithPressure) return {.own_pressure = true};
    return {.saves_own_file = false};
}

}  // namespace zandrell
