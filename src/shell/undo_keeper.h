#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/act_table.h"
#include "forms/window_form.h"
#include "projects/input_history.h"
#include "projects/project_desk.h"
#include "shell/input_keeper.h"
#include "shell/panel_keeper.h"

namespace zandrell {

// Undo and redo of all that a user enters in the main window: its fields and options, the
// calculation that is shown, the project in hand, and the settings of the chart. A drag of a bar
// and the typing of one text are one step each.
class UndoKeeper {
  public:
    // All of it outlives the keeper.
    struct Window {
        WindowForm& form;
        DataFiles& files;
        SharedValues& shared;
        ProcessPanels& processes;
        Overlay& overlay;
        PointerMachine& pointer;
        PanelKeeper& panels;
        InputKeeper& inputs;
        ProjectDesk& projects;
        std::function<void()> settings_changed;  // the chart is drawn anew
    };
    explicit UndoKeeper(Window window) : window_(std::move(window)) {}

    // After an act of the user in the main window. The first one is where the history begins.
    void Note(std::string_view control, ActKind kind);
    // The chart's settings may have changed by this program.
    void NoteSettings();

    bool CanUndo() const { return history_.CanUndo(); }
    bool CanRedo() const { return history_.CanRedo(); }
    void Undo();
    void Redo();

  private:
    void Begin();
    InputSnapshot Inputs() const;
    void AddSurroundings(InputSnapshot& snapshot) const;
    void Restore(const InputSnapshot& snapshot);
    void RestoreControls(const InputSnapshot& snapshot);
    void RestoreProject(const InputSnapshot& snapshot);
    void RestoreSettings(const InputSnapshot& snapshot);
    void RestorePanel(const InputSnapshot& snapshot, Calculation mode_before);
    std::string OpenPanel() const;
    bool CarriesMark() const;

    Window window_;
    InputHistory history_;
    std::string settings_;  // the text of their file
    InputSnapshot inputs_;  // at the last step
    bool begun_ = false;
    bool restoring_ = false;
};

}  // namespace zandrell
