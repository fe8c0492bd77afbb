#include "shell/undo_keeper.h"

#include <algorithm>
#include <utility>

#include "forms/choice_list.h"

namespace zandrell {
namespace {

constexpr std::string_view kSettingsFile = "qv_par.dat";
// Names in a snapshot beside those of controls, which have no blank.
constexpr const char *kMode = "the mode", *kPanel = "the panel", *kSettings = "the settings",
                     *kName = "the name", *kProject = "the project", *kFolder = "the folder";
constexpr const char *kPointPanel = "point", *kPlantPanel = "plant", *kOn = "on", *kOff = "off";

const std::string& Value(const InputSnapshot& snapshot, const char* name) {
    static const std::string none;
    const auto found = snapshot.find(name);
    return found == snapshot.end() ? none : found->second;
}

}  // namespace

InputSnapshot UndoKeeper::Inputs() const {
    InputSnapshot snapshot;
    for (const Control* control : window_.form.form.Controls()) {
        if (control->kind == ControlKind::TextField) {
            snapshot[std::string(control->name)] = control->text;
        } else if (control->kind == ControlKind::OptionButton) {
            const bool on = static_cast<const OptionButton*>(control)->on;
            snapshot[std::string(control->name)] = on ? kOn : kOff;
        } else if (control->kind == ControlKind::ComboBox) {
            const int chosen = static_cast<const ComboBox*>(control)->index;
            snapshot[std::string(control->name)] = std::to_string(chosen);
        }
    }
    snapshot[kSettings] = settings_;
    return snapshot;
}

// What belongs to the inputs without being one: it is brought back with them, and its change alone
// is no step.
void UndoKeeper::AddSurroundings(InputSnapshot& snapshot) const {
    snapshot[kMode] = std::to_string(static_cast<int>(window_.processes.Rechenmodus));
    snapshot[kPanel] = OpenPanel();
    snapshot[kName] = window_.shared.ProjectFileName;
    snapshot[kProject] = window_.shared.LastProjectFile;
    snapshot[kFolder] = window_.projects.store.folder_in_hand;
}

std::string UndoKeeper::OpenPanel() const {
    if (window_.processes.point.Anlage1PN.visible) return kPointPanel;
    return window_.processes.plant.Frame1.visible ? kPlantPanel : "";
}

void UndoKeeper::NoteSettings() { settings_ = window_.files.OpenForInput(kSettingsFile).text; }

void UndoKeeper::Begin() {
    begun_ = true;
    NoteSettings();
    inputs_ = Inputs();
    InputSnapshot snapshot = inputs_;
    AddSurroundings(snapshot);
    history_.Reset(std::move(snapshot));
}

void UndoKeeper::Note(std::string_view control, ActKind kind) {
    if (restoring_) return;
    if (!begun_) return Begin();
    std::string gesture;
    if (window_.form.drag != 0) {
        gesture = "drag " + std::to_string(window_.form.drag);
    } else if (kind == ActKind::Change || kind == ActKind::Return) {
        gesture = "typing in " + std::string(control);
    }
    InputSnapshot now = Inputs();
    const bool step = now != inputs_;
    inputs_ = now;
    AddSurroundings(now);
    if (step) {
        history_.Note(std::move(now), gesture);
    } else {
        history_.Settle(std::move(now));
    }
    if (gesture.empty() || kind == ActKind::Return) history_.EndGesture();
}

bool UndoKeeper::CarriesMark() const {
    const auto marks = window_.overlay.Marks();
    return std::any_of(marks.begin(), marks.end(), [this](const Mark* mark) {
        return window_.pointer.Marks().IsCarried(*mark);
    });
}

void UndoKeeper::Undo() {
    if (CanUndo() && !CarriesMark()) Restore(InputSnapshot(history_.Undo()));
}

void UndoKeeper::Redo() {
    if (CanRedo() && !CarriesMark()) Restore(InputSnapshot(history_.Redo()));
}

void UndoKeeper::Restore(const InputSnapshot& snapshot) {
    restoring_ = true;
    // Without a mode the bars run nothing while the fields are written.
    const Calculation mode_before = std::exchange(window_.processes.Rechenmodus, Calculation::None);
    RestoreControls(snapshot);
    RestoreProject(snapshot);
    RestoreSettings(snapshot);
    RestorePanel(snapshot, mode_before);
    window_.inputs.Follow();
    restoring_ = false;
    inputs_ = Inputs();
    InputSnapshot now = inputs_;
    AddSurroundings(now);
    history_.Settle(std::move(now));
}

void UndoKeeper::RestoreControls(const InputSnapshot& snapshot) {
    for (Control* control : window_.form.form.Controls()) {
        const auto found = snapshot.find(std::string(control->name));
        if (found == snapshot.end()) continue;
        if (control->kind == ControlKind::TextField) control->text = found->second;
        if (control->kind == ControlKind::OptionButton) {
            static_cast<OptionButton*>(control)->on = found->second == kOn;
        }
        if (control->kind == ControlKind::ComboBox) {
            static_cast<ComboBox*>(control)->Choose(std::stoi("0" + found->second));
        }
    }
    window_.inputs.TakeProjectTexts();
}

void UndoKeeper::RestoreProject(const InputSnapshot& snapshot) {
    window_.shared.ProjectFileName = Value(snapshot, kName);
    window_.shared.LastProjectFile = Value(snapshot, kProject);
    window_.projects.store.folder_in_hand = Value(snapshot, kFolder);
}

void UndoKeeper::RestoreSettings(const InputSnapshot& snapshot) {
    const std::string& wanted = Value(snapshot, kSettings);
    if (wanted == settings_) return;
    settings_ = wanted;
    window_.files.OpenForOutput(kSettingsFile, settings_);
    window_.settings_changed();
}

void UndoKeeper::RestorePanel(const InputSnapshot& snapshot, Calculation mode_before) {
    const std::string panel = Value(snapshot, kPanel), mode_number = Value(snapshot, kMode);
    const auto mode = static_cast<Calculation>(std::stoi("0" + mode_number));
    if (panel == OpenPanel() && mode == mode_before) {
        window_.processes.Rechenmodus = mode;
        return;
    }
    if (!OpenPanel().empty()) window_.pointer.PanelClosed();
    window_.panels.HideBoth();
    if (panel == kPointPanel) {
        window_.panels.OpenPointPanel(mode, false);
    } else if (panel == kPlantPanel) {
        window_.panels.AnlageOeffnen();
    } else {
        window_.overlay.AnlageMarkenLoeschen();
        window_.processes.Rechenmodus = mode;
    }
}

}  // namespace zandrell
