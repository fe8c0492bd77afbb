#include "kernel/inverse_state.h"

#include <cmath>

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr double kSaturation = 1;

double EnthalpyAtHumidity(StateSolver& solver, double t, int rel_percent) {
    solver.Evaluate(rel_percent / 100.0, t);
    return solver.ZustandH;
}

double EnthalpyAtHumidityRatio(StateSolver& solver, double t, double x) {
    solver.Evaluate(kSaturation, t);
    double relF = 0;
    AssignFinite(relF, x / solver.ZustandX);
    solver.Evaluate(relF, t);
    return solver.ZustandH;
}

double EstimateFromDryAir(StateSolver& solver, double t_start, double h_target, int rel_percent) {
    solver.Evaluate(rel_percent / 100.0, t_start);
    double t = 0;
    if (t_start != 0) AssignFinite(t, t_start * h_target / solver.ZustandHLuft);
    return t;
}

}  // namespace

double RelFeuchteAusX(StateSolver& solver, double t, double x_target) {
    constexpr double kTolerance = 0.005;  // g/kg
    constexpr int kRoundsEnd = 60;
    double f = 0.5, d = 0.5;
    double x = 200;  // g/kg; only a target that equals it is taken for met without a round
    for (int round = 1; std::abs(x_target - x) > kTolerance && round < kRoundsEnd; ++round) {
        solver.Evaluate(kSaturation, t);
        solver.Evaluate(f, t);
        x = solver.ZustandX;
        // f moves in the round that met the tolerance too: half a step past the humidity found.
        if (x_target < x) f -= d / 2;
        if (x_target > x) f += d / 2;
        d /= 2;
    }
    return f * 100;
}

double TempAusEnthalpie(StateSolver& solver, double t_start, double h_target, EnthalpySearch kind,
                        double& step, int rel_percent, double x) {
    constexpr double kTolerance = 0.01;  // kJ/kg
    constexpr int kRoundsEnd = 40;
    if (kind == EnthalpySearch::DryAirEstimate) {
        return EstimateFromDryAir(solver, t_start, h_target, rel_percent);
    }
    const auto enthalpy = [&](double t) {
        return kind == EnthalpySearch::RelativeHumidity ? EnthalpyAtHumidity(solver, t, rel_percent)
                                                        : EnthalpyAtHumidityRatio(solver, t, x);
    };
    double t = t_start;
    double h = enthalpy(t);
    for (int round = 1; std::abs(h_target - h) > kTolerance; ++round) {
        step /= 2;  // also in the round that ends the search
        if (round == kRoundsEnd) break;
        t += h_target > h ? step : -step;
        h = enthalpy(t);
    }
    return t;
}

double TempAusDichte(StateSolver& solver, double t_start, double rho_target, DensitySearch kind) {
    constexpr double kTolerance = 0.0001;  // kg/m3
    constexpr int kMostMoves = 30;
    constexpr double kDryEdgeHumidity = 0.01;
    const double relF = kind == DensitySearch::DryEdge ? kDryEdgeHumidity : kSaturation;
    double d = 8;  // K
    double t = t_start + d;
    solver.Evaluate(relF, t);
    for (int move = 1; move <= kMostMoves; ++move) {
        if (!(std::abs(rho_target - solver.ZustandDichte) > kTolerance)) break;
        t += rho_target < solver.ZustandDichte ? d : -d;  // warmer air is thinner
        solver.Evaluate(relF, t);
        d /= 2;  // after the move, so the first one is a full 8 K
    }
    return t;
}

}  // namespace zandrell
