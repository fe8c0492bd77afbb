#pragma once

#include <string>
#include <string_view>

#include "forms/user_interface.h"
#include "projects/project_context.h"

namespace zandrell {

// The words for loading and deleting a project, in the word order of the language.
std::string LoadProjectWords(const ProjectContext& context);
std::string DeleteProjectWords(const ProjectContext& context);

// Messages, as far as the language has them; else in English, so that none is ever blank. `what`
// and `reason` are the system's words and the file.
std::string ChangedElsewhereQuestion(const ProjectContext& context, std::string_view file);
std::string ReplaceProjectQuestion(const ProjectContext& context, std::string_view name);
std::string SavingFailedText(const ProjectContext& context, std::string_view file,
                             std::string_view reason);
std::string ReadingFailedText(const ProjectContext& context, std::string_view file,
                              const FileText& unread);
std::string ProjectVanishedText(const ProjectContext& context, std::string_view name);
std::string WithoutTagText(const ProjectContext& context, std::string_view name);
std::string IncompleteText(const ProjectContext& context, std::string_view name, int unreadable);
std::string OtherModuleText(const ProjectContext& context, std::string_view name,
                            std::string_view tag);
std::string NameRefusedText(const ProjectContext& context, std::string_view name);

// Shows a message with the stop icon under the program's name.
void Complain(const ProjectContext& context, const std::string& text);
// A yes/no question under the program's name and version.
bool Ask(const ProjectContext& context, const std::string& text);

}  // namespace zandrell
