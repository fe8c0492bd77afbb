#include "shell/main_form.h"

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kOptionsCancelled = 88;
constexpr int kProjectWithPressure = 111;
constexpr int kClosingPause = 50;  // ms
constexpr std::string_view kWorkingStateFile = "QV_ACT.dat";

ProcessContext ContextOf(MainForm& form) {
    return {form.shared,      form.captions, form.solver,   form.chart.settings,
            form.chart.scale, form.overlay,  form.read_out, form.figures};
}

}  // namespace

MainForm::MainForm(UserInterface& user, DataFiles& files, NamedFolder named)
    : WindowForm("start"),
      solver(files),
      chart(files, shared, captions, solver, overlay, read_out),
      point_panel(ContextOf(*this)),
      plant_panel(ContextOf(*this)),
      options(files, shared, captions, solver, user),
      user_(user),
      files_(files),
      named_folder_(std::move(named)) {
    point_panel.Anlage1PN.visible = false;
    plant_panel.Frame1.visible = false;
    ListControls();
    BindActs();
}

void MainForm::ListControls() {
    controls.ListControls(form);
    read_out.ListControls(form);
    chart.controls.ListControls(form);
    point_panel.ListControls(form);
    plant_panel.ListControls(form);
    overlay.ListControls(form);
}

void MainForm::Load() {
    ReadSuiteParameters(named_folder_, files_, shared);
    LoadCaptions(files_, shared.LanguageTag, captions);
    LoadAirCoCaptions(files_, shared.LanguageTag, captions);
    LoadQVCaptions(files_, shared.LanguageTag, captions);
    LoadBranding(files_, shared);
    chart.controls.Label27.text =
        shared.AppTitle + " " + shared.VersionText + " - Created 30/1/2026";
    ApplySkin();
}

void MainForm::Resize(int width, int height) {
    if (width <= 0 || height <= 0) return;
    width_twips_ = width * kTwipsPerPixel;
    height_twips_ = height * kTwipsPerPixel;
    const double tool_column = (width_twips_ + 2600.0) / width_twips_;
    twips_per_unit_x_ = width_twips_ / (chart.BreiteLogisch * tool_column);
    twips_per_unit_y_ = static_cast<double>(height_twips_) / chart.HoeheLogisch;
    if (!point_panel_moved_) PlacePointPanel();
    if (!plant_panel_moved_) PlacePlantPanel();
}

void MainForm::Activate() {
    const auto last_step = [this] { shared.ZurueckVomDialog = 0; };
    if (shared.ZurueckVomDialog != 0 || chart.printing) return last_step();
    const int signal = shared.OptionenSignal;
    shared.OptionenSignal = 0;
    if (signal == kOptionsCancelled) return last_step();
    SetCaptions();
    PanelZustand = kIdle;
    controls.ZOOMMIN.visible = false;
    chart.controls.ZoomShape.visible = false;
    LoadWorkingState();
    chart.BreiteLogisch = 2000;
    chart.HoeheLogisch = 580;
    chart.TakeAspect(width_twips_);
    SetTitle();
    Paint(kPaintWhole);
    point_panel.SchieberAbgleich();
    if (Rechenmodus == kPlant) plant_panel.AnlageBerechnen();
    if (shared.ProjektArt == kProjectWithPressure) AnlageOeffnen();
    last_step();
}

void MainForm::Paint(int modus, double a, double b) {
    chart.DiagrammZeichnen(modus, a, b, solver.ChartDruckBar);
}

void MainForm::PlacePointPanel() {
    auto& panel = point_panel.Anlage1PN;
    const bool mollier = chart.settings.DiagrammArt == kMollier;
    panel.top = mollier ? (height_twips_ - 1.2 * 6400) / twips_per_unit_y_ : 5;
    panel.left = mollier ? (width_twips_ - 1.4 * 6400) / twips_per_unit_x_ : 5;
}

void MainForm::PlacePlantPanel() {
    auto& panel = plant_panel.Frame1;
    const bool mollier = chart.settings.DiagrammArt == kMollier;
    panel.top = mollier ? (height_twips_ - 1.1 * 5500) / twips_per_unit_y_ : 5;
    panel.left = mollier ? (width_twips_ - 1.2 * 11500) / twips_per_unit_x_ : 5;
}

void MainForm::OpenPointPanel(int mode, bool calculate) {
    ReleaseCarriedMarks();
    plant_panel.Frame1.visible = false;
    Rechenmodus = mode;
    MousePointer = kArrowPointer;
    PanelZustand = kPointPanelOpen;
    if (!point_panel_moved_) PlacePointPanel();
    point_panel.ShowForMode(mode);
    if (calculate) point_panel.ZustandRechnen(mode, kMarksFromFields);
}

void MainForm::OpenTool(int mode) {
    if (PanelZustand == kPlantPanelOpen || PanelZustand == kPointPanelOpen) return;
    if (mode == kWaterHumidifier) shared.ZurueckVomDialog = 1;
    OpenPointPanel(mode, true);
    if (mode == kWaterHumidifier) shared.ZurueckVomDialog = 0;
}

void MainForm::AnlageOeffnen() {
    if (PanelZustand == kPointPanelOpen) return;
    ReleaseCarriedMarks();
    PanelZustand = kPlantPanelOpen;
    point_panel.Anlage1PN.visible = false;
    if (!plant_panel_moved_) PlacePlantPanel();
    plant_panel.Frame1.visible = true;
    plant_panel.TakeBarsFromFields();
    // Marks of the two-state tools would stand among those of the plant.
    if (Rechenmodus != kPlant) overlay.AnlageMarkenLoeschen();
    Rechenmodus = kPlant;
    plant_panel.AnlageBerechnen();
}

