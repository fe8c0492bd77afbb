#include "kernel/real_air_pair.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/unit_factors.h"
#include "kernel/frost_point.h"
#include "kernel/real_air_wet_bulb.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kLowestDewPoint = -100;  // degC
constexpr double kRounding = 1e-9;        // by which an end may be missed, relative to 1 + its size

bool TellsVapour(AirFigure figure) {
    return figure == AirFigure::HumidityRatio || figure == AirFigure::DewPoint ||
           figure == AirFigure::VapourPressure;
}

double VapourPressureOf(GivenFigure given, double p_bar) {
    const double p = p_bar * kPascalPerBar;
    switch (given.figure) {
        case AirFigure::HumidityRatio:
            return p * given.value / (kRealAirRatio + given.value);
        case AirFigure::DewPoint:
            return RealSaturatedVapour(given.value, p_bar);
        default:
            return given.value;
    }
}

// Of what is bracketed, in the unit of the figure: as fine as the figure has digits. In the cold
// humidity moves the density by little.
double CloseEnough(AirFigure figure) { return figure == AirFigure::Density ? 4e-15 : 1e-12; }

// Relative humidity of a vapour pressure at t: above 1 in the fog.
double FractionOf(double vapour_pressure, double t, double p_bar) {
    return vapour_pressure / RealSaturatedVapour(t, p_bar);
}

double HighestTemperature(double relF, double p_bar) {
    if (EvaluateRealAir(relF, kRealAirHighest, p_bar)) return kRealAirHighest;
    double low = kRealAirLowest, high = kRealAirHighest;
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (EvaluateRealAir(relF, middle, p_bar) ? low : high) = middle;
    }
    return low;
}

// The highest relative humidity at t that the model knows.
double HighestHumidity(double t, double p_bar) {
    if (EvaluateRealAir(1, t, p_bar)) return 1;
    double low = 0, high = 1;
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (EvaluateRealAir(middle, t, p_bar) ? low : high) = middle;
    }
    return low;
}

PairAnswer Found(RealAirPoint point) { return {PairEnd::Found, point}; }

class PairSearch {
  public:
    explicit PairSearch(double p_bar) : p_bar_(p_bar) {}

    PairAnswer Answer(GivenFigure first, GivenFigure second) const {
        if (TellsVapour(first.figure) && TellsVapour(second.figure)) {
            return {PairEnd::NotIndependent};
        }
        if (first.figure == second.figure) return {PairEnd::NotIndependent};
        if (const auto fault = AloneOutside(first)) return *fault;
        if (auto fault = AloneOutside(second)) {
            fault->end = PairEnd::SecondOutside;
            return *fault;
        }
        // The kept figure comes first in the order of how plainly it leaves a line.
        const bool keep_first = Rank(first.figure) <= Rank(second.figure);
        const GivenFigure kept = keep_first ? first : second, other = keep_first ? second : first;
        if (kept.figure == AirFigure::RelativeHumidity && kept.value == 0) {
            if (other.figure == AirFigure::DewPoint) return {PairEnd::DryAir};
            if (TellsVapour(other.figure) && other.value == 0) return {PairEnd::NotIndependent};
        }
        const bool by_balance =
            kept.figure == AirFigure::WetBulb && other.figure == AirFigure::Enthalpy;
        PairAnswer answer =
            by_balance ? FromWetBulbAndEnthalpy(kept.value, other.value) : Along(kept, other);
        return answer.end == PairEnd::Contradicting ? Outside(first, second) : answer;
    }

  private:
    static int Rank(AirFigure figure) {
        if (figure == AirFigure::Temperature) return 0;
        if (figure == AirFigure::RelativeHumidity) return 1;
        if (TellsVapour(figure)) return 2;
        return figure == AirFigure::WetBulb ? 3 : figure == AirFigure::Enthalpy ? 4 : 5;
    }

    std::optional<PairAnswer> AloneOutside(GivenFigure given) const {
        double least = -std::numeric_limits<double>::infinity();
        double most = std::numeric_limits<double>::infinity();
        switch (given.figure) {
            case AirFigure::Temperature:
                least = kRealAirLowest, most = kRealAirHighest;
                break;
            case AirFigure::RelativeHumidity:
                least = 0, most = 1;
                break;
            case AirFigure::HumidityRatio:
                least = 0, most = kRealAirMostX;
                break;
            case AirFigure::DewPoint:
                least = kLowestDewPoint, most = HighestTemperature(1, p_bar_);
                break;
            case AirFigure::WetBulb:
                least = kRealAirLowest, most = HighestTemperature(1, p_bar_);
                break;
            case AirFigure::VapourPressure:
                least = 0, most = kRealAirMostWater * kPascalPerBar * p_bar_;
                break;
            case AirFigure::Enthalpy:
            case AirFigure::Density:
                break;
        }
        if (given.value >= least && given.value <= most && std::isfinite(given.value)) {
            return std::nullopt;
        }
        return PairAnswer{PairEnd::FirstOutside, {}, {}, least, most};
    }

