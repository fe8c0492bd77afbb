#include "painter/qt_canvas.h"

#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "painter/haloed_text.h"
#include "painter/pixel_stroke.h"
#include "painter/svg_engine.h"

namespace zandrell {
namespace {

constexpr double kDotShare = 0.28;       // of the area of the comfort field that its dots cover
constexpr qsizetype kPointsOfCurve = 4;  // fewer are a line with bends
constexpr double kChordError = 0.05;     // pixels between a curve and its chords
constexpr double kMostChords = 64;       // of one cubic curve
constexpr double kEvenWithin = 0.05;     // pixels; dots this near to even steps are a row
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

double Length(QPointF chord) { return std::hypot(chord.x(), chord.y()); }

QPointF DirectionAt(const QPolygonF& points, qsizetype i) {
    const QPointF before = points[i] - points[std::max<qsizetype>(i - 1, 0)];
    const QPointF after = points[std::min(i + 1, points.size() - 1)] - points[i];
    const double a = Length(before), b = Length(after);
    if (a == 0 || b == 0) return (before + after) / std::max(a + b, 1e-9);
    return (before * (b / a) + after * (a / b)) / (a + b);
}

// A cubic curve with its two control points.
struct Bend {
    QPointF from, lead_out, lead_in, to;
};

// Appends as many chords as keep within kChordError of the curve: by a bound of its second
// derivative, at most 6 times the larger of the second differences.
void AppendChords(const Bend& bend, QPolygonF& points) {
    const double bow = std::max(Length(bend.from - 2 * bend.lead_out + bend.lead_in),
                                Length(bend.lead_out - 2 * bend.lead_in + bend.to));
    const double wanted = std::ceil(std::sqrt(0.75 * bow / kChordError));
    const int chords = static_cast<int>(std::clamp(wanted, 1.0, kMostChords));
    for (int k = 1; k < chords; ++k) {
        const double t = static_cast<double>(k) / chords, u = 1 - t;
        points << u * u * u * bend.from + 3 * u * u * t * bend.lead_out +
                      3 * u * t * t * bend.lead_in + t * t * t * bend.to;
    }
    points << bend.to;
}

// The stroke of a chain of chords that bend little; where its pixels cannot be written, as one
// filled shape: the toolkit's own stroker shifts and joins each chord by itself, which takes as
// long as all else of a picture.
void PaintRibbon(QPainter& painter, const QPolygonF& chain) {
    QImage* image = PlainImageOf(painter);
    if (image && StrokePixels(*image, chain, painter.pen().widthF(), painter.pen().color())) return;
    const double half = painter.pen().widthF() / 2;
    const auto count = chain.size();
    QPolygonF outline(2 * count);
    for (qsizetype i = 0; i < count; ++i) {
        const QPointF before = i > 0 ? chain[i] - chain[i - 1] : chain[1] - chain[0];
        const QPointF after = i + 1 < count ? chain[i + 1] - chain[i] : before;
        const double a = Length(before), b = Length(after);
        QPointF along = (a > 0 ? before / a : QPointF()) + (b > 0 ? after / b : QPointF());
        along /= std::max(Length(along), 1e-9);
        const QPointF aside = half * QPointF(-along.y(), along.x());
        outline[i] = chain[i] + aside;
        outline[2 * count - 1 - i] = chain[i] - aside;
    }
    const QBrush brush(painter.pen().color());
    QPainterPath path;
    path.addPolygon(outline);
    path.setFillRule(Qt::WindingFill);
    painter.fillPath(path, brush);
}

// An opaque image as a whole, its first row copied to the others: that takes half as long as the
// toolkit's fill, which reads all memory before it overwrites it. False: nothing was filled.
bool FillWholeImage(const QPainter& painter, const QRectF& target, const QColor& colour) {
    QImage* image = PlainImageOf(painter);
    if (!image || target != QRectF(QPointF(), image->size())) return false;
    auto* const first = reinterpret_cast<QRgb*>(image->scanLine(0));
    std::fill_n(first, image->width(), colour.rgb());
    const auto bytes = static_cast<std::size_t>(image->width()) * sizeof(QRgb);
    for (int row = 1; row < image->height(); ++row) {
        std::memcpy(image->scanLine(row), first, bytes);
    }
    return true;
}

// A stroke for each dot. Round numbers are shorter and compress well.
void DrawDashes(QPainter& painter, const std::vector<QPointF>& dots, const QPen& pen,
                double grain) {
    const auto round = [grain](double place) { return std::round(place / grain) * grain; };
    const double half = pen.widthF() / 2;
    QPainterPath strokes;
    for (const QPointF& dot : dots) {
        strokes.moveTo(round(dot.x() - half), round(dot.y()));
        strokes.lineTo(round(dot.x() + half), round(dot.y()));
    }
    painter.strokePath(strokes, pen);
}

// How many dots from `first` on lie at even steps on a line along one axis.
std::size_t RowLength(const std::vector<QPointF>& dots, std::size_t first) {
    if (first + 1 >= dots.size()) return 1;
    const QPointF step = dots[first + 1] - dots[first];
    const auto along_axis = [](QPointF way) {
        return std::min(std::abs(way.x()), std::abs(way.y())) < kEvenWithin;
    };
    if (!along_axis(step)) return 1;
    std::size_t end = first + 2;
    while (end < dots.size()) {
        const QPointF even = dots[first] + static_cast<double>(end - first) * step;
        if (Length(dots[end] - even) > kEvenWithin) break;
        ++end;
    }
    return end - first;
}

// A dashed line for each row of dots: a tenth of what a stroke for each dot takes.
void DrawDotRows(QPainter& painter, const std::vector<QPointF>& dots, QPen pen) {
    const double side = pen.widthF();
    for (std::size_t i = 0; i < dots.size();) {
        const std::size_t count = RowLength(dots, i);
        const QPointF way = dots[i + count - 1] - dots[i];
        const double step = count > 1 ? Length(way) / static_cast<double>(count - 1) : 0;
        pen.setStyle(Qt::SolidLine);
        if (step > side) pen.setDashPattern({1, step / side - 1});
        const QPointF ahead = step > 0 ? way / Length(way) * (side / 2) : QPointF(side / 2, 0);
        painter.setPen(pen);
        painter.drawLine(dots[i] - ahead, dots[i + count - 1] + ahead);
        i += count;
    }
}

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, const ChartView& view)
    : painter_(painter), view_(view), texts_(view) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
}

