#include "projects/dialog_modes.h"

#include <algorithm>
#include <array>

#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "projects/project_file.h"
#include "projects/project_words.h"

namespace zandrell {
namespace {

using A = DialogAction;
using P = DialogPrompt;
using S = StartName;

constexpr std::size_t kShortTitle = 8;  // characters

constexpr std::array<DialogModeRow, 17> kModes = {{
    {1, P::LoadProject, ".prj", true, S::Extension, A::LoadProject},
    {2, P::SaveProject, ".prj", true, S::Project, A::SaveProject},
    {3, P::LoadSet, ".vlt", false, S::Empty, A::TakeSet},
    {34, P::LoadSet, ".vlt", true, S::Empty, A::TakeSet},
    {35, P::LoadSet, ".vlt", true, S::Empty, A::TakeSet},
    {4, P::SaveSet, ".vlt", false, S::Set, A::TakeSet},
    {5, P::DeleteProject, ".prj", false, S::Extension, A::DeleteProject},
    {6, P::LoadSet, ".vlt", false, S::Empty, A::DeleteSet},
    {21, P::Graphic, ".jpg", false, S::Extension, A::TakeLogo},
    {121, P::Graphic, ".jpg", false, S::Extension, A::TakePath},
    {141, P::LoadProject, ".zdd", false, S::Extension, A::LoadProject},
    {142, P::SaveProject, ".zdd", false, S::ShortProject, A::SaveProject},
    {151, P::ClimaCheckSheet, ".xls", false, S::Extension, A::TakeName},
    {161, P::TestoSheet, ".xls", false, S::Extension, A::TakeName},
    {171, P::Diagnostics, ".adc", false, S::Extension, A::TakeName},
    {177, P::Diagnostics, ".adc", false, S::LastName, A::TakeName},
    {178, P::Controller, ".txt", false, S::Extension, A::TakeName},
}};

// The words and what stands behind them in the prompt alone.
struct PromptWords {
    std::string words;
    std::string_view colon;
};

PromptWords WordsOf(DialogPrompt prompt, const ProjectContext& context) {
    const Captions& words = context.captions;
    const std::string program = context.shared.AppTitle + " " + context.shared.VersionText;
    switch (prompt) {
        case P::LoadProject:
            return {LoadProjectWords(context), ColonSuffix};
        case P::SaveProject:
            return {words[Caption::Save] + " " + words[Caption::SaveAsSecond], ColonSuffix};
        case P::LoadSet:
            return {words[Caption::Load] + " " + words[Caption::SetOfValues], ""};
        case P::SaveSet:
            return {words[Caption::SetOfValues] + " " + words[Caption::SaveButton] + " " +
                        words[Caption::SaveAsSecond],
                    ColonSuffix};
        case P::DeleteProject:
            return {DeleteProjectWords(context), ""};
        case P::Graphic:
            return {"Graphic " + words[Caption::Load], ColonSuffix};
        case P::ClimaCheckSheet:
            return {words[Caption::Load] + " ClimaCheck Excel Worksheet", ColonSuffix};
        case P::TestoSheet:
            return {words[Caption::Load] + " Testo 735 Excel Worksheet", ColonSuffix};
        case P::Diagnostics:
            return {words[Caption::Load] + " " + program + " Diagnostics File", ":"};
        case P::Controller:
            break;
    }
    return {words[Caption::Load] + " " + program + " SPS - File", ":"};
}

// At most so many characters, of which each may have several bytes.
std::string FirstCharacters(const std::string& text, std::size_t most) {
    std::size_t end = 0;
    for (std::size_t count = 0; end < text.size(); ++end) {
        const bool starts = (static_cast<unsigned char>(text[end]) & 0xC0U) != 0x80U;
        if (starts && ++count > most) break;
    }
    return text.substr(0, end);
}

std::string ShortProjectName(const SharedValues& shared, std::string_view extension) {
    const std::string name = Trimmed(shared.ProjectFileName);
    if (!name.empty() && !EqualIgnoringCase(name, extension)) {
        return CompletedName(name, shared.ProjectTitle, extension);
    }
    std::string title = shared.ProjectTitle;
    // The asterisk belongs to the name that the sibling modules propose.
    return FirstCharacters(MakeFileNameSafe(0, title), kShortTitle) + "*" + std::string(extension);
}

}  // namespace

const DialogModeRow* FindDialogMode(int mode) {
    const auto found = std::find_if(kModes.begin(), kModes.end(),
                                    [mode](const DialogModeRow& row) { return row.mode == mode; });
    return mode == 0 || found == kModes.end() ? nullptr : &*found;
}

std::string PromptOf(const DialogModeRow& row, const ProjectContext& context) {
    const PromptWords prompt = WordsOf(row.prompt, context);
    return prompt.words + std::string(prompt.colon);
}

std::string TitleOf(const DialogModeRow& row, const ProjectContext& context) {
    return WordsOf(row.prompt, context).words;
}

std::string StartNameOf(const DialogModeRow& row, const ProjectContext& context) {
    const SharedValues& shared = context.shared;
    switch (row.start) {
        case StartName::Empty:
            break;
        case StartName::Extension:
            return std::string(row.extension);
        case StartName::Project:
            return CompletedName(shared.ProjectFileName, shared.ProjectTitle);
        case StartName::ShortProject:
            return ShortProjectName(shared, row.extension);
        case StartName::Set:
            return shared.VltFileName.substr(0, shared.VltFileName.find('.')) +
                   std::string(row.extension);
        case StartName::LastName:
            return shared.ProjectFileName;
    }
    return {};
}

}  // namespace zandrell
