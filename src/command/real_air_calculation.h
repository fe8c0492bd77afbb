#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "command/row_calculation.h"

namespace zandrell {

// The figures of which two give a state of real air: the columns t, rh, x, h, t_dew, t_wet,
// p_vapour, density, in degC, per cent, g/kg, kJ/kg, Pa and kg/m3.
inline constexpr std::size_t kPairFigures = 8;
inline constexpr std::size_t kRealAirResults = 11;
struct NamedFigure {
    std::string_view name, unit;
};
extern const std::array<NamedFigure, kPairFigures> kPairFigureNames;
// With the words for people.
struct RealAirResult {
    std::string_view column, words, unit;
};
extern const std::array<RealAirResult, kRealAirResults> kRealAirResultNames;

using GivenFigures = std::array<std::optional<double>, kPairFigures>;
using RealAirResults = std::array<std::optional<double>, kRealAirResults>;

// False, with a reason that names the limit, where the figures are not two or give no state. A
// result that does not exist is empty: the dew point of dry air.
bool FindRealAir(const GivenFigures& given, double p_bar, RealAirResults& results,
                 std::string& reason);

// The table: two of the columns hold a number in each row. Rows without p have `default_p_bar`.
std::unique_ptr<RowCalculation> MakeRealAirCalculation(double default_p_bar);

}  // namespace zandrell
