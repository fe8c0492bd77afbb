#include "projects/recent_projects.h"

#include "base/delimited_text.h"

namespace zandrell {

void RecentProjects::Read() {
    paths_.clear();
    const FileText file = files_.OpenForInput(kFile);
    DelimitedReader reader(file.text);
    for (std::string path; paths_.size() < kMost && reader.ReadText(path);) {
        if (!path.empty() && path.find('\0') == std::string::npos) paths_.emplace_back(path);
    }
}

void RecentProjects::Add(const std::filesystem::path& path) {
    std::erase(paths_, path);
    paths_.insert(paths_.begin(), path);
    if (paths_.size() > kMost) paths_.resize(kMost);
    Write();
}

void RecentProjects::Remove(const std::filesystem::path& path) {
    if (std::erase(paths_, path) > 0) Write();
}

void RecentProjects::Write() const {
    DelimitedWriter writer;
    for (const auto& path : paths_) {
        // The form of the file has no way to hold a double quote, and another path would be read.
        if (path.string().find('"') == std::string::npos) writer.Text(path.string()).EndLine();
    }
    files_.OpenForOutput(kFile, writer.Result(), Durability::Cache);
}

}  // namespace zandrell
