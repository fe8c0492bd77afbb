#include "command/real_air_figures.h"

#include <algorithm>
#include <cmath>

#include "base/unit_factors.h"
#include "command/row_calculations.h"
#include "kernel/continued_air.h"
#include "kernel/exact_air.h"
#include "kernel/real_air_pair.h"
#include "kernel/real_air_wet_bulb.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

constexpr double kPercent = 100;
constexpr double kIceUpTo = 0.01;          // degC
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

void EnterPressures(double p_bar, double vapour_pressure, RealAirResults& results) {
    results.Of(RealAirResult::VapourPressure) = vapour_pressure;
    results.Of(RealAirResult::DryAirPressure) = p_bar * kPascalPerBar - vapour_pressure;
    if (const auto boiling = RealBoilingTemperature(p_bar)) {
        results.Of(RealAirResult::BoilingTemperature) = *boiling + kKelvinOffset;
    }
}

void Enter(const RealAirState& state, const RealAirPoint& point, double p_bar,
           RealAirResults& results) {
    EnterPressures(p_bar, state.vapour_pressure, results);
    results.Of(RealAirResult::HumidityRatio) = state.x;
    results.Of(RealAirResult::Enthalpy) = state.enthalpy;
    results.Of(RealAirResult::Density) = state.density;
    if (const auto dry = EvaluateRealGas(0, point.t, p_bar)) {
        results.Of(RealAirResult::DryAirEnthalpy) = dry->enthalpy;
        results.Of(RealAirResult::DryAirDensity) = dry->density;
    }
    results.Of(RealAirResult::Temperature) = point.t;
    results.Of(RealAirResult::RelativeHumidity) = kPercent * point.relF;
    results.Of(RealAirResult::DewPoint) = RealDewPoint(state.vapour_pressure, p_bar);
    if (const auto bulb = RealWetBulb(point.t, state.x, state.enthalpy, p_bar)) {
        results.Of(RealAirResult::WetBulb) = bulb->t;
        results.Of(RealAirResult::LiquidWetBulb) = bulb->liquid;
    }
    results.Of(RealAirResult::Volume) = state.volume;
    results.Of(RealAirResult::Enhancement) = state.enhancement;
}

void Enter(const ExactAir& air, const ExactAirState& state, const ExactAirState& dry, double rh,
           RealAirResults& results) {
    EnterPressures(air.PressureBar(), state.vapour_pressure, results);
    results.Of(RealAirResult::HumidityRatio) = state.x;
    results.Of(RealAirResult::Enthalpy) = state.enthalpy;
    results.Of(RealAirResult::DryAirEnthalpy) = dry.enthalpy;
    results.Of(RealAirResult::Density) = state.density;
    results.Of(RealAirResult::DryAirDensity) = dry.density;
    results.Of(RealAirResult::Temperature) = state.t;
    results.Of(RealAirResult::RelativeHumidity) = rh;
    results.Of(RealAirResult::DewPoint) = air.DewPoint(state);
    results.Of(RealAirResult::WetBulb) = air.WetBulb(state);
    results.Of(RealAirResult::Volume) = state.volume;
}

// Why there is no air that goes on beyond the model.
std::string NoExactAirReason(const StateQuestion& question) {
    const auto& [t, rh, p] = question;
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
    const auto state =
        answer.point ? EvaluateRealAir(answer.point->relF, answer.point->t, p_bar) : std::nullopt;
    if (!state) {
        reason = ReasonOf(answer, places, given, p_bar);
        return false;
    }
    Enter(*state, *answer.point, p_bar, results);
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
    ClampQuestion(question);
    const auto& [t, rh, p] = question;
    if (const auto real = EvaluateRealAir(rh / kPercent, t, p)) {
        Enter(*real, {t, rh / kPercent}, p, results);
        results.Of(RealAirResult::RelativeHumidity) = rh;  // as it was given
        return true;
    }
    solver.ChartDruckBar = p;
    const ExactAir air(solver);
    const auto state = air.FromHumidity(rh / kPercent, t), dry = air.FromX(t, 0);
    if (state && dry) {
        Enter(air, *state, *dry, rh, results);
        return true;
    }
    reason = NoExactAirReason(question);
    return false;
}

}  // namespace zandrell
