#pragma once

#include <string>
#include <string_view>

#include "projects/project_context.h"

namespace zandrell {

// What OK does in the project dialog.
enum class DialogAction {
    LoadProject,
    SaveProject,
    TakeSet,        // the name of a set of values
    DeleteProject,  // after a question
    DeleteSet,      // the same
    TakeLogo,       // the path of a picture
    TakePath,       // the whole path of a picture, for a sibling module
    TakeName        // the file name alone
};

// What the name field holds when the dialog opens.
enum class StartName { Empty, Extension, Project, ShortProject, Set, LastName };

enum class DialogPrompt {
    LoadProject,
    SaveProject,
    LoadSet,
    SaveSet,
    DeleteProject,
    Graphic,
    ClimaCheckSheet,
    TestoSheet,
    Diagnostics,
    Controller
};

// The requests (`DialogMode`) that the dialog understands; most are those of sibling modules.
struct DialogModeRow {
    int mode = 0;
    DialogPrompt prompt = DialogPrompt::LoadProject;
    std::string_view extension;  // of the files that are listed
    bool tagged_only = false;    // lists only files whose header bears the tag of this module
    StartName start = StartName::Empty;
    DialogAction action = DialogAction::TakeName;

    bool Deletes() const {
        return action == DialogAction::DeleteProject || action == DialogAction::DeleteSet;
    }
};

inline constexpr int kLoadProject = 1, kSaveProject = 2, kDeleteProject = 5, kDeleteSet = 6,
                     kChooseLogo = 21, kProjectLoaded = 33;

// Null for a request that the dialog does not know.
const DialogModeRow* FindDialogMode(int mode);

// The words in front of the name field.
std::string PromptOf(const DialogModeRow& row, const ProjectContext& context);
// The same words without the colon.
std::string TitleOf(const DialogModeRow& row, const ProjectContext& context);
std::string StartNameOf(const DialogModeRow& row, const ProjectContext& context);

}  // namespace zandrell
