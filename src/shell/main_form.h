#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "chart/chart_engine.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"
#include "help/help_form.h"
#include "printing/chart_printing.h"
#include "processes/process_panels.h"
#include "projects/project_desk.h"
#include "shell/input_keeper.h"
#include "shell/main_controls.h"
#include "shell/options_form.h"
#include "shell/panel_keeper.h"
#include "shell/pointer_machine.h"
#include "shell/start_up.h"
#include "shell/state_table_form.h"
#include "shell/status_line.h"
#include "shell/undo_keeper.h"

namespace zandrell {

class StateSolver;

enum class PointerButton { Left, Right };

// The window `start`: the program without a toolkit. It says who is there and what starts what; the
// work is done by its members.
class MainForm : public WindowForm {
  public:
    // `user` and `files` outlive the form. The data folder of `files` is where kparam.dat is looked
    // for, `named` the folder that the user named for it, if any.
    MainForm(UserInterface& user, DataFiles& files, NamedFolder named);
    ~MainForm() override;

  private:
    std::unique_ptr<StateSolver> own_solver_;

  public:
    SharedValues shared;
    Captions captions;
    StateSolver& solver;
    Overlay overlay;
    ReadOutPanel read_out;
    MainControls controls;
    ChartEngine chart;
    ProcessPanels processes;
    OptionsForm options;
    ChartPrinting printing;
    HelpForm help;
    StateTableForm state_table;
    StatusLine status;
    // Starts the program of the component selection with these arguments; false when there is none.
    std::function<bool(const std::vector<std::string>& arguments)> start_selection;
    bool ended = false;  // the window has closed and the program ends

    // The events of the window. Sizes are device-independent pixels.
    void Load();
    void Resize(int width, int height);
    void Activate();

    // The pointer on the chart, in canvas units.
    void PointerPress(PointerButton button, CanvasPoint place);
    void PointerMove(CanvasPoint place);
    void PointerRelease(PointerButton button);

    const PointerMachine& Pointer() const { return pointer_; }
    PointerMachine& Pointer() { return pointer_; }
    PanelKeeper& Panels() { return panels_; }
    ProjectDesk& Projects() { return projects_; }
    InputKeeper& Inputs() { return inputs_; }
    UndoKeeper& Undo() { return undo_; }
    // A project that a file manager names.
    void OpenProject(const std::filesystem::path& path);

    void OpenOptions();
    // The print setup, and the print-out when it is confirmed.
    void Print();
    void ShowPreview();
    // The picture of the chart goes to the clipboard.
    void CopyChart();
    // The states of the process in force, in a window of their own.
    void ShowStates();
    // Notes duty and air flow of the process for the selection of a component.
    void AuswahlOeffnen();
    // Starts the component selection with the duty and the air flow that were noted last.
    void StartSelection();
    // Shows a topic of the help over whatever window is open.
    void OpenHelp(HelpTopic topic);

    // Saves the working state and ends the program; also when the window is closed by its frame.
    // When the inputs cannot be saved the window stays, so that nothing is lost unseen; a second
    // try closes it.
    void ende_qv();
    // The system ends the program: saves what can be saved, and leaves whatever window is open.
    void EndForSystem();
    // Ends without saving; asks first when inputs would be lost.
    void ExitWithoutSaving();

    const DataFiles& Files() const { return files_; }
    UserInterface& User() { return user_; }

  private:
    void FollowAct(std::string_view control, ActKind kind);
    void FollowStates();
    void SetTitle();
    void TakeTyped();
    bool MayPrint();
    void BringProcessBack(const std::vector<Control*>& drawn, bool unchanged);
    void PaintAgain();
    void CloseWindow();

    UserInterface& user_;
    DataFiles& files_;
    NamedFolder named_folder_;
    PointerMachine pointer_;
    PanelKeeper panels_;
    InputKeeper inputs_;
    ProjectDesk projects_;
    UndoKeeper undo_;
};

}  // namespace zandrell
