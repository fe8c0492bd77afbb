#include "desktop/look_colours.h"

#include <QRgb>
#include <algorithm>
#include <array>

namespace zandrell {
namespace {

// Texts have at least four and a half times the contrast of nothing on each ground they stand on,
// borders of what takes input three times. What takes no input and hairlines between groups are
// free: they carry no information.
constexpr std::array<LookRow, 15> kColours = {{
    {LookColour::Ink, "ink", 0x1F2D37},
    {LookColour::MutedInk, "muted", 0x5F6C76},
    {LookColour::DisabledInk, "disabled", 0x8A97A0},
    {LookColour::White, "white", 0xFFFFFF},
    {LookColour::Window, "window", 0xF3F5F7},
    {LookColour::Panel, "panel", 0xFAFBFC},
    {LookColour::Cell, "cell", 0xEEF2F5},
    {LookColour::Border, "border", 0x7F8C95},
    {LookColour::Hairline, "hairline", 0xDCE3E8},
    {LookColour::Accent, "accent", 0x0B5C7A},
    {LookColour::Selected, "selected", 0xE3EDF2},
    {LookColour::Pressed, "pressed", 0xD5E6ED},
    {LookColour::Hovered, "hovered", 0xF2F8FA},
    {LookColour::DisabledEdge, "disabled-edge", 0xC3CCD2},
    {LookColour::SoftRed, "soft-red", 0xF4A39B},
}};

}  // namespace

std::span<const LookRow> LookTable() { return kColours; }

QColor ColourOf(LookColour colour) {
    return QColor(QRgb{kColours[static_cast<std::size_t>(colour)].rgb});
}

QString WithColours(std::string_view style_sheet) {
    QString text =
        QString::fromUtf8(style_sheet.data(), static_cast<qsizetype>(style_sheet.size()));
    // A longer name first: one may begin like another.
    std::array<LookRow, kColours.size()> rows = kColours;
    std::sort(rows.begin(), rows.end(),
              [](const LookRow& a, const LookRow& b) { return a.name.size() > b.name.size(); });
    for (const LookRow& row : rows) {
        const auto name =
            QString::fromUtf8(row.name.data(), static_cast<qsizetype>(row.name.size()));
        text.replace(QLatin1Char('@') + name, ColourOf(row.colour).name());
    }
    return text;
}

}  // namespace zandrell
