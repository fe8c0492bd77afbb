#include <filesystem>
#include <string>
#include <vector>

#include "shell/help_in_hand.h"
#include "shell/main_form.h"

namespace zandrell {
namespace {

// An access key is marked by "&", so that one in a name stands twice.
std::string MenuText(const std::string& text) {
    std::string marked;
    for (const char c : text) marked += c == '&' ? std::string("&&") : std::string(1, c);
    return marked;
}

void ShowRecentProjects(MainControls& controls, const std::vector<std::filesystem::path>& paths) {
    for (std::size_t i = 0; i < controls.recent_entries.size(); ++i) {
        MenuEntry& entry = controls.recent_entries[i];
        entry.visible = entry.enabled = i < paths.size();
        entry.text.clear();
        if (!entry.visible) continue;
        entry.text = "&" + std::to_string(i + 1) + " " + MenuText(paths[i].filename().string()) +
                     "  (" + MenuText(paths[i].parent_path().string()) + ")";
    }
    controls.Recent.enabled = !paths.empty();
}

}  // namespace

void MainForm::BindActs() {
    processes.BindActs(acts);
    BindToolActs();
    BindMenuActs();
    BindPanelActs();
    BindProjectActs();
    BindPrintingActs();
    BindHelpActs();
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
    // A click is a press and a release on the button, or a key: one save for either.
    on_tool(controls.PSButt, [this] { projects_.QuickSave(); });
    on_tool(controls.PLbutt, [this] { projects_.QuickLoad(); });
    acts.Add(controls.ZOOMMIN.name, ActKind::Click, [this] { pointer_.ZoomOut(); });
    acts.Add(controls.Command3D7.name, ActKind::Release, [this] { ende_qv(); });
    acts.Add(controls.Command3D2.name, ActKind::Release, [this] { ExitWithoutSaving(); });
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
    on_menu(controls.KompAusw, [this] { StartSelection(); });
    on_menu(controls.ZustAe, opens(Calculation::StateChange));
    on_menu(controls.Misch, opens(Calculation::Mixing));
    on_menu(controls.Kleis, opens(Calculation::Capacity));
    on_menu(controls.AnlageS, [this] { panels_.AnlageOeffnen(); });
    on_menu(controls.Kuehl_start, opens_tool(Calculation::Cooler));
    on_menu(controls.Heiz_start, opens_tool(Calculation::Heater));
    on_menu(controls.Humid_W_Start, opens_tool(Calculation::WaterHumidifier));
    on_menu(controls.Humid_D_Start, opens_tool(Calculation::SteamHumidifier));
    on_menu(controls.kopieren, [this] { user_.CopyChart(); });
    on_menu(controls.Hsich, [this] { projects_.QuickSave(); });
    on_menu(controls.Hlad, [this] { projects_.QuickLoad(); });
}

void MainForm::BindProjectActs() {
    const auto on = [this](const Control& control, ActKind kind, const ActTable::Handler& handler) {
        acts.Add(control.name, kind, handler);
    };
    on(controls.NeuPro, ActKind::Click, [this] { projects_.NewProject(); });
    on(controls.ProLad, ActKind::Click, [this] { projects_.LoadProject(); });
    on(controls.ProSpeich, ActKind::Click, [this] { projects_.SaveProject(); });
    on(controls.ProSpeichU, ActKind::Click, [this] { projects_.SaveProjectUnder(); });
    on(controls.PrevState, ActKind::Click, [this] { projects_.RestorePrevious(); });
    for (std::size_t i = 0; i < controls.recent_entries.size(); ++i) {
        on(controls.recent_entries[i], ActKind::Click, [this, i] { projects_.OpenRecent(i); });
    }
    for (const TextField* field : {&controls.Proj_T, &controls.Schr_T}) {
        on(*field, ActKind::Change, [this] { inputs_.TakeProjectTexts(); });
    }
    on(controls.Undo, ActKind::Click, [this] { undo_.Undo(); });
    on(controls.Redo, ActKind::Click, [this] { undo_.Redo(); });
}

void MainForm::OpenProject(const std::filesystem::path& path) {
    projects_.OpenProject(path);
    FollowAct({}, ActKind::Click);
}

void MainForm::FollowAct(std::string_view control, ActKind kind) {
    undo_.Note(control, kind);
    controls.Undo.enabled = undo_.CanUndo();
    controls.Redo.enabled = undo_.CanRedo();
    controls.PrevState.enabled = projects_.keeper.HasPrevious();
    modified = projects_.store.IsModified();
    ShowRecentProjects(controls, projects_.store.recent.Paths());
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

void MainForm::BindPrintingActs() {
    for (const Button* button :
         {&controls.druckbutt.picture, &controls.druckbutt.caption, &controls.mPributt_2}) {
        acts.Add(button->name, ActKind::Click, [this] { Print(); });
    }
    acts.Add(controls.mPributt.name, ActKind::Release, [this] { Print(); });
    acts.Add(controls.PrinterSetup.name, ActKind::Click, [this] { printing.OpenPrinterDialog(); });
    acts.Add(controls.PrintPreview.name, ActKind::Click, [this] {
        printing.ShowPreview();
        SetTitle();
    });
}

void MainForm::BindHelpActs() {
    acts.Add(controls.HelpHere.name, ActKind::Click, [this] { OpenHelp(TopicInHand(*this, {})); });
    for (const auto& [entry, topic] : {std::pair{&controls.HelpSoftware, HelpTopic::Software},
                                       {&controls.HelpChart, HelpTopic::ChartAndReadOut},
                                       {&controls.HelpAirTreatment, HelpTopic::AirTreatment},
                                       {&controls.HelpProject, HelpTopic::ProjectData},
                                       {&controls.HelpValues, HelpTopic::SetOfValues},
                                       {&controls.HelpSettings, HelpTopic::Settings}}) {
        acts.Add(entry->name, ActKind::Click, [this, topic = topic] { OpenHelp(topic); });
    }
}

}  // namespace zandrell
