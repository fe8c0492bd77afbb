#include "desktop/look.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>

#include "canvas/palette.h"
#include "desktop/look_colours.h"

namespace zandrell {
namespace {

QPalette PaletteOf(LookScheme scheme) {
    QPalette palette;
    const auto set = [&palette, scheme](QPalette::ColorRole role, LookColour colour) {
        palette.setColor(role, ColourOf(colour, scheme));
    };
    set(QPalette::Window, LookColour::Window);
    set(QPalette::WindowText, LookColour::Ink);
    set(QPalette::Base, LookColour::Field);
    set(QPalette::AlternateBase, LookColour::Panel);
    set(QPalette::Text, LookColour::Ink);
    set(QPalette::PlaceholderText, LookColour::MutedInk);
    set(QPalette::Button, LookColour::Field);
    set(QPalette::ButtonText, LookColour::Ink);
    set(QPalette::ToolTipBase, LookColour::Ink);
    set(QPalette::ToolTipText, LookColour::Field);
    set(QPalette::Highlight, LookColour::Accent);
    set(QPalette::HighlightedText, LookColour::OnAccent);
    set(QPalette::Light, LookColour::Panel);
    set(QPalette::Midlight, LookColour::Cell);
    set(QPalette::Mid, LookColour::Border);
    set(QPalette::Dark, LookColour::Border);
    set(QPalette::Link, LookColour::Accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, ColourOf(LookColour::DisabledInk, scheme));
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, ColourOf(LookColour::Window, scheme));
    return palette;
}

// An em is the height of the widget's text, 15 pixels at scale 1, so that all but the hair lines
// grow with it.
constexpr const char* kStyleSheet = R"(
QMenuBar { background: @field; color: @ink; border-bottom: 1px solid @hairline; padding: 0.133em 0.267em; }
QMenuBar::item { padding: 0.267em 0.667em; border-radius: 0.267em; background: transparent; }
QMenuBar::item:selected { background: @selected; }
QMenu { background: @field; color: @ink; border: 1px solid @border; padding: 0.267em; }
QMenu::item { padding: 0.333em 1.733em 0.333em 0.933em; border-radius: 0.267em; }
QMenu::item:selected { background: @selected; color: @ink; }
QMenu::item:disabled { color: @disabled; }
QMenu::separator { height: 1px; background: @hairline; margin: 0.267em 0.533em; }
QMenu::item:disabled:selected { background: @panel; color: @disabled; }
QToolTip { background: @ink; color: @field; border: none; padding: 0.333em 0.467em; }

QLineEdit { border: 1px solid @border; border-radius: 0.267em; padding: 0.133em 0.4em;
            background: transparent; }
QLineEdit:disabled { border-color: transparent; color: @ink; }
QLineEdit:hover { border-color: @accent; }
QLineEdit:focus { border: 0.133em solid @accent; padding: 1px 0.333em; }
QLineEdit[pending="true"] { border-left: 0.333em solid @accent; padding-left: 0.133em; }

QPushButton { border: 1px solid @border; border-radius: 0.4em; padding: 0.333em 0.8em;
              background: @field; }
QPushButton:hover { border-color: @accent; background: @hovered; }
QPushButton:focus { border: 0.133em solid @accent; padding: 0.267em 0.733em; }
QPushButton:pressed { background: @pressed; border-color: @accent; }
QPushButton:disabled { background: @window; border-color: @disabled-edge; }
QPushButton[tool="true"] { text-align: left; padding: 0.267em 0.533em; }
QPushButton[tool="true"]:checked { background: @selected; border-color: @accent; }
QPushButton[tool="true"]:focus { padding: 0.2em 0.467em; }
QPushButton[skinned="dark texts"] { background: rgba(255, 255, 255, 34); border-color: black; }
QPushButton[skinned="dark texts"]:hover { background: rgba(255, 255, 255, 70); }
QPushButton[skinned="dark texts"]:pressed { background: rgba(255, 255, 255, 110); }
QPushButton[skinned="dark texts"]:checked { background: rgba(255, 255, 255, 120);
                                            border: 0.133em solid black; }
QPushButton[skinned="dark texts"]:disabled { color: rgba(0, 0, 0, 150); }
QPushButton[skinned="light texts"] { background: rgba(0, 0, 0, 34); border-color: white; }
QPushButton[skinned="light texts"]:hover { background: rgba(0, 0, 0, 70); }
QPushButton[skinned="light texts"]:pressed { background: rgba(0, 0, 0, 110); }
QPushButton[skinned="light texts"]:checked { background: rgba(0, 0, 0, 110);
                                             border: 0.133em solid white; }
QPushButton[skinned="light texts"]:disabled { color: rgba(255, 255, 255, 150); }
QPushButton[quiet="true"] { border: 1px solid transparent; background: transparent;
                            padding: 0.133em; }
QPushButton[quiet="true"]:hover { background: rgba(11, 92, 122, 36); }
QPushButton[quiet="true"]:focus { border: 0.133em solid @accent; padding: 1px; }
QPushButton::menu-indicator { image: none; width: 0; }

QSlider { min-height: 1.2em; }
QSlider::groove:horizontal { height: 0.267em; border-radius: 0.133em; background: @border; }
QSlider::sub-page:horizontal { border-radius: 0.133em; background: @accent; }
QSlider::sub-page:horizontal:disabled { background: @disabled-edge; }
QSlider::groove:horizontal:disabled { background: @disabled-edge; }
QSlider::handle:horizontal { width: 0.8em; height: 0.8em; margin: -0.333em 0; border-radius: 0.4em;
                             border: 1px solid @accent; background: @field; }
QSlider::handle:horizontal:hover { background: @pressed; }
QSlider::handle:horizontal:focus { background: @accent; }
QSlider::handle:horizontal:disabled { border-color: @disabled-edge; background: @window; }

QRadioButton::indicator { width: 0.8em; height: 0.8em; border: 1px solid @border;
                          border-radius: 0.45em; background: @field; }
QRadioButton::indicator:focus, QRadioButton::indicator:hover { border-color: @accent; }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,
    fx: 0.5, fy: 0.5, stop: 0 @accent, stop: 0.55 @accent, stop: 0.65 @field, stop: 1 @field); }
