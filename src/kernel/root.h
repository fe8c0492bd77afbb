#pragma once

#include <cmath>
#include <optional>

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

// The root of a function that falls, found by its slope from `start`: `slope` tells it about right,
// to a tenth, so that each step leaves a small part of the distance; steps behind the first take it
// from the two values before. Empty when a step leads out of `low` to `high` or the steps do not
// get small, which leaves it to the bracketing.
template <typename Function>
std::optional<double> RootBySlope(double start, double slope, double low, double high,
                                  double close_enough, const Function& function) {
    constexpr int kMostSteps = 6;
    double at = start, value = function(at);
    for (int i = 0; i < kMostSteps; ++i) {
        const double step = -value / slope;
        const double next = at + step;
        if (!(next >= low && next <= high)) return std::nullopt;
        at = next;
        if (std::abs(step) < close_enough) return at;
        const double found = function(at);
        if (std::abs(found) > std::abs(value)) return std::nullopt;
        const double secant = (found - value) / step;
        if (secant < 0 && std::isfinite(secant)) slope = secant;
        value = found;
    }
    return std::nullopt;
}

}  // namespace zandrell
