#include "processes/given_pair.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

using enum AirFigure;

// All but enthalpy and wet bulb, which rise so nearly together that their decimals on the screen
// tell no state.
constexpr FigurePair kPairs[] = {
    {Temperature, RelativeHumidity},
    {Temperature, HumidityRatio},
    {Temperature, Enthalpy},
    {Temperature, DewPoint},
    {Temperature, WetBulb},
    {Temperature, VapourPressure},
    {Temperature, Density},
    {RelativeHumidity, HumidityRatio},
    {RelativeHumidity, Enthalpy},
    {RelativeHumidity, DewPoint},
    {RelativeHumidity, WetBulb},
    {RelativeHumidity, VapourPressure},
    {RelativeHumidity, Density},
    {HumidityRatio, Enthalpy},
    {HumidityRatio, WetBulb},
    {HumidityRatio, Density},
    {Enthalpy, DewPoint},
    {Enthalpy, VapourPressure},
    {Enthalpy, Density},
    {DewPoint, WetBulb},
    {DewPoint, Density},
    {WetBulb, VapourPressure},
    {WetBulb, Density},
    {VapourPressure, Density},
};

constexpr double kPercent = 100, kPascalPerHectopascal = 100;
constexpr double kLowestDewPoint = -100;  // degC, where dry air has none

// From the unit of the screen to that of the figure.
double FromScreen(AirFigure figure, double value) {
    if (figure == RelativeHumidity) return value / kPercent;
    return figure == VapourPressure ? value * kPascalPerHectopascal : value;
}

double ToScreen(AirFigure figure, double value) {
    if (figure == RelativeHumidity) return value * kPercent;
    return figure == VapourPressure ? value / kPascalPerHectopascal : value;
}

// One over the last decimal that is shown.
double FactorOf(AirFigure figure) {
    switch (figure) {
        case Temperature:
        case HumidityRatio:
            return 100;
        case Density:
            return 1000;
        case RelativeHumidity:
        case Enthalpy:
        case DewPoint:
        case WetBulb:
        case VapourPressure:
            break;
    }
    return 10;
}

// Cut as everywhere on the screen; enthalpies are rounded to tenths.
std::string ShownText(AirFigure figure, double value) {
    constexpr double kHalfOfLastDecimal = 0.05;
    const double shown = ToScreen(figure, value) + (figure == Enthalpy ? kHalfOfLastDecimal : 0);
    return NumberText(Cut(shown, FactorOf(figure)));
}

bool IsRefused(const PairOutcome& outcome) { return outcome.first || outcome.second; }

std::optional<Refusal> AgainstFigure(AirFigure figure, const std::string& text,
                                     const ChartSettings& settings) {
    if (figure == Temperature) return AgainstTemperature(text, settings);
    if (figure == RelativeHumidity) return AgainstHumidity(text);
    return AgainstNumber(text);
}

// The least and the most of a figure over some states.
struct Range {
    double least = 0, most = 0;
    bool Holds(double value) const { return value >= least && value <= most; }
};

std::optional<Range> RangeBetween(AirFigure figure, const RealAirPoint& one,
                                  const RealAirPoint& other, double p_bar) {
    const auto value = [&](const RealAirPoint& point) {
        const auto found = FigureOf(figure, point, p_bar);
        const bool dry = figure == DewPoint && point.relF == 0;
        return found || !dry ? found : std::optional(kLowestDewPoint);
    };
    const auto first = value(one), second = value(other);
    if (!first || !second) return std::nullopt;
    return Range{std::min(*first, *second), std::max(*first, *second)};
}

// The numbers lie inside the range, so that they can be taken.
Refusal OutsideOf(AirFigure figure, const Range& range) {
    const double factor = FactorOf(figure);
    const double least = std::ceil(ToScreen(figure, range.least) * factor) / factor;
    const double most = Cut(ToScreen(figure, range.most), factor);
    return {Caption::OutsideLimits, TrimmedNumberText(least + 0.0),
            TrimmedNumberText(most).append(" ").append(UnitOf(figure))};
}

// Upwards to four decimals, but for what the arithmetic has added.
double RoundedUp(double value) {
    constexpr double kDecimals = 10000, kOfTheArithmetic = 1e-6;
    return std::ceil(value * kDecimals - kOfTheArithmetic) / kDecimals + 0.0;
}

// A pair whose texts are numbers, with the chart that its state has to lie on.
class PairOnChart {
  public:
    PairOnChart(GivenFigure first, GivenFigure second, const ChartSettings& settings, double p_bar)
        : first_(first), second_(second), settings_(settings), p_bar_(p_bar) {}

    PairOutcome Outcome() const {
        if (!RealAirKnowsPressure(p_bar_)) return NoSuchPressure();
        if (const auto range = RangeOfFirst(); range && !range->Holds(first_.value)) {
            return {{}, OutsideOf(first_.figure, *range)};
        }
        const auto ends = EndsOfFirst();
        const auto range =
            ends ? RangeBetween(second_.figure, ends->first, ends->second, p_bar_) : std::nullopt;
        if (!range) return NoSuchState();
        if (!range->Holds(second_.value)) return {{}, {}, OutsideOf(second_.figure, *range)};
        const auto answer = RealAirFromPair(first_, second_, p_bar_);
        if (!answer.point) return NoSuchState();
        const double percent = std::min(RoundedUp(kPercent * answer.point->relF), kPercent);
        if (percent <= 0) return NoDryAir(*range);
        const double t =
            std::clamp(RoundedUp(answer.point->t), settings_.ChartTMin, settings_.ChartTMax);
        return {StateTexts{NumberText(t), NumberText(percent)}};
    }

