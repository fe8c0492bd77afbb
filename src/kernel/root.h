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

// How a function runs near its root: its slope, about right to a hundredth, and its bend, half the
// second derivative over the slope, about right to a fifth.
struct Course {
    double slope = 0, bend = 0;
};

// The root of a function that falls, from a start close by, with the parabola that the course tells
// in place of the tangent; steps behind the first take the slope from the two values before. Ends
// when what the bend can leave of it is within `close_enough`. Empty when a step leads out of `low`
// to `high` or the steps do not get small, which leaves it to the bracketing.
template <typename Function>
std::optional<double> RootByCourse(double start, Course course, double low, double high,
                                   double close_enough, const Function& function) {
    constexpr int kMostSteps = 6;
    constexpr double kLeftByBend = 0.2;
    const double steep = course.slope * course.bend;
    double per_slope = 1 / course.slope;
    double at = start, value = function(at), last = 1 / (kLeftByBend * course.bend);
    for (int i = 0; i < kMostSteps; ++i) {
        const double straight = -value * per_slope;
        const double step = straight * (1 - course.bend * straight);
        const double next = at + step;
        if (!(next >= low && next <= high)) return std::nullopt;
        at = next;
        if (std::abs(step * last * course.bend) * kLeftByBend < close_enough) return at;
        const double found = function(at);
        if (std::abs(found) > std::abs(value)) return std::nullopt;
        // Between two places the function falls as in their middle.
        const double across = step / (found - value + steep * step * step);
        if (across < 0 && std::isfinite(across)) per_slope = across;
        value = found;
        last = step;
    }
    return std::nullopt;
}

}  // namespace zandrell
