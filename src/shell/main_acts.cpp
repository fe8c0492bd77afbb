#include "base/number_text.h"
#include "shell/main_form.h"

namespace zandrell {

void MainForm::BindActs() {
    BindToolActs();
    BindMenuActs();
    BindPointPanelActs();
    BindPlantPanelActs();
}

void MainForm::BindToolActs() {
    const auto on_tool = [this](const ToolButton& button, const ActTable::Handler& handler) {
        acts.Add(button.picture.name, ActKind::Click, handler);
        acts.Add(button.caption.name, ActKind::Click, handler);
    };
    on_tool(controls.optButt, [this] { OpenOptions(); });
    on_tool(controls.ZAButt, [this] {
        if (PanelZustand != kPointPanelOpen) OpenPointPanel(kStateChange, true);
    });
    on_tool(controls.MischButt, [this] {
        if (PanelZustand != kPointPanelOpen) OpenPointPanel(kMixing, true);
    });
    on_tool(controls.BearButt, [this] { OpenTool(kCapacity); });
    on_tool(controls.AnlageButt, [this] { AnlageOeffnen(); });
    on_tool(controls.PSButt, [this] { SaveWorkingState(true); });
    on_tool(controls.PLbutt, [this] {
        working_state_loaded_ = false;
        LoadWorkingState();
    });
    acts.Add(controls.ZOOMMIN.name, ActKind::Click, [this] { Zoom_min(); });
    acts.Add(controls.Command3D7.name, ActKind::Release, [this] { ende_qv(); });
    acts.Add(controls.Command3D2.name, ActKind::Release, [this] { CloseWindow(); });
}

void MainForm::BindMenuActs() {
    const auto on_menu = [this](const MenuEntry& entry, const ActTable::Handler& handler) {
        acts.Add(entry.name, ActKind::Click, handler);
    };
    on_menu(controls.Ende, [this] { ende_qv(); });
    on_menu(controls.qveinst, [this] { OpenOptions(); });
    on_menu(controls.wrgEinst, [this] { AuswahlOeffnen(); });
    on_menu(controls.ZustAe, [this] { OpenPointPanel(kStateChange, false); });
    on_menu(controls.Misch, [this] { OpenPointPanel(kMixing, false); });
    on_menu(controls.Kleis, [this] { OpenPointPanel(kCapacity, false); });
    on_menu(controls.AnlageS, [this] { AnlageOeffnen(); });
    on_menu(controls.Kuehl_start, [this] { OpenTool(kCooler); });
    on_menu(controls.Heiz_start, [this] { OpenTool(kHeater); });
    on_menu(controls.Humid_W_Start, [this] { OpenTool(kWaterHumidifier); });
    on_menu(controls.Humid_D_Start, [this] { OpenTool(kSteamHumidifier); });
    on_menu(controls.kopieren, [this] { user_.CopyChart(); });
    on_menu(controls.Hsich, [this] { SaveWorkingState(true); });
    on_menu(controls.Hlad, [this] { acts.Perform(controls.PLbutt.picture.name, ActKind::Click); });
}

void MainForm::BindPointPanelActs() {
    auto& p = point_panel;
    for (const auto* field : {&p.Temp1, &p.Temp2, &p.relF1, &p.relF2}) {
        acts.Add(field->name, ActKind::Return, [this] {
            point_panel.SchieberAbgleich();
            point_panel.ZustandRechnen(Rechenmodus, kMarksFromFields);
        });
    }
    acts.Add(p.LuftM1.name, ActKind::Return, [this] {
        shared.ZurueckVomDialog = 1;
        point_panel.ZustandRechnen(Rechenmodus, kMarksFromFields);
        point_panel.SchieberAbgleich();
        point_panel.TakeFlowStep1();
        shared.ZurueckVomDialog = 5;
    });
    acts.Add(p.LuftM2.name, ActKind::Return, [this] {
        point_panel.ZustandRechnen(Rechenmodus, kMarksFromFields);
        point_panel.SchieberAbgleich();
        point_panel.TakeFlowStep2();
    });
    acts.Add(p.Kleist.name, ActKind::Return,
             [this] { point_panel.VolumeFromCapacity(Rechenmodus); });
    for (const auto* button : {&p.VolBer, &p.VolBer_l}) {
        acts.Add(button->name, ActKind::Click,
                 [this] { point_panel.VolumeFromCapacity(Rechenmodus); });
    }
    acts.Add(p.wrgButt.name, ActKind::Click, [this] { AuswahlOeffnen(); });
    for (const auto* button : {&p.Command3D4, &p.abbcom, &p.Picture3}) {
        acts.Add(button->name, ActKind::Click, [this] { ClosePanel(point_panel.Anlage1PN); });
    }

    // A bar writes its field and computes; the flag keeps an echoing activation from reloading.
    const auto follow = [this](TextField& field, double value, bool flagged) {
        if (const std::string text = NumberText(value); !text.empty()) field.text = text;
        if (flagged) shared.ZurueckVomDialog = 1;
        point_panel.ZustandRechnen(Rechenmodus, kMarksFromFields);
        point_panel.SchieberAbgleich();
        if (flagged) shared.ZurueckVomDialog = 0;
    };
    const auto bind_state_bar = [this, follow](ScrollBar& bar, TextField& field) {
        bar.on_change = [this, follow, &bar, &field] {
            if (IsPointMode(Rechenmodus)) follow(field, bar.Position() / 10.0, true);
        };
    };
    bind_state_bar(p.Tscroll1, p.Temp1);
    bind_state_bar(p.Tscroll2, p.Temp2);
    bind_state_bar(p.FScroll1, p.relF1);
    bind_state_bar(p.FScroll2, p.relF2);

    const auto bind_flow_bar = [this, follow](ScrollBar& bar, TextField& field, const double& step,
                                              bool flagged) {
        bar.on_change = [this, follow, &bar, &field, &step, flagged] {
            if (!IsPointMode(Rechenmodus) || !(ParsedNumber(field.text) > 0)) return;
            follow(field, bar.Position() * step, flagged);
        };
    };
    bind_flow_bar(p.VScroll1, p.LuftM1, p.LuftSchritt1, true);
    bind_flow_bar(p.Vscroll2, p.LuftM2, p.LuftSchritt2, false);
}

void MainForm::BindPlantPanelActs() {
    auto& p = plant_panel;
    const auto run = [this] { plant_panel.AnlageBerechnen(); };
    const auto run_in_plant_mode = [this] {
        if (Rechenmodus == kPlant) plant_panel.AnlageBerechnen();
    };
    for (const auto* field :
         {&p.vhAnlage, &p.PHIAbluft, &p.PhiAussen, &p.phiKanal, &p.PHIZuluft, &p.tKA}) {
        acts.Add(field->name, ActKind::Return, run);
    }
    for (const auto* field : {&p.dtVent1, &p.dtVent2}) {
        acts.Add(field->name, ActKind::Return, run_in_plant_mode);
    }
    acts.Add(p.aussenAnt.name, ActKind::Return, [this] {
        plant_panel.VolumenTeilen();
        plant_panel.AnlageBerechnen();
    });
    for (const auto* field : {&p.vhinnen, &p.vhaussen}) {
        acts.Add(field->name, ActKind::Return, [this] {
            if (plant_panel.TakeFlowFromShares()) plant_panel.AnlageBerechnen();
        });
    }
    const auto bind_temperature = [this](const TextField& field, ScrollBar& bar) {
        acts.Add(field.name, ActKind::Return, [this, &field, &bar] {
            bar.SetPosition(RoundToInteger(10 * ParsedNumber(field.text)));
            plant_panel.AnlageBerechnen();
        });
    };
    bind_temperature(p.Taus, p.taScroll);
    bind_temperature(p.TZuluft, p.tzuScroll);
    bind_temperature(p.tabLuft, p.tabScroll);

    const auto bind_bar = [this](ScrollBar& bar, TextField& field) {
        bar.on_change = [this, &bar, &field] {
            if (Rechenmodus != kPlant) return;
            field.text = NumberText(bar.Position() / 10.0);
            plant_panel.AnlageBerechnen();
        };
    };
    bind_bar(p.taScroll, p.Taus);
    bind_bar(p.tzuScroll, p.TZuluft);
    bind_bar(p.tabScroll, p.tabLuft);
    bind_bar(p.Phiaussenscroll, p.PhiAussen);
    bind_bar(p.PHIAbscroll, p.PHIAbluft);
    bind_bar(p.PhiZuscroll, p.PHIZuluft);

    acts.Add(p.Option3D3.name, ActKind::Choose, [this, run_in_plant_mode] {
        Choose(plant_panel.Option3D3, plant_panel.Option3D4);
        run_in_plant_mode();
    });
    acts.Add(p.Option3D4.name, ActKind::Choose, [this, run_in_plant_mode] {
        Choose(plant_panel.Option3D4, plant_panel.Option3D3);
        run_in_plant_mode();
    });
    for (const auto* button :
         {&p.AnlageAbButt, &p.AnlageAbButt_l, &p.Command3D6, &p.Command3D6_l, &p.Picture12}) {
        acts.Add(button->name, ActKind::Click, [this] { ClosePanel(plant_panel.Frame1); });
    }
}

}  // namespace zandrell
