#pragma once

#include "base/captions.h"
#include "chart/chart_scale.h"
#include "chart/overlay.h"
#include "processes/plant.h"

namespace zandrell {

// The plant's polygon over the chart: marks, lines and labels of the overlay, on the chart and the
// zoom in force. Items are moved and shown; what a run does not need stays as it is, and only a
// change between the two ways clears them all.
class PlantDrawing {
  public:
    PlantDrawing(Overlay& overlay, const ChartScale& scale, const Captions& captions)
        : overlay_(overlay), scale_(scale), captions_(captions) {}

    void DrawMixing(const MixingSection& mixing);
    // Clears the drawing first when the run before went the other way.
    void StartWay(bool other_way_than_before);
    void DrawCoolerWay(const PlantRun& run, const AirPoint& heated);
    // On the suite's Carrier chart the marks and the ends at the supply stay unturned: all its
    // modules draw them so.
    void DrawHeaterWay(const PlantRun& run, const AirPoint& heated);

  private:
    CanvasPoint Place(const AirPoint& air) const { return scale_.PointOf(air.x, air.t); }
    CanvasPoint UnturnedPlace(const AirPoint& air) const {
        return {scale_.Xm(air.x), scale_.Ym(air.t)};
    }
    // Where the heater's way has its marks.
    CanvasPoint HeaterPlace(const AirPoint& air) const {
        return scale_.convention == Convention::Exact ? Place(air) : UnturnedPlace(air);
    }
    void DrawMixedAir(CanvasPoint place);
    void DrawRoomAndFans(const PlantRun& run, CanvasPoint supply, CanvasPoint before_fan);

    Overlay& overlay_;
    const ChartScale& scale_;
    const Captions& captions_;
};

}  // namespace zandrell
