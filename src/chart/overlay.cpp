#include "chart/overlay.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zandrell {
namespace {

constexpr double kHitSize = 13;
constexpr double kLabelOffset = 5;

bool IsFinite(CanvasPoint point) { return std::isfinite(point.x) && std::isfinite(point.y); }

// One list for an overlay that may be changed and one that may not.
template <class AnyOverlay>
auto MarksOf(AnyOverlay& o) {
    return std::array{&o.PP1, &o.PP2, &o.PP3, &o.PP4, &o.PP5, &o.PP6, &o.PP7, &o.PP8, &o.pp9};
}
template <class AnyOverlay>
auto LinesOf(AnyOverlay& o) {
    return std::array{&o.ZAeLine, &o.zL1, &o.ZL2, &o.ZL3, &o.ZL4, &o.ZL5, &o.ZL6, &o.ZL7, &o.ZL8};
}
template <class AnyOverlay>
auto LabelsOf(AnyOverlay& o) {
    return std::array{&o.t1Lab, &o.t2lab, &o.t3Lab, &o.tmLab};
}

}  // namespace

void Mark::PlaceAt(CanvasPoint point, double corner_offset) {
    if (!IsFinite(point)) return;
    state = point;
    left = point.x - corner_offset;
    top = point.y - corner_offset;
}

bool Mark::IsHitBy(CanvasPoint pointer) const {
    return visible && pointer.x >= left && pointer.x <= left + kHitSize && pointer.y >= top &&
           pointer.y <= top + kHitSize;
}

void ChartLine::Run(CanvasPoint from, CanvasPoint to) {
    if (!IsFinite(from) || !IsFinite(to)) return;
    x1 = from.x;
    y1 = from.y;
    x2 = to.x;
    y2 = to.y;
}

void ChartLabel::PlaceAt(CanvasPoint point) {
    PlaceCornerAt({point.x + kLabelOffset, point.y + kLabelOffset});
}

void ChartLabel::PlaceCornerAt(CanvasPoint point) {
    if (!IsFinite(point)) return;
    left = point.x;
    top = point.y;
}

std::array<Mark*, 9> Overlay::Marks() { return MarksOf(*this); }
std::array<ChartLine*, 9> Overlay::Lines() { return LinesOf(*this); }
std::array<ChartLabel*, 4> Overlay::Labels() { return LabelsOf(*this); }
std::array<const Mark*, 9> Overlay::Marks() const { return MarksOf(*this); }
std::array<const ChartLine*, 9> Overlay::Lines() const { return LinesOf(*this); }
std::array<const ChartLabel*, 4> Overlay::Labels() const { return LabelsOf(*this); }

void Overlay::ListControls(Form& form) {
    for (Mark* mark : Marks()) form.Add({mark});
    for (ChartLine* line : Lines()) form.Add({line});
    for (ChartLabel* label : Labels()) form.Add({label});
}

void Overlay::AnlageMarkenLoeschen() {
    for (Mark* mark : Marks()) mark->visible = false;
    for (ChartLine* line : Lines()) line->visible = false;
    for (ChartLabel* label : Labels()) label->visible = false;
}

std::vector<Control*> Overlay::Shown() {
    std::vector<Control*> shown;
    const auto add = [&shown](const auto& controls) {
        std::copy_if(controls.begin(), controls.end(), std::back_inserter(shown),
                     [](const Control* control) { return control->visible; });
    };
    add(Marks());
    add(Lines());
    add(Labels());
    return shown;
}

void Overlay::SetColour(int colour) {
    for (Mark* mark : Marks()) mark->colour = colour;
    for (ChartLine* line : Lines()) line->colour = colour;
    for (ChartLabel* label : Labels()) label->colour = colour;
}

}  // namespace zandrell
