#include "shell/form_dump.h"

#include <filesystem>
#include <functional>
#include <utility>

#include "forms/choice_list.h"

namespace zandrell {
namespace {

struct ProgramValue {
    std::string_view name;
    std::function<Json(MainForm&)> value;
};

// Modes and states have names inside the program and numbers in a dump.
template <class Enumeration>
Json Number(Enumeration value) {
    return static_cast<int>(value);
}

Json Carried(const MainForm& main, const Mark& mark) {
    return main.Pointer().Marks().IsCarried(mark) ? 1 : 0;
}

// Of the process: a window that browses folders moves it.
Json CurrentFolder() {
    std::error_code error;
    return std::filesystem::current_path(error).string();
}

const std::vector<ProgramValue>& ModeValues() {
    static const std::vector<ProgramValue> values = {
        {"title", [](MainForm& m) { return Json(m.title); }},
        {"Rechenmodus", [](MainForm& m) { return Number(m.processes.Rechenmodus); }},
        {"PanelZustand", [](MainForm& m) { return Number(m.Pointer().PanelZustand()); }},
        {"MousePointer", [](MainForm& m) { return Number(m.Pointer().MousePointer()); }},
        {"PP1Gefasst", [](MainForm& m) { return Carried(m, m.overlay.PP1); }},
        {"PP2Gefasst", [](MainForm& m) { return Carried(m, m.overlay.PP2); }},
        {"PP5Gefasst", [](MainForm& m) { return Carried(m, m.overlay.PP5); }},
        {"PP6Gefasst", [](MainForm& m) { return Carried(m, m.overlay.PP6); }},
        {"ended", [](MainForm& m) { return Json(m.ended); }},
        {"ZurueckVomDialog", [](MainForm& m) { return Number(m.shared.ZurueckVomDialog); }},
        {"DialogMode", [](MainForm& m) { return Json(m.shared.DialogMode); }},
        {"OptionenSignal", [](MainForm& m) { return Number(m.shared.OptionenSignal); }},
        {"ProjektArt", [](MainForm& m) { return Json(m.shared.ProjektArt); }},
        {"modified", [](MainForm& m) { return Json(m.modified); }},
        {"ProjektFeldDatei", [](MainForm& m) { return Json(m.shared.ProjektFeldDatei); }},
        {"ProjectTitle", [](MainForm& m) { return Json(m.shared.ProjectTitle); }},
        {"ProjectRemark", [](MainForm& m) { return Json(m.shared.ProjectRemark); }},
        {"ProjectFileName", [](MainForm& m) { return Json(m.shared.ProjectFileName); }},
        {"LastProjectFile", [](MainForm& m) { return Json(m.shared.LastProjectFile); }},
        {"VltFileName", [](MainForm& m) { return Json(m.shared.VltFileName); }},
        {"ResultText", [](MainForm& m) { return Json(m.shared.ResultText); }},
        {"CurrentFolder", [](MainForm&) { return CurrentFolder(); }},
        {"DataFolder", [](MainForm& m) { return Json(m.Files().DataFolder().string()); }},
        {"ProjectFolder", [](MainForm& m) { return Json(m.shared.ProjectFolder); }},
        {"LanguageTag", [](MainForm& m) { return Json(m.shared.LanguageTag); }},
        {"CurrencyTag", [](MainForm& m) { return Json(m.shared.CurrencyTag); }},
        {"PrintFontName", [](MainForm& m) { return Json(m.shared.PrintFontName); }},
        {"UserCompany", [](MainForm& m) { return Json(m.shared.UserCompany); }},
        {"HeaderStyle", [](MainForm& m) { return Json(m.shared.HeaderStyle); }},
        {"SkinNumber", [](MainForm& m) { return Json(m.shared.SkinNumber); }},
        {"HelpClosed", [](MainForm& m) { return Json(m.shared.HelpClosed); }},
        {"DateText", [](MainForm& m) { return Json(m.shared.DateText); }},
        {"LogoFile", [](MainForm& m) { return Json(m.shared.LogoFile); }},
        {"DateFormatCode", [](MainForm& m) { return Json(m.shared.DateFormatCode); }},
        {"LabelFontSize", [](MainForm& m) { return Json(m.shared.LabelFontSize); }},
        {"PaperSize", [](MainForm& m) { return Json(m.shared.PaperSize); }},
        {"PaperOrientation", [](MainForm& m) { return Json(m.shared.PaperOrientation); }},
        {"VersionText", [](MainForm& m) { return Json(m.shared.VersionText); }},
        {"AppTitle", [](MainForm& m) { return Json(m.shared.AppTitle); }},
        {"ModuleTag", [](MainForm& m) { return Json(m.shared.ModuleTag); }},
        {"MainsFrequency", [](MainForm& m) { return Json(m.shared.MainsFrequency); }},
        {"AuswahlLeistung", [](MainForm& m) { return Json(m.shared.AuswahlLeistung); }},
        {"AuswahlLuftstrom", [](MainForm& m) { return Json(m.shared.AuswahlLuftstrom); }},
    };
    return values;
}

const std::vector<ProgramValue>& ChartValues() {
    static const std::vector<ProgramValue> values = {
        {"MassstabX", [](MainForm& m) { return Json(m.chart.scale.MassstabX); }},
        {"MassstabT", [](MainForm& m) { return Json(m.chart.scale.MassstabT); }},
        {"NullpunktX", [](MainForm& m) { return Json(m.chart.scale.NullpunktX); }},
        {"NullpunktY", [](MainForm& m) { return Json(m.chart.scale.NullpunktY); }},
        {"VersatzX", [](MainForm& m) { return Json(m.chart.scale.VersatzX); }},
        {"VersatzT", [](MainForm& m) { return Json(m.chart.scale.VersatzT); }},
        {"CarrierFaktor", [](MainForm& m) { return Json(m.chart.scale.CarrierFaktor); }},
        {"spanT", [](MainForm& m) { return Json(m.chart.scale.spanT); }},
        {"spanX", [](MainForm& m) { return Json(m.chart.scale.spanX); }},
        {"BreiteLogisch", [](MainForm& m) { return Json(m.chart.BreiteLogisch); }},
        {"HoeheLogisch", [](MainForm& m) { return Json(m.chart.HoeheLogisch); }},
        {"DiagrammArt", [](MainForm& m) { return Json(m.chart.settings.DiagrammArt); }},
        {"Helligkeit", [](MainForm& m) { return Json(m.chart.settings.Helligkeit); }},
        {"ChartTMin", [](MainForm& m) { return Json(m.chart.settings.ChartTMin); }},
        {"ChartTMax", [](MainForm& m) { return Json(m.chart.settings.ChartTMax); }},
        {"ChartXMin", [](MainForm& m) { return Json(m.chart.settings.ChartXMin); }},
        {"ChartXMax", [](MainForm& m) { return Json(m.chart.settings.ChartXMax); }},
        {"ChartDruckBar", [](MainForm& m) { return Json(m.solver.ChartDruckBar); }},
        {"LetzterDruckBar", [](MainForm& m) { return Json(m.solver.LetzterDruckBar); }},
        {"ZustandX", [](MainForm& m) { return Json(m.solver.ZustandX); }},
        {"ZustandH", [](MainForm& m) { return Json(m.solver.ZustandH); }},
        {"ZustandHLuft", [](MainForm& m) { return Json(m.solver.ZustandHLuft); }},
        {"ZustandPLuft", [](MainForm& m) { return Json(m.solver.ZustandPLuft); }},
        {"ZustandPDampf", [](MainForm& m) { return Json(m.solver.ZustandPDampf); }},
        {"ZustandDichte", [](MainForm& m) { return Json(m.solver.ZustandDichte); }},
        {"ZustandDichteTrocken", [](MainForm& m) { return Json(m.solver.ZustandDichteTrocken); }},
        {"SiedeTempK", [](MainForm& m) { return Json(m.solver.SiedeTempK); }},
    };
    return values;
}

const std::vector<ProgramValue>& ProcessValues() {
    static const std::vector<ProgramValue> values = {
        {"ZustandX1", [](MainForm& m) { return Json(m.processes.point.ZustandX1); }},
        {"ZustandX2", [](MainForm& m) { return Json(m.processes.point.ZustandX2); }},
        {"LuftSchritt1", [](MainForm& m) { return Json(m.processes.point.LuftSchritt1); }},
        {"LuftSchritt2", [](MainForm& m) { return Json(m.processes.point.LuftSchritt2); }},
        {"AnlageZweig", [](MainForm& m) { return Json(m.processes.plant.AnlageZweig); }},
        {"MischTemp", [](MainForm& m) { return Json(m.processes.figures.MischTemp); }},
        {"MischX", [](MainForm& m) { return Json(m.processes.figures.MischX); }},
        {"KuehlLeistText", [](MainForm& m) { return Json(m.processes.figures.KuehlLeistText); }},
        {"GesamtLeist", [](MainForm& m) { return Json(m.processes.figures.GesamtLeist); }},
        {"LatentLeist", [](MainForm& m) { return Json(m.processes.figures.LatentLeist); }},
        {"SensibelLeist", [](MainForm& m) { return Json(m.processes.figures.SensibelLeist); }},
        {"KondensatWasser", [](MainForm& m) { return Json(m.processes.figures.KondensatWasser); }},
        {"BefeuchterLeist", [](MainForm& m) { return Json(m.processes.figures.BefeuchterLeist); }},
        {"HeizLeist", [](MainForm& m) { return Json(m.processes.figures.HeizLeist); }},
        {"RaumWasser", [](MainForm& m) { return Json(m.processes.figures.RaumWasser); }},
    };
    return values;
}

const std::vector<const std::vector<ProgramValue>*>& AllValues() {
    static const std::vector<const std::vector<ProgramValue>*> all = {&ModeValues(), &ChartValues(),
                                                                      &ProcessValues()};
    return all;
}

void AddPlace(const Panel& panel, Json& json) {
    json["left"] = panel.left;
    json["top"] = panel.top;
    json["width"] = panel.width;
    json["height"] = panel.height;
}

void AddScrollBar(const ScrollBar& bar, Json& json) {
    json["value"] = bar.Position();
    json["min"] = bar.LowEnd();
    json["max"] = bar.HighEnd();
}

void AddChoiceList(const ChoiceList& list, Json& json) {
    json["items"] = list.items;
    json["index"] = list.index;
    json["text"] = list.text;
    json["tool_tip"] = list.tool_tip;
}

void AddMark(const Mark& mark, Json& json) {
    json["left"] = mark.left;
    json["top"] = mark.top;
    json["width"] = mark.width;
    json["height"] = mark.height;
    json["shape"] = mark.shape;
    json["colour"] = mark.colour;
}

void AddLine(const ChartLine& line, Json& json) {
    json["x1"] = line.x1;
    json["y1"] = line.y1;
    json["x2"] = line.x2;
    json["y2"] = line.y2;
    json["colour"] = line.colour;
}

void AddChartLabel(const ChartLabel& label, Json& json) {
    json["text"] = label.text;
    json["left"] = label.left;
    json["top"] = label.top;
    json["colour"] = label.colour;
}

std::string WithPlainLineEnds(std::string text) {
    for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", end)) {
        text.erase(end, 1);
    }
    return text;
}

void AddOwn(const Control& control, Json& json) {
    switch (control.kind) {
        case ControlKind::OptionButton:
            json["text"] = control.text;
            json["value"] = static_cast<const OptionButton&>(control).on;
            break;
        case ControlKind::CheckBox:
            json["text"] = control.text;
            json["value"] = static_cast<const CheckBox&>(control).on;
            break;
        case ControlKind::List:
        case ControlKind::ComboBox:
            AddChoiceList(static_cast<const ChoiceList&>(control), json);
            break;
        case ControlKind::Picture:
            json["picture"] = static_cast<const Panel&>(control).picture;
            AddPlace(static_cast<const Panel&>(control), json);
            break;
        case ControlKind::Panel:
            AddPlace(static_cast<const Panel&>(control), json);
            break;
        case ControlKind::ScrollBar:
            AddScrollBar(static_cast<const ScrollBar&>(control), json);
            break;
        case ControlKind::Mark:
            AddMark(static_cast<const Mark&>(control), json);
            break;
        case ControlKind::Line:
            AddLine(static_cast<const ChartLine&>(control), json);
            break;
        case ControlKind::ChartLabel:
            AddChartLabel(static_cast<const ChartLabel&>(control), json);
            break;
        case ControlKind::TextField:
            json["text"] = WithPlainLineEnds(control.text);
            break;
        case ControlKind::Label:
        case ControlKind::Button:
        case ControlKind::MenuEntry:
            json["text"] = control.text;
            break;
    }
}

Json DumpControl(const Control& control) {
    Json json;
    json["kind"] = KindWord(control.kind);
    AddOwn(control, json);
    json["visible"] = control.visible;
    json["enabled"] = control.enabled;
    if (control.foreground) json["foreground"] = *control.foreground;
    if (control.background) json["background"] = *control.background;
    if (!control.tool_tip.empty()) json["tool_tip"] = control.tool_tip;
    if (!control.hint.empty()) json["hint"] = control.hint;
    if (control.checked) json["checked"] = true;
    if (control.stale) json["stale"] = true;
    if (control.pending) json["pending"] = true;
    return json;
}

}  // namespace

