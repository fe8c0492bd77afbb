#include "kernel/inverse_state.h"

#include <cmath>

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr double kSaturation = 1;

// The solver as a search uses it: remembers whether it refused a state.
class SearchedStates {
  public:
    explicit SearchedStates(StateSolver& solver) : solver_(solver) {}

    const AirState& At(double relF, double t) {
        if (!solver_.Evaluate(relF, t)) refused_ = true;
        return solver_;
    }
    // At humidity ratio x (g/kg), taken as its share of that of saturation.
    const AirState& AtHumidityRatio(double x, double t) {
        double relF = 0;
        AssignFinite(relF, x / At(kSaturation, t).ZustandX);
        return At(relF, t);
    }
    SearchResult Result(double value, bool met) const {
        if (refused_) return {value, SearchEnd::NoState};
        return {value, met ? SearchEnd::Found : SearchEnd::OutOfReach};
    }

  private:
    StateSolver& solver_;
    bool refused_ = false;
};

SearchResult EstimateFromDryAir(SearchedStates& states, double t_start, double h_target,
                                int rel_percent) {
    const double dry_air_enthalpy = states.At(rel_percent / 100.0, t_start).ZustandHLuft;
    double t = 0;
    if (t_start != 0) AssignFinite(t, t_start * h_target / dry_air_enthalpy);
    return states.Result(t, true);
}

}  // namespace

SearchResult RelFeuchteAusX(StateSolver& solver, double t, double x_target) {
    constexpr double kTolerance = 0.005;  // g/kg
    constexpr int kRoundsEnd = 60;
    SearchedStates states(solver);
    double f = 0.5, d = 0.5;
    double x = 200;  // g/kg; only a target that equals it is taken for met without a round
    const auto gap = [&] { return std::abs(x_target - x); };
    for (int round = 1; gap() > kTolerance && round < kRoundsEnd; ++round) {
        states.At(kSaturation, t);
        x = states.At(f, t).ZustandX;
        // f moves in the round that met the tolerance too: half a step past the humidity found.
        if (x_target < x) f -= d / 2;
        if (x_target > x) f += d / 2;
        d /= 2;
    }
    return states.Result(f * 100, gap() <= kTolerance);
}

SearchResult TempAusEnthalpie(StateSolver& solver, double t_start, double h_target,
                              EnthalpySearch kind, double& step, int rel_percent, double x) {
    constexpr double kTolerance = 0.01;  // kJ/kg
    constexpr int kRoundsEnd = 40;
    SearchedStates states(solver);
    if (kind == EnthalpySearch::DryAirEstimate) {
        return EstimateFromDryAir(states, t_start, h_target, rel_percent);
    }
    const auto enthalpy = [&](double t) {
        return kind == EnthalpySearch::RelativeHumidity ? states.At(rel_percent / 100.0, t).ZustandH
                                                        : states.AtHumidityRatio(x, t).ZustandH;
    };
    double t = t_start;
    double h = enthalpy(t);
    const auto gap = [&] { return std::abs(h_target - h); };
    for (int round = 1; gap() > kTolerance; ++round) {
        step /= 2;  // also in the round that ends the search
        if (round == kRoundsEnd) break;
        t += h_target > h ? step : -step;
        h = enthalpy(t);
    }
    return states.Result(t, gap() <= kTolerance);
}

SearchResult TempAusDichte(StateSolver& solver, double t_start, double rho_target,
                           DensitySearch kind) {
    constexpr double kTolerance = 0.0001;  // kg/m3
    constexpr int kMostMoves = 30;
    constexpr double kDryEdgeHumidity = 0.01;
    const double relF = kind == DensitySearch::DryEdge ? kDryEdgeHumidity : kSaturation;
    SearchedStates states(solver);
    double d = 8;  // K
    double t = t_start + d;
    double density = states.At(relF, t).ZustandDichte;
    const auto gap = [&] { return std::abs(rho_target - density); };
    for (int move = 1; gap() > kTolerance && move <= kMostMoves; ++move) {
        t += rho_target < density ? d : -d;  // warmer air is thinner
        density = states.At(relF, t).ZustandDichte;
        d /= 2;  // after the move, so the first one is a full 8 K
    }
    return states.Result(t, gap() <= kTolerance);
}

}  // namespace zandrell
