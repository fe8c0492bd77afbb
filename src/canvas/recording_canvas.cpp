#include "canvas/recording_canvas.h"

#include <cmath>

namespace zandrell {

void RecordingCanvas::Clear(int background, int foreground) {
    operations_.clear();
    background_ = background;
    foreground_ = foreground;
    ++revision_;
}

CanvasOperation& RecordingCanvas::Record(Stroke stroke, double x, double y, int colour) {
    CanvasOperation& operation = operations_.emplace_back();
    operation.stroke = stroke;
    operation.x1 = x;
    operation.y1 = y;
    operation.colour = colour;
    operation.width = width_;
    operation.font_size = font_size_;
    operation.role = role_;
    return operation;
}

void RecordingCanvas::Line(double x1, double y1, double x2, double y2, int colour) {
    if (!std::isfinite(x1 + y1 + x2 + y2)) return;
    CanvasOperation& operation = Record(Stroke::Line, x1, y1, colour);
    operation.x2 = x2;
    operation.y2 = y2;
}

void RecordingCanvas::Dot(double x, double y, int colour) {
    if (std::isfinite(x + y)) Record(Stroke::Dot, x, y, colour);
}

void RecordingCanvas::Circle(double x, double y, double radius, int colour) {
    if (std::isfinite(x + y + radius)) Record(Stroke::Circle, x, y, colour).x2 = radius;
}

void RecordingCanvas::Text(double x, double y, std::string_view text) {
    if (std::isfinite(x + y)) Record(Stroke::Text, x, y, foreground_).text = text;
}

void RecordingCanvas::ReplayOn(Canvas& canvas) const {
    canvas.Clear(background_, foreground_);
    for (const auto& operation : operations_) {
        canvas.SetLineWidth(operation.width);
        canvas.SetFontSize(operation.font_size);
        switch (operation.stroke) {
            case Stroke::Line:
                canvas.Line(operation.x1, operation.y1, operation.x2, operation.y2,
                            operation.colour);
                break;
            case Stroke::Dot:
                canvas.Dot(operation.x1, operation.y1, operation.colour);
                break;
            case Stroke::Circle:
                canvas.Circle(operation.x1, operation.y1, operation.x2, operation.colour);
                break;
            case Stroke::Text:
                canvas.SetTextRole(operation.role);
                canvas.Text(operation.x1, operation.y1, operation.text);
                break;
        }
    }
}

}  // namespace zandrell
