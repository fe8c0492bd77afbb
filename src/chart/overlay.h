#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "chart/chart_scale.h"
#include "forms/control.h"
#include "forms/form.h"

namespace zandrell {

// Marks, lines and labels stay where they are when they are sent to a place that is no number: a
// range may be too narrow for a state to have one.

// A mark on the chart: a box of 14 by 14 units whose corner lies a few units up and left of its
// state.
struct Mark : Control {
    explicit Mark(std::string_view mark_name) : Control(mark_name, ControlKind::Mark) {
        visible = false;
    }
    double left = 0, top = 0, width = 14, height = 14;
    int shape = 0;  // 1 while it is carried by the pointer
    int colour = 0;
    CanvasPoint state;  // the exact point that it marks

    void PlaceAt(CanvasPoint point, double corner_offset);
    // Within 13 units right of and below its corner.
    bool IsHitBy(CanvasPoint pointer) const;
};

struct ChartLine : Control {
    explicit ChartLine(std::string_view line_name) : Control(line_name, ControlKind::Line) {
        visible = false;
    }
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    int colour = 0;

    void Run(CanvasPoint from, CanvasPoint to);
};

// A text beside a state.
struct ChartLabel : Control {
    explicit ChartLabel(std::string_view label_name)
        : Control(label_name, ControlKind::ChartLabel) {
        visible = false;
    }
    double left = 0, top = 0;
    int colour = 0;

    void PlaceAt(CanvasPoint point);
    void PlaceCornerAt(CanvasPoint point);
};

// The process drawing that lies over the chart: marks, lines and labels, all placed in canvas
// units.
struct Overlay {
    Mark PP1{"PP1"}, PP2{"PP2"}, PP3{"PP3"}, PP4{"PP4"}, PP5{"PP5"}, PP6{"PP6"}, PP7{"PP7"},
        PP8{"PP8"}, pp9{"pp9"};
    ChartLine ZAeLine{"ZAeLine"}, zL1{"zL1"}, ZL2{"ZL2"}, ZL3{"ZL3"}, ZL4{"ZL4"}, ZL5{"ZL5"},
        ZL6{"ZL6"}, ZL7{"ZL7"}, ZL8{"ZL8"};
    ChartLabel t1Lab{"t1Lab"}, t2lab{"t2lab"}, t3Lab{"t3Lab"}, tmLab{"tmLab"};

    std::array<Mark*, 9> Marks();
    std::array<ChartLine*, 9> Lines();
    std::array<ChartLabel*, 4> Labels();
    std::array<const Mark*, 9> Marks() const;
    std::array<const ChartLine*, 9> Lines() const;
    std::array<const ChartLabel*, 4> Labels() const;

    void ListControls(Form& form);
    // Hides everything.
    void AnlageMarkenLoeschen();
    // What is not hidden.
    std::vector<Control*> Shown();
    void SetColour(int colour);
};

}  // namespace zandrell
