#pragma once

#include <QColor>
#include <cstdint>
#include <span>

namespace zandrell {

// What a palette number is used for: the same number may stand for a calm grid line and for the
// dots of the comfort field.
enum class StrokeRole { Ground, Text, Grid, Curve, Dots, Process };

struct Shade {
    QColor colour;
    double width = 1;  // lines: thickness at nominal size, in pixels
};

// Whether what is drawn on this ground (palette number or colour value) must be light.
bool IsDarkGround(int ground);

// The one table of shades: how a number looks as 0xRRGGBB on white, on the grey ground of some
// skins and on the dark ground.
struct ShadeRow {
    int colour;
    StrokeRole role;
    std::uint32_t on_white, on_grey, on_dark;
    double width;
};
std::span<const ShadeRow> ShadeTable();

// How a palette number looks on paper and screen. The palette's own colours are too loud for thin
// lines and small texts; a number that has no shade of its own looks as the palette says.
Shade ShadeFor(int colour, StrokeRole role, int ground);

}  // namespace zandrell
