#include "shell/mark_carrier.h"

#include <algorithm>

#include "base/number_text.h"
#include "canvas/palette.h"

namespace zandrell {
namespace {

constexpr std::string_view kNoState = "-";

}  // namespace

MarkCarrier::MarkCarrier(Overlay& overlay, ReadOutPanel& read_out, ProcessPanels& processes)
    : overlay_(overlay),
      read_out_(read_out),
      processes_(processes),
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

bool MarkCarrier::CarriesAny() const {
    return std::any_of(carriers_.begin(), carriers_.end(),
                       [](const Carrier& carrier) { return carrier.carried; });
}

bool MarkCarrier::IsCarried(const Mark& mark) const {
    return std::any_of(carriers_.begin(), carriers_.end(), [&mark](const Carrier& carrier) {
        return &carrier.mark == &mark && carrier.carried;
    });
}

std::vector<const Mark*> MarkCarrier::VisibleMarks() const {
    std::vector<const Mark*> marks;
    for (const Carrier& carrier : carriers_) {
        if (carrier.mark.visible) marks.push_back(&carrier.mark);
    }
    return marks;
}

void MarkCarrier::PickUp(CanvasPoint place) {
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

double& MarkCarrier::HumidityOf(Carrier& carrier) {
    return carrier.x != nullptr ? *carrier.x : processes_.point.ZustandX2;
}

void MarkCarrier::LetGo(Carrier& carrier) {
    carrier.carried = false;
    carrier.mark.shape = 0;
    carrier.mark.colour = overlay_.ZAeLine.colour;  // that of the scheme, so that it shows on black
}

void MarkCarrier::PutBack(bool draw) {
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

void MarkCarrier::DropFirst() {
    const auto first = std::find_if(carriers_.begin(), carriers_.end(),
                                    [](const Carrier& carrier) { return carrier.carried; });
    if (first == carriers_.end()) return;
    LetGo(*first);
    auto& humidity = read_out_.relF.text;
    if (humidity == "< 0") humidity = "1";
    if (humidity == "> 100") humidity = "100";
    TakeDroppedState(*first);
}

// False where there is no state at all: the fields keep what they have.
bool MarkCarrier::TakeReadOut(TextField& temperature, TextField& humidity) {
    if (read_out_.relF.text == kNoState) return false;
    humidity.text = read_out_.relF.text;
    temperature.text = read_out_.Temp.text;
    return true;
}

void MarkCarrier::TakeDroppedState(const Carrier& carrier) {
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

void MarkCarrier::Move() {
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

}  // namespace zandrell
