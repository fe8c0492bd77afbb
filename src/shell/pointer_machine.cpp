#include "shell/pointer_machine.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "chart/scale_moves.h"

namespace zandrell {
namespace {

// The frame is taken a little larger than it was drawn.
constexpr double kZoomAllowance = 1.05;
constexpr double kChartWidth = 1800, kChartHeight = 580;
constexpr double kLargestMagnification = 50;

constexpr std::string_view kNoState = "-";

bool Contains(const Panel& frame, CanvasPoint place) {
    return place.x >= frame.left && place.x <= frame.left + frame.width && place.y >= frame.top &&
           place.y <= frame.top + frame.height;
}

}  // namespace

PointerMachine::PointerMachine(ChartEngine& chart, StateSolver& solver, Overlay& overlay,
                               ReadOutPanel& read_out, ProcessPanels& processes, Button& zoom_out)
    : chart_(chart),
      solver_(solver),
      overlay_(overlay),
      read_out_(read_out),
      processes_(processes),
      zoom_out_(zoom_out),
      carriers_{
          {{overlay.PP1, processes.plant.tabLuft, processes.plant.PHIAbluft,
            &processes.plant.tabScroll, &processes.plant.PHIAbscroll, &processes.point.Temp1,
            &processes.point.relF1, &processes.point.ZustandX1, MarkPlacing::FirstCarried},
           {overlay.PP2, processes.plant.Taus, processes.plant.PhiAussen, &processes.plant.taScroll,
            &processes.plant.Phiaussenscroll, &processes.point.Temp2, &processes.point.relF2,
            &processes.point.ZustandX2, MarkPlacing::SecondCarried},
           {overlay.PP5, processes.plant.TZuluft, processes.plant.PHIZuluft,
            &processes.plant.tzuScroll, &processes.plant.PhiZuscroll},
           {overlay.PP6, processes.plant.tKA, processes.plant.phiKanal, nullptr, nullptr}}} {}

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
    if (DropFirstCarriedMark(place)) return;
    if (IsPanelOpen() && processes_.Rechenmodus != Calculation::None) {
        PickUpMarks(place);
        ReadOut(place);
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
            break;
        case PointerOwner::Nobody:
        case PointerOwner::FrameDrawing:
        case PointerOwner::PlantPanel:
        case PointerOwner::PointPanel:
            StartFrame(place);
    }
}

void PointerMachine::Move(CanvasPoint place) {
    if (CarriesAny()) MoveCarriedMarks(place);
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
    if (CarriesAny() || width <= 0 || height <= 0) return false;
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
    if (CarriesAny() || owner_ == PointerOwner::FrameDrawing) return false;
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
    if (CarriesAny() || owner_ == PointerOwner::FrameDrawing) return;
    grabbed_place_ = place;
    grabbed_scale_ = chart_.scale;
}

void PointerMachine::DragChart(CanvasPoint place) {
    if (!grabbed_scale_) return;
    const ChartScale scale = Shifted(*grabbed_scale_, grabbed_place_, place);
    if (ShowsTheRange(scale, chart_.settings)) Show(scale);
}

// --- Marks that are picked up, carried and dropped.

bool PointerMachine::CarriesAny() const {
    return std::any_of(carriers_.begin(), carriers_.end(),
                       [](const Carrier& carrier) { return carrier.carried; });
}

bool PointerMachine::IsCarried(const Mark& mark) const {
    return std::any_of(carriers_.begin(), carriers_.end(), [&mark](const Carrier& carrier) {
        return &carrier.mark == &mark && carrier.carried;
    });
}

std::vector<const Mark*> PointerMachine::MarksToPickUp() const {
    std::vector<const Mark*> marks;
    if (!IsPanelOpen() || CarriesAny()) return marks;
    for (const Carrier& carrier : carriers_) {
        if (carrier.mark.visible) marks.push_back(&carrier.mark);
    }
    return marks;
}

void PointerMachine::PickUpMarks(CanvasPoint place) {
    for (Carrier& carrier : carriers_) {
        if (!carrier.mark.IsHitBy(place)) continue;
        carrier.mark.shape = 1;
        carrier.mark.colour = kLightGreen;
        carrier.carried = true;
        carrier.former_temperature = carrier.plant_temperature.text;
        carrier.former_humidity = carrier.plant_humidity.text;
        carrier.former_x = HumidityOf(carrier);
    }
}