void QtCanvas::Clear(int background, int foreground) {
    ground_ = background;
    foreground_ = foreground;
    const QColor colour = ShadeFor(background, StrokeRole::Ground, background).colour;
    if (!FillWholeImage(painter_, view_.Target(), colour)) {
        painter_.fillRect(view_.Target(), colour);
    }
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
    const bool flat = DrawsPixels(painter_);
    if (count == 2 && flat) {
        PaintRibbon(painter_, polyline_);
        return;
    }
    if (count < kPointsOfCurve) {
        painter_.drawPolyline(polyline_);
        return;
    }
    QPainterPath path(polyline_[0]);
    QPolygonF chords{polyline_[0]};
    QPointF start = DirectionAt(polyline_, 0);
    for (qsizetype i = 1; i < count; ++i) {
        const QPointF end = DirectionAt(polyline_, i);
        const double third = Length(polyline_[i] - polyline_[i - 1]) / 3;
        const Bend bend{polyline_[i - 1], polyline_[i - 1] + start * third,
                        polyline_[i] - end * third, polyline_[i]};
        if (flat) {
            AppendChords(bend, chords);
        } else {
            path.cubicTo(bend.lead_out, bend.lead_in, bend.to);
        }
        start = end;
    }
    if (flat) {
        PaintRibbon(painter_, chords);
    } else {
        painter_.strokePath(path, painter_.pen());
    }
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
        // Thick strokes in an opaque mixture: a file would be three times as large with the outline
        // of each square, which a transparent pen is turned into as well.
        const QColor ground = ShadeFor(ground_, StrokeRole::Ground, ground_).colour;
        const QPen pen(Mixed(colour, ground), side, Qt::SolidLine, Qt::FlatCap);
        if (SvgEngine::Of(painter_)) {
            DrawDotRows(painter_, dots_, pen);
        } else {
            DrawDashes(painter_, dots_, pen, view_.StrokeUnit() / kGrains);
        }
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
