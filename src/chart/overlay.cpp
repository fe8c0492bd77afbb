#include "chart/overlay.h"

namespace zandrell {
namespace {

constexpr double kHitSize = 13;
constexpr double kLabelOffset = 5;

}  // namespace

void Mark::PlaceAt(CanvasPoint point, double corner_offset) {
    state = point;
    left = point.x - corner_offset;
    top = point.y - corner_offset;
}

bool Mark::IsHitBy(CanvasPoint pointer) const {
    return visible && pointer.x >= left && pointer.x <= left + kHitSize && pointer.y >= top &&
           pointer.y <= top + kHitSize;
}

void ChartLine::Run(CanvasPoint from, CanvasPoint to) {
    x1 = from.x;
    y1 = from.y;
    x2 = to.x;
    y2 = to.y;
}

void ChartLabel::PlaceAt(CanvasPoint point) {
    left = point.x + kLabelOffset;
    top = point.y + kLabelOffset;
}

std::array<Mark*, 9> Overlay::Marks() {
    return {&PP1, &PP2, &PP3, &PP4, &PP5, &PP6, &PP7, &PP8, &pp9};
}

std::array<ChartLine*, 9> Overlay::Lines() {
    return {&ZAeLine, &zL1, &ZL2, &ZL3, &ZL4, &ZL5, &ZL6, &ZL7, &ZL8};
}

std::array<ChartLabel*, 4> Overlay::Labels() { return {&t1Lab, &t2lab, &t3Lab, &tmLab}; }

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

void Overlay::SetColour(int colour) {
    for (Mark* mark : Marks()) mark->colour = colour;
    for (ChartLine* line : Lines()) line->colour = colour;
    for (ChartLabel* label : Labels()) label->colour = colour;
}

}  // namespace zandrell
