#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "chart/chart_engine.h"
#include "processes/process_panels.h"
#include "shell/mark_carrier.h"

namespace zandrell {

// Shapes of the mouse pointer over the chart (`MousePointer`).
enum class PointerShape { Arrow = 1, Cross = 2, Move = 5, Busy = 11 };

// Who owns the pointer on the chart (`PanelZustand`).
enum class PointerOwner {
    Nobody = 0,  // the read-out follows; a press starts a zoom frame
    FrameDrawing = 1,
    FrameDrawn = 2,  // the pointer is neither in nor out yet
    InsideFrame = 4,
    OutsideFrame = 5,
    PlantPanel = 33,  // marks can be picked up, and the read-out follows
    PointPanel = 44,  // marks can be picked up
    Zoomed = 77
};

// The pointer on the chart: read-out, zoom frame and carried marks. It is told what happens and
// decides alone who owns the pointer.
class PointerMachine {
  public:
    // `zoom_out` is the button that is shown while the chart is zoomed. All of it outlives the
    // machine.
    PointerMachine(ChartEngine& chart, StateSolver& solver, Overlay& overlay,
                   ReadOutPanel& read_out, ProcessPanels& processes, Button& zoom_out);
    PointerMachine(const PointerMachine&) = delete;
    PointerMachine& operator=(const PointerMachine&) = delete;

    PointerOwner PanelZustand() const { return owner_; }
    PointerShape MousePointer() const { return shape_; }
    const MarkCarrier& Marks() const { return marks_; }
    // The marks that a press can pick up now.
    std::vector<const Mark*> MarksToPickUp() const;

    // A press was meant for a frame while a panel is open.
    std::function<void()> frame_refused;

    // The left button on the chart, in canvas units.
    void Press(CanvasPoint place);
    void Move(CanvasPoint place);
    void Release();

    // A frame is given up wherever the pointer is.
    void DropFrame();
    // Zooms into a part of the whole chart as a click into a frame drawn around it does. Refused
    // while a mark is carried or the part is empty.
    bool ZoomInto(CanvasPoint corner, double width, double height);
    // Paints the whole chart again (`Zoom_min`).
    void ZoomOut();
    // The wheel: the chart so many times as large around a place, at most to its full extent back.
    // Beside open panels it works too, and they keep the pointer. Refused while a mark is carried.
    bool ZoomAround(CanvasPoint place, double factor);
    // A hand that drags the chart: where it was put on it, and where it is now.
    void GrabChart(CanvasPoint place);
    void DragChart(CanvasPoint place);

    // What the window does.
    void PanelOpened(PointerOwner owner);
    void PanelClosed();
    // A mark that is carried goes back to where it was.
    void WindowOpened() { marks_.PutBack(true); }
    void OptionsOpened();
    void Activated();
    // While something takes its time.
    void SetBusy(bool busy);

  private:
    bool IsPanelOpen() const;
    void ReadOut(CanvasPoint place);
    void StartFrame(CanvasPoint place);
    void FollowFrame(CanvasPoint place);
    void Show(const ChartScale& scale);
    void Paint(ChartTask task, double a = 0, double b = 0);

    ChartEngine& chart_;
    StateSolver& solver_;
    ReadOutPanel& read_out_;
    ProcessPanels& processes_;
    Button& zoom_out_;
    PointerOwner owner_ = PointerOwner::Nobody;
    PointerShape shape_ = PointerShape::Arrow;
    PointerShape shape_when_idle_ = PointerShape::Arrow;
    CanvasPoint frame_anchor_;  // the corner at which a frame was begun
    CanvasPoint grabbed_place_;
    std::optional<ChartScale> grabbed_scale_;  // of the chart when it was grabbed
    MarkCarrier marks_;
};

}  // namespace zandrell
