#pragma once

#include <string>

#include "desktop/selection_window.h"
#include "desktop/window_script.h"
#include "shell/selection_stage.h"

namespace zandrell {

// Beside the acts of the verb `selection` there are `duty NAME VALUE`, which types into a field of
// the duty and confirms it or chooses in a list, `click Planner.NAME`, `check Planner.HideUnfit`,
// and `shot FILE`, which keeps the window as it stands as a PNG. A script ends the program.
class SelectionScript : public WindowScript {
  public:
    // All of it outlives the script.
    SelectionScript(SelectionStage& stage, PlannerForm& planner, SelectionWindow& window,
                    QtUser& user);

  private:
    bool RunLine(const std::string& text, std::string& error) override;
    void RefreshWindows() override;
    bool IsBusy() const override { return window_.IsFilling(); }
    bool EndsProgram() const override { return true; }
    bool RunPlannerAct(const ScriptLine& line, std::string& error);
    bool TakeShot(const std::string& path, std::string& error);

    PlannerForm& planner_;
    SelectionWindow& window_;
};

}  // namespace zandrell