    // The states that keep a figure, by temperature (by humidity where it is the temperature that
    // is kept), and the ends of that way.
    struct Way {
        double low = 0, high = 0;
        bool known = false;
    };
    Way WayOf(GivenFigure kept) const {
        switch (kept.figure) {
            case AirFigure::Temperature:
                return {0, HighestHumidity(kept.value, p_bar_), true};
            case AirFigure::RelativeHumidity:
                return {kRealAirLowest, HighestTemperature(kept.value, p_bar_), true};
            case AirFigure::HumidityRatio:
            case AirFigure::DewPoint:
            case AirFigure::VapourPressure:
                return WayOfVapour(kept);
            case AirFigure::Enthalpy:
            case AirFigure::WetBulb:
            case AirFigure::Density:
                return WayFromSaturationToDryAir(kept);
        }
        return {};
    }

    Way WayOfVapour(GivenFigure kept) const {
        const double vapour = VapourPressureOf(kept, p_bar_);
        if (FractionOf(vapour, kRealAirHighest, p_bar_) > 1) return {};
        if (FractionOf(vapour, kRealAirLowest, p_bar_) <= 1) {
            return {kRealAirLowest, kRealAirHighest, true};
        }
        const auto dew = RealDewPoint(vapour, p_bar_);
        if (!dew) return {};
        return {*dew, kRealAirHighest, true};
    }

    // From the temperature at which saturated air has the figure to that of dry air.
    Way WayFromSaturationToDryAir(GivenFigure kept) const {
        Way way{kRealAirLowest, kRealAirHighest, true};
        const auto saturated = Along({AirFigure::RelativeHumidity, 1}, kept);
        const auto dry = Along({AirFigure::RelativeHumidity, 0}, kept);
        if (saturated.point) way.low = saturated.point->t;
        if (dry.point) way.high = dry.point->t;
        way.known = saturated.point.has_value();
        return way;
    }

    std::optional<RealAirPoint> PointOn(GivenFigure kept, double at) const {
        switch (kept.figure) {
            case AirFigure::Temperature:
                return RealAirPoint{kept.value, at};
            case AirFigure::RelativeHumidity:
                return RealAirPoint{at, kept.value};
            case AirFigure::HumidityRatio:
            case AirFigure::DewPoint:
            case AirFigure::VapourPressure:
                return RealAirPoint{
                    at, std::min(FractionOf(VapourPressureOf(kept, p_bar_), at, p_bar_), 1.0)};
            default:
                return PointAt(at, kept);
        }
    }

    // Where ice has just melted saturated air has a little less of every figure than the search
    // has passed already.
    std::optional<RealAirPoint> PointAt(double t, GivenFigure kept) const {
        constexpr double kMelted = 0.01;  // K
        const auto point = Along({AirFigure::Temperature, t}, kept).point;
        if (point || !(t > kIceUpTo && t < kIceUpTo + kMelted)) return point;
        return RealAirPoint{t, 1};
    }

    // What a point has more than is asked for, in a figure that rises along every way.
    std::optional<double> Above(GivenFigure wanted, const RealAirPoint& point) const {
        const auto state = EvaluateRealAir(point.relF, point.t, p_bar_);
        if (!state) return std::nullopt;
        switch (wanted.figure) {
            case AirFigure::WetBulb:
                return AboveWetBulb(wanted.value, state->x, state->enthalpy, p_bar_);
            case AirFigure::Enthalpy:
                return state->enthalpy - wanted.value;
            case AirFigure::Density:
                return wanted.value - state->density;
            case AirFigure::RelativeHumidity:
                return point.relF - wanted.value;
            case AirFigure::Temperature:
                return point.t - wanted.value;
            default:
                return state->vapour_pressure - VapourPressureOf(wanted, p_bar_);
        }
    }

    // By how much a figure may miss what Above compares.
    double SlackOf(GivenFigure given) const {
        const bool vapour = TellsVapour(given.figure);
        return kRounding * (1 + std::abs(vapour ? VapourPressureOf(given, p_bar_) : given.value));
    }

    // Along a relative humidity the figures drop once, where ice melts.
    PairAnswer Along(GivenFigure kept, GivenFigure other) const {
        const Way way = WayOf(kept);
        if (!way.known) return {PairEnd::OutsideModel};
        const bool melts = kept.figure == AirFigure::RelativeHumidity && way.high > kLiquidFrom;
        if (!melts) return On(way, kept, other);
        PairAnswer iced = On({way.low, kIceUpTo, true}, kept, other);
        PairAnswer wet = On({kLiquidFrom, way.high, true}, kept, other);
        if (!iced.point) return wet;
        if (wet.point && wet.point->t > kLiquidFrom) iced.warmer = wet.point;
        return iced;
    }

