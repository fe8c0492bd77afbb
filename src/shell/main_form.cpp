#include "shell/main_form.h"

#include <tuple>
#include <utility>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "kernel/state_solver.h"
#include "projects/project_kind.h"
#include "projects/temperature_lines.h"
#include "shell/form_dump.h"
#include "shell/main_acts.h"
#include "shell/main_captions.h"
#include "shell/offers.h"

namespace zandrell {
namespace {

constexpr int kClosingPause =
    50;  // ms; the suite's modules leave each other time to let go of files

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

MainForm::MainForm(UserInterface& user, DataFiles& files, NamedFolder named)
    : WindowForm("start"),
      own_solver_(std::make_unique<StateSolver>(files)),
      solver(*own_solver_),
      chart(files, shared, captions, solver, overlay, read_out),
      processes({shared, captions, solver, chart.settings, chart.scale, overlay, read_out}),
      options(files, shared, captions, solver, user),
      printing({user, files, shared, captions, chart, overlay, processes, controls.Proj_T,
                controls.Schr_T}),
      help(files, shared, captions, user),
      state_table(files, captions, user),
      user_(user),
      files_(files),
      named_folder_(std::move(named)),
      pointer_(chart, solver, overlay, read_out, processes, controls.ZOOMMIN),
      panels_(shared, chart, overlay, processes, pointer_, controls.Shape3),
      inputs_(shared, processes, controls, [this] { SetTitle(); }),
      projects_({files, shared, captions, user}, inputs_.Fields(), processes.figures.KuehlLeistText,
                {[this] { inputs_.FollowLoad(); },
                 [this] {
                     Activate();
                     FollowAct({}, ActKind::Click);
                 },
                 [this](bool busy) { pointer_.SetBusy(busy); },
                 [this](Caption what) { status.Say(captions[what]); }}),
      undo_({*this, files, shared, processes, overlay, pointer_, panels_, inputs_, projects_,
             [this] { Activate(); }}) {
    printing.may_print = [this] { return MayPrint(); };
    printing.after_printing = [this] { PaintAgain(); };
    printing.setup.choose_logo = [this] { projects_.OpenDialog(shared.DialogMode); };
    controls.ListControls(form);
    read_out.ListControls(form);
    chart.controls.ListControls(form);
    processes.ListControls(form);
    overlay.ListControls(form);
    form.Add({&status.line});
    BindActs(*this);
    chart.additions = [this](Canvas& canvas) {
        if (!KindOf(shared.ProjektArt).temperature_lines) return;
        DrawTemperatureLines(projects_.keeper.Lines(), chart.scale, solver, canvas);
    };
    pointer_.frame_refused = [this] { status.Say(captions[Caption::ClosePanelToDrawFrame]); };
    after_act = [this](std::string_view control, ActKind kind) { FollowAct(control, kind); };
}

MainForm::~MainForm() = default;

void MainForm::Load() {
    const auto missing_folder = ReadSuiteParameters(named_folder_, files_, shared);
    files_.ClearAbandoned();
    LoadCaptions(files_, shared.LanguageTag, captions);
    LoadAirCoCaptions(files_, shared.LanguageTag, captions);
    LoadQVCaptions(files_, shared.LanguageTag, captions);
    LoadBranding(files_, shared);
    // The day on which this version was made, not the day of the build: the line is the same on
    // every machine.
    chart.controls.Label27.text =
        shared.AppTitle + " " + shared.VersionText + " - Created 30/1/2026";
    ApplySkin(*this);
    for (ModalForm* window : WindowsOf(*this)) ApplySkin(shared, *window);
    if (missing_folder) {
        user_.ShowMessage({shared.AppTitle,
                           FilledIn(captions[Caption::DataFolderMissing],
                                    {missing_folder->string(), files_.DataFolder().string()}),
                           MessageIcon::Stop});
    }
}

void MainForm::Resize(int width, int height) {
    if (ended || width <= 0 || height <= 0) return;
    panels_.Resize(width, height);
    if (!chart.FollowWidth(panels_.WidthTwips())) return;
    chart.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, solver.ChartDruckBar);
    processes.Repeat();
}

void MainForm::Activate() {
    if (ended) return;
    const auto last_step = [this] { shared.ZurueckVomDialog = DialogEcho::None; };
    if (shared.ZurueckVomDialog != DialogEcho::None || chart.printing) return last_step();
    const OptionsSignal signal = shared.OptionenSignal;
    shared.OptionenSignal = OptionsSignal::None;
    if (signal == OptionsSignal::Cancelled) return last_step();
    pointer_.Activated();
    if (shared.print_setup_signal == PrintSetupSignal::Closed) {
        shared.print_setup_signal = PrintSetupSignal::None;
        SetCaptions(*this);
        panels_.KeepOpenPanel();
        return last_step();
    }
    const bool inputs_replaced = projects_.Activate();
    SetCaptions(*this);
    chart.TakeAspect(panels_.WidthTwips());
    SetTitle();
    chart.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, solver.ChartDruckBar);
    if (inputs_replaced) {
        inputs_.FollowLoad();
    } else {
        inputs_.AlignBars();
        if (processes.Rechenmodus == Calculation::Plant) processes.plant.AnlageBerechnen();
    }
    if (KindOf(shared.ProjektArt).own_pressure) panels_.AnlageOeffnen();
    last_step();
    FollowAct({}, ActKind::Click);
}

