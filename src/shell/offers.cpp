#include "shell/offers.h"

#include <string>
#include <vector>

namespace zandrell {
namespace {

// What starts a calculation, and when it may.
struct Offer {
    Calculation mode;
    std::vector<Control*> starters;
    bool possible;
};

std::vector<Offer> OffersOf(MainControls& c, const PanelKeeper& panels) {
    const bool calculation = panels.MayCalculate(), tool = panels.MayOpenTool();
    return {{Calculation::StateChange, {&c.ZAButt.picture, &c.ZAButt.caption}, calculation},
            {Calculation::Mixing, {&c.MischButt.picture, &c.MischButt.caption}, calculation},
            {Calculation::Plant,
             {&c.AnlageButt.picture, &c.AnlageButt.caption, &c.AnlageS},
             calculation},
            {Calculation::StateChange, {&c.ZustAe}, true},
            {Calculation::Mixing, {&c.Misch}, true},
            {Calculation::Capacity, {&c.Kleis}, true},
            {Calculation::Capacity, {&c.BearButt.picture, &c.BearButt.caption}, tool},
            {Calculation::Heater, {&c.Heiz_start}, tool},
            {Calculation::Cooler, {&c.Kuehl_start}, tool},
            {Calculation::WaterHumidifier, {&c.Humid_W_Start}, tool},
            {Calculation::SteamHumidifier, {&c.Humid_D_Start}, tool}};
}

void Allow(Control& control, bool possible, const std::string& reason) {
    control.enabled = possible;
    control.hint = possible ? std::string() : reason;
}

std::string NameOf(Calculation mode, const MainControls& c) {
    const auto plain = [](const MenuEntry& entry) {
        std::string text = entry.text;
        if (const auto mark = text.find('&'); mark != std::string::npos) text.erase(mark, 1);
        return text;
    };
    switch (mode) {
        case Calculation::StateChange:
            return plain(c.ZustAe);
        case Calculation::Capacity:
            return plain(c.Kleis);
        case Calculation::Mixing:
            return plain(c.Misch);
        case Calculation::Plant:
            return plain(c.AnlageS);
        case Calculation::Cooler:
            return plain(c.Kuehl_start);
        case Calculation::Heater:
            return plain(c.Heiz_start);
        case Calculation::WaterHumidifier:
            return plain(c.Humid_W_Start);
        case Calculation::SteamHumidifier:
            return plain(c.Humid_D_Start);
        case Calculation::None:
            break;
    }
    return {};
}

}  // namespace

void ShowOffers(MainControls& controls, ProcessPanels& processes, const PanelKeeper& panels,
                const Captions& captions) {
    const Calculation running = panels.IsOpen() ? processes.Rechenmodus : Calculation::None;
    for (const Offer& offer : OffersOf(controls, panels)) {
        for (Control* starter : offer.starters) {
            Allow(*starter, offer.possible, captions[Caption::ClosePanelFirst]);
            starter->checked = offer.mode == running;
        }
    }
    // It notes the duty of these two; with no other is there one to note.
    const bool duty = running == Calculation::Capacity || running == Calculation::Plant;
    for (Control* recovery :
         std::initializer_list<Control*>{&controls.wrgEinst, &processes.point.wrgButt}) {
        Allow(*recovery, duty, captions[Caption::HeatRecoveryMissing]);
    }
    processes.point.tool_name.text = processes.plant.tool_name.text = NameOf(running, controls);
}

}  // namespace zandrell
