#pragma once

#include <functional>

#include "base/captions.h"
#include "base/shared_values.h"
#include "canvas/recording_canvas.h"
#include "chart/chart_scale.h"
#include "chart/chart_settings.h"
#include "chart/curve_cache.h"
#include "chart/overlay.h"
#include "chart/read_out.h"
#include "forms/control.h"
#include "forms/form.h"

namespace zandrell {

class StateSolver;

// What DiagrammZeichnen is asked to do (`modus`).
enum class ChartTask {
    PaintWhole = 1,
    ReadOutWhole = 2,
    PaintZoomed = 3,
    PaintPrinter = 4,
    ReadOutAsScaled = 5,
    PaintAsScaled = 6  // with the scale that was set before
};

// Controls that belong to the chart's surface: progress, logo, and the rubber frame of a zoom.
struct ChartControls {
    Panel ConsPN1{"ConsPN1"};
    Label ConsPN2{"ConsPN2"};
    Panel Picture1{"Picture1", ControlKind::Picture}, Picture_p{"Picture_p", ControlKind::Picture};
    ChartLabel Label27{"Label27"};
    Panel ZoomShape{"ZoomShape"};

    ChartControls();
    void ListControls(Form& form);
};

// The width of a window with its column of tools, as a multiple of the width without.
double ToolColumnShare(int width_twips);

// The one routine behind everything that is drawn on the chart and read from it. The picture is
// kept as a list of strokes, so that windows, files and printers can show it at any size.
class ChartEngine {
  public:
    // All of it outlives the engine.
    ChartEngine(const DataFiles& files, SharedValues& shared, const Captions& captions,
                StateSolver& solver, Overlay& overlay, ReadOutPanel& read_out);

    ChartSettings settings;
    ChartScale scale;
    ChartControls controls;
    RecordingCanvas picture;

    // The logical extent of the canvas, from (-10, 0) at the upper left.
    int BreiteLogisch = 2000, HoeheLogisch = 580;
    bool printing = false;  // a print-out runs: only painting on the printer does anything
    std::optional<int> kind_override;  // a chart kind that is not to be kept in the settings
    std::optional<Convention> convention_override;  // the same for the convention
    Canvas* printer = nullptr;                      // the target of ChartTask::PaintPrinter
    std::function<void(Canvas&)> additions;         // what others draw on each finished chart

    // a and b are the zoom factors for ChartTask::PaintZoomed (the frame is ZoomShape), the
    // pointer's place for the read-outs. `druck` (bar) receives the pressure in force.
    void DiagrammZeichnen(ChartTask modus, double a, double b, double& druck);

    // The window's width and height in twips give the aspect of the Carrier chart.
    void TakeAspect(int width_twips);
    // Under Exact the aspect follows the window: true when the whole chart is to be painted anew. A
    // zoomed picture keeps its aspect until the whole chart comes back.
    bool FollowWidth(int width_twips);

  private:
    void ReadSettings(double& druck);
    void ApplyColours();
    void PlaceLogo();
    void Paint(Canvas& canvas, bool on_printer);

    const DataFiles& files_;
    SharedValues& shared_;
    const Captions& captions_;
    StateSolver& solver_;
    Overlay& overlay_;
    ReadOutPanel& read_out_;
    CurveCache cache_;
    ChartSettings file_settings_;
    std::optional<FileStamp> settings_stamp_;
    int followed_width_ = 0;  // twips, of the window; 0 while none is known
};

}  // namespace zandrell
