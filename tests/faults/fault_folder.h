#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <iostream>
#include <string>

#include "faults/faulty_run.h"

namespace zandrell::faults {

// In memory where the system has such a folder: hundreds of flushes would keep a disk busy.
class FaultFolder {
  public:
    FaultFolder() {
        std::error_code error;
        const bool memory = std::filesystem::is_directory("/dev/shm", error);
        std::string pattern =
            (memory ? "/dev/shm" : std::filesystem::temp_directory_path().string()) +
            "/zandrell.XXXXXX";
        path_ = ::mkdtemp(pattern.data());
    }
    ~FaultFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// Tries all faults and says what came of them.
inline void TryAndReport(const std::filesystem::path& folder, const FaultyAct& faulty) {
    const FaultCounts counts = TryAllFaults(folder, faulty);
    EXPECT_GT(counts.points, 8) << faulty.name;
    EXPECT_GT(counts.old_content, 0) << faulty.name;
    EXPECT_GT(counts.new_content, 0) << faulty.name;
    std::cout << faulty.name << ": " << counts.points << " faults, " << counts.killed
              << " of them kills; all new " << counts.new_content << ", something old "
              << counts.old_content << ", told " << counts.told << "\n";
}

}  // namespace zandrell::faults
