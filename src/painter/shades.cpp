#include "painter/shades.h"

#include <QRgb>
#include <array>

#include "canvas/palette.h"

namespace zandrell {
namespace {

struct ShadeRow {
    int colour;
    StrokeRole role;
    QRgb on_light, on_dark;
    double width;
};

constexpr int kDarkBlue = 1;
constexpr int kOnGrey = 118;  // per cent; a grid for white paper would vanish on grey

constexpr std::array<ShadeRow, 14> kShades = {{
    {kBlack, StrokeRole::Ground, 0xFF12181D, 0xFF12181D, 1},
    {kBlack, StrokeRole::Text, 0xFF22303A, 0xFF22303A, 1},
    {kWhite, StrokeRole::Text, 0xFFE4EAEE, 0xFFE4EAEE, 1},
    {kGrey, StrokeRole::Grid, 0xFFD3D9DE, 0xFF36424B, 1},
    {kGrey, StrokeRole::Curve, 0xFFA5B0B8, 0xFF64737E, 1},
    {kGrey, StrokeRole::Dots, 0xFF58A878, 0xFF5FB584, 1},
    {kLightBlue, StrokeRole::Curve, 0xFF3B7FB5, 0xFF6DB0E4, 1.3},
    {kLightBlue, StrokeRole::Grid, 0xFF3B7FB5, 0xFF6DB0E4, 1.3},
    {kDarkRed, StrokeRole::Curve, 0xFFC62F2B, 0xFFFF6A5C, 2.2},
    {kDarkRed, StrokeRole::Grid, 0xFFC62F2B, 0xFFFF6A5C, 2.2},
    {kBlack, StrokeRole::Process, 0xFF17222B, 0xFFE4EAEE, 2.4},
    {kYellow, StrokeRole::Process, 0xFFB8860B, 0xFFFFCF4A, 2.4},
    {kLightGreen, StrokeRole::Process, 0xFF21B35B, 0xFF3EDC7F, 2.4},
    {kDarkBlue, StrokeRole::Text, 0xFF1F4E79, 0xFF8CC3F0, 1},
}};

}  // namespace

bool IsDarkGround(int ground) { return qGray(PaletteRgb(ground)) < 128; }

Shade ShadeFor(int colour, StrokeRole role, int ground) {
    const bool dark = IsDarkGround(ground);
    for (const ShadeRow& row : kShades) {
        if (row.colour != colour || row.role != role) continue;
        QColor shade(dark ? row.on_dark : row.on_light);
        if (ground == kLightGreyValue && role == StrokeRole::Grid) shade = shade.darker(kOnGrey);
        return {shade, row.width};
    }
    return {QColor(QRgb{PaletteRgb(colour)}), role == StrokeRole::Process ? 2.4 : 1.0};
}

}  // namespace zandrell