void MainForm::PointerPress(PointerButton button, CanvasPoint place) {
    if (ended) return;
    // The right button acts when it is let go.
    if (button != PointerButton::Left) return;
    pointer_.Press(place);
    FollowAct({}, ActKind::Press);
}

void MainForm::PointerMove(CanvasPoint place) {
    if (ended) return;
    pointer_.Move(place);
    if (!pointer_.Marks().CarriesAny()) return;
    processes.NoteFields();
    FollowStates();
}

void MainForm::PointerRelease(PointerButton button) {
    if (ended) return;
    if (button == PointerButton::Right) {
        OpenOptions();
    } else {
        pointer_.Release();
    }
    FollowAct({}, ActKind::Release);
}

void MainForm::OpenOptions() {
    if (ended) return;
    // A mark that is carried marks nothing that the fields say.
    const auto drawn = pointer_.Marks().CarriesAny() ? std::vector<Control*>() : overlay.Shown();
    panels_.HideBoth();
    pointer_.OptionsOpened();
    overlay.AnlageMarkenLoeschen();
    options.Open();
    // The options are the one dialog whose closing redraws, whatever ran before.
    shared.ZurueckVomDialog = DialogEcho::None;
    user_.ShowModal(options);
    const bool cancelled = shared.OptionenSignal == OptionsSignal::Cancelled;
    Activate();
    if (!drawn.empty()) BringProcessBack(drawn, cancelled);
    undo_.NoteSettings();
}

// Under Exact the process in force stays on the chart, as it stays in the table of states. The
// suite's settings leave the chart empty, but for a plant that they redraw.
void MainForm::BringProcessBack(const std::vector<Control*>& drawn, bool unchanged) {
    if (ended || chart.settings.convention == Convention::Suite) return;
    if (unchanged) {
        for (Control* control : drawn) control->visible = true;
    } else if (IsPointMode(processes.Rechenmodus)) {
        processes.Calculate();
    }
}

void MainForm::Print() {
    if (ended) return;
    printing.Druck_start();
    // A cancelled setup leaves everything as it was, and the window is not activated either.
    if (shared.print_setup_signal == PrintSetupSignal::Closed) Activate();
}

// Behind a print-out: the whole chart, also where a part of it was printed.
void MainForm::PaintAgain() {
    chart.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, solver.ChartDruckBar);
    processes.Calculate();
    SetTitle();
}

// Under Exact what leaves the window is the process of the fields beside it. Under the suite's
// convention it is the one that was computed last.
void MainForm::TakeTyped() {
    if (chart.settings.convention == Convention::Exact) processes.TakeTyped(acts);
}

bool MainForm::MayPrint() {
    TakeTyped();
    const bool exact = chart.settings.convention == Convention::Exact;
    if (!exact || !processes.HasStaleMarks()) return true;
    user_.ShowMessage(
        {shared.AppTitle, captions[Caption::ProcessOfEarlierInputs], MessageIcon::Stop});
    return false;
}

void MainForm::CopyChart() {
    TakeTyped();
    user_.CopyChart();
    status.Say(captions[Caption::Copied]);
}

void MainForm::ShowPreview() {
    if (ended) return;
    printing.ShowPreview();
    SetTitle();
}

void MainForm::ShowStates() {
    if (ended) return;
    pointer_.WindowOpened();
    state_table.ShowStates(ListStates(processes), processes.point.tool_name.text);
    if (state_table.closed) shared.ZurueckVomDialog = DialogEcho::Expected;
}

