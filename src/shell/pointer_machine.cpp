#include "shell/pointer_machine.h"

#include <algorithm>
#include <cmath>

#include "chart/scale_moves.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

// The frame is taken a little larger than it was drawn.
constexpr double kZoomAllowance = 1.05;
constexpr double kChartWidth = 1800, kChartHeight = 580;
constexpr double kLargestMagnification = 50;

bool Contains(const Panel& frame, CanvasPoint place) {
    return place.x >= frame.left && place.x <= frame.left + frame.width && place.y >= frame.top &&
           place.y <= frame.top + frame.height;
}

}  // namespace

PointerMachine::PointerMachine(ChartEngine& chart, StateSolver& solver, Overlay& overlay,
                               ReadOutPanel& read_out, ProcessPanels& processes, Button& zoom_out)
    : chart_(chart),
      solver_(solver),
      read_out_(read_out),
      processes_(processes),
      zoom_out_(zoom_out),
      marks_(overlay, read_out, processes) {}

void PointerMachine::Paint(ChartTask task, double a, double b) {
    chart_.DiagrammZeichnen(task, a, b, solver_.ChartDruckBar);
}

void PointerMachine::ReadOut(CanvasPoint place) {
    // As long as the way back from a zoom is on offer, the picture has the zoomed scale.
    Paint(zoom_out_.visible ? ChartTask::ReadOutAsScaled : ChartTask::ReadOutWhole, place.x,
          place.y);
}

bool PointerMachine::IsPanelOpen() const {
    return owner_ == PointerOwner::PointPanel || owner_ == PointerOwner::PlantPanel;
}

void PointerMachine::Press(CanvasPoint place) {
    if (marks_.CarriesAny()) {
        ReadOut(place);
        marks_.DropFirst();
        return;
    }
    if (IsPanelOpen() && processes_.Rechenmodus != Calculation::None) {
        marks_.PickUp(place);
        ReadOut(place);
        if (!marks_.CarriesAny() && frame_refused) frame_refused();
        return;
    }
    switch (owner_) {
        case PointerOwner::InsideFrame: {
            const Panel& frame = chart_.controls.ZoomShape;
            if (!ZoomInto({frame.left, frame.top}, frame.width, frame.height)) DropFrame();
            break;
        }
        case PointerOwner::OutsideFrame:
        case PointerOwner::FrameDrawn:
            DropFrame();
            break;
        case PointerOwner::Zoomed:
            // The suite keeps the pointer until a panel has been opened and closed.
            if (chart_.settings.convention == Convention::Exact) StartFrame(place);
            break;
        case PointerOwner::Nobody:
        case PointerOwner::FrameDrawing:
        case PointerOwner::PlantPanel:
        case PointerOwner::PointPanel:
            StartFrame(place);
    }
}

void PointerMachine::Move(CanvasPoint place) {
    if (marks_.CarriesAny()) {
        ReadOut(place);
        marks_.Move();
    }
    switch (owner_) {
        case PointerOwner::Nobody:
        case PointerOwner::Zoomed:
        case PointerOwner::PlantPanel:
            shape_ = PointerShape::Cross;
            read_out_.Pn1.visible = true;
            ReadOut(place);
            break;
        case PointerOwner::FrameDrawing:
        case PointerOwner::FrameDrawn:
        case PointerOwner::InsideFrame:
        case PointerOwner::OutsideFrame:
            FollowFrame(place);
            break;
        case PointerOwner::PointPanel:
            break;
    }
}

void PointerMachine::Release() {
    if (owner_ != PointerOwner::FrameDrawing) return;
    owner_ = PointerOwner::FrameDrawn;
    shape_ = PointerShape::Arrow;
}

// --- The frame of a zoom.

void PointerMachine::StartFrame(CanvasPoint place) {
    auto& frame = chart_.controls.ZoomShape;
    owner_ = PointerOwner::FrameDrawing;
    frame.visible = true;
    frame_anchor_ = place;
    frame.left = place.x;
    frame.top = place.y;
    frame.width = frame.height = 0;
}

void PointerMachine::FollowFrame(CanvasPoint place) {
    auto& frame = chart_.controls.ZoomShape;
    if (owner_ == PointerOwner::FrameDrawing) {
        frame.height = std::floor(std::abs(place.y - frame_anchor_.y));
        frame.width = std::floor(std::abs(place.x - frame_anchor_.x));
        frame.left = place.x < frame_anchor_.x ? frame_anchor_.x - frame.width : frame_anchor_.x;
        frame.top = place.y < frame_anchor_.y ? frame_anchor_.y - frame.height : frame_anchor_.y;
        return;
    }
    const bool inside = Contains(frame, place);
    shape_ = inside ? PointerShape::Move : PointerShape::Arrow;
    owner_ = inside ? PointerOwner::InsideFrame : PointerOwner::OutsideFrame;
}

