#pragma once

#include <cstddef>

#include "kernel/air_state.h"

namespace zandrell {

// The fits of real air (real_air_fits.h) are polynomials in this variable of t in degC.
inline constexpr double kTriplePoint = 273.16;  // K
constexpr double FitVariable(double t) { return kTriplePoint / (t + kKelvinOffset) - 1; }

template <typename Coefficients>
constexpr double FitAt(const Coefficients& coefficients, double w) {
    double value = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) value = value * w + coefficients[i];
    return value;
}

}  // namespace zandrell
