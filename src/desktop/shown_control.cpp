#include "desktop/shown_control.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>

#include "canvas/palette.h"
#include "desktop/look.h"
#include "desktop/look_colours.h"

namespace zandrell {
namespace {

constexpr int kLongestTip = 300;  // characters

// Which roles of a widget's palette take the colours of its control.
struct ColourRoles {
    QPalette::ColorRole text, ground;
};

ColourRoles RolesOf(const QWidget* widget) {
    if (qobject_cast<const QLineEdit*>(widget)) return {QPalette::Text, QPalette::Base};
    if (qobject_cast<const QPushButton*>(widget)) return {QPalette::ButtonText, QPalette::Button};
    return {QPalette::WindowText, QPalette::Base};
}

// The edge of a text that is not yet confirmed. The style sheet takes the palette along, and the
// font of the panel unless it is set again.
void ShowPending(QWidget* widget, bool pending) {
    if (widget->property("pending").toBool() == pending) return;
    const QFont font = widget->font();
    widget->setProperty("pending", pending);
    widget->style()->polish(widget);
    widget->setFont(font);
}

bool IsRefused(const Control& control) {
    return !control.hint.empty() && !control.stale && !control.pending;
}

}  // namespace

ShownColours ColoursOf(const Control& control) {
    if (IsRefused(control)) return {control.foreground, kLightRed};
    return {control.foreground, control.background, control.stale, control.pending};
}

void ApplyColours(QWidget* widget, const ShownColours& colours) {
    ShowPending(widget, colours.pending);
    const ColourRoles roles = RolesOf(widget);
    QPalette palette;
    if (colours.text) palette.setColor(roles.text, TextColour(*colours.text));
    if (colours.ground && *colours.ground != kWhite) {
        palette.setColor(roles.ground, GroundColour(*colours.ground));
        palette.setColor(roles.text, ColourOf(LookColour::Ink));
    }
    // A skin has captions of its own colour, for which there is no paler one.
    if (colours.stale && !colours.text) {
        palette.setColor(roles.text, ColourOf(LookColour::MutedInk));
    }
    widget->setPalette(palette);
    QFont font = widget->font();
    if (font.italic() == colours.stale) return;
    font.setItalic(colours.stale);
    widget->setFont(font);
}

QString TipOf(const QWidget* widget, const Control& control) {
    QString tip = QString::fromStdString(control.hint.empty() ? control.tool_tip : control.hint);
    if (tip.size() > kLongestTip) tip = tip.left(kLongestTip - 1) + QChar(0x2026);
    // A user's text that looks like markup is no markup.
    if (Qt::mightBeRichText(tip)) tip = tip.toHtmlEscaped();
    const QString key = widget->property("key").toString();
    if (key.isEmpty()) return tip;
    return tip + (tip.isEmpty() ? QString() : QStringLiteral("  ")) + QLatin1Char('(') + key +
           QLatin1Char(')');
}

}  // namespace zandrell
