#include "selection/cubic_spline.h"

#include <algorithm>
#include <utility>

namespace zandrell {

// The curvatures at the places follow from equal slopes on both sides of each: a tridiagonal
// system, solved forward and back. The ends have none.
CubicSpline::CubicSpline(std::vector<double> places, std::vector<double> values)
    : places_(std::move(places)), values_(std::move(values)), curvatures_(places_.size(), 0) {
    const std::size_t count = places_.size();
    std::vector<double> factors(count, 0);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const double before = places_[i] - places_[i - 1], behind = places_[i + 1] - places_[i];
        const double share = before / (before + behind);
        const double pivot = share * factors[i - 1] + 2;
        factors[i] = (share - 1) / pivot;
        const double bend =
            (values_[i + 1] - values_[i]) / behind - (values_[i] - values_[i - 1]) / before;
        curvatures_[i] = (6 * bend / (before + behind) - share * curvatures_[i - 1]) / pivot;
    }
    for (std::size_t i = count; i-- > 1;) {
        curvatures_[i - 1] += factors[i - 1] * curvatures_[i];
    }
}

double CubicSpline::operator()(double place) const {
    const auto above = std::upper_bound(places_.begin() + 1, places_.end() - 1, place);
    const auto high = static_cast<std::size_t>(above - places_.begin());
    const std::size_t low = high - 1;
    const double width = places_[high] - places_[low];
    const double a = (places_[high] - place) / width, b = 1 - a;
    const double bent = (a * a * a - a) * curvatures_[low] + (b * b * b - b) * curvatures_[high];
    return a * values_[low] + b * values_[high] + bent * width * width / 6;
}

}  // namespace zandrell
