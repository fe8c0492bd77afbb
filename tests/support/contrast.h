#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zandrell {

// Relative luminance and contrast ratio of two colours (0xRRGGBB) as the Web Content Accessibility
// Guidelines 2.1 define them: 1 for no contrast, 21 for black on white.
inline double Luminance(std::uint32_t rgb) {
    const auto linear = [](std::uint32_t channel) {
        const double share = channel / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(rgb >> 16U & 0xFFU) + 0.7152 * linear(rgb >> 8U & 0xFFU) +
           0.0722 * linear(rgb & 0xFFU);
}

inline double ContrastOfLuminances(double one, double other) {
    const auto [dark, light] = std::minmax({one, other});
    return (light + 0.05) / (dark + 0.05);
}
inline double Contrast(std::uint32_t one, std::uint32_t other) {
    return ContrastOfLuminances(Luminance(one), Luminance(other));
}

inline constexpr double kLeastLineContrast = 3, kLeastTextContrast = 4.5;

}  // namespace zandrell
