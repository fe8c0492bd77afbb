#include "projects/project_dialog.h"

#include <algorithm>

#include "base/text_encoding.h"
#include "projects/folder_listing.h"
#include "projects/project_file.h"
#include "projects/project_preview.h"
#include "projects/project_words.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

constexpr int kRed = 12;
constexpr std::string_view kNoNameText = " filename = 0 !!    ";

fs::path CurrentFolder() {
    std::error_code error;
    return fs::current_path(error);
}

// The tags of two sibling modules whose old project files bear none.
bool TakesUntagged(std::string_view tag) {
    return EqualIgnoringCase(tag, "BV") || EqualIgnoringCase(tag, "TV");
}

std::string OrEnglish(const std::string& word, std::string_view english) {
    return word.empty() ? std::string(english) : word;
}

bool Contains(const std::string& text, const std::string& part) {
    return UpperCase(text).find(UpperCase(part)) != std::string::npos;
}

}  // namespace

ProjectDialog::ProjectDialog(const ProjectContext& context, ProjectStore& store)
    : ModalForm("ProjLaden"), context_(context), store_(store) {
    cancel_control = Command3D2.name;
    default_control = Command3D1.name;
    File1.visible = false;
    Picture2.visible = Ok_butt.visible = a_butt.visible = false;
    Dir1.takes_any_text = true;
    ListControls();
    BindActs();
}

void ProjectDialog::ListControls() {
    form.Add({&Label1, &ProNam, &List1, &File1, &Dir1, &Drive1, &Text1, &Command1, &Picture2});
    form.Add({&Ok_butt, &a_butt, &Command3D1, &Command3D1_l, &Command3D2, &Command3D2_l});
    form.Add({&filter_label, &filter, &sort_label, &order, &preview_words, &preview_figures});
}

void ProjectDialog::BindActs() {
    acts.Add(List1.name, ActKind::Select, [this] { ShowChosen(); });
    for (const auto& [name, kind] : {std::pair{List1.name, ActKind::DoubleClick},
                                     {List1.name, ActKind::Return},
                                     {ProNam.name, ActKind::Return},
                                     {Command3D1.name, ActKind::Click},
                                     {Command3D1_l.name, ActKind::Click}}) {
        acts.Add(name, kind, [this] { Accept(); });
    }
    acts.Add(Dir1.name, ActKind::Select, [this] { ChangeFolder(Dir1.text); });
    acts.Add(Drive1.name, ActKind::Select, [this] { ChangeFolder(Drive1.text); });
    acts.Add(Text1.name, ActKind::Return, [this] { EnterTypedFolder(); });
    acts.Add(Command1.name, ActKind::Click,
             [this] { Picture2.visible = Ok_butt.visible = a_butt.visible = true; });
    acts.Add(Ok_butt.name, ActKind::Click, [this] { New_Folder(); });
    acts.Add(a_butt.name, ActKind::Click,
             [this] { Picture2.visible = Ok_butt.visible = a_butt.visible = false; });
    acts.Add(filter.name, ActKind::Change, [this] { ShowList(); });
    acts.Add(filter.name, ActKind::Return, [this] { ShowList(); });
    acts.Add(order.name, ActKind::Select, [this] { ListProjects(); });
    for (const auto* button : {&Command3D2, &Command3D2_l}) {
        acts.Add(button->name, ActKind::Click, [this] {
            context_.shared.ProjectFileName = Trimmed(ProNam.text);
            context_.shared.DialogMode = 0;
            Leave();
        });
    }
}

