#pragma once

#include <string_view>

namespace zandrell {

// The largest side of a window or picture that shows the chart, in pixels: several screens side by
// side, and far below what a picture's counters can hold.
inline constexpr int kLargestPictureSide = 20000;

// What a text of a drawing is for; it settles how far the text may leave its place.
enum class TextRole {
    AxisNumber,  // stands at its line of the grid or not at all
    AxisTitle,   // moves aside
    CurveLabel,  // at the end of its curve: moves aside, or is left out where there is no room near
    ExtensionLabel,  // at the end of an extension line: moves along it before it moves across; else
                     // as a CurveLabel
    MarkLabel,       // beside a mark: moves around it and is never left out
};

// A drawing surface in canvas units: x to the right, y downward. Colours are palette numbers or
// colour values (see palette.h). Positions may lie outside the surface; positions that are not
// finite are the caller's fault and draw nothing.
class Canvas {
  public:
    virtual ~Canvas() = default;

    // Empties the surface and sets the colours of its ground and of its texts.
    virtual void Clear(int background, int foreground) = 0;
    virtual void SetLineWidth(int width) = 0;
    virtual void SetFontSize(int points) = 0;
    // Of the texts that follow. Whoever paints them on a real surface may move them accordingly.
    virtual void SetTextRole(TextRole role) = 0;
    virtual void Line(double x1, double y1, double x2, double y2, int colour) = 0;
    virtual void Dot(double x, double y, int colour) = 0;
    virtual void Circle(double x, double y, double radius, int colour) = 0;
    // With the upper left corner of the text at (x, y), in the foreground colour.
    virtual void Text(double x, double y, std::string_view text) = 0;
};

}  // namespace zandrell
