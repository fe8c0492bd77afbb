#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <span>
#include <string_view>

namespace zandrell {

// The two schemes of the windows; they follow the ground of the chart.
enum class LookScheme { Light, Dark };

// The colours of the windows, for what they stand.
enum class LookColour {
    Ink,          // texts
    MutedInk,     // texts of second rank
    DisabledInk,  // texts of what takes no input
    Field,        // ground of fields, buttons and menus
    White,        // texts on a band
    OnAccent,     // texts on the accent
    Window,
    Panel,
    Cell,          // ground of a shown figure
    Border,        // of fields, buttons and all that takes input
    Hairline,      // parts groups that spacing parts already
    Accent,        // focus, selection
    Band,          // ground of a heading
    Selected,      // ground of a chosen menu entry
    Pressed,       // ground of a button held down
    Hovered,       // ground of a button under the pointer
    DisabledEdge,  // border of what takes no input
    SoftRed,       // ground of a field or figure that is out of its range
    SoftGreen,     // ground of a figure that fits
    SoftYellow,    // ground of a figure that nearly fits
    Stripe,        // ground of every second row of a table
};

struct LookRow {
    LookColour colour;
    std::string_view name;      // as the style sheet writes it, behind an "@"
    std::uint32_t light, dark;  // 0xRRGGBB, in each scheme
};

// The one table of them, in the order of LookColour.
std::span<const LookRow> LookTable();

QColor ColourOf(LookColour colour, LookScheme scheme);
// In the scheme that the application shows.
QColor ColourOf(LookColour colour);
LookScheme SchemeInForce();

// A style sheet with every "@name" replaced by its colour.
QString WithColours(std::string_view style_sheet, LookScheme scheme = LookScheme::Light);

}  // namespace zandrell
