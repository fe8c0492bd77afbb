#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <functional>
#include <string>
#include <vector>

#include "canvas/recording_canvas.h"
#include "chart/overlay.h"
#include "painter/chart_view.h"
#include "painter/text_layout.h"

namespace zandrell {

// Paints the chart's grid and curves; tells where its texts came to stand.
TextLayout PaintPicture(QPainter& painter, const RecordingCanvas& picture, const ChartView& view);

// The visible items of an overlay as they stand, to be painted or compared with a later state.
struct OverlayDrawing {
    struct Line {
        Segment part;
        int colour = 0;
        bool operator==(const Line& other) const;
    };
    struct Mark {
        CanvasPoint centre;
        bool carried = false;  // hangs on the pointer
        int colour = 0;
        bool operator==(const Mark& other) const;
    };
    struct Label {
        CanvasPoint corner;
        std::string text;
        int colour = 0;
        PlacedLabel placed;  // follows from all else
        bool operator==(const Label& other) const;
    };
    std::vector<Line> lines;
    std::vector<Mark> marks;
    std::vector<Label> labels;

    bool operator==(const OverlayDrawing&) const = default;
};

// What of the overlay lies on the canvas. Its labels keep clear of each other, of the marks and of
// `texts`, those of the picture; the marks stay where they are.
OverlayDrawing VisibleItems(const Overlay& overlay, const ChartView& view, const TextLayout& texts);

// Paints process lines, marks and labels over a picture with the ground colour `ground` (palette
// number or colour value).
void PaintOverlay(QPainter& painter, const OverlayDrawing& drawing, const ChartView& view,
                  int ground);

// Rectangles that hold all that PaintOverlay touches.
std::vector<QRectF> TouchedBy(const OverlayDrawing& drawing, const ChartView& view);

// The items that `other` does not show just so: what has to be painted over when one follows the
// other.
OverlayDrawing Without(OverlayDrawing drawing, const OverlayDrawing& other);

// The items that have to be painted where `touches` answers for rectangles of the surface.
OverlayDrawing Touching(OverlayDrawing drawing, const ChartView& view,
                        const std::function<bool(const QRectF&)>& touches);

// The radius of a mark's ring, in pixels.
double MarkRadius(const ChartView& view);

// The picture alone on an opaque image of width by height pixels; `density` as in ChartView.
QImage RenderPicture(const RecordingCanvas& picture, int width, int height, double density);

}  // namespace zandrell
