#pragma once

namespace zandrell {

inline constexpr double kPascalPerBar = 100000;
inline constexpr double kSecondsPerHour = 3600;

}  // namespace zandrell
