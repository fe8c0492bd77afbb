#include <cmath>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "shell/main_form.h"

namespace zandrell {
namespace {

// The frame is taken a little larger than it was drawn.
constexpr double kZoomAllowance = 1.05;
constexpr double kChartWidth = 1800, kChartHeight = 580;

constexpr std::string_view kNoState = "-";

bool Contains(const Panel& frame, CanvasPoint place) {
    return place.x >= frame.left && place.x <= frame.left + frame.width && place.y >= frame.top &&
           place.y <= frame.top + frame.height;
}

}  // namespace

void MainForm::ReadOut(CanvasPoint place) {
    // As long as the way back from a zoom is on offer, the picture has the zoomed scale.
    Paint(controls.ZOOMMIN.visible ? kReadOutAsScaled : kReadOutWhole, place.x, place.y);
}

void MainForm::PointerPress(PointerButton button, CanvasPoint place) {
    // The right button acts when it is let go.
    if (button == PointerButton::Right) return;
    if (DropFirstCarriedMark(place)) return;
    const bool panel_open = PanelZustand == kPointPanelOpen || PanelZustand == kPlantPanelOpen;
    if (panel_open && (IsPointMode(Rechenmodus) || Rechenmodus == kPlant)) {
        PickUpMarks(place);
        ReadOut(place);
        return;
    }
    switch (PanelZustand) {
        case kInsideFrame:
            ZoomIntoFrame();
            break;
        case kOutsideFrame:
        case kFrameDrawn:
            DropFrame();
            break;
        case kZoomed:
            break;
        default:
            StartFrame(place);
    }
}

bool MainForm::DropFirstCarriedMark(CanvasPoint place) {
    struct Carried {
        Mark& mark;
        int& flag;
    };
    for (const Carried& carried :
         {Carried{overlay.PP1, PP1Gefasst}, Carried{overlay.PP2, PP2Gefasst},
          Carried{overlay.PP5, PP5Gefasst}, Carried{overlay.PP6, PP6Gefasst}}) {
        if (carried.flag != 1) continue;
        DropMark(carried.mark, carried.flag, place);
        return true;
    }
    return false;
}

void MainForm::DropMark(Mark& mark, int& carried, CanvasPoint place) {
    carried = 0;
    mark.shape = 0;
    mark.colour =
        overlay.ZAeLine.colour;  // that of the colour scheme, so that it shows on black too
    ReadOut(place);
    auto& humidity = read_out.relF.text;
    if (humidity == "< 0") humidity = "1";
    if (humidity == "> 100") humidity = "100";
    TakeDroppedState(mark);
}

void MainForm::TakeDroppedState(const Mark& mark) {
    auto& plant = plant_panel;
    const auto into_plant = [this](TextField& temperature, TextField& humidity,
                                   ScrollBar* temperature_bar, ScrollBar* humidity_bar) {
        TakePlantState(temperature, humidity);
        if (humidity_bar != nullptr) {
            humidity_bar->SetPosition(RoundToInteger(10 * ParsedNumber(read_out.relF.text)));
        }
        if (temperature_bar != nullptr) {
            temperature_bar->SetPosition(RoundToInteger(10 * ParsedNumber(read_out.Temp.text)));
        }
        plant_panel.AnlageBerechnen();
    };
    if (&mark == &overlay.PP5) {
        into_plant(plant.TZuluft, plant.PHIZuluft, &plant.tzuScroll, &plant.PhiZuscroll);
    } else if (&mark == &overlay.PP6) {
        into_plant(plant.tKA, plant.phiKanal, nullptr, nullptr);
    } else if (Rechenmodus == kPlant) {
        if (&mark == &overlay.PP1) {
            into_plant(plant.tabLuft, plant.PHIAbluft, &plant.tabScroll, &plant.PHIAbscroll);
        } else {
            into_plant(plant.Taus, plant.PhiAussen, &plant.taScroll, &plant.Phiaussenscroll);
        }
    } else if (&mark == &overlay.PP1) {
        TakePointState(point_panel.Temp1, point_panel.relF1);
    } else {
        TakePointState(point_panel.Temp2, point_panel.relF2);
    }
}

void MainForm::TakePointState(TextField& temperature, TextField& humidity) {
    TakePlantState(temperature, humidity);
    point_panel.SchieberAbgleich();
    point_panel.ZustandRechnen(Rechenmodus, kMarksFromFields);
}

void MainForm::TakePlantState(TextField& temperature, TextField& humidity) {
    // Where there is no state at all, the fields keep what they have.
    if (read_out.relF.text == kNoState) return;
    humidity.text = read_out.relF.text;
    temperature.text = read_out.Temp.text;
}

void MainForm::PickUpMarks(CanvasPoint place) {
    const auto pick_up = [&](Mark& mark, int& carried) {
        if (!mark.IsHitBy(place)) return;
        mark.shape = 1;
        mark.colour = kLightGreen;
        carried = 1;
    };
    pick_up(overlay.PP1, PP1Gefasst);
    pick_up(overlay.PP2, PP2Gefasst);
    pick_up(overlay.PP6, PP6Gefasst);
    pick_up(overlay.PP5, PP5Gefasst);
}

void MainForm::ReleaseCarriedMarks() {
    const auto let_go = [this](Mark& mark, int& carried) {
        if (carried == 0) return;
        carried = 0;
        mark.shape = 0;
        mark.colour = overlay.ZAeLine.colour;
    };
    let_go(overlay.PP1, PP1Gefasst);
    let_go(overlay.PP2, PP2Gefasst);
    let_go(overlay.PP5, PP5Gefasst);
    let_go(overlay.PP6, PP6Gefasst);
}

void MainForm::MoveCarriedMarks(CanvasPoint place) {
    ReadOut(place);
    const double x = ParsedNumber(read_out.absF.text);
    auto& plant = plant_panel;
    if (IsPointMode(Rechenmodus)) {
        if (PP1Gefasst == 1) {
            point_panel.ZustandX1 = x;
            point_panel.MarkenSetzen(Rechenmodus, kFirstMarkCarried);
        }
        if (PP2Gefasst == 1) {
            point_panel.ZustandX2 = x;
            point_panel.MarkenSetzen(Rechenmodus, kSecondMarkCarried);
        }
    }
    // The supply and the coil mark leave their humidity in state 2 too, in every mode: this is
    // meant.
    if (PP5Gefasst == 1 || PP6Gefasst == 1) point_panel.ZustandX2 = x;
    if (Rechenmodus != kPlant) return;
    if (PP1Gefasst == 1) TakePlantState(plant.tabLuft, plant.PHIAbluft);
    if (PP2Gefasst == 1) TakePlantState(plant.Taus, plant.PhiAussen);
    if (PP5Gefasst == 1) TakePlantState(plant.TZuluft, plant.PHIZuluft);
    if (PP6Gefasst == 1) TakePlantState(plant.tKA, plant.phiKanal);
    plant.AnlageBerechnen();
}

void MainForm::PointerMove(CanvasPoint place) {
    const bool carried = PP1Gefasst == 1 || PP2Gefasst == 1 || PP5Gefasst == 1 || PP6Gefasst == 1;
    if (carried) MoveCarriedMarks(place);
    switch (PanelZustand) {
        case kIdle:
        case kZoomed:
        case kPlantPanelOpen:
            MousePointer = kCrossPointer;
            read_out.Pn1.visible = true;
            ReadOut(place);
            break;
        case kFrameDrawing:
        case kFrameDrawn:
        case kInsideFrame:
        case kOutsideFrame:
            FollowFrame(place);
            break;
        default:
            break;
    }
}

void MainForm::PointerRelease(PointerButton button, CanvasPoint /*place*/) {
    if (button == PointerButton::Right) {
        OpenOptions();
        return;
    }
    if (PanelZustand != kFrameDrawing) return;
    PanelZustand = kFrameDrawn;
    MousePointer = kArrowPointer;
}

void MainForm::StartFrame(CanvasPoint place) {
    auto& frame = chart.controls.ZoomShape;
    PanelZustand = kFrameDrawing;
    frame.visible = true;
    frame.left = place.x;
    frame.top = place.y;
    frame.width = frame.height = 0;
}

void MainForm::FollowFrame(CanvasPoint place) {
    auto& frame = chart.controls.ZoomShape;
    if (PanelZustand == kFrameDrawing) {
        frame.height = std::floor(std::abs(place.y - frame.top));
        frame.width = std::floor(std::abs(place.x - frame.left));
        return;
    }
    const bool inside = Contains(frame, place);
    MousePointer = inside ? kMovePointer : kArrowPointer;
    PanelZustand = inside ? kInsideFrame : kOutsideFrame;
}

void MainForm::DropFrame() {
    chart.controls.ZoomShape.visible = false;
    PanelZustand = kIdle;
}

void MainForm::ZoomIntoFrame() {
    auto& frame = chart.controls.ZoomShape;
    if (frame.width <= 0 || frame.height <= 0) return DropFrame();
    frame.visible = false;
    controls.ZOOMMIN.visible = true;
    PanelZustand = kZoomed;
    Paint(kPaintZoomed, frame.width * kZoomAllowance / kChartWidth,
          frame.height * kZoomAllowance / kChartHeight);
    RepeatProcess();
}

}  // namespace zandrell
