#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "canvas/recording_canvas.h"

namespace zandrell {

// The coordinate system of a page: what its corners are called.
struct PageScale {
    double left = 0, top = 0, right = 1, bottom = 1;
    bool operator==(const PageScale&) const = default;
};

// What becomes of a text that is longer than its room: a title may end in "…", a figure must stay
// whole and is set smaller.
enum class TextFit { Elide, Shrink };

// One thing on a page beside its chart. Places are in units of `scale`.
struct SheetItem {
    enum class Kind { Line, Circle, Text, Picture };

    Kind kind = Kind::Line;
    PageScale scale;
    double x1 = 0, y1 = 0;  // start, centre, or upper left corner
    double x2 = 0, y2 = 0;  // end of a line, far corner of a picture's room
    double radius = 0;      // of a circle, in units downward
    int line_width = 1;     // as the chart counts them on paper
    int font_size = 8;      // points
    bool bold = false;
    double room_right = 0;  // texts: where their room ends
    TextFit fit = TextFit::Elide;
    bool on_chart = false;  // clipped to the chart, texts with a rim against its lines
    std::string text;       // or the file of a picture
};

// A page to be printed: the chart and what stands around and over it. It knows no printer, so that
// preview, paper and file show the same, and a test can look at it.
class Sheet {
  public:
    std::string title;         // of the document
    std::string paper = "A4";  // A4, A3 or A2; anything else is taken for A4
    bool landscape = false;
    std::string font_name = "Arial";
    RecordingCanvas chart;
    PageScale chart_scale;       // of the page, in canvas units of the chart
    std::vector<Sheet> further;  // the pages behind this one, on the same paper

    double WidthMm() const { return landscape ? LongSideMm() : ShortSideMm(); }
    double HeightMm() const { return landscape ? ShortSideMm() : LongSideMm(); }

    // These hold for what is drawn from here on.
    void SetScale(const PageScale& scale) { pen_.scale = scale; }
    void SetFontSize(int points) { pen_.font_size = points; }
    void SetBold(bool bold) { pen_.bold = bold; }
    void SetLineWidth(int width) { pen_.line_width = width; }
    void SetOnChart(bool on_chart) { pen_.on_chart = on_chart; }

    void Line(double x1, double y1, double x2, double y2);
    void Circle(double x, double y, double radius);
    // With its upper left corner at (x, y). The room ends at `room_right`; 0 stands for the right
    // edge of the page.
    void Text(double x, double y, std::string_view text, double room_right = 0,
              TextFit fit = TextFit::Elide);
    // At its natural size of 96 dots to the inch, shrunk to the room up to (right, bottom).
    void Picture(double x, double y, double right, double bottom, std::string_view file);

    // An item of another sheet, as it stands there.
    void Add(const SheetItem& item) { items_.push_back(item); }

    const std::vector<SheetItem>& Items() const { return items_; }

  private:
    double ShortSideMm() const;
    double LongSideMm() const;
    SheetItem& AddAt(SheetItem::Kind kind, double x, double y);

    SheetItem pen_;
    std::vector<SheetItem> items_;
};

}  // namespace zandrell
