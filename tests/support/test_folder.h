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
    // With the settings of an older installation: those of the suite's convention.
    void CopyWholeSet() const {
        std::filesystem::copy(ZANDRELL_STAGED_DATA, path_,
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::overwrite_existing);
        Write("qv_par.dat", "1.013\r\n-20\r\n40\r\n0\r\n40\r\n0\r\n0\r\n1\r\n");
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
