#pragma once

#include <algorithm>
#include <cmath>

#include "kernel/real_air.h"
#include "kernel/root.h"

namespace zandrell {

inline const double kLiquidFrom = std::nextafter(kIceUpTo, 1.0);  // degC

// The temperature in degC at which a vapour pressure saturates. `excess`, the logarithm of that
// pressure over the saturation pressure, falls with the temperature; the search ends within `close`
// of 0. Water dissolves air and ice does not, so that saturation drops where ice melts and some
// pressures are met on both sides: there over ice, no higher than the temperature of the air
// itself. Requires: not below 0 at `low`, where there is ice, and not above it at `high`.
template <typename Function>
double FrostOrDewPoint(double low, double high, double close, const Function& excess) {
    constexpr double kRounding = 1e-7;  // a pressure of eight digits
    const double over_ice = excess(kIceUpTo);
    if (over_ice <= 0) return RootOfFalling(low, kIceUpTo, close, excess);
    if (over_ice <= kRounding) return kIceUpTo;
    return RootOfFalling(kLiquidFrom, high, close, excess);
}

// A dew point or wet bulb as found for air of t in degC and relF: saturated air has its own
// temperature to the last digit, and no air a higher one than its own.
inline double WithinAir(double found, double t, double relF) {
    constexpr double kRounding = 1e-6;  // K
    return relF >= 1 && std::abs(found - t) < kRounding ? t : std::min(found, t);
}

}  // namespace zandrell