void MainForm::ClosePanel(Panel& panel) {
    ReleaseCarriedMarks();
    MousePointer = kCrossPointer;
    PanelZustand = kIdle;
    panel.visible = false;
}

void MainForm::OpenOptions() {
    ReleaseCarriedMarks();
    point_panel.Anlage1PN.visible = false;
    plant_panel.Frame1.visible = false;
    overlay.AnlageMarkenLoeschen();
    if (PanelZustand != kZoomed) {
        PanelZustand = kIdle;
        chart.controls.ZoomShape.visible = false;
    }
    options.Open();
    // The options are the one dialog whose closing is meant to redraw, whatever ran before.
    shared.ZurueckVomDialog = 0;
    user_.ShowModal(options);
    Activate();
}

void MainForm::Zoom_min() {
    MousePointer = kBusyPointer;
    Paint(kPaintWhole);
    RepeatProcess();
    MousePointer = kArrowPointer;
    controls.ZOOMMIN.visible = false;
}

void MainForm::RepeatProcess() {
    if (Rechenmodus == kPlant) {
        plant_panel.AnlageBerechnen();
    } else {
        const bool mixed = Rechenmodus == kMixing && overlay.PP3.visible;
        point_panel.MarkenSetzen(Rechenmodus, mixed ? kMarksWithMixture : kMarksFromFields);
    }
}

void MainForm::AuswahlOeffnen() {
    // The figures are noted for a selection dialog; this program has none to open.
    if (Rechenmodus == kCapacity) {
        shared.AuswahlLeistung = ParsedNumber(point_panel.Kleist.text);
        shared.AuswahlLuftstrom = ParsedNumber(point_panel.LuftM1.text);
    }
    if (Rechenmodus == kPlant) {
        const std::string& heater = plant_panel.Heiz2.text;
        shared.AuswahlLeistung =
            ParsedNumber(heater.substr(0, heater.size() < 2 ? 0 : heater.size() - 2));
        shared.AuswahlLuftstrom = ParsedNumber(plant_panel.vhAnlage.text);
    }
}

void MainForm::PanelPress(Panel& panel, CanvasPoint place) {
    dragged_panel_ = &panel;
    drag_offset_ = {place.x - panel.left, place.y - panel.top};
    auto& outline = controls.Shape3;
    outline.left = panel.left;
    outline.top = panel.top;
    outline.width = panel.width;
    outline.height = panel.height;
    outline.visible = true;
    panel.visible = false;
}

void MainForm::PanelMove(CanvasPoint place) {
    if (dragged_panel_ == nullptr) return;
    controls.Shape3.left = place.x - drag_offset_.x;
    controls.Shape3.top = place.y - drag_offset_.y;
}

void MainForm::PanelRelease() {
    if (dragged_panel_ == nullptr) return;
    Panel& panel = *dragged_panel_;
    dragged_panel_ = nullptr;
    // From now on the program leaves the panel where the user has put it.
    (&panel == &plant_panel.Frame1 ? plant_panel_moved_ : point_panel_moved_) = true;
    panel.left = controls.Shape3.left;
    panel.top = controls.Shape3.top;
    controls.Shape3.visible = false;
    panel.visible = true;
}

WorkingStateFields MainForm::WorkingState() {
    auto& plant = plant_panel;
    auto& point = point_panel;
    return {
        {&plant.tKA, &plant.Taus, &plant.TZuluft, &plant.tabLuft, &plant.vhAnlage, &plant.aussenAnt,
         &plant.PHIZuluft, &plant.PHIAbluft, &plant.PhiAussen, &point.LuftM1, &point.LuftM2,
         &point.Temp1, &point.Temp2, &point.relF1, &point.relF2, &plant.dtVent1, &plant.dtVent2},
        &plant.Option3D3,
        &plant.Option3D4,
        &plant.phiKanal};
}

void MainForm::LoadWorkingState() {
    // Once a run: a later activation, after the options, must not throw away what was typed
    // meanwhile.
    if (working_state_loaded_) return;
    working_state_loaded_ = true;
    const FileStatus status = ArbeitsfelderLaden(files_, kWorkingStateFile, WorkingState());
    working_state_unread_ = status == FileStatus::Unreadable || status == FileStatus::Malformed;
}

bool MainForm::SaveWorkingState(bool on_request) {
    // A file that could not be read is replaced only by a user who asks for it.
    if (working_state_unread_ && !on_request) return TellUnsaved("Can not read file:   - ");
    const FileStatus status = ArbeitsfelderSpeichern(files_, kWorkingStateFile, WorkingState());
    if (status != FileStatus::Ok) return TellUnsaved("Can not write file:   - ");
    working_state_unread_ = false;
    return true;
}

bool MainForm::TellUnsaved(const std::string& reason) {
    const std::string path = files_.Resolve(kWorkingStateFile).string();
    user_.ShowMessage({shared.AppTitle, reason + path + " - ", MessageIcon::Stop});
    return false;
}

void MainForm::ende_qv() {
    if (ended) return;
    if (!close_was_held_up_ && !SaveWorkingState(false)) {
        close_was_held_up_ = true;
        return;
    }
    CloseWindow();
}

void MainForm::CloseWindow() {
    user_.WaitMilliseconds(kClosingPause);
    ended = true;
    user_.WaitMilliseconds(kClosingPause);
}

}  // namespace zandrell