  private:
    using Ends = std::pair<RealAirPoint, RealAirPoint>;

    static PairOutcome NoSuchState() {
        return {{}, Refusal{Caption::NoSuchState}, Refusal{Caption::NoSuchState}};
    }

    static PairOutcome NoSuchPressure() {
        const Refusal refusal{Caption::OutsideLimits, TrimmedNumberText(kRealAirLowestBar),
                              TrimmedNumberText(kRealAirHighestBar).append(" ").append(UnitBar)};
        return {{}, refusal, refusal};
    }

    // The panel knows no dry air: at fault is the figure that tells that it is.
    PairOutcome NoDryAir(const Range& of_second) const {
        const auto none = [](GivenFigure given) {
            const bool vapour = given.figure == HumidityRatio || given.figure == VapourPressure;
            return vapour && given.value <= 0;
        };
        if (none(first_)) return {{}, Refusal{Caption::AboveZero}};
        if (none(second_)) return {{}, {}, Refusal{Caption::AboveZero}};
        return {{}, {}, OutsideOf(second_.figure, of_second)};
    }

    // Of the whole chart; empty for the two figures whose own fields have their limits.
    std::optional<Range> RangeOfFirst() const {
        if (first_.figure == Temperature || first_.figure == RelativeHumidity) return std::nullopt;
        return RangeBetween(first_.figure, {settings_.ChartTMin, 0}, {settings_.ChartTMax, 1},
                            p_bar_);
    }

    // The outermost states of the chart that have the first figure; every other figure runs one way
    // between them.
    std::optional<Ends> EndsOfFirst() const {
        const double t = first_.value, fraction = first_.value;
        if (first_.figure == Temperature) return Ends{{t, 0}, {t, 1}};
        const double coldest = settings_.ChartTMin, warmest = settings_.ChartTMax;
        if (first_.figure == RelativeHumidity)
            return Ends{{coldest, fraction}, {warmest, fraction}};
        auto cold = RealAirFromPair(first_, {Temperature, coldest}, p_bar_).point;
        if (!cold) cold = RealAirFromPair(first_, {RelativeHumidity, 1}, p_bar_).point;
        auto warm = RealAirFromPair(first_, {Temperature, warmest}, p_bar_).point;
        if (!warm) warm = RealAirFromPair(first_, {RelativeHumidity, 0}, p_bar_).point;
        if (!cold || !warm) return std::nullopt;
        return Ends{*cold, *warm};
    }

    GivenFigure first_, second_;
    const ChartSettings& settings_;
    double p_bar_;
};

}  // namespace

std::span<const FigurePair> OfferedPairs() { return kPairs; }

Caption WordOf(AirFigure figure) {
    switch (figure) {
        case Temperature:
            break;
        case RelativeHumidity:
            return Caption::RelativeHumidity;
        case HumidityRatio:
            return Caption::HumidityRatio;
        case Enthalpy:
            return Caption::Enthalpy;
        case DewPoint:
            return Caption::DewPoint;
        case WetBulb:
            return Caption::WetBulb;
        case VapourPressure:
            return Caption::VapourPressure;
        case Density:
            return Caption::Density;
    }
    return Caption::Temperature;
}

std::string_view UnitOf(AirFigure figure) {
    switch (figure) {
        case Temperature:
        case DewPoint:
        case WetBulb:
            break;
        case RelativeHumidity:
            return "%";
        case HumidityRatio:
            return "g/kg";
        case Enthalpy:
            return UnitKJkg;
        case VapourPressure:
            return "hPa";
        case Density:
            return "kg/m³";
    }
    return UnitDegC;
}

PairTexts FiguresOf(FigurePair pair, const StateTexts& state, const ChartSettings& settings,
                    double p_bar) {
    const bool on_chart =
        !AgainstTemperature(state.temperature, settings) && !AgainstHumidity(state.humidity);
    const RealAirPoint point{ParsedNumber(state.temperature),
                             ParsedNumber(state.humidity) / kPercent};
    const auto text = [&](AirFigure figure) {
        if (figure == Temperature) return state.temperature;
        if (figure == RelativeHumidity) return state.humidity;
        const auto value = on_chart ? FigureOf(figure, point, p_bar) : std::nullopt;
        return value ? ShownText(figure, *value) : std::string();
    };
    return {text(pair.first), text(pair.second)};
}

PairOutcome StateFromPair(FigurePair pair, const PairTexts& given, const ChartSettings& settings,
                          double p_bar) {
    PairOutcome outcome{{},
                        AgainstFigure(pair.first, given.first, settings),
                        AgainstFigure(pair.second, given.second, settings)};
    if (IsRefused(outcome)) return outcome;
    const auto figure = [](AirFigure kind, const std::string& text) {
        return GivenFigure{kind, FromScreen(kind, ParsedNumber(text))};
    };
    return PairOnChart(figure(pair.first, given.first), figure(pair.second, given.second), settings,
                       p_bar)
        .Outcome();
}

}  // namespace zandrell
