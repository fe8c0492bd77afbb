#include "painter/shades.h"

#include <QRgb>
#include <array>

#include "canvas/palette.h"

namespace zandrell {
namespace {

// Lines have at least three times the contrast of nothing on their ground, texts and the labels of
// a process four and a half times; the curves stand out from the grid.
constexpr std::array<ShadeRow, 13> kShades = {{
    {kBlack, StrokeRole::Ground, 0x12181D, 0x12181D, 0x12181D, 1},
    {kBlack, StrokeRole::Text, 0x22303A, 0x22303A, 0xE4EAEE, 1},
    {kWhite, StrokeRole::Text, 0x22303A, 0x22303A, 0xE4EAEE, 1},
    {kGrey, StrokeRole::Grid, 0x8A959D, 0x737F89, 0x5C6A74, 0.7},
    {kGrey, StrokeRole::Curve, 0x6F7C86, 0x5F6D77, 0x7C8C97, 1},
    {kGrey, StrokeRole::Dots, 0x2F8F57, 0x2A8A52, 0x5FB584, 1},
    {kLightBlue, StrokeRole::Curve, 0x3B7FB5, 0x2F6F9F, 0x6DB0E4, 1.3},
    {kLightBlue, StrokeRole::Grid, 0x3B7FB5, 0x2F6F9F, 0x6DB0E4, 1.3},
    {kDarkRed, StrokeRole::Curve, 0xC62F2B, 0xC62F2B, 0xFF6A5C, 2.2},
    {kDarkRed, StrokeRole::Grid, 0xC62F2B, 0xC62F2B, 0xFF6A5C, 2.2},
    {kBlack, StrokeRole::Process, 0x17222B, 0x17222B, 0xE4EAEE, 2.4},
    {kYellow, StrokeRole::Process, 0x8A6300, 0x7A5800, 0xFFCF4A, 2.4},
    {kLightGreen, StrokeRole::Process, 0x178A45, 0x0F7A3A, 0x3EDC7F, 2.4},
}};

}  // namespace

bool IsDarkGround(int ground) { return qGray(PaletteRgb(ground)) < 128; }

std::span<const ShadeRow> ShadeTable() { return kShades; }

Shade ShadeFor(int colour, StrokeRole role, int ground) {
    for (const ShadeRow& row : kShades) {
        if (row.colour != colour || row.role != role) continue;
        const std::uint32_t on_light = ground == kLightGreyValue ? row.on_grey : row.on_white;
        return {QColor(QRgb{IsDarkGround(ground) ? row.on_dark : on_light}), row.width};
    }
    return {QColor(QRgb{PaletteRgb(colour)}), role == StrokeRole::Process ? 2.4 : 1.0};
}

}  // namespace zandrell
