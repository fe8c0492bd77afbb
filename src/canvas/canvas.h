#pragma once

#include <string_view>

namespace zandrell {

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
    virtual void Line(double x1, double y1, double x2, double y2, int colour) = 0;
    virtual void Dot(double x, double y, int colour) = 0;
    virtual void Circle(double x, double y, double radius, int colour) = 0;
    // With the upper left corner of the text at (x, y), in the foreground colour.
    virtual void Text(double x, double y, std::string_view text) = 0;
};

}  // namespace zandrell
