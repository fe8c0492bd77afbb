#include "desktop/status_view.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

#include "desktop/form_mirror.h"
#include "desktop/look.h"

namespace zandrell {
namespace {

constexpr int kShownFor = 6000;  // ms
constexpr int kGap = 6;          // pixels to the edge of the chart, at scale 1

}  // namespace

StatusView::StatusView(const StatusLine& status, QWidget* chart, std::function<void()> fade)
    : QLabel(chart), status_(status) {
    setObjectName(QStringLiteral("StatusLine"));
    setProperty("role", QStringLiteral("status"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    hide();
    fading_.setSingleShot(true);
    fading_.setInterval(kShownFor);
    fading_.callOnTimeout(this, std::move(fade));
    chart->installEventFilter(this);
}

void StatusView::Sync() {
    const QString text = ShownText(status_.line.text);
    if (this->text() != text) setText(text);
    setVisible(!text.isEmpty());
    if (shown_count_ == status_.Count()) return;
    shown_count_ = status_.Count();
    setAccessibleName(text);
    Place();
    raise();
    fading_.start();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void StatusView::Place() {
    adjustSize();
    const int gap = Scaled(*this, kGap);
    const QSize room = parentWidget()->size();
    move((room.width() - width()) / 2, room.height() - height() - gap);
}

bool StatusView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != parentWidget()) return false;
    if (event->type() == QEvent::Resize && isVisible()) Place();
    if (event->type() != QEvent::ToolTip) return false;
    const auto* help = static_cast<QHelpEvent*>(event);
    const int foot = parentWidget()->height() - sizeHint().height() - 2 * Scaled(*this, kGap);
    if (status_.line.tool_tip.empty() || help->pos().y() < foot) return false;
    QToolTip::showText(help->globalPos(),
                       ShownText(status_.line.tool_tip)
                           .toHtmlEscaped()
                           .replace(QLatin1Char('\n'), QStringLiteral("<br>")),
                       parentWidget());
    return true;
}

}  // namespace zandrell
