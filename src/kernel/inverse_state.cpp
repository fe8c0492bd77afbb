#include "kernel/inverse_state.h"

#include <cmath>

#include "base/number_text.h"
#include "kernel/state_arithmetic.h"

namespace zandrell {
namespace {

constexpr double kSaturation = 1;

struct HumidityRatio {
    double g_per_kg = 0;
};

// By how much a figure lies above its target, times a positive scale: a figure that is a quotient
// is compared without waiting for the division.
struct Excess {
    double amount = 0, scale = 1;
    bool Exceeds(double tolerance) const { return std::abs(amount) > tolerance * scale; }
    bool Within(double tolerance) const { return std::abs(amount) <= tolerance * scale; }
};

// A temperature at which a search can go without whole states: covered by the table, below
// boiling, and with air enough left in it.
struct DensityPoint {
    double T = 0, p_bar = 0, saturated_density = 0;
    MixedAir Mix(double relF) const { return MixAt(p_bar, T, saturated_density, relF); }
};

struct EnthalpyPoint : DensityPoint {
    EnthalpyPoint(double t, double bar, const StateTable::Entry& found)
        : DensityPoint{t + kKelvinOffset, bar, found.saturated_density}, entry(found) {}

    StateTable::Entry entry;

    Excess EnthalpyAbove(double h_target, const MixedAir& air, double relF) const {
        const double moist = air.vapour_density * air.gas_term * VapourEnthalpy(entry, air, relF);
        return {(DryAirEnthalpy(entry, T) - h_target) * air.air_pressure + moist, air.air_pressure};
    }
};

Excess DensityAbove(double rho_target, const MixedAir& air) {
    constexpr double kLighter = kDensityFactor * (1 - kMolarMassRatio);
    const double vapour = air.vapour_density * air.gas_term * kLighter;
    return {air.total_pressure * (air.air_pressure - vapour) -
                rho_target * air.gas_term * air.air_pressure,
            air.gas_term * air.air_pressure};
}

// The solver as a search uses it: it is asked for a whole state where the tables do not serve, and
// at the end for the last state that the search came by. Remembers whether it refused one.
class SearchedStates {
  public:
    explicit SearchedStates(StateSolver& solver)
        : solver_(solver), tables_(solver.Tables()), pressure_(solver.KeptPressure()) {}

    // The current state after relF and t were asked for; a refused call leaves the one before it.
    const AirState& At(double relF, double t) {
        Settle();
        if (!solver_.Evaluate(relF, t)) refused_ = true;
        pressure_ = solver_.KeptPressure();
        return solver_;
    }

    // By its formula to the last digit, not by the table: it goes into a result.
    double DryAirEnthalpyAt(double relF, double t) {
        const double current = At(relF, t).ZustandHLuft;
        return refused_ ? current : DryAirEnthalpy(tables_, t + kKelvinOffset);
    }

    // Makes the search's pressure the solver's, where another call has left a different one.
    void KeepPressure(double t) {
        if (pressure_ == nullptr) At(kSaturation, t);
    }

    Excess EnthalpyAbove(double h_target, double relF, double t) {
        if (Tabulated(t)) {
            const EnthalpyPoint point(t, pressure_->p_bar, tables_.states->At(t));
            const MixedAir air = point.Mix(relF);
            if (Leaves(air, relF, t)) return point.EnthalpyAbove(h_target, air, relF);
        }
        return {At(relF, t).ZustandH - h_target};
    }

    // At humidity ratio x (g/kg), taken as its share of that of saturation.
    Excess EnthalpyAbove(double h_target, double t, HumidityRatio x) {
        double relF = 0;
        if (Tabulated(t)) {
            const EnthalpyPoint point(t, pressure_->p_bar, tables_.states->At(t));
            const MixedAir saturated = point.Mix(kSaturation);
            if (Leaves(saturated, kSaturation, t)) {
                AssignFinite(relF, x.g_per_kg / (1000 * saturated.x));
                double p_bar = point.p_bar;
                ClampArguments(relF, p_bar);
                const MixedAir air = point.Mix(relF);
                if (Leaves(air, relF, t)) return point.EnthalpyAbove(h_target, air, relF);
                relF = 0;
            }
        }
        AssignFinite(relF, x.g_per_kg / At(kSaturation, t).ZustandX);
        return {At(relF, t).ZustandH - h_target};
    }

