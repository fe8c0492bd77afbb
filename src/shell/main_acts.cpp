#include "shell/main_form.h"

namespace zandrell {

void MainForm::BindActs() {
    processes.BindActs(acts);
    BindToolActs();
    BindMenuActs();
    BindPanelActs();
}

void MainForm::BindToolActs() {
    const auto on_tool = [this](const ToolButton& button, const ActTable::Handler& handler) {
        acts.Add(button.picture.name, ActKind::Click, handler);
        acts.Add(button.caption.name, ActKind::Click, handler);
    };
    const auto open_and_calculate = [this](Calculation mode) {
        if (pointer_.PanelZustand() == PointerOwner::PointPanel) return;
        panels_.OpenPointPanel(mode, true);
    };
    on_tool(controls.optButt, [this] { OpenOptions(); });
    on_tool(controls.ZAButt, [=] { open_and_calculate(Calculation::StateChange); });
    on_tool(controls.MischButt, [=] { open_and_calculate(Calculation::Mixing); });
    on_tool(controls.BearButt, [this] { panels_.OpenTool(Calculation::Capacity); });
    on_tool(controls.AnlageButt, [this] { panels_.AnlageOeffnen(); });
    on_tool(controls.PSButt, [this] { inputs_.Save(); });
    on_tool(controls.PLbutt, [this] { inputs_.Load(); });
    acts.Add(controls.ZOOMMIN.name, ActKind::Click, [this] { pointer_.ZoomOut(); });
    acts.Add(controls.Command3D7.name, ActKind::Release, [this] { ende_qv(); });
    acts.Add(controls.Command3D2.name, ActKind::Release, [this] { CloseWindow(); });
}

void MainForm::BindMenuActs() {
    const auto on_menu = [this](const MenuEntry& entry, const ActTable::Handler& handler) {
        acts.Add(entry.name, ActKind::Click, handler);
    };
    const auto opens = [this](Calculation mode) {
        return [this, mode] { panels_.OpenPointPanel(mode, false); };
    };
    const auto opens_tool = [this](Calculation mode) {
        return [this, mode] { panels_.OpenTool(mode); };
    };
    on_menu(controls.Ende, [this] { ende_qv(); });
    on_menu(controls.qveinst, [this] { OpenOptions(); });
    on_menu(controls.wrgEinst, [this] { AuswahlOeffnen(); });
    on_menu(controls.ZustAe, opens(Calculation::StateChange));
    on_menu(controls.Misch, opens(Calculation::Mixing));
    on_menu(controls.Kleis, opens(Calculation::Capacity));
    on_menu(controls.AnlageS, [this] { panels_.AnlageOeffnen(); });
    on_menu(controls.Kuehl_start, opens_tool(Calculation::Cooler));
    on_menu(controls.Heiz_start, opens_tool(Calculation::Heater));
    on_menu(controls.Humid_W_Start, opens_tool(Calculation::WaterHumidifier));
    on_menu(controls.Humid_D_Start, opens_tool(Calculation::SteamHumidifier));
    on_menu(controls.kopieren, [this] { user_.CopyChart(); });
    on_menu(controls.Hsich, [this] { inputs_.Save(); });
    on_menu(controls.Hlad, [this] { inputs_.Load(); });
}

void MainForm::BindPanelActs() {
    auto& point = processes.point;
    auto& plant = processes.plant;
    acts.Add(point.wrgButt.name, ActKind::Click, [this] { AuswahlOeffnen(); });
    for (const Button* button : {&point.Command3D4, &point.abbcom, &point.Picture3}) {
        acts.Add(button->name, ActKind::Click,
                 [this] { panels_.Close(processes.point.Anlage1PN); });
    }
    for (const Button* button : {&plant.AnlageAbButt, &plant.AnlageAbButt_l, &plant.Command3D6,
                                 &plant.Command3D6_l, &plant.Picture12}) {
        acts.Add(button->name, ActKind::Click, [this] { panels_.Close(processes.plant.Frame1); });
    }
}

}  // namespace zandrell
