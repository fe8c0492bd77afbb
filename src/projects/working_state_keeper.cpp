#include "projects/working_state_keeper.h"

#include <algorithm>

#include "base/delimited_text.h"
#include "projects/project_kind.h"
#include "projects/project_words.h"

namespace zandrell {
namespace {

std::vector<std::string> ItemsOf(std::string_view text) {
    DelimitedReader reader(text);
    std::vector<std::string> items;
    for (std::string item; reader.ReadText(item);) items.push_back(item);
    return items;
}

bool IsReadable(FileStatus status) {
    return status == FileStatus::Ok || status == FileStatus::Missing;
}

}  // namespace

bool WorkingStateKeeper::Activate() {
    const FileText file = context_.files.OpenForInput(kHandOverFile);
    HandOver hand_over = ReadHandOver(file.text);
    // Where the file resists its reset, the same hand-over would come back at each activation.
    if (hand_over.waiting && file.text == hand_over_taken_) hand_over.waiting = false;
    if (hand_over.waiting) hand_over_taken_ = file.text;
    if (IsReadable(file.status) && file.text != EmptyHandOver() &&
        context_.files.OpenForOutput(kHandOverFile, EmptyHandOver()) == FileStatus::Ok) {
        hand_over_taken_.clear();
    }
    if (started_ && !hand_over.waiting) return false;
    Take(hand_over);
    const bool keeps_state = KindOf(context_.shared.ProjektArt).keeps_state;
    if (keeps_state) LoadForKind(!started_);
    started_ = true;
    return keeps_state;
}

void WorkingStateKeeper::Take(const HandOver& hand_over) {
    SharedValues& shared = context_.shared;
    shared.ProjektArt = hand_over.kind;
    const ProjectKind kind = KindOf(hand_over.kind);
    if (!kind.takes_items) return;
    shared.ProjektFeldDatei = kind.loads_own_file ? hand_over.file : std::string(kWorkingStateFile);
    shared.project_pressure_bar = hand_over.pressure_bar;
    if (!hand_over.waiting) return;
    lines_ = hand_over.lines;
    shared.ProjectTitle = hand_over.title;
    shared.ProjectRemark = hand_over.remark;
    shared.ProjectText = hand_over.project_text;
    shared.HandOverTitle = hand_over.window_title;
    // What is handed over is not the project in hand: a save must not replace that one with it.
    shared.ProjectFileName.clear();
    shared.LastProjectFile.clear();
    if (!hand_over.cooler_word.empty()) {
        context_.captions[Caption::Cooler] = hand_over.cooler_word;
    }
}

void WorkingStateKeeper::LoadForKind(bool first) {
    const std::string& name = context_.shared.ProjektFeldDatei;
    const FileText file = seen_.Read(name);
    if (!IsReadable(file.status)) {
        unread_.insert(name);
        ComplainUnread(name, file);
        return;
    }
    if (!first) KeepPresent(file.text);
    unread_.erase(name);
    SetWorkingState(file.text, fields_);
}

bool WorkingStateKeeper::ArbeitsfelderLaden(std::string_view name) {
    const FileText file = seen_.Read(name);
    if (!IsReadable(file.status)) {
        unread_.insert(std::string(name));
        return ComplainUnread(name, file);
    }
    if (!KeepPresent(file.text)) return false;
    unread_.erase(std::string(name));
    SetWorkingState(file.text, fields_);
    return true;
}

WriteResult WorkingStateKeeper::ArbeitsfelderSpeichern(std::string_view name,
                                                       SaveOccasion occasion) {
    if (occasion == SaveOccasion::AtEnd && unread_.contains(name)) {
        const FileText file = context_.files.OpenForInput(name);
        if (!IsReadable(file.status)) {
            ComplainUnread(name, file);
            return WriteResult::Failed;
        }
    }
    if (occasion == SaveOccasion::OnRequest && !KeepUnread(name)) return WriteResult::Failed;
    const WriteResult result = seen_.Write(name, PresentText());
    if (result == WriteResult::Declined) return KeepPresent({}) ? result : WriteResult::Failed;
    if (result != WriteResult::Done) return result;
    unread_.erase(std::string(name));
    return WriteReport(name) ? WriteResult::Done : WriteResult::Failed;
}

// What could not be read may still be of worth to someone who can repair it.
bool WorkingStateKeeper::KeepUnread(std::string_view name) {
    if (!unread_.contains(name) || IsReadable(context_.files.OpenForInput(name).status)) {
        return true;
    }
    std::string reason;
    if (context_.files.Rename(name, kPreviousStateFile, reason)) return true;
    Complain(context_, SavingFailedText(context_, context_.files.Resolve(name).string(), reason));
    return false;
}

bool WorkingStateKeeper::WriteReport(std::string_view name) {
    const SharedValues& shared = context_.shared;
    if (!KindOf(shared.ProjektArt).keeps_state) return true;
    Report report;
    report.project_file = shared.ProjectFileName;
    report.project_folder = shared.ProjectFolder;
    report.working_state_file = name;
    report.first_temperature = lines_[0].temperature;
    report.second_temperature = lines_[1].temperature;
    report.cooler_duty = cooler_duty_;
    report.title = shared.ProjectTitle;
    report.remark = shared.ProjectRemark;
    report.project_text = shared.ProjectText;
    report.module_tag = shared.ModuleTag;
    report.language_tag = shared.LanguageTag;
    return Save(kHandOverFile, ReportText(report));
}

bool WorkingStateKeeper::SaveAtEnd() {
    if (!KindOf(context_.shared.ProjektArt).keeps_state || end_was_held_up_) return true;
    end_was_held_up_ =
        ArbeitsfelderSpeichern(FileAtEnd(), SaveOccasion::AtEnd) == WriteResult::Failed;
    return !end_was_held_up_;
}

std::string WorkingStateKeeper::FileAtEnd() const {
    return KindOf(context_.shared.ProjektArt).saves_own_file ? context_.shared.ProjektFeldDatei
                                                             : std::string(kWorkingStateFile);
}

bool WorkingStateKeeper::IsSaved() const {
    if (!KindOf(context_.shared.ProjektArt).keeps_state) return true;
    return HoldsWorkingState(context_.files.OpenForInput(FileAtEnd()).text, fields_);
}

bool WorkingStateKeeper::KeepPresent(std::string_view incoming) {
    const std::string present = PresentText();
    if (!HoldsInputs() || ItemsOf(incoming) == ItemsOf(present)) return true;
    return Save(kPreviousStateFile, present);
}

bool WorkingStateKeeper::Save(std::string_view name, const std::string& text) {
    std::string reason;
    if (context_.files.OpenForOutput(name, text, Durability::Flushed, &reason) == FileStatus::Ok) {
        return true;
    }
    Complain(context_, SavingFailedText(context_, context_.files.Resolve(name).string(), reason));
    return false;
}

bool WorkingStateKeeper::ComplainUnread(std::string_view name, const FileText& file) {
    Complain(context_, ReadingFailedText(context_, context_.files.Resolve(name).string(), file));
    return false;
}

bool WorkingStateKeeper::RestorePrevious() {
    const FileText file = context_.files.OpenForInput(kPreviousStateFile);
    if (file.status != FileStatus::Ok) return ComplainUnread(kPreviousStateFile, file);
    if (!KeepPresent(file.text)) return false;
    SetWorkingState(file.text, fields_);
    return true;
}

bool WorkingStateKeeper::HoldsInputs() const {
    return std::any_of(fields_.fields.begin(), fields_.fields.end(),
                       [](const TextField* field) { return !field->text.empty(); });
}

bool WorkingStateKeeper::HasPrevious() const {
    return context_.files.Stamp(kPreviousStateFile).has_value();
}

}  // namespace zandrell
