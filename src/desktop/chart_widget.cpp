#include "desktop/chart_widget.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desktop/accessible.h"
#include "desktop/form_mirror.h"
#include "desktop/look.h"
#include "desktop/look_colours.h"
#include "painter/shades.h"

namespace zandrell {
namespace {

constexpr int kRefineAfter = 70;  // ms without a step
constexpr int kEdgeRests = 150;   // ms without a size, after which the next one is a single one
constexpr double kZoomOfANotch = 1.2;
constexpr double kGrabRadiusShare = 1.6;  // of a mark's radius; a hand is not exact

QRectF Centred(QPointF centre, QSizeF size) {
    return {centre - QPointF(size.width() / 2, size.height() / 2), size};
}

Qt::CursorShape ShapeOf(PointerShape shape) {
    switch (shape) {
        case PointerShape::Cross:
            return Qt::CrossCursor;
        case PointerShape::Move:
            return Qt::SizeAllCursor;
        case PointerShape::Busy:
            return Qt::WaitCursor;
        case PointerShape::Arrow:
            break;
    }
    return Qt::ArrowCursor;
}

QRect Grown(const QRectF& rect) { return rect.adjusted(-2, -2, 2, 2).toAlignedRect(); }

}  // namespace

ChartWidget::ChartWidget(MainForm& form, Pictures& pictures, QWidget* parent)
    : QWidget(parent), form_(form), picture_(form, pictures) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(480, 320);
    setObjectName(QStringLiteral("chart"));
    refine_.setSingleShot(true);
    refine_.setInterval(kRefineAfter);
    refine_.callOnTimeout(this, [this] { Sync(); });
}

// The view counts in pixels of the screen, so that the kept picture and what is painted over it lie
// on each other exactly at every density.
const ChartView& ChartWidget::View() const {
    if (!view_) {
        const double density = devicePixelRatioF();
        const QRectF target(0, 0, std::round(width() * density), std::round(height() * density));
        view_.emplace(form_.chart.picture, target, density);
    }
    return *view_;
}

QPointF ChartWidget::ToWidget(CanvasPoint point) const {
    return View().ToDevice(point) / devicePixelRatioF();
}

CanvasPoint ChartWidget::ToCanvas(QPointF point) const {
    return View().ToCanvas(point * devicePixelRatioF());
}

OverlayDrawing ChartWidget::WantedOverlay() const {
    return VisibleItems(form_.overlay, View(), picture_.Texts());
}

void ChartWidget::Sync() {
    const bool resized = !picture_.HasSizeOf(View());
    if (refine_.isActive() && picture_.IsPainted()) {
        shown_overlay_ = WantedOverlay();
        shown_frames_ = FramesOfForm();
        update();
    } else if (resized || picture_.Revision() != form_.chart.picture.Revision()) {
        view_.reset();
        stale_ = true;
        update();
    } else {
        SyncOverlay();
        SyncFrames();
    }
    SyncPointer();
    if (QAccessible::isActive()) TellReaders();
}

void ChartWidget::PaintAnew() {
    view_.reset();
    picture_.Render(View(), devicePixelRatioF());
    shown_overlay_ = WantedOverlay();
    shown_frames_ = FramesOfForm();
    stale_ = false;
}

void ChartWidget::TellReaders() {
    const QString state = StateUnderPointer();
    if (state == told_state_) return;
    told_state_ = state;
    QAccessibleValueChangeEvent event(this, state);
    QAccessible::updateAccessibility(&event);
}

QString ChartWidget::StateUnderPointer() const {
    QStringList state;
    for (const auto& row : form_.read_out.rows) {
        const QString value = ShownText(row.figure->text);
        if (!row.figure->visible || value.isEmpty() || value == QLatin1String("-")) continue;
        state << ShownText(row.word.tool_tip) + QLatin1Char(' ') + value + QLatin1Char(' ') +
                     ShownText(std::string(row.unit));
    }
    return state.join(QStringLiteral(", "));
}

void ChartWidget::SyncOverlay() {
    OverlayDrawing wanted = WantedOverlay();
    if (wanted == shown_overlay_) return;
    UpdateDevice(TouchedBy(Without(shown_overlay_, wanted), View()));
    UpdateDevice(TouchedBy(Without(wanted, shown_overlay_), View()));
    shown_overlay_ = std::move(wanted);
}

