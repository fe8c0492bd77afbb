#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

enum class ListingOrder { Name, LatestFirst };

// The names of the files with an extension (".prj"), without regard to case. A folder that can not
// be read has none.
std::vector<std::string> FilesIn(const std::filesystem::path& folder, std::string_view extension,
                                 ListingOrder order);

// What a folder tree shows: the folders above, the folder itself and those in it, which are not
// hidden. Whole paths without a trailing separator.
std::vector<std::string> FolderTree(const std::filesystem::path& folder);

// A path without a trailing separator, except the root itself; either kind of separator is taken.
std::string WithoutSeparator(std::string_view path);
std::string WithSeparator(std::string_view folder);

// Where disks are mounted that hold files of users; the root of the file system is always there.
std::vector<std::string> MountedRoots();

}  // namespace zandrell
