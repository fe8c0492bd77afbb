#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace zandrell {

// A data folder of its own for one test, gone afterwards.
class TestFolder {
  public:
    TestFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zandrell.XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~TestFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    void CopyStaged(const std::string& name) const {
        std::filesystem::copy(std::filesystem::path(ZANDRELL_STAGED_DATA) / name, path_ / name);
    }
    void CopyWholeSet() const {
        std::filesystem::copy(ZANDRELL_STAGED_DATA, path_,
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::overwrite_existing);
    }
    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return (std::ostringstream() << file.rdbuf()).str();
    }

  private:
    std::filesystem::path path_;
};

}  // namespace zandrell
