#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/data_files.h"

namespace zandrell {

// The projects that were loaded or saved last, the latest first, kept in a file of the data folder.
class RecentProjects {
  public:
    static constexpr std::size_t kMost = 8;
    static constexpr std::string_view kFile = "qv_recent.dat";

    explicit RecentProjects(const DataFiles& files) : files_(files) {}

    void Read();
    const std::vector<std::filesystem::path>& Paths() const { return paths_; }
    // A project that moves to the front; the list is written at once. That it can not be written is
    // no loss worth a message.
    void Add(const std::filesystem::path& path);
    void Remove(const std::filesystem::path& path);

  private:
    void Write() const;

    const DataFiles& files_;
    std::vector<std::filesystem::path> paths_;
};

}  // namespace zandrell
