#include "projects/folder_listing.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "base/text_encoding.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

struct ListedFile {
    std::string name;
    fs::file_time_type time{};
};

bool NameComesFirst(const std::string& left, const std::string& right) {
    const std::string a = UpperCase(left), b = UpperCase(right);
    return a != b ? a < b : left < right;
}

bool HasExtension(const std::string& name, std::string_view extension) {
    return name.size() >= extension.size() &&
           EqualIgnoringCase(std::string_view(name).substr(name.size() - extension.size()),
                             extension);
}

bool IsForUsers(const std::string& device, const std::string& folder) {
    const auto below = [&folder](std::string_view parent) { return folder.starts_with(parent); };
    const bool by_users = below("/media/") || below("/mnt/") || below("/run/media/");
    const bool disk = device.starts_with("/dev/") && !device.starts_with("/dev/loop");
    return by_users || (disk && !below("/boot") && !below("/etc") && !below("/snap"));
}

// The table of mounts writes a blank as \040.
std::string PlainMountPoint(std::string folder) {
    for (auto place = folder.find("\\040"); place != std::string::npos;
         place = folder.find("\\040", place)) {
        folder.replace(place, 4, " ");
    }
    return folder;
}

}  // namespace

std::vector<std::string> FilesIn(const fs::path& folder, std::string_view extension,
                                 ListingOrder order) {
    std::vector<ListedFile> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code of_entry;
        const std::string name = entry->path().filename().string();
        if (!HasExtension(name, extension) || !entry->is_regular_file(of_entry)) continue;
        files.push_back({name, entry->last_write_time(of_entry)});
    }
    std::sort(files.begin(), files.end(), [order](const ListedFile& a, const ListedFile& b) {
        if (order == ListingOrder::LatestFirst && a.time != b.time) return a.time > b.time;
        return NameComesFirst(a.name, b.name);
    });
    std::vector<std::string> names;
    names.reserve(files.size());
    for (ListedFile& file : files) names.push_back(std::move(file.name));
    return names;
}

std::vector<std::string> FolderTree(const fs::path& folder) {
    std::vector<std::string> tree;
    fs::path above;
    for (const fs::path& part : folder) {
        above /= part;
        if (!part.empty()) tree.push_back(above.string());
    }
    std::vector<std::string> inside;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code of_entry;
        if (!entry->is_directory(of_entry)) continue;
        if (!entry->path().filename().string().starts_with('.')) {
            inside.push_back(entry->path().string());
        }
    }
    std::sort(inside.begin(), inside.end(), NameComesFirst);
    tree.insert(tree.end(), inside.begin(), inside.end());
    return tree;
}

std::string WithoutSeparator(std::string_view path) {
    std::string folder(path);
    std::replace(folder.begin(), folder.end(), '\\', '/');
    while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
    return folder;
}

std::string WithSeparator(std::string_view folder) {
    return folder.ends_with('/') ? std::string(folder) : std::string(folder) + "/";
}

std::vector<std::string> MountedRoots() {
    std::vector<std::string> roots = {"/"};
    std::ifstream mounts("/proc/self/mounts");
    for (std::string line; std::getline(mounts, line);) {
        std::istringstream words(line);
        std::string device, folder;
        words >> device >> folder;
        folder = PlainMountPoint(folder);
        std::error_code error;
        if (folder.size() > 1 && IsForUsers(device, folder) && fs::is_directory(folder, error) &&
            std::find(roots.begin(), roots.end(), folder) == roots.end()) {
            roots.push_back(folder);
        }
    }
    return roots;
}

}  // namespace zandrell
