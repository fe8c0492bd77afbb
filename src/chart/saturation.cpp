#include "chart/saturation.h"

#include "kernel/exact_air.h"

namespace zandrell {

std::optional<double> SaturatedX(Convention convention, StateSolver& solver, double t) {
    if (convention == Convention::Exact) return ExactAir(solver).SaturatedX(t);
    if (!solver.Evaluate(1, t)) return std::nullopt;
    return solver.ZustandX;
}

}  // namespace zandrell
