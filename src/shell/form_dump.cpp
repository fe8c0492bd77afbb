#include "shell/form_dump.h"

#include <filesystem>
#include <functional>
#include <utility>

#include "kernel/state_solver.h"
#include "shell/control_dump.h"

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

}  // namespace

std::vector<ModalForm*> WindowsOf(MainForm& main) {
    return {&main.options, &main.Projects().dialog, &main.printing.setup, &main.help,
            &main.state_table};
}

Json DumpForm(MainForm& main) {
    Json json = Json::object();
    for (const Control* control : main.form.Controls()) {
        json[std::string(control->name)] = DumpControl(*control);
    }
    for (const auto* values : AllValues()) {
        for (const auto& value : *values) json[std::string(value.name)] = value.value(main);
    }
    DumpOpenWindows(WindowsOf(main), json);
    return json;
}

Json DumpOne(MainForm& main, std::string_view name) {
    if (const Control* control = main.form.Find(name)) return DumpControl(*control);
    for (const auto* values : AllValues()) {
        for (const auto& value : *values) {
            if (value.name == name) return value.value(main);
        }
    }
    return DumpOfWindows(WindowsOf(main), name);
}

}  // namespace zandrell
