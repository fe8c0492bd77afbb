#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

inline constexpr std::string_view kProjectExtension = ".prj";

// A project file is the text of a working-state file behind a header of four items.
struct ProjectHeader {
    std::string title, remark, third, tag;
};

struct ProjectFile {
    ProjectHeader header;
    std::vector<std::string> items;  // of the working state
};

// Any text can be read: what lacks is empty.
ProjectHeader ReadProjectHeader(std::string_view text);
ProjectFile ReadProject(std::string_view text);

// Header and items, every one of them quoted, the items one a line.
std::string ProjectText(const ProjectHeader& header, std::string_view working_state);
// The items alone, the same way.
std::string ItemsText(const std::vector<std::string>& items);

// The working-state file that belongs to a tag, without regard to case; empty for the tag of
// another module.
std::string WorkingFileOf(std::string_view tag);

// Whether the last four characters are ".prj" in any case.
bool HasProjectExtension(std::string_view name);
// A name of nothing but the extension, or of nothing at all.
bool IsBareExtension(std::string_view name);

// The name that the project dialog proposes and to which it completes what was typed: a blank name
// and a bare extension become the cleaned title; without the extension everything from the first
// point on is cut and it is appended.
std::string CompletedName(std::string_view name, std::string_view title,
                          std::string_view extension = kProjectExtension);

// The name under which a project is saved. One ending in ".prj" in any case gets ".PRJ"; a blank
// name and a bare extension become the cleaned title and ".prj"; any other loses its last four
// characters for ".PRJ". The suite has always done so; the dialog completes a name before.
std::string SavedName(std::string_view name, std::string_view title);

// False for a path and for characters that a file name of the suite's systems can not hold.
bool IsPlainFileName(std::string_view name);

}  // namespace zandrell