    Excess DensityAbove(double rho_target, double relF, double t) {
        if (Tabulated(t)) {
            const MixedAir air = DensityAt(t).Mix(relF);
            if (Leaves(air, relF, t)) return zandrell::DensityAbove(rho_target, air);
        }
        return {At(relF, t).ZustandDichte - rho_target};
    }

    // Null where x does not rise with humidity all the way to saturation, or the table ends.
    std::optional<DensityPoint> RisingPoint(double t) const {
        if (!Tabulated(t)) return std::nullopt;
        const DensityPoint point = DensityAt(t);
        if (TableIsTooCoarse(point.Mix(kSaturation))) return std::nullopt;
        return point;
    }

    // Enters a state as the last one, which the solver will be left at.
    void Leave(double relF, double t) {
        left_ = true;
        last_relF_ = relF;
        last_t_ = t;
    }

    SearchResult Result(double value, bool met) {
        Settle();
        if (refused_) return {value, SearchEnd::NoState};
        return {value, met ? SearchEnd::Found : SearchEnd::OutOfReach};
    }

  private:
    bool Tabulated(double t) const {
        return pressure_ != nullptr && zandrell::Tabulated(tables_, *pressure_, t);
    }
    DensityPoint DensityAt(double t) const {
        return {t + kKelvinOffset, pressure_->p_bar, tables_.states->SaturatedDensity(t)};
    }
    // Whether the table is good enough for this state, which then is the last one.
    bool Leaves(const MixedAir& air, double relF, double t) {
        if (TableIsTooCoarse(air)) return false;
        Leave(relF, t);
        return true;
    }
    void Settle() {
        if (left_) solver_.Evaluate(last_relF_, last_t_);
        left_ = false;
    }

    StateSolver& solver_;
    const WaterAirTables& tables_;
    const PressurePoint* pressure_;
    bool refused_ = false, left_ = false;
    double last_relF_ = 0, last_t_ = 0;
};

SearchResult EstimateFromDryAir(SearchedStates& states, double t_start, double h_target,
                                int rel_percent) {
    const double dry_air_enthalpy = states.DryAirEnthalpyAt(rel_percent / 100.0, t_start);
    double t = 0;
    if (t_start != 0) AssignFinite(t, t_start * h_target / dry_air_enthalpy);
    return states.Result(t, true);
}

constexpr double kHumidityTolerance = 0.005;  // g/kg
constexpr int kHumidityRoundsEnd = 60;

// Humidity at a temperature, compared without dividing in each round: x rises with relF, so that
// what relF leads to is known from where it lies.
class HumidityComparison {
  public:
    HumidityComparison(const DensityPoint& point, double x_target)
        : point_(point),
          at_target_(HumidityFor(x_target)),
          lowest_(HumidityFor(x_target - kHumidityTolerance)),
          highest_(HumidityFor(x_target + kHumidityTolerance)) {}

    // Whether relF is that close to the target or an end of the tolerance that only x itself tells.
    bool TooClose(double relF) const {
        constexpr double kTooClose = 1e-11;
        return std::abs(relF - at_target_) < kTooClose || std::abs(relF - lowest_) < kTooClose ||
               std::abs(relF - highest_) < kTooClose;
    }
    // Else these do.
    double AtTarget() const { return at_target_; }
    // As a product, which is positive between the two only: no branch to mispredict.
    bool Met(double relF) const { return (relF - lowest_) * (highest_ - relF) > 0; }

    double HumidityRatio(double relF) const { return 1000 * point_.Mix(relF).x; }