// A point panel has the figures of a carried mark only when that is dropped.
void MainForm::FollowStates() {
    const bool between = pointer_.Marks().CarriesAny() && IsPointMode(processes.Rechenmodus);
    if (state_table.closed || between) return;
    state_table.Follow(ListStates(processes), processes.point.tool_name.text);
}

void MainForm::OpenHelp(HelpTopic topic) {
    if (ended) return;
    shared.DateText = TopicText(topic, shared, captions);
    help.ShowHelp();
}

void MainForm::AuswahlOeffnen() {
    // The figures are noted for a selection dialog; this program has none to open.
    if (processes.Rechenmodus == Calculation::Capacity) {
        shared.AuswahlLeistung = ParsedNumber(processes.point.Kleist.text);
        shared.AuswahlLuftstrom = ParsedNumber(processes.point.LuftM1.text);
    }
    if (processes.Rechenmodus == Calculation::Plant) {
        const std::string& heater = processes.plant.Heiz2.text;
        shared.AuswahlLeistung =
            ParsedNumber(heater.substr(0, heater.size() < 2 ? 0 : heater.size() - 2));
        shared.AuswahlLuftstrom = ParsedNumber(processes.plant.vhAnlage.text);
    }
}

void MainForm::OpenProject(const std::filesystem::path& path) {
    if (ended) return;
    projects_.OpenProject(path);
    FollowAct({}, ActKind::Click);
}

void MainForm::FollowAct(std::string_view control, ActKind kind) {
    undo_.Note(control, kind);
    processes.NoteFields();
    ShowOffers(controls, processes, panels_, captions);
    PlantPanel& plant = processes.plant;
    for (const auto& [raised, word, field] :
         {std::tuple{&plant.supply_raised, Caption::SupplyHumidityRaised, &plant.PHIZuluft},
          {&plant.exhaust_raised, Caption::ExtractHumidityRaised, &plant.PHIAbluft}}) {
        if (!std::exchange(*raised, false)) continue;
        status.Say(FilledIn(captions[word], {Trimmed(field->text)}));
    }
    status.EndAct();
    controls.Undo.enabled = undo_.CanUndo();
    controls.Redo.enabled = undo_.CanRedo();
    controls.PrevState.enabled = projects_.keeper.HasPrevious();
    modified = projects_.store.IsModified();
    ShowRecentProjects(controls, projects_.store.recent.Paths());
    FollowStates();
}

// With what was noted last; where nothing was, the selection has its own duty.
void MainForm::StartSelection() {
    std::vector<std::string> arguments = {"--data", files_.DataFolder().string()};
    const auto add = [&](const char* option, double value) {
        if (value > 0) arguments.insert(arguments.end(), {option, TrimmedNumberText(value)});
    };
    add("--duty", shared.AuswahlLeistung);
    add("--flow", shared.AuswahlLuftstrom);
    if (start_selection && start_selection(arguments)) return;
    user_.ShowMessage({shared.AppTitle,
                       FilledIn(captions[Caption::CatalogueUnreadable], {"zandrell-selection"}),
                       MessageIcon::Stop});
}

void MainForm::SetTitle() {
    const std::string base = shared.AppTitle + " " + shared.VersionText + " : " +
                             captions[Caption::ModuleName] + " " + captions[Caption::Project];
    title = base + " " + shared.ProjectTitle + " " + shared.HandOverTitle;
    processes.point.Label15.text = processes.plant.Label16.text = base;
}

void MainForm::ende_qv() {
    if (ended) return;
    if (projects_.SaveAtEnd()) CloseWindow();
}

void MainForm::EndForSystem() {
    if (ended) return;
    projects_.SaveAtEnd();
    CloseWindow();
}

void MainForm::ExitWithoutSaving() {
    const Message question{shared.AppTitle, captions[Caption::UnsavedInputsQuestion],
                           MessageIcon::Question};
    if (ended) return;
    if (projects_.keeper.IsSaved() || user_.Confirm(question)) CloseWindow();
}

// From here on nothing is taken any more: events still come while the pauses run.
void MainForm::CloseWindow() {
    ended = inert = true;
    for (ModalForm* window : WindowsOf(*this)) window->closed = window->inert = true;
    user_.WaitMilliseconds(2 * kClosingPause);
}

}  // namespace zandrell
