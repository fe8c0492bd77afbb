#include "projects/project_store.h"

#include "base/text_encoding.h"
#include "projects/dialog_modes.h"
#include "projects/folder_listing.h"
#include "projects/project_words.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kNoNameText = " filename = 0 !!    ";

}  // namespace

bool ProjectStore::LoadProject(const fs::path& folder, const std::string& name) {
    const fs::path path = context_.files.Resolve((folder / name).string());
    const FileText file = keeper_.Seen().Read(path.string());
    if (file.status == FileStatus::Missing) {
        recent.Remove(path);
        Complain(context_, ProjectVanishedText(context_, path.string()));
        return false;
    }
    if (file.status != FileStatus::Ok) {
        Complain(context_, ReadingFailedText(context_, path.string(), file));
        return false;
    }
    const ProjectFile project = ReadProject(file.text);
    if (Trimmed(project.header.tag).empty()) {
        Complain(context_, WithoutTagText(context_, path.string()));
        return false;
    }
    const std::string working_file = WorkingFileOf(project.header.tag);
    if (!working_file.empty()) {
        const std::string items = ItemsText(project.items);
        const bool own = working_file == kWorkingStateFile;
        if (own && !keeper_.KeepPresent(items)) return false;
        if (keeper_.Seen().Write(working_file, items) != WriteResult::Done) return false;
    }
    load_remark = RemarkOn(project, path);
    SharedValues& shared = context_.shared;
    shared.ProjectTitle = project.header.title;
    shared.ProjectRemark = project.header.remark;
    shared.DialogMode = kProjectLoaded;
    // A name that was typed as a path is the name at its end.
    const std::string given = Trimmed(name);
    shared.ProjectFileName = IsPlainFileName(given) ? given : path.filename().string();
    shared.LastProjectFile = shared.ProjectFileName;
    folder_in_hand = WithSeparator(path.parent_path().string());
    recent.Add(path);
    return true;
}

std::string ProjectStore::RemarkOn(const ProjectFile& project, const fs::path& path) const {
    if (WorkingFileOf(project.header.tag) != kWorkingStateFile) {
        return OtherModuleText(context_, path.string(), Trimmed(project.header.tag));
    }
    const int unreadable = UnreadableItems(project.items);
    return unreadable == 0 ? "" : IncompleteText(context_, path.string(), unreadable);
}

fs::path ProjectStore::TargetOf(const fs::path& folder) const {
    const SharedValues& shared = context_.shared;
    const std::string given = Trimmed(shared.ProjectFileName);
    const std::string name = SavedName(given, shared.ProjectTitle);
    // The very file that was named comes before another spelling of it.
    std::error_code error;
    if (EqualIgnoringCase(given, name) && fs::exists(folder / given, error)) return folder / given;
    return context_.files.Resolve((folder / name).string());
}

WriteResult ProjectStore::SaveProject(std::string_view tag, const fs::path& folder) {
    SharedValues& shared = context_.shared;
    const std::string name = SavedName(shared.ProjectFileName, shared.ProjectTitle);
    if (IsBareExtension(name) || !IsPlainFileName(name)) {
        Complain(context_, IsBareExtension(name) ? std::string(kNoNameText)
                                                 : NameRefusedText(context_, name));
        return WriteResult::Failed;
    }
    FileText working_state;
    if (const std::string file = WorkingFileOf(tag); !file.empty()) {
        working_state = context_.files.OpenForInput(file);
        if (working_state.status == FileStatus::Unreadable ||
            working_state.status == FileStatus::Malformed) {
            Complain(context_, ReadingFailedText(context_, file, working_state));
            return WriteResult::Failed;
        }
    }
    const fs::path path = TargetOf(folder);
    const std::string text = ProjectText(
        {shared.ProjectTitle, shared.ProjectRemark, "", std::string(tag)}, working_state.text);
    const Target target = path == PathInHand() ? Target::Own : Target::Other;
    const WriteResult result = keeper_.Seen().Write(path.string(), text, target);
    if (result != WriteResult::Done) return result;
    shared.LastProjectFile = shared.ProjectFileName = name;
    folder_in_hand = WithSeparator(folder.string());
    recent.Add(path);
    NoteSaved();
    if (after_save) after_save();
    return result;
}

fs::path ProjectStore::PathInHand() const {
    const std::string& name = context_.shared.LastProjectFile;
    if (name.empty()) return {};
    return context_.files.Resolve((fs::path(folder_in_hand) / name).string());
}

std::string ProjectStore::Inputs() const {
    const SharedValues& shared = context_.shared;
    return shared.ProjectTitle + '\0' + shared.ProjectRemark + '\0' + keeper_.PresentText();
}

void ProjectStore::NoteSaved() { saved_inputs_[PathInHand()] = Inputs(); }

bool ProjectStore::IsModified() const {
    if (context_.shared.LastProjectFile.empty()) return false;
    const auto saved = saved_inputs_.find(PathInHand());
    return saved == saved_inputs_.end() || saved->second != Inputs();
}

void ProjectStore::NoteDeleted(const fs::path& path) {
    saved_inputs_.erase(path);
    recent.Remove(path);
}

}  // namespace zandrell