double& PointerMachine::HumidityOf(Carrier& carrier) {
    return carrier.x != nullptr ? *carrier.x : processes_.point.ZustandX2;
}

void PointerMachine::LetGo(Carrier& carrier) {
    carrier.carried = false;
    carrier.mark.shape = 0;
    carrier.mark.colour = overlay_.ZAeLine.colour;  // that of the scheme, so that it shows on black
}

void PointerMachine::PutBack(bool draw) {
    if (!CarriesAny()) return;
    const bool in_plant = processes_.Rechenmodus == Calculation::Plant;
    for (Carrier& carrier : carriers_) {
        if (!carrier.carried) continue;
        LetGo(carrier);
        HumidityOf(carrier) = carrier.former_x;
        if (!in_plant) continue;
        carrier.plant_temperature.text = carrier.former_temperature;
        carrier.plant_humidity.text = carrier.former_humidity;
    }
    if (draw) processes_.Repeat();
}

bool PointerMachine::DropFirstCarriedMark(CanvasPoint place) {
    const auto first = std::find_if(carriers_.begin(), carriers_.end(),
                                    [](const Carrier& carrier) { return carrier.carried; });
    if (first == carriers_.end()) return false;
    LetGo(*first);
    ReadOut(place);
    auto& humidity = read_out_.relF.text;
    if (humidity == "< 0") humidity = "1";
    if (humidity == "> 100") humidity = "100";
    TakeDroppedState(*first);
    return true;
}

// False where there is no state at all: the fields keep what they have.
bool PointerMachine::TakeReadOut(TextField& temperature, TextField& humidity) {
    if (read_out_.relF.text == kNoState) return false;
    humidity.text = read_out_.relF.text;
    temperature.text = read_out_.Temp.text;
    return true;
}

void PointerMachine::TakeDroppedState(const Carrier& carrier) {
    if (processes_.Rechenmodus != Calculation::Plant && carrier.temperature != nullptr) {
        TakeReadOut(*carrier.temperature, *carrier.humidity);
        processes_.point.SchieberAbgleich();
        processes_.point.ZustandRechnen(processes_.Rechenmodus, MarkPlacing::FromFields);
        return;
    }
    // Nothing at all is taken from where there is no state; the mark goes back to its fields.
    const bool taken = TakeReadOut(carrier.plant_temperature, carrier.plant_humidity);
    if (taken && carrier.plant_humidity_bar != nullptr) {
        carrier.plant_humidity_bar->ShowTenths(ParsedNumber(read_out_.relF.text));
    }
    if (taken && carrier.plant_temperature_bar != nullptr) {
        carrier.plant_temperature_bar->ShowTenths(ParsedNumber(read_out_.Temp.text));
    }
    processes_.plant.AnlageBerechnen();
}

void PointerMachine::MoveCarriedMarks(CanvasPoint place) {
    ReadOut(place);
    const double x = ParsedNumber(read_out_.absF.text);
    const bool in_plant = processes_.Rechenmodus == Calculation::Plant;
    for (Carrier& carrier : carriers_) {
        if (!carrier.carried) continue;
        const bool in_point_mode = IsPointMode(processes_.Rechenmodus);
        // The supply and the coil mark move state 2 of the point panel in every mode.
        if (carrier.x == nullptr || in_point_mode) HumidityOf(carrier) = x;
        if (carrier.x != nullptr && in_point_mode) {
            processes_.point.MarkenSetzen(processes_.Rechenmodus, carrier.placing);
        }
        if (in_plant) TakeReadOut(carrier.plant_temperature, carrier.plant_humidity);
    }
    if (in_plant) processes_.plant.AnlageBerechnen();
}

// --- What the window does.

void PointerMachine::PanelOpened(PointerOwner owner) {
    PutBack(true);
    chart_.controls.ZoomShape.visible = false;  // a frame on the chart would be dead
    owner_ = owner;
    if (owner == PointerOwner::PointPanel) shape_ = PointerShape::Arrow;
}

void PointerMachine::PanelClosed() {
    PutBack(true);
    shape_ = PointerShape::Cross;
    owner_ = PointerOwner::Nobody;
}

void PointerMachine::OptionsOpened() {
    PutBack(false);  // the closing of the options draws
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
