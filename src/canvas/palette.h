#pragma once

#include <cstdint>

namespace zandrell {

// Numbers of the sixteen-colour palette that the program names.
inline constexpr int kBlack = 0, kDarkRed = 4, kGrey = 8, kLightBlue = 9, kLightGreen = 10,
                     kLightRed = 12, kYellow = 14, kWhite = 15;
inline constexpr int kLightGreyValue = 14737632;  // E0E0E0, a colour value and no palette number

// A colour as 0xRRGGBB. Numbers 0 to 15 are looked up in the palette, larger ones are colour
// values.
std::uint32_t PaletteRgb(int colour);

}  // namespace zandrell
