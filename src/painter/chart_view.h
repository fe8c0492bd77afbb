#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
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

// Where the logical extent of the chart lies on a surface. Canvas units are longer in one direction
// than in the other there. Around the extent there is a margin, wide enough for the texts that
// stand at its edge.
class ChartView {
  public:
    // `target` is the whole surface in pixels of the painter, `density` how many of these make one
    // pixel of a plain screen. The width of the texts in `picture` settles the right margin.
    ChartView(const RecordingCanvas& picture, const QRectF& target, double density);

    QPointF ToDevice(CanvasPoint point) const;
    CanvasPoint ToCanvas(QPointF point) const;

    const QRectF& Target() const { return target_; }
    const QRectF& Extent() const { return extent_; }
    // Pixels of a stroke of nominal width 1; grows slower than the surface.
    double StrokeUnit() const { return stroke_unit_; }
    // The font of the chart's texts.
    const QFont& Font() const { return font_; }

  private:
    double RightMargin(const RecordingCanvas& picture, double left_margin) const;

    QRectF target_, extent_;
    double stroke_unit_ = 1;
    QFont font_;
};

}  // namespace zandrell