  private:
    double HumidityFor(double x) const {
        const double total = point_.p_bar * kPascalPerBar;
        const double vapour = x * kGasConstantSteam, air = 1000 * kGasConstantAir;
        return x * total / (point_.saturated_density * point_.T * (vapour + air));
    }

    const DensityPoint& point_;
    double at_target_, lowest_, highest_;
};

SearchResult HumiditySearch(SearchedStates& states, const DensityPoint& point, double t,
                            double x_target) {
    const HumidityComparison comparison(point, x_target);
    double f = 0.5, d = 0.5, last = f;
    bool met = false;
    for (int round = 1; !met && round < kHumidityRoundsEnd; ++round) {
        last = f;
        d /= 2;
        if (comparison.TooClose(f)) [[unlikely]] {
            const double x = comparison.HumidityRatio(f);
            met = std::abs(x_target - x) <= kHumidityTolerance;
            if (x_target != x) f += x_target > x ? d : -d;
        } else {
            met = comparison.Met(f);
            f += std::copysign(d, comparison.AtTarget() - f);  // no branch to mispredict
        }
    }
    states.Leave(last, t);
    return states.Result(f * 100, met);
}

}  // namespace

SearchResult RelFeuchteAusX(StateSolver& solver, double t, double x_target) {
    constexpr double kStart = 200;            // g/kg; a target that equals it needs no round
    constexpr double kLargestTarget = 10000;  // g/kg, far above what the table's states can hold
    SearchedStates states(solver);
    double f = 0.5, d = 0.5, x = kStart;
    const auto gap = [&] { return std::abs(x_target - x); };
    if (gap() > kHumidityTolerance && x_target > -kStart && x_target < kLargestTarget) {
        states.KeepPressure(t);
        if (const auto point = states.RisingPoint(t)) {
            return HumiditySearch(states, *point, t, x_target);
        }
    }
    for (int round = 1; gap() > kHumidityTolerance && round < kHumidityRoundsEnd; ++round) {
        states.At(kSaturation, t);
        x = states.At(f, t).ZustandX;
        // f moves in the round that met the tolerance too: half a step past the humidity found.
        if (x_target < x) f -= d / 2;
        if (x_target > x) f += d / 2;
        d /= 2;
    }
    return states.Result(f * 100, gap() <= kHumidityTolerance);
}

SearchResult TempAusEnthalpie(StateSolver& solver, double t_start, double h_target,
                              EnthalpySearch kind, double& step, int rel_percent, double x) {
    constexpr double kTolerance = 0.01;  // kJ/kg
    constexpr int kRoundsEnd = 40;
    SearchedStates states(solver);
    if (kind == EnthalpySearch::DryAirEstimate) {
        return EstimateFromDryAir(states, t_start, h_target, rel_percent);
    }
    double relF = rel_percent / 100.0, any_pressure = 1;
    ClampArguments(relF, any_pressure);
    const auto excess_at = [&](double t) {
        return kind == EnthalpySearch::RelativeHumidity
                   ? states.EnthalpyAbove(h_target, relF, t)
                   : states.EnthalpyAbove(h_target, t, HumidityRatio{x});
    };
    double t = t_start;
    Excess excess = excess_at(t);
    for (int round = 1; excess.Exceeds(kTolerance); ++round) {
        step /= 2;  // also in the round that ends the search
        if (round == kRoundsEnd) break;
        t += excess.amount < 0 ? step : -step;
        excess = excess_at(t);
    }
    return states.Result(t, excess.Within(kTolerance));
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
    Excess excess = states.DensityAbove(rho_target, relF, t);
    for (int move = 1; excess.Exceeds(kTolerance) && move <= kMostMoves; ++move) {
        t += excess.amount > 0 ? d : -d;  // warmer air is thinner
        excess = states.DensityAbove(rho_target, relF, t);
        d /= 2;  // after the move, so the first one is a full 8 K
    }
    return states.Result(t, excess.Within(kTolerance));
}

}  // namespace zandrell
