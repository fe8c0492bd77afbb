#include "desktop/look.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>

#include "canvas/palette.h"

namespace zandrell {
namespace {

constexpr QRgb kInk = 0xFF1F2D37, kFaintInk = 0xFF9AA7B0;
constexpr QRgb kWindow = 0xFFF3F5F7, kPanel = 0xFFFAFBFC, kField = 0xFFFFFFFF;
constexpr QRgb kBorder = 0xFFCFD7DD, kAccent = 0xFF0B5C7A, kSoftRed = 0xFFF4A39B,
               kCell = 0xFFEEF2F5;

QPalette LightPalette() {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour) {
        palette.setColor(role, QColor(colour));
    };
    set(QPalette::Window, kWindow);
    set(QPalette::WindowText, kInk);
    set(QPalette::Base, kField);
    set(QPalette::AlternateBase, kPanel);
    set(QPalette::Text, kInk);
    set(QPalette::PlaceholderText, kFaintInk);
    set(QPalette::Button, kField);
    set(QPalette::ButtonText, kInk);
    set(QPalette::ToolTipBase, kInk);
    set(QPalette::ToolTipText, kField);
    set(QPalette::Highlight, kAccent);
    set(QPalette::HighlightedText, kField);
    set(QPalette::Link, kAccent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(kFaintInk));
    }
    return palette;
}

// An em is the height of the widget's text, 15 pixels at scale 1, so that all but the hair lines
// grow with it.
constexpr const char* kStyleSheet = R"(
QMenuBar { background: #FFFFFF; border-bottom: 1px solid #DFE5E9; padding: 0.133em 0.267em; }
QMenuBar::item { padding: 0.267em 0.667em; border-radius: 0.267em; background: transparent; }
QMenuBar::item:selected { background: #E3EDF2; }
QMenu { background: #FFFFFF; border: 1px solid #CFD7DD; padding: 0.267em; }
QMenu::item { padding: 0.333em 1.733em 0.333em 0.933em; border-radius: 0.267em; }
QMenu::item:selected { background: #E3EDF2; color: #1F2D37; }
QMenu::item:disabled { color: #9AA7B0; }
QToolTip { background: #1F2D37; color: #FFFFFF; border: none; padding: 0.333em 0.467em; }

QLineEdit { border: 1px solid #CFD7DD; border-radius: 0.267em; padding: 0.133em 0.4em; }
QLineEdit:hover { border-color: #9FB4C0; }
QLineEdit:focus { border: 0.133em solid #0B5C7A; padding: 1px 0.333em; }

QPushButton { border: 1px solid #CFD7DD; border-radius: 0.4em; padding: 0.333em 0.8em;
              background: #FFFFFF; }
QPushButton:hover { border-color: #0B5C7A; background: #F2F8FA; }
QPushButton:focus { border: 0.133em solid #0B5C7A; padding: 0.267em 0.733em; }
QPushButton:pressed { background: #D5E6ED; border-color: #0B5C7A; }
QPushButton:disabled { background: #F3F5F7; border-color: #E2E7EB; }
QPushButton[tool="true"] { text-align: left; padding: 0.267em 0.533em; }
QPushButton[tool="true"]:focus { padding: 0.2em 0.467em; }
QPushButton[skinned="true"] { background: rgba(255, 255, 255, 34);
                              border-color: rgba(255, 255, 255, 80); }
QPushButton[skinned="true"]:hover { background: rgba(255, 255, 255, 70); }
QPushButton[skinned="true"]:pressed { background: rgba(0, 0, 0, 60); }
QPushButton[quiet="true"] { border: 1px solid transparent; background: transparent;
                            padding: 0.133em; }
QPushButton[quiet="true"]:hover { background: rgba(11, 92, 122, 36); }
QPushButton[quiet="true"]:focus { border: 0.133em solid #0B5C7A; padding: 1px; }

QSlider { min-height: 1.2em; }
QSlider::groove:horizontal { height: 0.267em; border-radius: 0.133em; background: #D9E0E5; }
QSlider::sub-page:horizontal { border-radius: 0.133em; background: #7FAEC2; }
QSlider::sub-page:horizontal:disabled { background: #D9E0E5; }
QSlider::handle:horizontal { width: 0.8em; height: 0.8em; margin: -0.333em 0; border-radius: 0.4em;
                             border: 1px solid #0B5C7A; background: #FFFFFF; }
QSlider::handle:horizontal:hover { background: #D5E6ED; }
QSlider::handle:horizontal:focus { background: #0B5C7A; }
QSlider::handle:horizontal:disabled { border-color: #B7C2CA; background: #F3F5F7; }

QLabel[role="band"] { background: #0B5C7A; border-radius: 0.267em; padding: 0.2em 0.533em; }
QGroupBox { border: 1px solid #DCE3E8; border-radius: 0.4em; margin-top: 1.467em; padding: 0.267em;
            background: #FAFBFC; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; padding: 0.133em; }
QDialog { background: #F3F5F7; }
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
    application.setStyleSheet(QString::fromLatin1(kStyleSheet));
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

QColor AccentColour() { return QColor(kAccent); }
QColor BorderColour() { return QColor(kBorder); }
QColor PanelColour() { return QColor(kPanel); }

QColor TextColour(int palette_number) {
    if (palette_number == kBlack) return QColor(kInk);
    return QColor(QRgb{PaletteRgb(palette_number)});
}

// The loud red of a palette would hide the figure that stands on it.
QColor GroundColour(int palette_number) {
    if (palette_number == kLightRed) return QColor(kSoftRed);
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
    if (ground == QColor(kField)) ground = QColor(kCell);
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
