#pragma once

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "chart/chart_engine.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"
#include "kernel/state_solver.h"
#include "processes/plant_panel.h"
#include "processes/point_panel.h"
#include "projects/working_state.h"
#include "shell/main_controls.h"
#include "shell/options_form.h"
#include "shell/start_up.h"

namespace zandrell {

enum class PointerButton { Left, Right };

// Shapes of the mouse pointer.
inline constexpr int kArrowPointer = 1, kCrossPointer = 2, kMovePointer = 5, kBusyPointer = 11;

// Who owns the pointer on the chart.
inline constexpr int kIdle = 0, kFrameDrawing = 1, kFrameDrawn = 2, kInsideFrame = 4,
                     kOutsideFrame = 5, kPlantPanelOpen = 33, kPointPanelOpen = 44, kZoomed = 77;

// The window `start`: the program without a toolkit. It composes everything else.
class MainForm : public WindowForm {
  public:
    // `user` and `files` outlive the form. The data folder of `files` is where kparam.dat is looked
    // for, `named` the folder that the user named for it, if any.
    MainForm(UserInterface& user, DataFiles& files, NamedFolder named);

    SharedValues shared;
    Captions captions;
    StateSolver solver;
    Overlay overlay;
    ReadOutPanel read_out;
    MainControls controls;
    ChartEngine chart;
    ProcessFigures figures;
    PointPanel point_panel;
    PlantPanel plant_panel;
    OptionsForm options;

    int Rechenmodus = 0;
    int PanelZustand = kIdle;
    int MousePointer = kArrowPointer;
    int PP1Gefasst = 0, PP2Gefasst = 0, PP5Gefasst = 0, PP6Gefasst = 0;
    bool ended = false;  // the window has closed and the program ends

    // The events of the window. Sizes are device-independent pixels.
    void Load();
    void Resize(int width, int height);
    void Activate();

    // The pointer on the chart, in canvas units.
    void PointerPress(PointerButton button, CanvasPoint place);
    void PointerMove(CanvasPoint place);
    void PointerRelease(PointerButton button, CanvasPoint place);

    // A floating panel is dragged by its ground: only its outline follows the pointer.
    void PanelPress(Panel& panel, CanvasPoint place);
    void PanelMove(CanvasPoint place);
    void PanelRelease();

    // Saves the working state and ends the program; also when the window is closed by its frame.
    // When the inputs cannot be saved the window stays, so that nothing is lost unseen; a second
    // try closes it.
    void ende_qv();
    // Closes without saving.
    void CloseWindow();

    const DataFiles& Files() const { return files_; }

  private:
    void ListControls();
    void BindActs();
    void BindToolActs();
    void BindMenuActs();
    void BindPointPanelActs();
    void BindPlantPanelActs();

    void SetCaptions();
    void ApplySkin();
    void SetTitle();
    void PlacePointPanel();
    void PlacePlantPanel();

    void OpenPointPanel(int mode, bool calculate);
    void OpenTool(int mode);
    void AnlageOeffnen();
    void ClosePanel(Panel& panel);
    void OpenOptions();
    void Zoom_min();
    void AuswahlOeffnen();
    void RepeatProcess();
    void Paint(int modus, double a = 0, double b = 0);

    WorkingStateFields WorkingState();
    void LoadWorkingState();
    bool SaveWorkingState(bool on_request);
    bool TellUnsaved(const std::string& reason);

    void ReadOut(CanvasPoint place);
    bool DropFirstCarriedMark(CanvasPoint place);
    void DropMark(Mark& mark, int& carried, CanvasPoint place);
    void ReleaseCarriedMarks();
    void TakeDroppedState(const Mark& mark);
    void TakePointState(TextField& temperature, TextField& humidity);
    void TakePlantState(TextField& temperature, TextField& humidity);
    void PickUpMarks(CanvasPoint place);
    void MoveCarriedMarks(CanvasPoint place);
    void ZoomIntoFrame();
    void DropFrame();
    void StartFrame(CanvasPoint place);
    void FollowFrame(CanvasPoint place);

    UserInterface& user_;
    DataFiles& files_;
    NamedFolder named_folder_;
    int width_twips_ = 0, height_twips_ = 0;
    double twips_per_unit_x_ = 1, twips_per_unit_y_ = 1;
    bool point_panel_moved_ = false, plant_panel_moved_ = false;
    Panel* dragged_panel_ = nullptr;
    CanvasPoint drag_offset_;
    bool working_state_loaded_ = false;
    bool close_was_held_up_ = false;  // the inputs were not saved, and the user knows
    // A file is there that could not be read: not to be replaced unasked.
    bool working_state_unread_ = false;
};

}  // namespace zandrell
