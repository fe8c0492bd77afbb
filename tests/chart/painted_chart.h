#pragma once

#include <cmath>
#include <memory>
#include <string>

#include "chart/chart_engine.h"
#include "kernel/state_solver.h"
#include "support/test_folder.h"

namespace zandrell {

// A chart of given settings, painted on a recording canvas.
class PaintedChart {
  public:
    explicit PaintedChart(const std::string& settings = "1.013,-20,40,0,40,0,0,1") {
        folder.CopyStaged("qvdata.dat");
        folder.Write("qv_par.dat", settings);
        engine.TakeAspect(24000);  // a window of 1600 pixels: aspect (1.10833 * 2000 + 10) / 580
    }

    void Paint() { engine.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, pressure); }
    void PaintOnPrinter() {
        engine.printer = &paper;
        engine.DiagrammZeichnen(ChartTask::PaintPrinter, 0, 0, pressure);
    }
    void Zoom(double left, double top, double width, double height) {
        auto& frame = engine.controls.ZoomShape;
        frame.left = left;
        frame.top = top;
        frame.width = width;
        frame.height = height;
        engine.DiagrammZeichnen(ChartTask::PaintZoomed, width * 1.05 / 1800, height * 1.05 / 580,
                                pressure);
    }
    void ReadAt(double x, double y, ChartTask modus = ChartTask::ReadOutWhole) {
        engine.DiagrammZeichnen(modus, x, y, pressure);
    }

    TestFolder folder;
    DataFiles files{folder.Path()};
    SharedValues shared;
    Captions captions;
    StateSolver solver{files};
    Overlay overlay;
    ReadOutPanel read_out;
    ChartEngine engine{files, shared, captions, solver, overlay, read_out};
    RecordingCanvas paper;
    double pressure = 0;
};

// What was drawn near a place; null when nothing was.
inline const CanvasOperation* FindLine(const RecordingCanvas& canvas, double x1, double y1,
                                       double x2, double y2, int colour, double tolerance = 0.01) {
    for (const auto& o : canvas.Operations()) {
        if (o.stroke == Stroke::Line && o.colour == colour && std::abs(o.x1 - x1) < tolerance &&
            std::abs(o.y1 - y1) < tolerance && std::abs(o.x2 - x2) < tolerance &&
            std::abs(o.y2 - y2) < tolerance) {
            return &o;
        }
    }
    return nullptr;
}

inline const CanvasOperation* FindText(const RecordingCanvas& canvas, const std::string& text) {
    for (const auto& o : canvas.Operations()) {
        if (o.stroke == Stroke::Text && o.text == text) return &o;
    }
    return nullptr;
}

inline bool HasTextAt(const RecordingCanvas& canvas, const std::string& text, double x, double y,
                      double tolerance = 0.01) {
    for (const auto& o : canvas.Operations()) {
        if (o.stroke == Stroke::Text && o.text == text && std::abs(o.x1 - x) < tolerance &&
            std::abs(o.y1 - y) < tolerance) {
            return true;
        }
    }
    return false;
}

}  // namespace zandrell
