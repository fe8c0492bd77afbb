#pragma once

#include <string>
#include <vector>

#include "canvas/canvas.h"
#include "canvas/palette.h"

namespace zandrell {

enum class Stroke { Line, Dot, Circle, Text };

// One thing that was drawn. A circle has its radius in x2; a dot and a text only their first point.
struct CanvasOperation {
    Stroke stroke = Stroke::Line;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    int colour = 0;
    int width = 1;
    int font_size = 8;
    TextRole role = TextRole::CurveLabel;
    std::string text;
};

// Keeps what was drawn, so that it can be drawn again on any other canvas at any size, or looked
// at.
class RecordingCanvas : public Canvas {
  public:
    void Clear(int background, int foreground) override;
    void SetLineWidth(int width) override { width_ = width; }
    void SetFontSize(int points) override { font_size_ = points; }
    void SetTextRole(TextRole role) override { role_ = role; }
    void Line(double x1, double y1, double x2, double y2, int colour) override;
    void Dot(double x, double y, int colour) override;
    void Circle(double x, double y, double radius, int colour) override;
    void Text(double x, double y, std::string_view text) override;

    const std::vector<CanvasOperation>& Operations() const { return operations_; }
    int Background() const { return background_; }
    int Foreground() const { return foreground_; }
    // Grows with each Clear, so that who shows the picture sees that there is a new one.
    int Revision() const { return revision_; }

    void ReplayOn(Canvas& canvas) const;

  private:
    CanvasOperation& Record(Stroke stroke, double x, double y, int colour);

    std::vector<CanvasOperation> operations_;
    int background_ = kWhite;
    int foreground_ = kBlack;
    int width_ = 1;
    int font_size_ = 8;
    TextRole role_ = TextRole::CurveLabel;
    int revision_ = 0;
};

}  // namespace zandrell