    // A point holds temperature and humidity themselves.
    bool Keeps(const RealAirPoint& point, GivenFigure kept) const {
        if (Rank(kept.figure) <= Rank(AirFigure::RelativeHumidity)) return true;
        const auto strayed = Above(kept, point);
        return strayed && std::abs(*strayed) <= SlackOf(kept);
    }

    PairAnswer On(const Way& way, GivenFigure kept, GivenFigure other) const {
        bool known = true;
        const auto missing = [&](double at) {
            const auto point = PointOn(kept, at);
            const auto above = point ? Above(other, *point) : std::nullopt;
            known = known && above;
            return -above.value_or(0);
        };
        const double slack = SlackOf(other);
        const double at_low = missing(way.low), at_high = missing(way.high);
        if (!known) return {PairEnd::OutsideModel};
        if (at_low < -slack || at_high > slack) return {PairEnd::Contradicting};
        const double close = CloseEnough(other.figure);
        const double at = at_low <= 0    ? way.low
                          : at_high >= 0 ? way.high
                                         : RootOfFalling(way.low, way.high, close, missing);
        const auto point = PointOn(kept, at);
        if (!known || !point) return {PairEnd::OutsideModel};
        if (!Keeps(*point, kept)) return {PairEnd::OutsideModel};
        return Found(*point);
    }

    // Between which values the second figure would lie with the first as it is.
    PairAnswer Outside(GivenFigure first, GivenFigure second) const {
        const Way way = WayOf(first);
        const auto low = way.known ? PointOn(first, way.low) : std::nullopt;
        const auto high = way.known ? PointOn(first, way.high) : std::nullopt;
        if (!low || !high) return {PairEnd::OutsideModel};
        const double one = FigureOf(second.figure, *low, p_bar_).value_or(kLowestDewPoint);
        const double two = FigureOf(second.figure, *high, p_bar_).value_or(kLowestDewPoint);
        const double least = std::min(one, two), most = std::max(one, two);
        if (second.value >= least && second.value <= most) return {PairEnd::OutsideModel};
        return {PairEnd::Contradicting, {}, {}, least, most};
    }

    // x follows from the balance of the bulb, and the temperature from it.
    PairAnswer FromWetBulbAndEnthalpy(double t_wet, double enthalpy) const {
        const auto saturated = EvaluateRealAir(1, t_wet, p_bar_);
        if (!saturated) return {PairEnd::OutsideModel};
        const double water = CondensedEnthalpy(t_wet, p_bar_);  // never 0: it is under pressure
        const double x = saturated->x + 1000 * (enthalpy - saturated->enthalpy) / water;
        const double slack = 1000 * kRounding * (1 + std::abs(enthalpy)) / std::abs(water);
        if (!(x >= -slack && x <= saturated->x + slack)) return {PairEnd::Contradicting};
        return Along({AirFigure::HumidityRatio, std::clamp(x, 0.0, saturated->x)},
                     {AirFigure::Enthalpy, enthalpy});
    }

    double p_bar_;
};

}  // namespace

std::optional<double> FigureOf(AirFigure figure, const RealAirPoint& point, double p_bar) {
    const auto state = EvaluateRealAir(point.relF, point.t, p_bar);
    if (!state) return std::nullopt;
    switch (figure) {
        case AirFigure::Temperature:
            return point.t;
        case AirFigure::RelativeHumidity:
            return point.relF;
        case AirFigure::HumidityRatio:
            return state->x;
        case AirFigure::Enthalpy:
            return state->enthalpy;
        case AirFigure::DewPoint: {
            const auto dew_point = RealDewPoint(state->vapour_pressure, p_bar);
            if (!dew_point) return std::nullopt;
            return WithinAir(*dew_point, point.t, point.relF);
        }
        case AirFigure::WetBulb: {
            const auto bulb = RealWetBulb(point.t, state->x, state->enthalpy, p_bar);
            if (!bulb) return std::nullopt;
            return WithinAir(bulb->t, point.t, point.relF);
        }
        case AirFigure::VapourPressure:
            return state->vapour_pressure;
        case AirFigure::Density:
            return state->density;
    }
    return std::nullopt;
}

PairAnswer RealAirFromPair(GivenFigure first, GivenFigure second, double p_bar) {
    if (!RealAirKnowsPressure(p_bar)) return {};
    return PairSearch(p_bar).Answer(first, second);
}

}  // namespace zandrell
