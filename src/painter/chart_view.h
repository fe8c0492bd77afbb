#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <limits>
#include <optional>

#include "canvas/recording_canvas.h"
#include "chart/chart_scale.h"

namespace zandrell {

// The logical extent of the chart's canvas, in canvas units.
inline constexpr double kCanvasLeft = -10, kCanvasTop = 0, kCanvasRight = 2000, kCanvasBottom = 580;

struct Segment {
    CanvasPoint from, to;
};

// The part of a line that lies within the logical extent; empty when there is none.
std::optional<Segment> ClippedToCanvas(const Segment& line);

// Whether a point lies in the logical extent, or beyond it by at most `tolerance` canvas units.
bool IsOnCanvas(CanvasPoint point, double tolerance);

// A chart on a page, where its place is settled by the page and not by a margin. Lengths are units
// of the painter.
struct PaperPlace {
    QRectF page;         // texts keep within it
    QRectF extent;       // of the logical extent of the chart
    QRectF text_room;    // where texts of the chart may start, in canvas units
    double stroke_unit;  // of rims and dots
    double line_unit;    // of a line width of 1; the chart asks for wider lines on paper itself
    double least_line;
    QFont font;
};

// Where the logical extent of the chart lies on a surface. Canvas units are longer in one direction
// than in the other there. Around the extent there is a margin, wide enough for the texts that
// stand at its edge.
class ChartView {
  public:
    // `target` is the whole surface in pixels of the painter, `density` how many of these make one
    // pixel of a plain screen. The width of the texts in `picture` settles the right margin.
    ChartView(const RecordingCanvas& picture, const QRectF& target, double density);

    explicit ChartView(const PaperPlace& place);

    QPointF ToDevice(CanvasPoint point) const;
    CanvasPoint ToCanvas(QPointF point) const;

    const QRectF& Target() const { return target_; }
    const QRectF& Extent() const { return extent_; }
    // Pixels of a stroke of nominal width 1; grows slower than the surface.
    double StrokeUnit() const { return stroke_unit_; }
    // Of a line that the chart drew with a width, in a colour whose shade has a strength.
    double Thickness(int width, double strength) const;
    // The font of the chart's texts.
    const QFont& Font() const { return font_; }
    // Where texts have to end on a page; a surface of its own has a margin for them.
    double TextsEnd() const {
        return text_room_ ? target_.right() : std::numeric_limits<double>::infinity();
    }
    // Whether a text that starts there belongs to the picture.
    bool HoldsText(CanvasPoint corner) const;

  private:
    double RightMargin(const RecordingCanvas& picture, double left_margin) const;

    QRectF target_, extent_;
    std::optional<QRectF> text_room_;
    double stroke_unit_ = 1;
    std::optional<double> line_unit_;
    double least_line_ = 0;
    QFont font_;
};

}  // namespace zandrell