QRect ChartWidget::FromDevice(const QRectF& pixels) const {
    const double density = devicePixelRatioF();
    return Grown(QRectF(pixels.topLeft() / density, pixels.size() / density));
}

void ChartWidget::UpdateDevice(const std::vector<QRectF>& touched) {
    QRegion region;
    for (const QRectF& rect : touched) region += FromDevice(rect);
    if (covered) region -= covered();
    update(region);
}

ChartWidget::Frames ChartWidget::FramesOfForm() const {
    Frames frames;
    const auto& zoom = form_.chart.controls.ZoomShape;
    if (zoom.visible) {
        frames.zoom = QRectF(ToWidget({zoom.left, zoom.top}),
                             ToWidget({zoom.left + zoom.width, zoom.top + zoom.height}));
    }
    const auto& outline = form_.controls.Shape3;
    if (outline.visible && outline_size_) {
        frames.outline = QRectF(ToWidget({outline.left, outline.top}), QSizeF(*outline_size_));
    }
    if (form_.chart.controls.ConsPN1.visible) {
        frames.progress = Centred(QRectF(rect()).center(), QSizeF(320, 44));
    }
    return frames;
}

void ChartWidget::SyncFrames() {
    const Frames wanted = FramesOfForm();
    if (wanted == shown_frames_) return;
    QRegion region;
    for (const Frames& frames : {shown_frames_, wanted}) {
        for (const auto& frame : {frames.zoom, frames.outline, frames.progress}) {
            if (frame) region += Grown(*frame);
        }
    }
    shown_frames_ = wanted;
    update(region);
}

void ChartWidget::SyncPointer() {
    Qt::CursorShape wanted = ShapeOf(form_.Pointer().MousePointer());
    if (pointer_place_ && MarkUnder(*pointer_place_) != nullptr) wanted = Qt::OpenHandCursor;
    if (panning_ || form_.Pointer().Marks().CarriesAny()) wanted = Qt::ClosedHandCursor;
    if (shown_pointer_ == wanted) return;
    shown_pointer_ = wanted;
    setCursor(wanted);
}

void ChartWidget::paintEvent(QPaintEvent* event) {
    // Only what is seen is painted: while a window is laid out or resized, sizes and charts come
    // and go between two paints. A window may also have come to a screen of another density.
    if (stale_ || !picture_.IsOfDensity(devicePixelRatioF())) PaintAnew();
    QPainter painter(this);
    const double density = devicePixelRatioF();
    if (refine_.isActive()) DrawMovedPicture(painter, event->region());
    painter.setClipRegion(event->region());
    if (!refine_.isActive()) picture_.Draw(painter);
    painter.save();
    painter.scale(1 / density, 1 / density);
    const auto touches = [&](const QRectF& area) {
        return event->region().intersects(FromDevice(area));
    };
    PaintOverlay(painter, Touching(shown_overlay_, View(), touches), View(),
                 form_.chart.picture.Background());
    painter.restore();
    PaintFrames(painter);
}

// Under a clip of one rectangle the toolkit stretches a picture row by row; under a complex one it
// cuts the picture into spans.
void ChartWidget::DrawMovedPicture(QPainter& painter, const QRegion& region) const {
    const double density = devicePixelRatioF();
    painter.save();
    for (const QRect& part : region) {
        painter.setClipRect(part);
        painter.save();
        painter.scale(1 / density, 1 / density);
        picture_.DrawMoved(painter, View());
        painter.restore();
    }
    painter.restore();
}

void ChartWidget::PaintFrames(QPainter& painter) const {
    QColor tint = ColourOf(LookColour::Accent);
    if (IsDarkGround(form_.chart.picture.Background())) tint = tint.lighter(220);
    QColor fill = tint;
    fill.setAlphaF(0.12F);
    painter.setBrush(fill);
    if (shown_frames_.zoom) {
        painter.setPen(QPen(tint, 1.4, Qt::DashLine));
        painter.drawRect(*shown_frames_.zoom);
    }
    painter.setPen(QPen(tint, 2));
    if (shown_frames_.outline) painter.drawRoundedRect(*shown_frames_.outline, 8, 8);
    if (shown_frames_.progress) {
        painter.setPen(QPen(ColourOf(LookColour::Accent), 2));
        painter.setBrush(ColourOf(LookColour::Panel));
        painter.drawRoundedRect(*shown_frames_.progress, 8, 8);
        painter.drawText(*shown_frames_.progress, Qt::AlignCenter,
                         ShownText(form_.chart.controls.ConsPN2.text));
    }
}

