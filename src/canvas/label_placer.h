#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/canvas.h"

namespace zandrell {

// Everything here is in pixels of the surface, y downward.
struct LabelBox {
    double left = 0, top = 0, right = 0, bottom = 0;

    bool Overlaps(const LabelBox& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool Holds(const LabelBox& other) const {
        return left <= other.left && right >= other.right && top <= other.top &&
               bottom >= other.bottom;
    }
    LabelBox Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }
    LabelBox Moved(double x, double y) const { return {left + x, top + y, right + x, bottom + y}; }
    bool operator==(const LabelBox&) const = default;
};

struct ClearLine {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;

    // Whether any point of the line lies inside the box.
    bool Crosses(const LabelBox& box) const;
};

struct WantedLabel {
    double left = 0, middle = 0;  // the left end of the text and the middle of its height
    std::string text;
    TextRole role = TextRole::CurveLabel;
    // What the text belongs to: the end of an extension line, a mark.
    double anchor_x = 0, anchor_y = 0;
    // The direction of the extension line that an ExtensionLabel stands at; any length.
    double along_x = 0, along_y = 0;
};

struct PlacedLabel {
    LabelBox box;
    bool shown = true;
    bool far = false;  // so far from what it belongs to that a line should lead to it
    bool operator==(const PlacedLabel&) const = default;
};

// Finds places for labels so that none covers another, a box or a line that is to stay clear. The
// wanted place is taken where it is free; else the nearest one.
class LabelPlacer {
  public:
    // The width of a text in pixels.
    using MeasureWidth = std::function<double(std::string_view text)>;

    // `em` is the height of the letters' body in pixels, above 0; no label is moved beyond
    // `surface`.
    LabelPlacer(MeasureWidth measure, double em, LabelBox surface);

    void KeepClear(const LabelBox& box) { boxes_.push_back(box); }
    void KeepClear(const ClearLine& line) { lines_.push_back(line); }
    // A line that labels avoid only while there is room near.
    void Avoid(const ClearLine& line) { soft_lines_.push_back(line); }

    // One result for each label, in the same order. Those that can move least choose first. What
    // has been placed stays clear of labels that are placed later.
    std::vector<PlacedLabel> Place(const std::vector<WantedLabel>& labels);

  private:
    struct Neighbours {
        std::vector<LabelBox> boxes;
        std::vector<ClearLine> lines, soft_lines;
    };

    LabelBox BoxOf(const WantedLabel& label) const;
    PlacedLabel PlaceOne(const WantedLabel& label) const;
    Neighbours Near(const LabelBox& box) const;

    MeasureWidth measure_;
    double em_;
    LabelBox surface_;
    std::vector<LabelBox> boxes_;
    std::vector<ClearLine> lines_, soft_lines_;
};

}  // namespace zandrell
