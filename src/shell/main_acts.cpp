#include "shell/main_acts.h"

#include <utility>

#include "shell/help_in_hand.h"
#include "shell/main_form.h"

namespace zandrell {
namespace {

void BindToolActs(MainForm& main) {
    MainControls& controls = main.controls;
    const auto on_tool = [&main](const ToolButton& button, const ActTable::Handler& handler) {
        main.acts.Add(button.picture.name, ActKind::Click, handler);
        main.acts.Add(button.caption.name, ActKind::Click, handler);
    };
    const auto open_and_calculate = [&main](Calculation mode) {
        if (!main.Panels().MayCalculate()) return;
        main.Panels().OpenPointPanel(mode, true);
    };
    on_tool(controls.optButt, [&main] { main.OpenOptions(); });
    on_tool(controls.ZAButt, [=] { open_and_calculate(Calculation::StateChange); });
    on_tool(controls.MischButt, [=] { open_and_calculate(Calculation::Mixing); });
    on_tool(controls.BearButt, [&main] { main.Panels().OpenTool(Calculation::Capacity); });
    on_tool(controls.AnlageButt, [&main] { main.Panels().AnlageOeffnen(); });
    // A click is a press and a release on the button, or a key: one save for either.
    on_tool(controls.PSButt, [&main] { main.Projects().QuickSave(); });
    on_tool(controls.PLbutt, [&main] { main.Projects().QuickLoad(); });
    main.acts.Add(controls.ZOOMMIN.name, ActKind::Click, [&main] { main.Pointer().ZoomOut(); });
    main.acts.Add(controls.Command3D7.name, ActKind::Release, [&main] { main.ende_qv(); });
    main.acts.Add(controls.Command3D2.name, ActKind::Release,
                  [&main] { main.ExitWithoutSaving(); });
}

void BindMenuActs(MainForm& main) {
    MainControls& controls = main.controls;
    const auto on_menu = [&main](const MenuEntry& entry, const ActTable::Handler& handler) {
        main.acts.Add(entry.name, ActKind::Click, handler);
    };
    const auto opens = [&main](Calculation mode) {
        return [&main, mode] { main.Panels().OpenPointPanel(mode, false); };
    };
    const auto opens_tool = [&main](Calculation mode) {
        return [&main, mode] { main.Panels().OpenTool(mode); };
    };
    on_menu(controls.Ende, [&main] { main.ende_qv(); });
    on_menu(controls.qveinst, [&main] { main.OpenOptions(); });
    on_menu(controls.wrgEinst, [&main] { main.AuswahlOeffnen(); });
    on_menu(controls.KompAusw, [&main] { main.StartSelection(); });
    on_menu(controls.ZustAe, opens(Calculation::StateChange));
    on_menu(controls.Misch, opens(Calculation::Mixing));
    on_menu(controls.Kleis, opens(Calculation::Capacity));
    on_menu(controls.AnlageS, [&main] { main.Panels().AnlageOeffnen(); });
    on_menu(controls.Kuehl_start, opens_tool(Calculation::Cooler));
    on_menu(controls.Heiz_start, opens_tool(Calculation::Heater));
    on_menu(controls.Humid_W_Start, opens_tool(Calculation::WaterHumidifier));
    on_menu(controls.Humid_D_Start, opens_tool(Calculation::SteamHumidifier));
    on_menu(controls.StateList, [&main] { main.ShowStates(); });
    on_menu(controls.kopieren, [&main] { main.CopyChart(); });
    on_menu(controls.Hsich, [&main] { main.Projects().QuickSave(); });
    on_menu(controls.Hlad, [&main] { main.Projects().QuickLoad(); });
}

void BindProjectActs(MainForm& main) {
    MainControls& controls = main.controls;
    const auto on = [&main](const Control& control, ActKind kind,
                            const ActTable::Handler& handler) {
        main.acts.Add(control.name, kind, handler);
    };
    on(controls.NeuPro, ActKind::Click, [&main] { main.Projects().NewProject(); });
    on(controls.ProLad, ActKind::Click, [&main] { main.Projects().LoadProject(); });
    on(controls.ProSpeich, ActKind::Click, [&main] { main.Projects().SaveProject(); });
    on(controls.ProSpeichU, ActKind::Click, [&main] { main.Projects().SaveProjectUnder(); });
    on(controls.PrevState, ActKind::Click, [&main] { main.Projects().RestorePrevious(); });
    for (std::size_t i = 0; i < controls.recent_entries.size(); ++i) {
        on(controls.recent_entries[i], ActKind::Click,
           [&main, i] { main.Projects().OpenRecent(i); });
    }
    for (const TextField* field : {&controls.Proj_T, &controls.Schr_T}) {
        on(*field, ActKind::Change, [&main] { main.Inputs().TakeProjectTexts(); });
    }
    // What was said of the act that is taken back is true no longer.
    on(controls.Undo, ActKind::Click, [&main] {
        main.status.Fade();
        main.Undo().Undo();
    });
    on(controls.Redo, ActKind::Click, [&main] {
        main.status.Fade();
        main.Undo().Redo();
    });
}

void BindPanelActs(MainForm& main) {
    auto& point = main.processes.point;
    auto& plant = main.processes.plant;
    main.acts.Add(point.wrgButt.name, ActKind::Click, [&main] { main.AuswahlOeffnen(); });
    for (const Button* button : {&point.Command3D4, &point.abbcom, &point.Picture3}) {
        main.acts.Add(button->name, ActKind::Click,
                      [&main] { main.Panels().Close(main.processes.point.Anlage1PN); });
    }
    for (const Button* button : {&plant.AnlageAbButt, &plant.AnlageAbButt_l, &plant.Command3D6,
                                 &plant.Command3D6_l, &plant.Picture12}) {
        main.acts.Add(button->name, ActKind::Click,
                      [&main] { main.Panels().Close(main.processes.plant.Frame1); });
    }
}

void BindPrintingActs(MainForm& main) {
    MainControls& controls = main.controls;
    for (const Button* button :
         {&controls.druckbutt.picture, &controls.druckbutt.caption, &controls.mPributt_2}) {
        main.acts.Add(button->name, ActKind::Click, [&main] { main.Print(); });
    }
    main.acts.Add(controls.mPributt.name, ActKind::Release, [&main] { main.Print(); });
    main.acts.Add(controls.PrinterSetup.name, ActKind::Click,
                  [&main] { main.printing.OpenPrinterDialog(); });
    main.acts.Add(controls.PrintPreview.name, ActKind::Click, [&main] { main.ShowPreview(); });
}

void BindHelpActs(MainForm& main) {
    MainControls& controls = main.controls;
    main.acts.Add(controls.HelpHere.name, ActKind::Click,
                  [&main] { main.OpenHelp(TopicInHand(main, {})); });
    for (const auto& [entry, topic] : {std::pair{&controls.HelpSoftware, HelpTopic::Software},
                                       {&controls.HelpChart, HelpTopic::ChartAndReadOut},
                                       {&controls.HelpAirTreatment, HelpTopic::AirTreatment},
                                       {&controls.HelpProject, HelpTopic::ProjectData},
                                       {&controls.HelpValues, HelpTopic::SetOfValues},
                                       {&controls.HelpSettings, HelpTopic::Settings}}) {
        main.acts.Add(entry->name, ActKind::Click,
                      [&main, topic = topic] { main.OpenHelp(topic); });
    }
}

}  // namespace

void BindActs(MainForm& main) {
    main.processes.BindActs(main.acts);
    BindToolActs(main);
    BindMenuActs(main);
    BindPanelActs(main);
    BindProjectActs(main);
    BindPrintingActs(main);
    BindHelpActs(main);
}

}  // namespace zandrell
