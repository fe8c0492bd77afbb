#pragma once

#include <cmath>

namespace zandrell {

// Where a function that falls from `low` to `high` passes 0, or jumps past it, by false position; a
// side that stays for the second time is given half its weight (Illinois), so that both close.
// Ends when the function is within `close_enough` of 0, or after 60 rounds. Requires: not below 0
// at `low`, not above it at `high`.
template <typename Function>
double RootOfFalling(double low, double high, double close_enough, const Function& function) {
    constexpr int kMostRounds = 60;
    double at_low = function(low), at_high = function(high);
    int side = 0;  // which end moved last
    for (int round = 0; round < kMostRounds && at_low != at_high; ++round) {
        const double middle = (low * at_high - high * at_low) / (at_high - at_low);
        const double found = function(middle);
        if (std::abs(found) < close_enough) return middle;
        if (found > 0) {
            low = middle;
            at_low = found;
            if (side == -1) at_high /= 2;
            side = -1;
        } else {
            high = middle;
            at_high = found;
            if (side == 1) at_low /= 2;
            side = 1;
        }
    }
    return (low + high) / 2;
}

}  // namespace zandrell