// A single size, as of a window that is maximised, is painted whole at once.
void ChartWidget::FollowEdge() {
    const bool dragged = edge_moved_.isValid() && edge_moved_.elapsed() < kEdgeRests;
    edge_moved_.start();
    if (dragged) refine_.start();
}

void ChartWidget::resizeEvent(QResizeEvent*) {
    view_.reset();
    Sync();
}

// A mark is a ring of some pixels, while the form looks for the pointer in a box of canvas units,
// which is narrow on most screens: a press on a ring counts as one on its centre.
const Mark* ChartWidget::MarkUnder(QPointF place) const {
    const double reach = kGrabRadiusShare * MarkRadius(View()) / devicePixelRatioF();
    for (const Mark* mark : form_.Pointer().MarksToPickUp()) {
        const QPointF away = ToWidget(mark->state) - place;
        if (std::hypot(away.x(), away.y()) <= reach) return mark;
    }
    return nullptr;
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    if (IsDragging()) return;
    if (event->button() == Qt::MiddleButton) {
        panning_ = true;
        perform([&] { form_.Pointer().GrabChart(ToCanvas(event->position())); });
        return;
    }
    const bool right = event->button() == Qt::RightButton;
    if (!right && event->button() != Qt::LeftButton) return;
    const Mark* mark = right ? nullptr : MarkUnder(event->position());
    const CanvasPoint place = mark ? mark->state : ToCanvas(event->position());
    perform([&] { form_.PointerPress(right ? PointerButton::Right : PointerButton::Left, place); });
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    const CanvasPoint place = ToCanvas(event->position());
    pointer_place_ = event->position();
    if (panning_ && !IsDragging()) {
        ShowMoved([&] { form_.Pointer().DragChart(place); });
        return;
    }
    perform([&] {
        if (IsDragging()) {
            form_.Panels().Move(place);
        } else {
            form_.PointerMove(place);
        }
    });
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (IsDragging()) {
        if (event->button() == Qt::LeftButton) EndDrag();
        return;
    }
    if (event->button() == Qt::MiddleButton) {
        panning_ = false;
        SyncPointer();
        return;
    }
    const bool right = event->button() == Qt::RightButton;
    if (!right && event->button() != Qt::LeftButton) return;
    perform([&] { form_.PointerRelease(right ? PointerButton::Right : PointerButton::Left); });
}

void ChartWidget::wheelEvent(QWheelEvent* event) {
    event->accept();
    const double notches = event->angleDelta().y() / 120.0;
    if (notches == 0 || IsDragging()) return;
    const CanvasPoint place = ToCanvas(event->position());
    ShowMoved([&] { form_.Pointer().ZoomAround(place, std::pow(kZoomOfANotch, notches)); });
}

void ChartWidget::leaveEvent(QEvent*) { pointer_place_.reset(); }

// A chart that is moved or zoomed step by step shows its kept picture, moved likewise, until the
// steps pause: painting anew takes longer than an eye follows.
void ChartWidget::ShowMoved(const std::function<void()>& move) {
    const int before = form_.chart.picture.Revision();
    refine_.start();
    perform(move);
    if (form_.chart.picture.Revision() == before && picture_.Revision() == before) refine_.stop();
}

// The second press of a quick pair is a press like any other.
void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

// The right button acts when it is let go; a menu of the toolkit must not come first.
void ChartWidget::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

void ChartWidget::TakeDrag(QSize outline) {
    outline_size_ = outline;
    grabMouse();
}

void ChartWidget::EndDrag() {
    releaseMouse();
    perform([&] { form_.Panels().Release(); });
    outline_size_.reset();
    Sync();
}

}  // namespace zandrell
