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
    if (isVisible()) Place();  // a panel may have come
    if (shown_count_ == status_.Count()) return;
    shown_count_ = status_.Count();
    setAccessibleName(text);
    raise();
    fading_.start();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void StatusView::Place() {
    adjustSize();
    if (const QPoint place = FreePlace(); pos() != place) move(place);
}

// The foot of the chart before its top, the middle before the sides. Where all of them are covered
// it is the top: the buttons of a panel are at its foot.
QPoint StatusView::FreePlace() const {
    const int gap = Scaled(*this, kGap);
    const QSize room = parentWidget()->size();
    const int foot = room.height() - height() - gap;
    const int middle = (room.width() - width()) / 2, right = room.width() - width() - gap;
    const QRegion taken = covered ? covered() : QRegion();
    for (const int top : {foot, gap}) {
        for (const int left : {middle, right, gap}) {
            if (!taken.intersects(QRect({left, top}, size()))) return {left, top};
        }
    }
    return {middle, gap};
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
