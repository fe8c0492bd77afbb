#pragma once

#include <QObject>
#include <deque>
#include <string>

#include "desktop/selection_window.h"
#include "shell/form_script.h"
#include "shell/selection_stage.h"

namespace zandrell {

// Performs the acts of a script in the selection program, one in each turn of the event loop.
// Beside the acts of the verb `selection` there are `duty NAME VALUE`, which types into a field of
// the duty and confirms it or chooses in a list, `click Planner.NAME`, `check Planner.HideUnfit`,
// and `shot FILE`, which keeps the window as it stands as a PNG. A script ends the program.
class SelectionScript {
  public:
    // All of it outlives the script.
    SelectionScript(SelectionDesk& desk, PlannerForm& planner, SelectionWindow& window,
                    QtUser& user);

    // False when the file can not be read.
    bool Start(const std::string& path);
    bool Failed() const { return failed_; }

  private:
    void Schedule();
    void RunNextLine();
    bool RunLine(const std::string& text, std::string& error);
    bool RunPlannerAct(const ScriptLine& line, std::string& error);
    bool TakeShot(const std::string& path, std::string& error);

    PlannerForm& planner_;
    SelectionWindow& window_;
    SelectionStage stage_;
    FormScript script_;
    QObject context_;  // calls that are still to come die with it
    std::deque<std::string> lines_;
    bool failed_ = false;
};

}  // namespace zandrell
