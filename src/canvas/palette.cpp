#include "canvas/palette.h"

#include <array>

namespace zandrell {

std::uint32_t PaletteRgb(int colour) {
    constexpr std::array<std::uint32_t, 16> kPalette = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    if (colour < 0) return 0;
    const auto number = static_cast<std::uint32_t>(colour);
    return number < kPalette.size() ? kPalette[number] : number & 0xFFFFFFU;
}

}  // namespace zandrell
