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

QPalette LightPalette() {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, LookColour colour) {
        palette.setColor(role, ColourOf(colour));
    };
    set(QPalette::Window, LookColour::Window);
    set(QPalette::WindowText, LookColour::Ink);
    set(QPalette::Base, LookColour::White);
    set(QPalette::AlternateBase, LookColour::Panel);
    set(QPalette::Text, LookColour::Ink);
    set(QPalette::PlaceholderText, LookColour::MutedInk);
    set(QPalette::Button, LookColour::White);
    set(QPalette::ButtonText, LookColour::Ink);
    set(QPalette::ToolTipBase, LookColour::Ink);
    set(QPalette::ToolTipText, LookColour::White);
    set(QPalette::Highlight, LookColour::Accent);
    set(QPalette::HighlightedText, LookColour::White);
    set(QPalette::Link, LookColour::Accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, ColourOf(LookColour::DisabledInk));
    }
    return palette;
}

// An em is the height of the widget's text, 15 pixels at scale 1, so that all but the hair lines
// grow with it.
constexpr const char* kStyleSheet = R"(
QMenuBar { background: @white; border-bottom: 1px solid @hairline; padding: 0.133em 0.267em; }
QMenuBar::item { padding: 0.267em 0.667em; border-radius: 0.267em; background: transparent; }
QMenuBar::item:selected { background: @selected; }
QMenu { background: @white; border: 1px solid @border; padding: 0.267em; }
QMenu::item { padding: 0.333em 1.733em 0.333em 0.933em; border-radius: 0.267em; }
QMenu::item:selected { background: @selected; color: @ink; }
QMenu::item:disabled { color: @disabled; }
QToolTip { background: @ink; color: @white; border: none; padding: 0.333em 0.467em; }

QLineEdit { border: 1px solid @border; border-radius: 0.267em; padding: 0.133em 0.4em; }
QLineEdit:hover { border-color: @accent; }
QLineEdit:focus { border: 0.133em solid @accent; padding: 1px 0.333em; }

QPushButton { border: 1px solid @border; border-radius: 0.4em; padding: 0.333em 0.8em;
              background: @white; }
QPushButton:hover { border-color: @accent; background: @hovered; }
QPushButton:focus { border: 0.133em solid @accent; padding: 0.267em 0.733em; }
QPushButton:pressed { background: @pressed; border-color: @accent; }
QPushButton:disabled { background: @window; border-color: @disabled-edge; }
QPushButton[tool="true"] { text-align: left; padding: 0.267em 0.533em; }
QPushButton[tool="true"]:focus { padding: 0.2em 0.467em; }
QPushButton[skinned="dark texts"] { background: rgba(255, 255, 255, 34); border-color: black; }
QPushButton[skinned="dark texts"]:hover { background: rgba(255, 255, 255, 70); }
QPushButton[skinned="dark texts"]:pressed { background: rgba(255, 255, 255, 110); }
QPushButton[skinned="light texts"] { background: rgba(0, 0, 0, 34); border-color: white; }
QPushButton[skinned="light texts"]:hover { background: rgba(0, 0, 0, 70); }
QPushButton[skinned="light texts"]:pressed { background: rgba(0, 0, 0, 110); }
QPushButton[quiet="true"] { border: 1px solid transparent; background: transparent;
                            padding: 0.133em; }
QPushButton[quiet="true"]:hover { background: rgba(11, 92, 122, 36); }
QPushButton[quiet="true"]:focus { border: 0.133em solid @accent; padding: 1px; }

QSlider { min-height: 1.2em; }
QSlider::groove:horizontal { height: 0.267em; border-radius: 0.133em; background: @border; }
QSlider::sub-page:horizontal { border-radius: 0.133em; background: @accent; }
QSlider::sub-page:horizontal:disabled { background: @disabled-edge; }
QSlider::groove:horizontal:disabled { background: @disabled-edge; }
QSlider::handle:horizontal { width: 0.8em; height: 0.8em; margin: -0.333em 0; border-radius: 0.4em;
                             border: 1px solid @accent; background: @white; }
QSlider::handle:horizontal:hover { background: @pressed; }
QSlider::handle:horizontal:focus { background: @accent; }
QSlider::handle:horizontal:disabled { border-color: @disabled-edge; background: @window; }

QLabel[role="band"] { background: @accent; border-radius: 0.267em; padding: 0.2em 0.533em; }
QGroupBox { border: 1px solid @hairline; border-radius: 0.4em; margin-top: 1.467em; padding: 0.267em;
            background: @panel; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; padding: 0.133em; }
QDialog { background: @window; }
)";

constexpr double kUsualWidth = 1920, kUsualHeight = 1080;  // pixels
constexpr double kUsualTextHeight = 15;                    // pixels, of a font of 9 points

bool IsLight(const QColor& colour) { return qGray(colour.rgb()) > 170; }

}  // namespace

void ApplyLook(QApplication& application, double scale) {
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(LightPalette());
    QFont font = QApplication::font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * scale);
    QApplication::setFont(font);
    application.setStyleSheet(WithColours(kStyleSheet));
}

double ScaleFor(int width, int height) {
    const double size = std::min(width / kUsualWidth, height / kUsualHeight);
    return size > 1 ? std::min(std::pow(size, 0.6), 2.5) : 1;
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

// The loud red of a palette would hide the figure that stands on it.
QColor GroundColour(int palette_number) {
    if (palette_number == kLightRed) return ColourOf(LookColour::SoftRed);
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
    QColor ground = palette().color(QPalette::Base);
    if (ground == ColourOf(LookColour::White)) ground = ColourOf(LookColour::Cell);
    // A skin with white texts: the cell lets the skin shine through.
    if (IsLight(ground) && IsLight(palette().color(QPalette::WindowText))) {
        ground = QColor(0, 0, 0, 60);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()), 4, 4);
    painter.end();
    QLabel::paintEvent(event);
}

FigureField::FigureField(int digits, QWidget* parent) : QLineEdit(parent), digits_(digits) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize FigureField::sizeHint() const {
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits_;
    return {width + Scaled(*this, 18), QLineEdit::sizeHint().height()};
}

}  // namespace zandrell
