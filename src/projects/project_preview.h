#pragma once

#include <filesystem>
#include <string>

#include "projects/project_context.h"
#include "projects/project_file.h"

namespace zandrell {

// What the project dialog shows of the chosen project: two columns of as many lines, words and
// figures.
struct ProjectPreview {
    std::string words, figures;
};

// Of a project of this module; a project of another one has only its title, remark and date.
// Long texts are cut to fit.
ProjectPreview PreviewOf(const std::filesystem::path& path, const ProjectFile& project,
                         const ProjectContext& context);

// A text cut to so many characters, the last of them an ellipsis, and without line ends.
std::string Shortened(const std::string& text, std::size_t most);

}  // namespace zandrell