std::vector<ModalForm*> WindowsOf(MainForm& main) {
    return {&main.options, &main.Projects().dialog, &main.printing.setup, &main.help};
}

Json DumpForm(MainForm& main) {
    Json json = Json::object();
    for (const Control* control : main.form.Controls()) {
        json[std::string(control->name)] = DumpControl(*control);
    }
    for (const auto* values : AllValues()) {
        for (const auto& value : *values) json[std::string(value.name)] = value.value(main);
    }
    for (ModalForm* window : WindowsOf(main)) {
        if (window->closed) continue;
        json[window->form.Name() + ".title"] = window->title;
        for (const Control* control : window->form.Controls()) {
            json[window->form.Name() + "." + std::string(control->name)] = DumpControl(*control);
        }
    }
    return json;
}

Json DumpOne(MainForm& main, std::string_view name) {
    if (const Control* control = main.form.Find(name)) return DumpControl(*control);
    for (const auto* values : AllValues()) {
        for (const auto& value : *values) {
            if (value.name == name) return value.value(main);
        }
    }
    const auto dot = name.find('.');
    if (dot == std::string_view::npos) return {};
    for (ModalForm* window : WindowsOf(main)) {
        if (window->form.Name() != name.substr(0, dot)) continue;
        if (name.substr(dot + 1) == "title") return window->title;
        if (const Control* control = window->form.Find(name.substr(dot + 1))) {
            return DumpControl(*control);
        }
    }
    return {};
}

}  // namespace zandrell
