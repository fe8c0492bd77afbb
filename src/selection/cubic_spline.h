#pragma once

#include <vector>

namespace zandrell {

// A natural cubic spline: twice differentiable, straight beyond its ends.
class CubicSpline {
  public:
    CubicSpline() = default;
    // Requires: as many values as places, at least two, places strictly ascending.
    CubicSpline(std::vector<double> places, std::vector<double> values);

    double operator()(double place) const;

  private:
    std::vector<double> places_, values_, curvatures_;
};

}  // namespace zandrell
