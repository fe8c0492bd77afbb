#pragma once

#include <string_view>

// The unit words of labels and print-outs: metric, and the same in every language.
namespace zandrell {

inline constexpr std::string_view UnitDegC = "°C";
inline constexpr std::string_view UnitK = "K";
inline constexpr std::string_view UnitM = "m";
inline constexpr std::string_view UnitKW = "kW";
inline constexpr std::string_view UnitMM = "mm";
inline constexpr std::string_view UnitW = "W";
inline constexpr std::string_view UnitBar = "bar";
inline constexpr std::string_view UnitMbar = "mbar";
inline constexpr std::string_view UnitM3h = "m³/h";
inline constexpr std::string_view UnitDm3 = "dm³";
inline constexpr std::string_view UnitKg = "kg";
inline constexpr std::string_view UnitMs = "m/s";
inline constexpr std::string_view UnitKgs = "kg/s";
inline constexpr std::string_view UnitKJkg = "kJ/kg";

}  // namespace zandrell
