#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "base/data_files.h"
#include "fuzz/fuzz_input.h"

namespace zandrell::fuzz {

// A data folder in memory, in which the input stands as a file: for readers that open it
// themselves.
class Folder {
  public:
    Folder() {
        std::string pattern = "/dev/shm/zandrell-fuzz.XXXXXX";
        Require(::mkdtemp(pattern.data()) != nullptr);
        files_.SetDataFolder(pattern);
    }
    ~Folder() {
        std::error_code error;
        std::filesystem::remove_all(files_.DataFolder(), error);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    DataFiles& Files() { return files_; }
    void Write(const std::string& name, std::string_view bytes) const {
        std::ofstream(files_.DataFolder() / name, std::ios::binary) << bytes;
    }

  private:
    DataFiles files_{std::filesystem::path()};
};

}  // namespace zandrell::fuzz
