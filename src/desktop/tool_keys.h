#pragma once

#include <Qt>
#include <array>
#include <string_view>

namespace zandrell {

// The keys of the tools, and the menu entries that do the same and so show them too.
struct ToolKey {
    std::string_view button;
    int key;
    std::string_view entry;  // empty: none
};
inline constexpr std::array<ToolKey, 9> kToolKeys = {{
    {"optButt", Qt::Key_F2, "qveinst"},
    {"ZAButt", Qt::Key_F3, "ZustAe"},
    {"MischButt", Qt::Key_F4, "Misch"},
    {"BearButt", Qt::Key_F5, "Kleis"},
    {"AnlageButt", Qt::Key_F6, "AnlageS"},
    {"druckbutt", Qt::Key_F7, ""},
    {"PSButt", Qt::Key_F8, "Hsich"},
    {"PLbutt", Qt::Key_F9, "Hlad"},
    {"ZOOMMIN", static_cast<int>(Qt::CTRL) | Qt::Key_0, ""},
}};

}  // namespace zandrell
