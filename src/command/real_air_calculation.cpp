#include "command/real_air_calculation.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "command/table_cells.h"
#include "kernel/real_air_pair.h"
#include "kernel/real_air_wet_bulb.h"

namespace zandrell {
namespace {

constexpr double kPercent = 100;
constexpr std::size_t kLiquidBulb = 6;     // among the results
constexpr double kIceUpTo = 0.01;          // degC
constexpr std::size_t kHumidityPlace = 1;  // of rh, which the kernel counts as a fraction

// In the order of the columns.
constexpr std::array<AirFigure, kPairFigures> kFigures{
    AirFigure::Temperature,    AirFigure::RelativeHumidity, AirFigure::HumidityRatio,
    AirFigure::Enthalpy,       AirFigure::DewPoint,         AirFigure::WetBulb,
    AirFigure::VapourPressure, AirFigure::Density};

constexpr std::array<InputColumn, kPairFigures + 1> kInputs{
    {{"t", ColumnNeed::NumberMayLack},
     {"rh", ColumnNeed::NumberMayLack},
     {"x", ColumnNeed::NumberMayLack},
     {"h", ColumnNeed::NumberMayLack},
     {"t_dew", ColumnNeed::NumberMayLack},
     {"t_wet", ColumnNeed::NumberMayLack},
     {"p_vapour", ColumnNeed::NumberMayLack},
     {"density", ColumnNeed::NumberMayLack},
     {"p", ColumnNeed::NumberMayLack}}};

double ScaleOf(std::size_t place) { return place == kHumidityPlace ? kPercent : 1; }

std::string LimitText(std::size_t place, double value, const PairAnswer& answer) {
    constexpr double kDigits = 1e6;  // more would name a limit by its rounding
    const double scale = ScaleOf(place);
    std::string text(kPairFigureNames[place].name);
    text += " = ";
    AppendNumber(text, value);
    text += " is outside ";
    AppendNumber(text, std::round(scale * answer.least * kDigits) / kDigits);
    text += "..";
    AppendNumber(text, std::round(scale * answer.most * kDigits) / kDigits);
    return text.append(" ").append(kPairFigureNames[place].unit);
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
                std::string text = "p = ";
                AppendNumber(text, p_bar);
                return text + " is outside 0.5..2 bar";
            }
            return "no air of -60 to 100 degC has this " + first + " and " + second;
    }
    return {};
}

class RealAirCalculation : public RowCalculation {
  public:
    explicit RealAirCalculation(double default_p_bar) : default_p_bar_(default_p_bar) {
        std::transform(kRealAirResultNames.begin(), kRealAirResultNames.end(), columns_.begin(),
                       [](const RealAirResult& result) { return result.column; });
    }

    std::span<const InputColumn> Inputs() const override { return kInputs; }
    std::span<const std::string_view> Results() const override { return columns_; }

    std::unique_ptr<RowCalculation> Another() const override {
        return std::make_unique<RealAirCalculation>(default_p_bar_);
    }

    void Calculate(std::span<const std::optional<double>> inputs,
                   std::span<std::optional<double>> results, std::string& reason) override {
        GivenFigures given;
        std::copy_n(inputs.begin(), given.size(), given.begin());
        found_ = {};
        has_state_ = FindRealAir(given, inputs.back().value_or(default_p_bar_), found_, reason);
        if (has_state_) std::copy(found_.begin(), found_.end(), results.begin());
    }

    // A figure that a state does not have is no fault.
    const std::string* TextResult(std::size_t result) const override {
        static const std::string none;
        return has_state_ && !found_[result] ? &none : nullptr;
    }

  private:
    double default_p_bar_;
    bool has_state_ = false;
    RealAirResults found_;
    std::array<std::string_view, kRealAirResults> columns_{};
};

}  // namespace

constexpr std::array<NamedFigure, kPairFigures> kPairFigureNames{{{"t", "degC"},
                                                                  {"rh", "%"},
                                                                  {"x", "g/kg"},
                                                                  {"h", "kJ/kg"},
                                                                  {"t_dew", "degC"},
                                                                  {"t_wet", "degC"},
                                                                  {"p_vapour", "Pa"},
                                                                  {"density", "kg/m3"}}};

constexpr std::array<RealAirResult, kRealAirResults> kRealAirResultNames{
    {{"t_degc", "Temperature", "degC"},
     {"rh_percent", "Relative humidity", "%"},
     {"x_g_per_kg", "Humidity ratio", "g/kg dry air"},
     {"h_kj_per_kg", "Enthalpy", "kJ/kg dry air"},
     {"t_dew_degc", "Dew or frost point", "degC"},
     {"t_wet_degc", "Wet bulb", "degC"},
     {"t_wet_liquid_degc", "Wet bulb not iced", "degC"},
     {"p_vapour_pa", "Partial pressure of the vapour", "Pa"},
     {"density_kg_per_m3", "Density", "kg/m3"},
     {"v_m3_per_kg", "Specific volume", "m3/kg dry air"},
     {"enhancement", "Enhancement factor", ""}}};

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
    const auto bulb = RealWetBulb(answer.point->t, state->x, state->enthalpy, p_bar);
    results = {answer.point->t,
               kPercent * answer.point->relF,
               state->x,
               state->enthalpy,
               RealDewPoint(state->vapour_pressure, p_bar),
               bulb ? std::optional(bulb->t) : std::nullopt,
               bulb ? bulb->liquid : std::nullopt,
               state->vapour_pressure,
               state->density,
               state->volume,
               state->enhancement};
    // What was given stands as it was given.
    constexpr std::array<std::size_t, kPairFigures> kResultOf{0, 1, 2, 3, 4, 5, 7, 8};
    for (const std::size_t place : places) {
        const bool not_iced = kFigures[place] == AirFigure::WetBulb && results[kLiquidBulb] &&
                              *given[place] > kIceUpTo;
        results[not_iced ? kLiquidBulb : kResultOf[place]] = given[place];
    }
    return true;
}

std::unique_ptr<RowCalculation> MakeRealAirCalculation(double default_p_bar) {
    return std::make_unique<RealAirCalculation>(default_p_bar);
}

}  // namespace zandrell
