#include "projects/project_desk.h"

#include <utility>

#include "base/text_encoding.h"
#include "projects/folder_listing.h"
#include "projects/project_kind.h"
#include "projects/project_words.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

// A shorter name is no more than an extension.
constexpr std::size_t kShortestName = 5;

}  // namespace

ProjectDesk::ProjectDesk(const ProjectContext& context, const WorkingStateFields& fields,
                         const std::string& cooler_duty, Window window)
    : keeper(context, fields, cooler_duty),
      store(context, keeper),
      dialog(context, store),
      context_(context),
      window_(std::move(window)) {
    store.after_save = [this] { window_.say(Caption::Saved); };
}

bool ProjectDesk::Activate() {
    if (!started_) store.recent.Read();
    started_ = true;
    return keeper.Activate();
}

bool ProjectDesk::SaveWorkingState() {
    return keeper.ArbeitsfelderSpeichern(kWorkingStateFile, SaveOccasion::OnRequest) ==
           WriteResult::Done;
}

void ProjectDesk::QuickSave() {
    if (SaveWorkingState()) window_.say(Caption::Saved);
}

void ProjectDesk::QuickLoad() {
    if (!keeper.ArbeitsfelderLaden(kWorkingStateFile)) return;
    window_.inputs_replaced();
    window_.say(Caption::Loaded);
}

void ProjectDesk::NewProject() {
    SharedValues& shared = context_.shared;
    window_.busy(true);
    const bool had_inputs = keeper.HoldsInputs();
    if (keeper.Seen().MayRemove(shared.ProjektFeldDatei) && keeper.KeepPresent({})) {
        context_.files.DeleteDataFile(
            shared.ProjektFeldDatei, context_.captions,
            [this](const std::string& text) { Complain(context_, text); });
        if (keeper.ArbeitsfelderLaden(shared.ProjektFeldDatei)) {
            // With the old name the next save would replace the old project.
            shared.ProjectTitle.clear();
            shared.ProjectRemark.clear();
            shared.ProjectFileName.clear();
            shared.LastProjectFile.clear();
            window_.inputs_replaced();
            if (had_inputs) window_.say(Caption::FormerInputsCanComeBack);
        }
    }
    window_.busy(false);
}

void ProjectDesk::ShowDialog(int DialogMode) {
    context_.shared.DialogMode = DialogMode;
    window_.busy(true);
    dialog.Open();
    window_.busy(false);
    context_.user.ShowModal(dialog);
    context_.shared.ZurueckVomDialog = DialogEcho::Expected;
}

void ProjectDesk::TakeLoadedProject() {
    SharedValues& shared = context_.shared;
    if (shared.DialogMode == kProjectLoaded) {
        if (keeper.ArbeitsfelderLaden(kWorkingStateFile)) {
            window_.inputs_replaced();
            store.NoteSaved();
            TellOfLoad();
        }
    }
    shared.DialogMode = 0;
}

// A project that was taken only in part is not called loaded.
void ProjectDesk::TellOfLoad() {
    std::string text = store.load_remark;
    if (text.empty()) return window_.say(Caption::Loaded);
    const std::string& restore = context_.captions[Caption::FormerInputsCanComeBack];
    if (keeper.HasPrevious() && !restore.empty()) text.append("\n").append(restore).append(".");
    Complain(context_, text);
}

void ProjectDesk::LoadProject() {
    ShowDialog(kLoadProject);
    TakeLoadedProject();
    window_.dialog_closed();
}

void ProjectDesk::SaveProject() {
    SharedValues& shared = context_.shared;
    shared.ProjectFileName = shared.LastProjectFile;
    if (!SaveWorkingState()) return;
    if (shared.ProjectFileName.size() >= kShortestName) {
        store.SaveProject(shared.ModuleTag, store.folder_in_hand);
    }
    if (shared.ProjectFileName.size() < kShortestName) SaveProjectUnder();
}

void ProjectDesk::SaveProjectUnder() {
    if (!SaveWorkingState()) return;
    ShowDialog(kSaveProject);
    window_.dialog_closed();
}

void ProjectDesk::OpenProject(const fs::path& path) {
    SharedValues& shared = context_.shared;
    std::error_code error;
    const fs::path whole = fs::absolute(path, error);
    shared.DialogMode = 0;
    if (store.LoadProject(whole.parent_path(), whole.filename().string())) {
        shared.ProjectFolder = WithSeparator(whole.parent_path().string());
    }
    TakeLoadedProject();
}

void ProjectDesk::OpenRecent(std::size_t place) {
    if (place < store.recent.Paths().size()) OpenProject(fs::path(store.recent.Paths()[place]));
}

void ProjectDesk::RestorePrevious() {
    if (!keeper.RestorePrevious()) return;
    window_.inputs_replaced();
    window_.say(Caption::Loaded);
}

void ProjectDesk::OpenDialog(int DialogMode) {
    ShowDialog(DialogMode);
    window_.dialog_closed();
}

}  // namespace zandrell
