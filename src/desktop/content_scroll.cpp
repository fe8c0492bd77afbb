#include "desktop/content_scroll.h"

#include <QEvent>
#include <QLayout>
#include <QScrollBar>

namespace zandrell {

ContentScroll::ContentScroll(QWidget* content, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // Sizes are asked for before anything is shown, and the style sheet has its part in them.
    content->ensurePolished();
}

bool ContentScroll::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) FollowContent();
    return QScrollArea::eventFilter(watched, event);
}

// Controls that come and go change the wish at once, while the toolkit would tell of it only when
// its events are handled.
void ContentScroll::FollowContent() {
    if (widget()->layout()) widget()->layout()->activate();
    const QSize wish = sizeHint();
    if (wish != wish_) updateGeometry();
    wish_ = wish;
    if (fills_height_) HoldWidth();
}

void ContentScroll::FillHeight() {
    fills_height_ = true;
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    FollowContent();
}

void ContentScroll::HoldWidth() {
    const bool scrolls = widget()->minimumSizeHint().height() > height();
    const int width = sizeHint().width() + (scrolls ? BarWidth() : 0);
    if (minimumWidth() != width || maximumWidth() != width) setFixedWidth(width);
}

void ContentScroll::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (fills_height_) HoldWidth();
}

QSize ContentScroll::sizeHint() const {
    return widget()
        ->sizeHint()
        .expandedTo(widget()->minimumSizeHint())
        .expandedTo(widget()->minimumSize());
}

int ContentScroll::BarWidth() const { return verticalScrollBar()->sizeHint().width(); }

}  // namespace zandrell
