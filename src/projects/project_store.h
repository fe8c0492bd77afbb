#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "projects/project_context.h"
#include "projects/project_file.h"
#include "projects/recent_projects.h"
#include "projects/working_state_keeper.h"

namespace zandrell {

// The project files: what is loaded from and saved to them, which of them is in hand, and whether
// the inputs differ from it.
class ProjectStore {
  public:
    ProjectStore(const ProjectContext& context, WorkingStateKeeper& keeper)
        : recent(context.files), context_(context), keeper_(keeper) {}

    RecentProjects recent;
    std::function<void()> after_save;  // runs when a project was written

    // Takes title and remark, and puts the project's working state in the place of that of its tag;
    // a tag of no known module drops it. `DialogMode` is 33 afterwards: who has opened the dialog
    // loads the working state. False when the file has vanished, can not be read or bears no tag:
    // then nothing has changed, and the user has been told.
    bool LoadProject(const std::filesystem::path& folder, const std::string& name);

    // What there is to say of the project that was loaded last beyond that; empty: nothing.
    std::string load_remark;

    // Saves the working-state file of the tag under `ProjectFileName`, to which the name rules are
    // applied. A file of that name in another spelling is that project. Asks before it replaces
    // another project than the one in hand.
    WriteResult SaveProject(std::string_view tag, const std::filesystem::path& folder);

    // Of the project in hand; empty: none.
    std::filesystem::path PathInHand() const;
    // The folder that the project in hand came from.
    std::string folder_in_hand;

    // The inputs as they stand are those of the project in hand.
    void NoteSaved();
    // Whether there is a project in hand and the inputs differ from it.
    bool IsModified() const;
    // A deleted file: what it held is nowhere else.
    void NoteDeleted(const std::filesystem::path& path);

  private:
    std::string RemarkOn(const ProjectFile& project, const std::filesystem::path& path) const;
    std::filesystem::path TargetOf(const std::filesystem::path& folder) const;
    std::string Inputs() const;

    ProjectContext context_;
    WorkingStateKeeper& keeper_;
    std::map<std::filesystem::path, std::string> saved_inputs_;
};

}  // namespace zandrell
