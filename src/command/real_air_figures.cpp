#include "command/real_air_figures.h"

#include <algorithm>
#include <cmath>

#include "base/unit_factors.h"
#include "command/row_calculations.h"
#include "command/table_cells.h"
#include "kernel/continued_air.h"
#include "kernel/exact_air.h"
#include "kernel/frost_point.h"
#include "kernel/real_air_pair.h"
#include "kernel/real_air_wet_bulb.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

constexpr double kPercent = 100;
constexpr std::size_t kHumidityPlace = 1;  // of rh, which the kernel counts as a fraction

// In the order of the columns.
constexpr std::array<AirFigure, kPairFigures> kFigures{
    AirFigure::Temperature,    AirFigure::RelativeHumidity, AirFigure::HumidityRatio,
    AirFigure::Enthalpy,       AirFigure::DewPoint,         AirFigure::WetBulb,
    AirFigure::VapourPressure, AirFigure::Density};

constexpr std::array<RealAirResult, kPairFigures> kResultOf{
    RealAirResult::Temperature,    RealAirResult::RelativeHumidity, RealAirResult::HumidityRatio,
    RealAirResult::Enthalpy,       RealAirResult::DewPoint,         RealAirResult::WetBulb,
    RealAirResult::VapourPressure, RealAirResult::Density};

double ScaleOf(std::size_t place) { return place == kHumidityPlace ? kPercent : 1; }

// More digits would name a limit by its rounding.
double Limit(double value) {
    constexpr double kDigits = 1e6;
    return std::round(value * kDigits) / kDigits;
}

std::string LimitText(std::size_t place, double value, const PairAnswer& answer) {
    const double scale = ScaleOf(place);
    return OutsideText(kPairFigureNames[place].name, value, Limit(scale * answer.least),
                       Limit(scale * answer.most), kPairFigureNames[place].unit);
}

std::string ReasonOf(const PairAnswer& answer, const std::array<std::size_t, 2>& places,
                     const GivenFigures& given, double p_bar) {
    const std::string first(kPairFigureNames[places[0]].name);
    const std::string second(kPairFigureNames[places[1]].name);
    switch (answer.end) {
        case PairEnd::Found:
            break;
        case PairEnd::NotIndependent:
            return first + " and " + second + " do not determine a state";
        case PairEnd::DryAir:
            return "dry air has no dew point";
        case PairEnd::FirstOutside:
            return LimitText(places[0], *given[places[0]], answer);
        case PairEnd::SecondOutside:
            return LimitText(places[1], *given[places[1]], answer);
        case PairEnd::Contradicting:
            return LimitText(places[1], *given[places[1]], answer) + ", with this " + first;
        case PairEnd::OutsideModel:
            if (!RealAirKnowsPressure(p_bar)) {
                return OutsideText("p", p_bar, kRealAirLowestBar, kRealAirHighestBar, "bar");
            }
            return "no air of -60 to 100 degC has this " + first + " and " + second;
    }
    return {};
}

// What both airs have of a state; `dry` is dry air of its temperature and pressure.
template <typename State, typename Dry>
void Enter(const StateQuestion& point, const State& state, const Dry& dry,
           RealAirResults& results) {
    results.Of(RealAirResult::HumidityRatio) = state.x;
    results.Of(RealAirResult::Enthalpy) = state.enthalpy;
    results.Of(RealAirResult::DryAirEnthalpy) = dry.enthalpy;
    results.Of(RealAirResult::DryAirPressure) = point.p * kPascalPerBar - state.vapour_pressure;
    results.Of(RealAirResult::VapourPressure) = state.vapour_pressure;
    results.Of(RealAirResult::Density) = state.density;
    results.Of(RealAirResult::DryAirDensity) = dry.density;
    if (const auto boiling = RealBoilingTemperature(point.p)) {
        results.Of(RealAirResult::BoilingTemperature) = *boiling + kKelvinOffset;
    }
    results.Of(RealAirResult::Temperature) = point.t;
    results.Of(RealAirResult::RelativeHumidity) = point.rh;
    results.Of(RealAirResult::Volume) = state.volume;
}

// False where the model does not know the point.
bool EnterRealAir(const StateQuestion& point, RealAirResults& results) {
    const auto& [t, rh, p] = point;
    const double fraction = rh / kPercent;
    const auto state = EvaluateRealAir(fraction, t, p);
    const auto dry = EvaluateRealGas(0, t, p);
    if (!state || !dry) return false;
    Enter(point, *state, *dry, results);
    if (const auto dew_point = RealDewPoint(state->vapour_pressure, p)) {
        results.Of(RealAirResult::DewPoint) = WithinAir(*dew_point, t, fraction);
    }
    if (const auto bulb = RealWetBulb(t, state->x, state->enthalpy, p)) {
        results.Of(RealAirResult::WetBulb) = WithinAir(bulb->t, t, fraction);
        results.Of(RealAirResult::LiquidWetBulb) = bulb->liquid;
    }
    results.Of(RealAirResult::Enhancement) = state->enhancement;
    return true;
}

