#include "desktop/look_colours.h"

#include <QGuiApplication>
#include <QPalette>
#include <QRgb>
#include <algorithm>
#include <array>

namespace zandrell {
namespace {

// Texts have at least four and a half times the contrast of nothing on each ground they stand on,
// borders of what takes input three times. What takes no input and hairlines between groups are
// free: they carry no information.
constexpr std::array<LookRow, 21> kColours = {{
    {LookColour::Ink, "ink", 0x1F2D37, 0xE4EAEE},
    {LookColour::MutedInk, "muted", 0x5F6C76, 0xA9B5BD},
    {LookColour::DisabledInk, "disabled", 0x8A97A0, 0x74828C},
    {LookColour::Field, "field", 0xFFFFFF, 0x1A2228},
    {LookColour::White, "white", 0xFFFFFF, 0xFFFFFF},
    {LookColour::OnAccent, "on-accent", 0xFFFFFF, 0x0F171C},
    {LookColour::Window, "window", 0xF3F5F7, 0x151C21},
    {LookColour::Panel, "panel", 0xFAFBFC, 0x1F2930},
    {LookColour::Cell, "cell", 0xEEF2F5, 0x2A363F},
    {LookColour::Border, "border", 0x7F8C95, 0x83929C},
    {LookColour::Hairline, "hairline", 0xDCE3E8, 0x36434C},
    {LookColour::Accent, "accent", 0x0B5C7A, 0x5AB4DC},
    {LookColour::Band, "band", 0x0B5C7A, 0x0B5C7A},
    {LookColour::Selected, "selected", 0xE3EDF2, 0x2C3F4A},
    {LookColour::Pressed, "pressed", 0xD5E6ED, 0x34505F},
    {LookColour::Hovered, "hovered", 0xF2F8FA, 0x263640},
    {LookColour::DisabledEdge, "disabled-edge", 0xC3CCD2, 0x3C4952},
    {LookColour::SoftRed, "soft-red", 0xF4A39B, 0x86382F},
    {LookColour::SoftGreen, "soft-green", 0xB5DFB0, 0x2C5E34},
    {LookColour::SoftYellow, "soft-yellow", 0xF3E29A, 0x6B5A17},
    {LookColour::Stripe, "stripe", 0xEDF1F4, 0x232E36},
}};

}  // namespace

std::span<const LookRow> LookTable() { return kColours; }

QColor ColourOf(LookColour colour, LookScheme scheme) {
    const LookRow& row = kColours[static_cast<std::size_t>(colour)];
    return QColor(QRgb{scheme == LookScheme::Dark ? row.dark : row.light});
}

QColor ColourOf(LookColour colour) { return ColourOf(colour, SchemeInForce()); }

LookScheme SchemeInForce() {
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    const bool dark = window == ColourOf(LookColour::Window, LookScheme::Dark);
    return dark ? LookScheme::Dark : LookScheme::Light;
}

QString WithColours(std::string_view style_sheet, LookScheme scheme) {
    QString text =
        QString::fromUtf8(style_sheet.data(), static_cast<qsizetype>(style_sheet.size()));
    // A longer name first: one may begin like another.
    std::array<LookRow, kColours.size()> rows = kColours;
    std::sort(rows.begin(), rows.end(),
              [](const LookRow& a, const LookRow& b) { return a.name.size() > b.name.size(); });
    for (const LookRow& row : rows) {
        const auto name =
            QString::fromUtf8(row.name.data(), static_cast<qsizetype>(row.name.size()));
        text.replace(QLatin1Char('@') + name, ColourOf(row.colour, scheme).name());
    }
    return text;
}

}  // namespace zandrell
