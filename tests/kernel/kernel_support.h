#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <string>

#include "base/data_files.h"
#include "kernel/water_air_tables.h"
#include "support/test_folder.h"

namespace zandrell::kernel_test {

inline std::string CoefficientText() {
    const DataFiles files(ZANDRELL_STAGED_DATA);
    const FileText file = files.OpenForInput("qvdata.dat");
    EXPECT_EQ(file.status, FileStatus::Ok) << "no qvdata.dat in " << ZANDRELL_STAGED_DATA;
    return file.text;
}

// The tables of the delivered coefficient file.
inline const WaterAirTables& RealTables() {
    static const WaterAirTables tables = ReadWaterAirTables(CoefficientText());
    return tables;
}

// The first `count` numbers of the coefficient file.
inline std::string FirstNumbers(int count) {
    const std::string text = CoefficientText();
    std::size_t end = 0;
    for (int i = 0; i < count; ++i) {
        end = text.find_first_not_of(",\r\n ", end);
        end = std::min(text.find_first_of(",\r\n", end), text.size());
    }
    return text.substr(0, end);
}

// A data folder whose coefficient file comes and goes.
class TemporaryFolder {
  public:
    const std::filesystem::path& Path() const { return folder_.Path(); }

    // Each writing is a second younger than the last, so that time stamps always tell them apart.
    void WriteCoefficients(const std::string& text) {
        folder_.Write("qvdata.dat", text);
        youngest_ += std::chrono::seconds(1);
        std::filesystem::last_write_time(folder_ / "qvdata.dat", youngest_);
    }
    void RemoveCoefficients() const { std::filesystem::remove(folder_ / "qvdata.dat"); }

  private:
    TestFolder folder_;
    std::filesystem::file_time_type youngest_ = std::filesystem::file_time_type::clock::now();
};

inline void ExpectRelative(double actual, double expected, double tolerance,
                           const std::string& what) {
    EXPECT_NEAR(actual, expected, tolerance * std::abs(expected)) << what;
}

}  // namespace zandrell::kernel_test