bool EnterContinuedAir(StateSolver& solver, const StateQuestion& point, RealAirResults& results) {
    solver.ChartDruckBar = point.p;
    const ExactAir air(solver);
    const auto state = air.FromHumidity(point.rh / kPercent, point.t);
    const auto dry = air.FromX(point.t, 0);
    if (!state || !dry) return false;
    Enter(point, *state, *dry, results);
    results.Of(RealAirResult::DewPoint) = air.DewPoint(*state);
    results.Of(RealAirResult::WetBulb) = air.WetBulb(*state);
    return true;
}

std::string HumidityText(double percent) { return OutsideText("rh", percent, 0, kPercent, "%"); }

std::string DegreesText(double t) {
    std::string text;
    AppendNumber(text, Limit(t));
    return text.append(" degC");
}

// Why there is no air that goes on beyond the model.
std::string NoExactAirReason(const StateQuestion& question) {
    const auto& [t, rh, p] = question;
    if (!(rh >= 0)) return HumidityText(rh);
    if (p == 0) return "p = 0 is not above 0 bar";
    if (!WithinLimits(0, t, p)) {
        return NoStateReason(t, p, RealAirKnowsPressure(p) ? kRealAirLowest : kLowestTemperature);
    }
    const double most = kPercent * p * kPascalPerBar / ContinuedSaturation(t, p);
    if (rh < most) return "the state is no finite number";  // by odd coefficients
    return OutsideText("rh", rh, 0, Limit(most), "%") + ", with this t";
}

}  // namespace

constexpr std::array<NamedFigure, kPairFigures> kPairFigureNames{{{"t", "degC"},
                                                                  {"rh", "%"},
                                                                  {"x", "g/kg"},
                                                                  {"h", "kJ/kg"},
                                                                  {"t_dew", "degC"},
                                                                  {"t_wet", "degC"},
                                                                  {"p_vapour", "Pa"},
                                                                  {"density", "kg/m3"}}};

constexpr std::array<std::string_view, kRealAirResults> kRealAirResultNames{
    "x_g_per_kg",
    "h_kj_per_kg",
    "h_dry_air_kj_per_kg",
    "p_dry_air_pa",
    "p_vapour_pa",
    "density_kg_per_m3",
    "density_dry_air_kg_per_m3",
    "t_boiling_k",
    "t_degc",
    "rh_percent",
    "t_dew_degc",
    "t_wet_degc",
    "t_wet_liquid_degc",
    "v_m3_per_kg",
    "enhancement"};

bool FindRealAir(const GivenFigures& given, double p_bar, RealAirResults& results,
                 std::string& reason) {
    std::array<std::size_t, 2> places{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < given.size(); ++i) {
        if (!given[i]) continue;
        if (count < places.size()) places[count] = i;
        ++count;
    }
    if (count != places.size()) {
        reason = "two of t, rh, x, h, t_dew, t_wet, p_vapour and density are needed, not " +
                 std::to_string(count);
        return false;
    }
    const auto figure = [&](std::size_t place) {
        return GivenFigure{kFigures[place], *given[place] / ScaleOf(place)};
    };
    const PairAnswer answer = RealAirFromPair(figure(places[0]), figure(places[1]), p_bar);
    if (!answer.point ||
        !EnterRealAir({answer.point->t, kPercent * answer.point->relF, p_bar}, results)) {
        reason = ReasonOf(answer, places, given, p_bar);
        return false;
    }
    if (answer.warmer) {
        reason = "air of " + DegreesText(answer.point->t) + " and of " +
                 DegreesText(answer.warmer->t) + " has both figures; the first is taken";
    }
    // What was given stands as it was given.
    for (const std::size_t place : places) {
        const bool not_iced = kFigures[place] == AirFigure::WetBulb &&
                              results.Of(RealAirResult::LiquidWetBulb) && *given[place] > kIceUpTo;
        results.Of(not_iced ? RealAirResult::LiquidWetBulb : kResultOf[place]) = given[place];
    }
    return true;
}

bool FindExactAir(StateSolver& solver, StateQuestion& question, RealAirResults& results,
                  std::string& reason) {
    // As sensors do that saturated air has wetted.
    if (question.rh > kPercent) {
        reason = HumidityText(question.rh) + ", 100 is taken";
        question.rh = kPercent;
    }
    const bool answers = question.rh >= 0 && question.p != 0;
    if (answers &&
        (EnterRealAir(question, results) || EnterContinuedAir(solver, question, results))) {
        return true;
    }
    reason = NoExactAirReason(question);
    return false;
}

}  // namespace zandrell