QCheckBox::indicator:unchecked { width: 0.8em; height: 0.8em; border: 1px solid @border;
                                 border-radius: 0.2em; background: @field; }

QLabel[role="band"] { background: @band; border-radius: 0.267em; padding: 0.2em 0.533em; }
QLabel[role="status"] { background: @panel; color: @ink; border: 1px solid @border;
                        border-radius: 0.4em; padding: 0.2em 0.8em; }
QLabel[role="hint"] { background: @panel; color: @ink; border: 1px solid @accent;
                      border-radius: 0.533em; padding: 0.8em 1.067em; }
QGroupBox { border: 1px solid @hairline; border-radius: 0.4em; margin-top: 1.467em; padding: 0.267em;
            background: @panel; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; padding: 0.133em; }
QDialog { background: @window; }
QDialog[skinned="dark texts"] QGroupBox { background: transparent; border-color: black; }
QDialog[skinned="light texts"] QGroupBox { background: transparent; border-color: white; }
QDialog[skinned="dark texts"] QGroupBox::title { color: black; }
QDialog[skinned="light texts"] QGroupBox::title { color: white; }
QScrollBar { background: transparent; }
QScrollBar:vertical { width: 0.8em; }
QScrollBar:horizontal { height: 0.8em; }
QScrollBar::handle { background: @border; border-radius: 0.2em; margin: 0.2em; }
QScrollBar::handle:hover { background: @accent; }
QScrollBar::handle:vertical { min-height: 1.6em; }
QScrollBar::handle:horizontal { min-width: 1.6em; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: none; }
)";

