#include "processes/plant_drawing.h"

#include <string>

namespace zandrell {
namespace {

// Canvas units from a state up and left to the corner of its mark.
constexpr double kCorner = 6, kWideCorner = 7;

void Show(Mark& mark, CanvasPoint place, double corner) {
    mark.PlaceAt(place, corner);
    mark.visible = true;
}

void Show(ChartLine& line, CanvasPoint from, CanvasPoint to) {
    line.Run(from, to);
    line.visible = true;
}

void Show(ChartLabel& label, CanvasPoint place, const std::string& text) {
    label.PlaceAt(place);
    label.text = text;
    label.visible = true;
}

}  // namespace

void PlantDrawing::DrawMixing(const MixingSection& mixing) {
    const CanvasPoint behind_fan = Place(mixing.behind_fan), outside = Place(mixing.outside);
    overlay_.ZAeLine.Run(behind_fan, outside);
    overlay_.PP1.PlaceAt(behind_fan, kCorner);
    overlay_.PP2.PlaceAt(outside, kCorner);
    Show(overlay_.t1Lab, Place(mixing.exhaust), captions_[Caption::RecirculatedAir]);
    Show(overlay_.t2lab, outside, captions_[Caption::OutdoorAir]);
}

void PlantDrawing::StartWay(bool other_way_than_before) {
    if (other_way_than_before) {
        overlay_.AnlageMarkenLoeschen();
        overlay_.t1Lab.visible = overlay_.t2lab.visible = true;
    }
    overlay_.ZAeLine.visible = overlay_.PP1.visible = overlay_.PP2.visible = true;
}

void PlantDrawing::DrawCoolerWay(const PlantRun& run, const AirPoint& heated) {
    const CanvasPoint coil = Place(run.coil.air), heater = Place(heated);
    const CanvasPoint supply = Place(run.supply), before_fan = Place(run.fan_inlet.air);
    const CanvasPoint mixed = Place(run.mixing.mixed);
    Show(overlay_.t3Lab, coil, captions_[Caption::Leaving] + " " + captions_[Caption::Cooler]);
    Show(overlay_.PP6, coil, kWideCorner);
    Show(overlay_.PP5, supply, kWideCorner);
    Show(overlay_.PP7, before_fan, kWideCorner);
    Show(overlay_.pp9, heater, kCorner);
    Show(overlay_.ZL2, heater, before_fan);
    Show(overlay_.ZL8, coil, heater);
    Show(overlay_.zL1, coil, mixed);
    DrawMixedAir(mixed);
    DrawRoomAndFans(run, supply, before_fan);
}

void PlantDrawing::DrawHeaterWay(const PlantRun& run, const AirPoint& heated) {
    const CanvasPoint supply = HeaterPlace(run.supply);
    const CanvasPoint before_fan = HeaterPlace(run.fan_inlet.air);
    const CanvasPoint mixed = Place(run.mixing.mixed), line_end = Place(heated);
    Show(overlay_.PP8, HeaterPlace(heated), kCorner);
    Show(overlay_.PP5, supply, kCorner);
    Show(overlay_.PP7, before_fan, kCorner);
    DrawMixedAir(mixed);
    Show(overlay_.ZL3, mixed, line_end);
    Show(overlay_.ZL4, line_end, before_fan);
    DrawRoomAndFans(run, supply, before_fan);
}

void PlantDrawing::DrawMixedAir(CanvasPoint place) {
    Show(overlay_.tmLab, place, captions_[Caption::Mixing]);
    Show(overlay_.PP3, place, kCorner);
}

void PlantDrawing::DrawRoomAndFans(const PlantRun& run, CanvasPoint supply,
                                   CanvasPoint before_fan) {
    const CanvasPoint exhaust = Place(run.mixing.exhaust);
    Show(overlay_.ZL5, exhaust, supply);
    Show(overlay_.ZL6, supply, before_fan);
    Show(overlay_.ZL7, exhaust, Place(run.mixing.behind_fan));
    Show(overlay_.PP4, exhaust, kCorner);
}

}  // namespace zandrell
