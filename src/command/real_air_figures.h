#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace zandrell {

struct StateQuestion;
class StateSolver;

// The figures of which two give a state of real air: the columns t, rh, x, h, t_dew, t_wet,
// p_vapour, density, in degC, per cent, g/kg, kJ/kg, Pa and kg/m3.
inline constexpr std::size_t kPairFigures = 8;
struct NamedFigure {
    std::string_view name, unit;
};
extern const std::array<NamedFigure, kPairFigures> kPairFigureNames;

// The results: first those that a state of the suite has too, in the same order.
enum class RealAirResult {
    HumidityRatio,
    Enthalpy,
    DryAirEnthalpy,
    DryAirPressure,
    VapourPressure,
    Density,
    DryAirDensity,
    BoilingTemperature,
    Temperature,
    RelativeHumidity,
    DewPoint,
    WetBulb,
    LiquidWetBulb,
    Volume,
    Enhancement
};
inline constexpr std::size_t kRealAirResults = 15;
extern const std::array<std::string_view, kRealAirResults> kRealAirResultNames;

using GivenFigures = std::array<std::optional<double>, kPairFigures>;
class RealAirResults : public std::array<std::optional<double>, kRealAirResults> {
  public:
    std::optional<double>& Of(RealAirResult result) { return (*this)[std::size_t(result)]; }
};

// Real air within the limits of its model. False, with a reason that names the limit, where the
// figures are not two or give no state. A result that does not exist is empty: the dew point of
// dry air. True with words in `reason` where two states have the figures.
bool FindRealAir(const GivenFigures& given, double p_bar, RealAirResults& results,
                 std::string& reason);

// The air of the Exact convention from t and rh: real air, and beyond the limits of its model what
// continues it up to those of the state function (kernel/exact_air.h), where the enhancement
// factor is empty. A humidity above 100 is replaced by 100, which `reason` then tells. Uses the
// pressure of the solver, which has its coefficients.
bool FindExactAir(StateSolver& solver, StateQuestion& question, RealAirResults& results,
                  std::string& reason);

}  // namespace zandrell