constexpr double kUsualWidth = 1920, kUsualHeight = 1080;  // pixels
constexpr double kScaleStep = 0.05, kLargestScale = 2.5;
constexpr double kUsualTextHeight = 15;  // pixels, of a font of 9 points

bool IsLight(const QColor& colour) { return qGray(colour.rgb()) > 170; }

}  // namespace

void ApplyLook(QApplication& application, const Look& look) {
    constexpr const char* kUnscaled = "unscaled_font_points";
    if (!application.property(kUnscaled).isValid()) {
        application.setProperty(kUnscaled, QFontInfo(QApplication::font()).pointSizeF());
        application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    application.setPalette(PaletteOf(look.scheme));
    QFont font = QApplication::font();
    font.setPointSizeF(application.property(kUnscaled).toReal() * look.scale);
    QApplication::setFont(font);
    application.setStyleSheet(WithColours(kStyleSheet, look.scheme));
}

double ScaleFor(int width, int height) {
    const double size = std::min(width / kUsualWidth, height / kUsualHeight);
    if (!(size > 1)) return 1;
    return std::min(std::round(std::pow(size, 0.6) / kScaleStep) * kScaleStep, kLargestScale);
}

int Scaled(const QWidget& widget, int pixels) {
    return static_cast<int>(std::lround(pixels * widget.fontMetrics().height() / kUsualTextHeight));
}

void MakeBold(QWidget* widget) {
    QFont font = widget->font();
    font.setBold(true);
    widget->setFont(font);
    widget->setProperty("always_bold", true);
}

// Full black and not the ink: the pictures of the skins leave no room for less.
QColor TextColour(int palette_number) { return QColor(QRgb{PaletteRgb(palette_number)}); }

// The loud colours of a palette would hide the figure that stands on them.
QColor GroundColour(int palette_number) {
    if (palette_number == kLightRed) return ColourOf(LookColour::SoftRed);
    if (palette_number == kLightGreen) return ColourOf(LookColour::SoftGreen);
    if (palette_number == kYellow) return ColourOf(LookColour::SoftYellow);
    return QColor(QRgb{PaletteRgb(palette_number)});
}

FigureLabel::FigureLabel(QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setContentsMargins(6, 2, 7, 2);
    setTextInteractionFlags(Qt::NoTextInteraction);
}

void FigureLabel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ground());
    painter.drawRoundedRect(QRectF(rect()), 4, 4);
    painter.end();
    QLabel::paintEvent(event);
}

QColor FigureLabel::Ground() const {
    const QColor own = palette().color(QPalette::Base);
    if (own != QApplication::palette().color(palette().currentColorGroup(), QPalette::Base)) {
        return own;
    }
    const bool light_text = IsLight(palette().color(QPalette::WindowText));
    if (light_text == IsLight(ColourOf(LookColour::Ink))) return ColourOf(LookColour::Cell);
    // A skin whose texts are not those of the scheme.
    return light_text ? QColor(0, 0, 0, 60) : ColourOf(LookColour::Cell, LookScheme::Light);
}

FigureField::FigureField(int digits, QWidget* parent) : QLineEdit(parent), digits_(digits) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize FigureField::sizeHint() const {
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits_;
    return {width + Scaled(*this, 18), QLineEdit::sizeHint().height()};
}

void FigureField::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // The transparent ground of the style sheet stands in the palette where nothing else was set.
    const QColor own = palette().color(QPalette::Base);
    const QColor designed =
        QApplication::palette().color(palette().currentColorGroup(), QPalette::Base);
    // What cannot be typed is a figure like others.
    const QColor usual = isEnabled() ? designed : ColourOf(LookColour::Cell);
    painter.setBrush(own.alpha() == 0 || own == designed ? usual : own);
    const double radius = Scaled(*this, 4);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.end();
    QLineEdit::paintEvent(event);
}

}  // namespace zandrell