void ProjectDialog::SetCaptions() {
    const Captions& words = context_.captions;
    Command3D1_l.text = "O.K.";
    Command3D2_l.text = words[Caption::Cancel];
    Command1.text = "New Folder";
    Ok_butt.text = "O.K.";
    a_butt.text = words[Caption::Cancel];
    filter_label.text = OrEnglish(words[Caption::Filter], "Filter") + std::string(ColonSuffix);
    sort_label.text = OrEnglish(words[Caption::Sort], "Sort") + std::string(ColonSuffix);
    const int chosen = std::max(order.index, 0);
    order.Fill({OrEnglish(words[Caption::FileName], "File Name"),
                OrEnglish(words[Caption::Date], "Date")});
    order.Choose(chosen);
    if (mode_ == nullptr) return;
    Label1.text = PromptOf(*mode_, context_);
    title = TitleOf(*mode_, context_);
    ProNam.text = StartNameOf(*mode_, context_);
    List1.foreground.reset();
    if (mode_->Deletes()) List1.foreground = kRed;
}

void ProjectDialog::Open() {
    closed = false;
    mode_ = FindDialogMode(context_.shared.DialogMode);
    start_folder_ = CurrentFolder();
    browse_folder_ = WithoutSeparator(start_folder_.string());
    Picture2.visible = Ok_butt.visible = a_butt.visible = false;
    filter.text.clear();
    SetCaptions();
    Drive1.Fill(MountedRoots());
    Drive1.Choose(0);
    List1.Fill({});
    ChangeFolder(browse_folder_);
    ChangeFolder(WithoutSeparator(context_.shared.ProjectFolder));
}

void ProjectDialog::ChangeFolder(const std::string& folder) {
    std::error_code error;
    const fs::path path = fs::absolute(WithoutSeparator(folder), error).lexically_normal();
    if (!error && fs::is_directory(path, error)) {
        browse_folder_ = WithoutSeparator(path.string());
        fs::current_path(path, error);
    }
    Dir1.Fill(FolderTree(browse_folder_));
    Dir1.Choose(browse_folder_);
    Text1.text = browse_folder_;
    ListProjects();
}

void ProjectDialog::ListProjects() {
    const bool latest_first = order.index == 1;
    File1.Fill(mode_ == nullptr
                   ? std::vector<std::string>()
                   : FilesIn(browse_folder_, mode_->extension,
                             latest_first ? ListingOrder::LatestFirst : ListingOrder::Name));
    if (mode_ != nullptr && mode_->tagged_only) {
        const std::string& tag = context_.shared.ModuleTag;
        std::erase_if(File1.items, [&](const std::string& name) {
            const FileText file = context_.files.OpenForInput(PathOf(name).string());
            const std::string listed = ReadProjectHeader(file.text).tag;
            const bool untagged = Trimmed(listed).empty() && TakesUntagged(tag);
            return listed != tag && !untagged;
        });
    }
    ShowList();
}

void ProjectDialog::ShowList() {
    std::vector<std::string> shown;
    const std::string wanted = Trimmed(filter.text), chosen = List1.text;
    std::copy_if(File1.items.begin(), File1.items.end(), std::back_inserter(shown),
                 [&](const std::string& name) { return Contains(name, wanted); });
    List1.Fill(std::move(shown));
    if (chosen.empty() || !List1.Choose(chosen)) ClearChosen();
}

void ProjectDialog::ClearChosen() {
    List1.tool_tip.clear();
    preview_words.text.clear();
    preview_figures.text.clear();
}

void ProjectDialog::ShowChosen() {
    ProNam.text = List1.text;
    ClearChosen();
    const bool project = mode_ != nullptr && mode_->action != DialogAction::DeleteSet &&
                         (mode_->extension == ".prj" || mode_->extension == ".zdd");
    if (!project) return;
    const fs::path path = PathOf(List1.text);
    const ProjectFile file = ReadProject(context_.files.OpenForInput(path.string()).text);
    List1.tool_tip = List1.text + ": " + context_.captions[Caption::Project] + " " +
                     file.header.title + ", " + file.header.remark;
    const ProjectPreview preview = PreviewOf(path, file, context_);
    preview_words.text = preview.words;
    preview_figures.text = preview.figures;
}

fs::path ProjectDialog::PathOf(const std::string& name) const {
    return fs::path(browse_folder_) / name;
}

