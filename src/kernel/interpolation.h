#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace zandrell {

// Interpolation from `count` Chebyshev nodes to a polynomial's coefficients by powers.
template <std::size_t count>
class Interpolation {
  public:
    using Values = std::array<double, count>;

    Interpolation() {
        Values last{}, before{};
        for (std::size_t k = 0; k < count; ++k) {
            // T(k) = 2 x T(k - 1) - T(k - 2), by powers of x.
            Values next{};
            if (k == 0) next[0] = 1;
            for (std::size_t i = 1; k > 0 && i < count; ++i)
                next[i] = (k == 1 ? 1 : 2) * last[i - 1];
            for (std::size_t i = 0; i < count; ++i) next[i] -= before[i];
            AddChebyshev(k, next);
            before = last;
            last = next;
        }
    }

    // Place i of the nodes, from -1 to 1.
    static double Node(std::size_t i) { return std::cos(Angle(i)); }

    Values Powers(const Values& values) const {
        Values powers{};
        // What the values have in common would lose digits in the sums.
        const double common = values[count / 2];
        for (std::size_t power = 0; power < count; ++power) {
            for (std::size_t i = 0; i < count; ++i) {
                powers[power] += weights_[power][i] * (values[i] - common);
            }
        }
        powers[0] += common;
        return powers;
    }

  private:
    static double Angle(std::size_t i) {
        return std::numbers::pi * (static_cast<double>(i) + 0.5) / static_cast<double>(count);
    }
    void AddChebyshev(std::size_t k, const Values& polynomial) {
        const double scale = (k == 0 ? 1.0 : 2.0) / static_cast<double>(count);
        for (std::size_t i = 0; i < count; ++i) {
            const double weight = scale * std::cos(static_cast<double>(k) * Angle(i));
            for (std::size_t power = 0; power < count; ++power) {
                weights_[power][i] += weight * polynomial[power];
            }
        }
    }

    std::array<Values, count> weights_{};
};

}  // namespace zandrell