void PointerMachine::DropFrame() {
    if (!chart_.controls.ZoomShape.visible) return;
    chart_.controls.ZoomShape.visible = false;
    if (!IsPanelOpen()) owner_ = PointerOwner::Nobody;
}

bool PointerMachine::ZoomInto(CanvasPoint corner, double width, double height) {
    if (marks_.CarriesAny() || width <= 0 || height <= 0) return false;
    auto& frame = chart_.controls.ZoomShape;
    frame.left = corner.x;
    frame.top = corner.y;
    frame.width = width;
    frame.height = height;
    frame.visible = false;
    zoom_out_.visible = true;
    owner_ = PointerOwner::Zoomed;
    Paint(ChartTask::PaintZoomed, width * kZoomAllowance / kChartWidth,
          height * kZoomAllowance / kChartHeight);
    processes_.Repeat();
    return true;
}

void PointerMachine::ZoomOut() {
    shape_ = PointerShape::Busy;
    Paint(ChartTask::PaintWhole);
    processes_.Repeat();
    shape_ = PointerShape::Arrow;
    zoom_out_.visible = false;
    // The suite keeps the pointer until a panel has been opened and closed.
    const bool exact = chart_.settings.convention == Convention::Exact;
    if (exact && owner_ == PointerOwner::Zoomed) owner_ = PointerOwner::Nobody;
}

// --- Wheel and hand.

void PointerMachine::Show(const ChartScale& scale) {
    DropFrame();
    chart_.scale = scale;
    zoom_out_.visible = true;
    if (!IsPanelOpen()) owner_ = PointerOwner::Zoomed;
    Paint(ChartTask::PaintAsScaled);
    processes_.Repeat();
}

bool PointerMachine::ZoomAround(CanvasPoint place, double factor) {
    if (marks_.CarriesAny() || owner_ == PointerOwner::FrameDrawing) return false;
    const double now = Magnification(chart_.scale, chart_.settings);
    const double wanted = std::min(now * factor, kLargestMagnification);
    if (!(wanted > 0)) return false;
    if (wanted > 1.001) {
        Show(Magnified(chart_.scale, place, wanted / now));
    } else if (zoom_out_.visible) {
        ZoomOut();
        if (owner_ == PointerOwner::Zoomed) owner_ = PointerOwner::Nobody;
    }
    return true;
}

void PointerMachine::GrabChart(CanvasPoint place) {
    grabbed_scale_.reset();
    if (marks_.CarriesAny() || owner_ == PointerOwner::FrameDrawing) return;
    grabbed_place_ = place;
    grabbed_scale_ = chart_.scale;
}

void PointerMachine::DragChart(CanvasPoint place) {
    if (!grabbed_scale_) return;
    const ChartScale scale = Shifted(*grabbed_scale_, grabbed_place_, place);
    if (ShowsTheRange(scale, chart_.settings)) Show(scale);
}

std::vector<const Mark*> PointerMachine::MarksToPickUp() const {
    if (!IsPanelOpen() || marks_.CarriesAny()) return {};
    return marks_.VisibleMarks();
}

// --- What the window does.

void PointerMachine::PanelOpened(PointerOwner owner) {
    marks_.PutBack(true);
    chart_.controls.ZoomShape.visible = false;  // a frame on the chart would be dead
    owner_ = owner;
    if (owner == PointerOwner::PointPanel) shape_ = PointerShape::Arrow;
}

void PointerMachine::PanelClosed() {
    marks_.PutBack(true);
    shape_ = PointerShape::Cross;
    owner_ = PointerOwner::Nobody;
}

void PointerMachine::OptionsOpened() {
    marks_.PutBack(false);  // the closing of the options draws
    if (owner_ == PointerOwner::Zoomed) return;
    owner_ = PointerOwner::Nobody;
    chart_.controls.ZoomShape.visible = false;
}

void PointerMachine::Activated() {
    owner_ = PointerOwner::Nobody;
    zoom_out_.visible = false;
    chart_.controls.ZoomShape.visible = false;
}

void PointerMachine::SetBusy(bool busy) {
    if (busy && shape_ != PointerShape::Busy) shape_when_idle_ = shape_;
    shape_ = busy ? PointerShape::Busy : shape_when_idle_;
}

}  // namespace zandrell