void ProjectDialog::New_Folder() {
    const std::string typed = Trimmed(Text1.text);
    if (!typed.empty() && typed != browse_folder_) {
        std::error_code error;
        const fs::path path = fs::path(browse_folder_) / WithoutSeparator(typed);
        const bool made = fs::create_directory(path, error);
        if (!made && error) {
            Complain(context_, SavingFailedText(context_, path.string(), error.message()));
        }
        Dir1.Fill(FolderTree(browse_folder_));
        Dir1.Choose(browse_folder_);
    }
    Picture2.visible = Ok_butt.visible = a_butt.visible = false;
}

void ProjectDialog::EnterTypedFolder() {
    if (Picture2.visible) {
        New_Folder();
    } else {
        ChangeFolder(Trimmed(Text1.text));
    }
}

bool ProjectDialog::GivesName() const {
    return mode_ != nullptr && mode_->action == DialogAction::SaveProject;
}

// Nothing was chosen yet: there is only the extension, or not even that.
bool ProjectDialog::NamesNothing(const std::string& name) const {
    return name.empty() || EqualIgnoringCase(name, mode_->extension);
}

void ProjectDialog::Accept() {
    if (mode_ == nullptr) return;
    SharedValues& shared = context_.shared;
    const std::string name = Trimmed(ProNam.text);
    if (!GivesName() && NamesNothing(name)) return Complain(context_, std::string(kNoNameText));
    switch (mode_->action) {
        case DialogAction::LoadProject:
            return LoadProject();
        case DialogAction::SaveProject:
            return SaveProject();
        case DialogAction::DeleteProject:
        case DialogAction::DeleteSet:
            return Delete();
        case DialogAction::TakeSet:
            shared.VltFileName = name;
            break;
        case DialogAction::TakeLogo:
            shared.LogoFile = PathOf(name).string();
            break;
        case DialogAction::TakePath:
            shared.ResultText = PathOf(name).string();
            break;
        case DialogAction::TakeName:
            shared.ProjectFileName = name;
            break;
    }
    Leave();
}

void ProjectDialog::LoadProject() {
    SharedValues& shared = context_.shared;
    const std::string name = Trimmed(ProNam.text);
    shared.ProjectFileName = name;
    shared.DialogMode = 0;
    shared.ProjectFolder = WithSeparator(browse_folder_);
    Leave();
    store_.LoadProject(browse_folder_, name);
}

void ProjectDialog::SaveProject() {
    SharedValues& shared = context_.shared;
    const std::string typed = Trimmed(ProNam.text);
    if (!typed.empty() && !IsPlainFileName(typed)) {
        return Complain(context_, NameRefusedText(context_, typed));
    }
    // The rule by which a project is saved cuts the last four characters of a name without its
    // extension; the name is completed here, so that this costs no letters.
    shared.ProjectFileName = CompletedName(typed, shared.ProjectTitle, mode_->extension);
    if (store_.SaveProject(shared.ModuleTag, browse_folder_) != WriteResult::Done) return;
    shared.ProjectFolder = WithSeparator(browse_folder_);
    shared.DialogMode = 0;
    Leave();
}

void ProjectDialog::Delete() {
    const Captions& words = context_.captions;
    const bool whole_project = mode_->action == DialogAction::DeleteProject;
    const std::string name = Trimmed(ProNam.text);
    const std::string what = words[whole_project ? Caption::Project : Caption::SetOfValues];
    if (Ask(context_, "     " + what + " ''" + name + "'' " + words[Caption::Delete] + " ?!")) {
        // A set stands in the data folder, to which a bare name belongs.
        const std::string path = whole_project ? PathOf(name).string() : name;
        context_.files.DeleteDataFile(
            path, context_.captions, [this](const std::string& text) { Complain(context_, text); });
        if (whole_project) store_.NoteDeleted(context_.files.Resolve(path));
    }
    Leave();
}

void ProjectDialog::Leave() {
    std::error_code error;
    fs::current_path(start_folder_, error);
    closed = true;
}

}  // namespace zandrell
