#include "painter/chart_view.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QString>
#include <algorithm>
#include <cmath>

namespace zandrell {
namespace {

constexpr double kNominalWidth = 1100, kNominalHeight = 770;  // pixels of a window of 1280 by 800
constexpr double kTextPixels = 11.5, kLeastTextPixels = 10;
constexpr double kCanvasWidth = kCanvasRight - kCanvasLeft;
constexpr double kCanvasHeight = kCanvasBottom - kCanvasTop;
constexpr double kTextTolerance = 8;  // canvas units

// One border of the Liang-Barsky clipping: narrows [enter, leave] or says that nothing is left.
bool ClipBorder(double direction, double distance, double& enter, double& leave) {
    if (direction == 0) return distance >= 0;
    const double at = distance / direction;
    if (direction < 0) {
        if (at > leave) return false;
        enter = std::max(enter, at);
    } else {
        if (at < enter) return false;
        leave = std::min(leave, at);
    }
    return true;
}

double StrokeUnitFor(const QSizeF& nominal_size) {
    const double size =
        std::min(nominal_size.width() / kNominalWidth, nominal_size.height() / kNominalHeight);
    return std::clamp(std::pow(std::max(size, 0.0), 0.8), 0.8, 4.0);
}

}  // namespace

std::optional<Segment> ClippedToCanvas(const Segment& line) {
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    double enter = 0, leave = 1;
    if (!ClipBorder(-dx, line.from.x - kCanvasLeft, enter, leave) ||
        !ClipBorder(dx, kCanvasRight - line.from.x, enter, leave) ||
        !ClipBorder(-dy, line.from.y - kCanvasTop, enter, leave) ||
        !ClipBorder(dy, kCanvasBottom - line.from.y, enter, leave)) {
        return std::nullopt;
    }
    // Ends that were not cut keep their exact place, so that lines that meet still meet.
    Segment part = line;
    if (enter > 0) part.from = {line.from.x + enter * dx, line.from.y + enter * dy};
    if (leave < 1) part.to = {line.from.x + leave * dx, line.from.y + leave * dy};
    return part;
}

bool IsOnCanvas(CanvasPoint point, double tolerance) {
    return point.x >= kCanvasLeft - tolerance && point.x <= kCanvasRight + tolerance &&
           point.y >= kCanvasTop - tolerance && point.y <= kCanvasBottom + tolerance;
}

ChartView::ChartView(const RecordingCanvas& picture, const QRectF& target, double density)
    : target_(target), font_(QGuiApplication::font()) {
    stroke_unit_ = density * StrokeUnitFor(target.size() / density);
    const double text_pixels = std::max(kLeastTextPixels * density, kTextPixels * stroke_unit_);
    font_.setPixelSize(static_cast<int>(std::lround(text_pixels)));
    font_.setHintingPreference(QFont::PreferNoHinting);
    const double left = 0.7 * text_pixels, top = 0.8 * text_pixels, bottom = 0.9 * text_pixels;
    extent_ = target.adjusted(left, top, -RightMargin(picture, left), -bottom);
    if (extent_.width() < 1) extent_.setWidth(1);
    if (extent_.height() < 1) extent_.setHeight(1);
}

ChartView::ChartView(const PaperPlace& place)
    : target_(place.page),
      extent_(place.extent),
      text_room_(place.text_room),
      stroke_unit_(place.stroke_unit),
      line_unit_(place.line_unit),
      least_line_(place.least_line),
      font_(place.font) {}

double ChartView::Thickness(int width, double strength) const {
    if (!line_unit_) return strength * width * stroke_unit_;
    return std::max(least_line_, width * *line_unit_);
}

bool ChartView::HoldsText(CanvasPoint corner) const {
    if (!text_room_) return IsOnCanvas(corner, kTextTolerance);
    return text_room_->contains(QPointF(corner.x, corner.y));
}

// The margin m at which the text that reaches farthest just ends inside the surface: a text of
// width w at the share s of the extent needs left + s (W - left - m) + w <= W - gap.
double ChartView::RightMargin(const RecordingCanvas& picture, double left_margin) const {
    const QFontMetricsF metrics(font_);
    const double gap = 0.6 * font_.pixelSize();
    const double width = target_.width();
    double margin = gap;
    for (const CanvasOperation& operation : picture.Operations()) {
        if (operation.stroke != Stroke::Text) continue;
        if (!IsOnCanvas({operation.x1, operation.y1}, kTextTolerance)) continue;
        const double share = (operation.x1 - kCanvasLeft) / kCanvasWidth;
        if (share < 0.5) continue;
        const double text_width = metrics.horizontalAdvance(QString::fromStdString(operation.text));
        const double end = width - gap - text_width - left_margin;
        margin = std::max(margin, width - left_margin - end / share);
    }
    return std::min(margin, 0.12 * width);
}

QPointF ChartView::ToDevice(CanvasPoint point) const {
    return {extent_.left() + (point.x - kCanvasLeft) / kCanvasWidth * extent_.width(),
            extent_.top() + (point.y - kCanvasTop) / kCanvasHeight * extent_.height()};
}

CanvasPoint ChartView::ToCanvas(QPointF point) const {
    return {kCanvasLeft + (point.x() - extent_.left()) / extent_.width() * kCanvasWidth,
            kCanvasTop + (point.y() - extent_.top()) / extent_.height() * kCanvasHeight};
}

}  // namespace zandrell
