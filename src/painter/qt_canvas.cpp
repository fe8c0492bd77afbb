#include "painter/qt_canvas.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zandrell {
namespace {

constexpr double kDotShare = 0.28;       // of the area of the comfort field that its dots cover
constexpr qsizetype kPointsOfCurve = 4;  // fewer are a line with bends
constexpr double kGrains = 8;            // of a stroke; finer places of dots are not seen
constexpr double kRowUnits = 0.7;        // canvas units between two rows of these dots

bool DrawsPixels(const QPainter& painter) {
    return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

// A transparent colour on a ground, as an opaque one.
QColor Mixed(const QColor& colour, const QColor& ground) {
    const float share = colour.alphaF();
    const auto mix = [share](float over, float under) {
        return share * over + (1 - share) * under;
    };
    return QColor::fromRgbF(mix(colour.redF(), ground.redF()),
                            mix(colour.greenF(), ground.greenF()),
                            mix(colour.blueF(), ground.blueF()));
}

// On pixels the text itself is drawn all around: its glyphs are kept ready, stroking their outlines
// would cost ten times as much. Elsewhere one outline is better than eight texts on top of each
// other.
void PaintRim(QPainter& painter, QPointF baseline, const QString& text, const QColor& ground,
              double rim) {
    if (!DrawsPixels(painter)) {
        QPainterPath outline;
        outline.addText(baseline, painter.font(), text);
        painter.strokePath(outline,
                           QPen(ground, 2 * rim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        return;
    }
    painter.setPen(ground);
    const double diagonal = rim * std::numbers::sqrt2 / 2;
    const std::array<QPointF, 8> around = {{{rim, 0},
                                            {-rim, 0},
                                            {0, rim},
                                            {0, -rim},
                                            {diagonal, diagonal},
                                            {diagonal, -diagonal},
                                            {-diagonal, diagonal},
                                            {-diagonal, -diagonal}}};
    for (const QPointF& aside : around) painter.drawText(baseline + aside, text);
}

}  // namespace

void PaintHaloedText(QPainter& painter, QPointF corner, double box_height, const QString& text,
                     const QFont& font, const QColor& colour, const QColor& ground, double rim) {
    const QFontMetricsF metrics(font);
    const QPointF baseline(corner.x(), corner.y() + (box_height + metrics.capHeight()) / 2);
    painter.setFont(font);
    PaintRim(painter, baseline, text, ground, rim);
    painter.setPen(colour);
    painter.drawText(baseline, text);
}

QtCanvas::QtCanvas(QPainter& painter, const ChartView& view)
    : painter_(painter), view_(view), texts_(view) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
}

void QtCanvas::Clear(int background, int foreground) {
    ground_ = background;
    foreground_ = foreground;
    painter_.fillRect(view_.Target(), ShadeFor(background, StrokeRole::Ground, background).colour);
}

void QtCanvas::Line(double x1, double y1, double x2, double y2, int colour) {
    texts_.Line({{x1, y1}, {x2, y2}}, colour);
    const auto part = ClippedToCanvas({{x1, y1}, {x2, y2}});
    if (!part) return;
    FlushDots();
    const LineLook look{colour, width_, x1 == x2 || y1 == y2};
    const QPointF from = view_.ToDevice(part->from), to = view_.ToDevice(part->to);
    const bool goes_on =
        look == look_ && !look.straight && !polyline_.isEmpty() && polyline_.last() == from;
    if (!goes_on) {
        FlushLines();
        look_ = look;
        polyline_ << from;
    }
    polyline_ << to;
}

double QtCanvas::Thickness(const Shade& shade) const {
    return view_.Thickness(look_.width, shade.width);
}

void QtCanvas::FlushLines() {
    if (polyline_.size() < 2) return;
    const StrokeRole role = look_.straight ? StrokeRole::Grid : StrokeRole::Curve;
    const Shade shade = ShadeFor(look_.colour, role, ground_);
    painter_.setPen(
        QPen(shade.colour, Thickness(shade), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    if (look_.straight && DrawsPixels(painter_)) {
        DrawGridLine(polyline_[0], polyline_[1]);
    } else {
        DrawCurve();
    }
    polyline_.clear();
}

// A smooth curve through the points. Each tangent is the mean of its two chords, weighted so that a
// short chord, as clipping leaves it, tells most about the direction near it.
void QtCanvas::DrawCurve() const {
    const auto count = polyline_.size();
    if (count == 2) {
        painter_.drawLine(polyline_[0], polyline_[1]);
        return;
    }
    if (count < kPointsOfCurve) {
        painter_.drawPolyline(polyline_);
        return;
    }
    const auto length = [](QPointF chord) { return std::hypot(chord.x(), chord.y()); };
    const auto direction = [&](qsizetype i) {
        const QPointF before = polyline_[i] - polyline_[std::max<qsizetype>(i - 1, 0)];
        const QPointF after = polyline_[std::min(i + 1, count - 1)] - polyline_[i];
        const double a = length(before), b = length(after);
        if (a == 0 || b == 0) return (before + after) / std::max(a + b, 1e-9);
        return (before * (b / a) + after * (a / b)) / (a + b);
    };
    QPainterPath curve(polyline_[0]);
    QPointF start = direction(0);
    for (qsizetype i = 1; i < count; ++i) {
        const QPointF end = direction(i);
        const double third = length(polyline_[i] - polyline_[i - 1]) / 3;
        curve.cubicTo(polyline_[i - 1] + start * third, polyline_[i] - end * third, polyline_[i]);
        start = end;
    }
    painter_.strokePath(curve, painter_.pen());
}

// Whole pixels, so that a grid is crisp and of one strength all over.
void QtCanvas::DrawGridLine(QPointF from, QPointF to) const {
    const int thick = std::max(1, static_cast<int>(std::lround(painter_.pen().widthF())));
    const auto start = [thick](double centre) {
        return static_cast<int>(std::lround(centre - thick / 2.0));
    };
    const QRect ends = QRectF(from, to).normalized().toRect();
    const bool level = from.y() == to.y();
    const QRect bar = level ? QRect(ends.left(), start(from.y()), ends.width(), thick)
                            : QRect(start(from.x()), ends.top(), thick, ends.height());
    painter_.fillRect(bar, painter_.pen().color());
}

void QtCanvas::Dot(double x, double y, int colour) {
    if (!IsOnCanvas({x, y}, 0)) return;
    FlushLines();
    if (colour != dot_colour_) FlushDots();
    dot_colour_ = colour;
    dots_.push_back(view_.ToDevice({x, y}));
}

// A soft tint at every size: where the dots lie closer than pixels they get fainter, not thicker.
void QtCanvas::FlushDots() {
    if (dots_.empty()) return;
    const double row_pixels = kRowUnits * view_.Extent().height() / (kCanvasBottom - kCanvasTop);
    const double side = std::max(view_.StrokeUnit(), kDotShare * row_pixels);
    QColor colour = ShadeFor(dot_colour_, StrokeRole::Dots, ground_).colour;
    colour.setAlphaF(static_cast<float>(std::clamp(0.45 * row_pixels / side, 0.06, 0.9)));
    if (DrawsPixels(painter_)) {
        for (const QPointF& dot : dots_) {
            painter_.fillRect(QRectF(dot.x() - side / 2, dot.y() - side / 2, side, side), colour);
        }
    } else {
        // Short thick strokes in an opaque mixture: a file would be three times as large with the
        // outline of each square, which a transparent pen is turned into as well.
        // Round numbers are shorter and compress well.
        const double grain = view_.StrokeUnit() / kGrains;
        const auto round = [grain](double place) { return std::round(place / grain) * grain; };
        QPainterPath strokes;
        for (const QPointF& dot : dots_) {
            strokes.moveTo(round(dot.x() - side / 2), round(dot.y()));
            strokes.lineTo(round(dot.x() + side / 2), round(dot.y()));
        }
        painter_.strokePath(
            strokes, QPen(Mixed(colour, ShadeFor(ground_, StrokeRole::Ground, ground_).colour),
                          side, Qt::SolidLine, Qt::FlatCap));
    }
    dots_.clear();
}

void QtCanvas::Circle(double x, double y, double radius, int colour) {
    if (!IsOnCanvas({x, y}, 0)) return;
    FlushLines();
    FlushDots();
    look_ = {colour, width_, false};
    const Shade shade = ShadeFor(colour, StrokeRole::Curve, ground_);
    painter_.setPen(QPen(shade.colour, Thickness(shade)));
    painter_.setBrush(Qt::NoBrush);
    const double pixels = radius * view_.Extent().height() / (kCanvasBottom - kCanvasTop);
    painter_.drawEllipse(view_.ToDevice({x, y}), pixels, pixels);
}

void QtCanvas::Text(double x, double y, std::string_view text) {
    texts_.Text({x, y}, text, text_role_);
}

void QtCanvas::DrawTexts() {
    texts_.Finish();
    const QColor ground = ShadeFor(ground_, StrokeRole::Ground, ground_).colour;
    const QColor colour = ShadeFor(foreground_, StrokeRole::Text, ground_).colour;
    const Shade leader = ShadeFor(kGrey, StrokeRole::Curve, ground_);
    painter_.setPen(QPen(leader.colour, leader.width * view_.StrokeUnit()));
    for (const LaidText& laid : texts_.Texts()) {
        if (laid.leader) painter_.drawLine(*laid.leader);
    }
    for (const LaidText& laid : texts_.Texts()) {
        PaintHaloedText(painter_, {laid.box.left, laid.box.top}, laid.box.bottom - laid.box.top,
                        laid.text, view_.Font(), colour, ground, 1.4 * view_.StrokeUnit());
    }
}

void QtCanvas::FinishStrokes() {
    FlushLines();
    FlushDots();
}

TextLayout QtCanvas::Finish() {
    FinishStrokes();
    DrawTexts();
    return std::move(texts_);
}

}  // namespace zandrell
