#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "projects/project_dialog.h"
#include "projects/project_store.h"
#include "projects/working_state_keeper.h"

namespace zandrell {

// The commands on working states and projects that the main window offers.
class ProjectDesk {
  public:
    // What the window does when its inputs or its project have changed.
    struct Window {
        // The inputs were replaced: bars, calculation, marks and title follow.
        std::function<void()> inputs_replaced;
        std::function<void()> dialog_closed;
        std::function<void(bool)> busy;    // the pointer shows that the program works
        std::function<void(Caption)> say;  // a word on what has been done
    };
    // `fields` and what `context` refers to outlive the desk, and so does `cooler_duty`, which is
    // what a sibling module learns of the cooler.
    ProjectDesk(const ProjectContext& context, const WorkingStateFields& fields,
                const std::string& cooler_duty, Window window);
    ProjectDesk(const ProjectDesk&) = delete;
    ProjectDesk& operator=(const ProjectDesk&) = delete;

    WorkingStateKeeper keeper;
    ProjectStore store;
    ProjectDialog dialog;

    // The activation of the window takes a hand-over, and at first the working state. Returns
    // whether inputs were replaced; what follows from that is left to the caller here.
    bool Activate();
    // False when the program should stay open, since the inputs could not be saved.
    bool SaveAtEnd() { return keeper.SaveAtEnd(); }

    void QuickSave();
    void QuickLoad();
    void NewProject();
    void LoadProject();
    void SaveProject();
    void SaveProjectUnder();
    // A project that a file manager, a drop or the menu names.
    void OpenProject(const std::filesystem::path& path);
    void OpenRecent(std::size_t place);
    // The inputs of before the last load come back.
    void RestorePrevious();
    // The dialog for any of its requests, as another module of the suite would open it.
    void OpenDialog(int DialogMode);

  private:
    void ShowDialog(int DialogMode);
    bool SaveWorkingState();
    void TakeLoadedProject();
    void TellOfLoad();

    ProjectContext context_;
    Window window_;
    bool started_ = false;
};

}  // namespace zandrell
