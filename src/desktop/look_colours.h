#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <span>
#include <string_view>

namespace zandrell {

// The colours of the windows, for what they stand.
enum class LookColour {
    Ink,          // texts
    MutedInk,     // texts of second rank
    DisabledInk,  // texts of what takes no input
    White,        // fields, buttons, menus, texts on the accent
    Window,
    Panel,
    Cell,          // ground of a shown figure
    Border,        // of fields, buttons and all that takes input
    Hairline,      // parts groups that spacing parts already
    Accent,        // focus, selection, headings
    Selected,      // ground of a chosen menu entry
    Pressed,       // ground of a button held down
    Hovered,       // ground of a button under the pointer
    DisabledEdge,  // border of what takes no input
    SoftRed,       // ground of a field or figure that is out of its range
};

struct LookRow {
    LookColour colour;
    std::string_view name;  // as the style sheet writes it, behind an "@"
    std::uint32_t rgb;      // 0xRRGGBB
};

// The one table of them, in the order of LookColour.
std::span<const LookRow> LookTable();

QColor ColourOf(LookColour colour);

// A style sheet with every "@name" replaced by its colour.
QString WithColours(std::string_view style_sheet);

}  // namespace zandrell
