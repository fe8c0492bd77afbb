#include "desktop/floating_panel.h"

#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/look_colours.h"

namespace zandrell {
namespace {

constexpr double kRadius = 8;
constexpr int kStep = 16;  // pixels that an arrow key moves a panel

// One pixel wide, filled: a stroke takes many times as long under the clip that the content leaves.
void PaintBorder(QPainter& painter, const QRectF& body) {
    QPainterPath path;
    path.addRoundedRect(body, kRadius + 0.5, kRadius + 0.5);
    path.addRoundedRect(body.adjusted(1, 1, -1, -1), kRadius - 0.5, kRadius - 0.5);
    painter.fillPath(path, ColourOf(LookColour::Border));
}

// Only around the panel: its inside is painted over, at ten times the cost of the rims.
void PaintShadow(QPainter& painter, const QRectF& body) {
    const QRectF inside = body.adjusted(kRadius, kRadius, -kRadius, -kRadius);
    for (int ring = FloatingPanel::kShadow; ring > 0; --ring) {
        const double fade = 1 - static_cast<double>(ring) / (FloatingPanel::kShadow + 1);
        QPainterPath path;
        path.addRoundedRect(body.adjusted(-ring, -ring + 2, ring, ring), kRadius + ring,
                            kRadius + ring);
        if (inside.isValid()) path.addRect(inside);
        painter.fillPath(path, QColor(20, 35, 45, static_cast<int>(14 * fade * fade)));
    }
}

}  // namespace

void PaintPanelGround(QPainter& painter, const QRectF& body, double radius,
                      std::string_view picture_name, Pictures& pictures, const QColor& ground) {
    QPainterPath path;
    path.addRoundedRect(body, radius, radius);
    const QPixmap picture = pictures.Opaque(picture_name);
    if (picture.isNull()) {
        painter.fillPath(path, ground);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipPath(path, Qt::IntersectClip);
    painter.drawPixmap(body, picture, QRectF(picture.rect()));
    painter.restore();
}

FloatingPanel::FloatingPanel(MainForm& form, Panel& panel, FormMirror& mirror, ChartWidget& chart,
                             std::string_view closing_control)
    : QWidget(&chart),
      form_(form),
      panel_(panel),
      mirror_(mirror),
      chart_(chart),
      closing_control_(closing_control) {
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::ClickFocus);
    mirror.BindPanel(this, panel);
    hide();
}

void FloatingPanel::SetContent(QWidget* content) {
    scroll_ = new ContentScroll(content, this);
    HideWhatIsUnder(*content);
    layout()->addWidget(scroll_);
}

// Where the panel has no picture its content has a ground of its own, so that a figure that changes
// takes no repaint of the shadow and of the chart.
void FloatingPanel::HideWhatIsUnder(QWidget& content) const {
    if (!mirror_.PictureStore().Opaque(panel_.picture).isNull()) return;
    QPalette palette;
    palette.setColor(QPalette::Window, ColourOf(LookColour::Panel));
    content.setPalette(palette);
    content.setAutoFillBackground(true);
}

void FloatingPanel::Place() {
    if (isHidden()) return;
    const QRect room = chart_.rect().adjusted(-kShadow / 2, -kShadow / 2, kShadow / 2, kShadow / 2);
    if (arrange) arrange(room.size());
    if (scroll_) scroll_->FollowContent();
    layout()->activate();
    QSize wanted = sizeHint();
    if (wanted.height() > room.height() && scroll_) wanted.rwidth() += scroll_->BarWidth();
    if (size() != wanted.boundedTo(room.size())) resize(wanted.boundedTo(room.size()));
    const QPoint corner = chart_.ToWidget({panel_.left, panel_.top}).toPoint();
    const auto held = [](int place, int least, int most) {
        return std::max(least, std::min(place, most));
    };
    const QPoint place(held(corner.x() - kShadow, room.left(), room.right() + 1 - width()),
                       held(corner.y() - kShadow, room.top(), room.bottom() + 1 - height()));
    if (pos() != place) move(place);
}

// What a panel holds has changed its wish.
bool FloatingPanel::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest) Place();
    return handled;
}

QRegion FloatingPanel::Opaque() const {
    if (isHidden()) return {};
    const int corner = static_cast<int>(kRadius);
    const QRect body = Body().translated(pos());
    return QRegion(body.adjusted(corner, 0, -corner, 0)) +
           QRegion(body.adjusted(0, corner, 0, -corner));
}

void FloatingPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body(Body());
    PaintShadow(painter, body);
    PaintPanelGround(painter, body, kRadius, panel_.picture, mirror_.PictureStore(),
                     ColourOf(LookColour::Panel));
    PaintBorder(painter, body);
}

CanvasPoint FloatingPanel::AsSeenByForm(QPointF place) const {
    const QPointF shown = QPointF(pos()) + QPointF(kShadow, kShadow);
    return chart_.ToCanvas(place - shown + chart_.ToWidget({panel_.left, panel_.top}));
}

void FloatingPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !Body().contains(event->pos())) return;
    const CanvasPoint place = AsSeenByForm(mapToParent(event->position()));
    const QSize outline = Body().size();
    // The panel hides while it is dragged, so the chart goes on with the pointer.
    chart_.TakeDrag(outline);
    chart_.perform([&] {
        form_.Panels().Press(panel_, place);
        form_.Panels().Move(chart_.ToCanvas(mapToParent(event->position())));
    });
}

void FloatingPanel::mouseMoveEvent(QMouseEvent* event) { event->accept(); }
void FloatingPanel::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

// Else it would turn the chart under the panel.
void FloatingPanel::wheelEvent(QWheelEvent* event) { event->accept(); }

void FloatingPanel::MoveBy(QPoint direction) {
    const QPointF grip = QPointF(pos()) + QPointF(kShadow, kShadow);
    mirror_.Perform([&] {
        form_.Panels().Press(panel_, AsSeenByForm(grip));
        form_.Panels().Move(chart_.ToCanvas(grip + kStep * QPointF(direction)));
        form_.Panels().Release();
    });
}

void FloatingPanel::Close() { mirror_.Click(closing_control_); }

void FloatingPanel::TakeFocus() {
    for (QWidget* next = nextInFocusChain(); next != nullptr && next != this;
         next = next->nextInFocusChain()) {
        const bool is_field = qobject_cast<QLineEdit*>(next) != nullptr && isAncestorOf(next);
        if (!is_field || !next->isVisibleTo(this) || !next->isEnabled()) continue;
        next->setFocus(Qt::TabFocusReason);
        return;
    }
    setFocus();
}

void InnerPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    PaintPanelGround(painter, body, 6, panel_.picture, pictures_, ColourOf(LookColour::Field));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ColourOf(LookColour::Hairline), 1));
    painter.drawRoundedRect(body, 6, 6);
}

}  // namespace zandrell
