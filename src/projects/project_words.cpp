#include "projects/project_words.h"

#include "base/number_text.h"
#include "base/text_helpers.h"
#include "projects/working_state.h"

namespace zandrell {
namespace {

std::string MessageText(const ProjectContext& context, Caption word, std::string_view english,
                        std::initializer_list<std::string_view> values) {
    const std::string& message = context.captions[word];
    return FilledIn(message.empty() ? english : std::string_view(message), values);
}

}  // namespace

std::string LoadProjectWords(const ProjectContext& context) {
    const std::string &load = context.captions[Caption::Load],
                      &project = context.captions[Caption::Project];
    const std::string& tag = context.shared.LanguageTag;
    if (IsOneOf(tag, {"ENG", "NDL"})) return load + " " + project;
    if (IsOneOf(tag, {"FRA", "ITA", "POR", "ESP"})) return load + " un " + project;
    return project + " " + load;
}

std::string DeleteProjectWords(const ProjectContext& context) {
    const std::string &remove = context.captions[Caption::Delete],
                      &project = context.captions[Caption::Project];
    const std::string& tag = context.shared.LanguageTag;
    if (tag == "NDL") return remove + " " + project;
    if (IsOneOf(tag, {"FRA", "ITA", "ESP"})) return remove + " un " + project;
    return project + " " + remove;
}

std::string ChangedElsewhereQuestion(const ProjectContext& context, std::string_view file) {
    return MessageText(context, Caption::FileChangedElsewhere,
                       "%1 has been changed by another program. Overwrite it?", {file});
}

std::string ReplaceProjectQuestion(const ProjectContext& context, std::string_view name) {
    return MessageText(context, Caption::ReplaceProject,
                       "The project %1 exists already. Replace it?", {name});
}

std::string SavingFailedText(const ProjectContext& context, std::string_view file,
                             std::string_view reason) {
    return MessageText(context, Caption::SavingFailed, "%1 cannot be saved: %2", {file, reason});
}

std::string ReadingFailedText(const ProjectContext& context, std::string_view file,
                              const FileText& unread) {
    const std::string reason =
        unread.reason.empty() ? std::string(StatusWord(unread.status)) : unread.reason;
    return MessageText(context, Caption::ProjectUnreadable, "%1 cannot be read: %2",
                       {file, reason});
}

std::string ProjectVanishedText(const ProjectContext& context, std::string_view name) {
    return MessageText(context, Caption::ProjectVanished, "The project %1 no longer exists.",
                       {name});
}

std::string WithoutTagText(const ProjectContext& context, std::string_view name) {
    return MessageText(context, Caption::ProjectWithoutTag, "%1 is not a project of this program.",
                       {name});
}

std::string IncompleteText(const ProjectContext& context, std::string_view name, int unreadable) {
    return MessageText(
        context, Caption::ProjectIncomplete,
        "%1 is incomplete: %2 of %3 inputs are missing or not readable.",
        {name, TrimmedNumberText(unreadable), TrimmedNumberText(kWorkingStateItems)});
}

std::string OtherModuleText(const ProjectContext& context, std::string_view name,
                            std::string_view tag) {
    return MessageText(
        context, Caption::ProjectOfAnotherModule,
        "%1 is a project of another module (%2). The inputs here are those of the last save.",
        {name, tag});
}

std::string NameRefusedText(const ProjectContext& context, std::string_view name) {
    return MessageText(context, Caption::NameRefused, "%1 cannot be used as a file name.", {name});
}

void Complain(const ProjectContext& context, const std::string& text) {
    context.user.ShowMessage({context.shared.AppTitle, text, MessageIcon::Stop});
}

bool Ask(const ProjectContext& context, const std::string& text) {
    return context.user.Confirm(
        {context.shared.AppTitle + " " + context.shared.VersionText, text, MessageIcon::Question});
}

}  // namespace zandrell
