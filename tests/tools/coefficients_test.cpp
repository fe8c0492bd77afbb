#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "kernel/steam.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

const fs::path kSources = fs::path(ZANDRELL_SOURCE_DATA) / "properties";

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

WaterAirTables FileInUse() {
    return ReadWaterAirTables(Bytes(fs::path(ZANDRELL_STAGED_DATA) / "qvdata.dat"));
}

int RunTool(const std::string& arguments) {
    const std::string command = std::string("\"") + ZANDRELL_MAKE_COEFFICIENTS + "\" " + arguments;
    return std::system((command + " >/dev/null 2>&1").c_str());
}

TEST(Coefficients, TheFileInUseIsTheOneThatTheToolMakes) {
    const fs::path made =
        fs::temp_directory_path() / ("zandrell_qvdata_" + std::to_string(std::random_device{}()));
    ASSERT_EQ(RunTool("\"" + kSources.string() + "\" \"" + made.string() + "\""), 0);
    EXPECT_EQ(Bytes(made), Bytes(fs::path(ZANDRELL_STAGED_DATA) / "qvdata.dat"));
    EXPECT_EQ(Bytes(made), Bytes(fs::path(ZANDRELL_SOURCE_DATA) / "qvdata.dat"));
    fs::remove(made);
    EXPECT_NE(RunTool("/nowhere \"" + made.string() + "\""), 0);
    EXPECT_NE(RunTool(""), 0);
}

double Polynomial(const std::array<double, 9>& coefficients, double t) {
    double sum = 0;
    for (std::size_t i = 0; i < 9; ++i) sum += coefficients[i] * std::pow(t, i);
    return sum;
}

TEST(Coefficients, SpecificHeatsStayWithinTheirLimits) {
    const WaterAirTables tables = FileInUse();
    std::ifstream file(kSources / "ideal-gas-cp.csv");
    std::string header;
    std::getline(file, header);
    int rows = 0;
    char comma = 0;
    for (double t = 0, vapour = 0, air = 0; file >> t >> comma >> vapour >> comma >> air; ++rows) {
        const double limit = t <= 100 ? 0.0002 : 0.001;
        EXPECT_NEAR(Polynomial(tables.CpDampf, t) / vapour, 1, limit) << t;
        EXPECT_NEAR(Polynomial(tables.CpLuft, t) / air, 1, limit) << t;
    }
    EXPECT_EQ(rows, 86) << "-50 to 800 degC by 10 K";
}

TEST(Coefficients, BoilingTemperatureStartsWithin2Kelvin) {
    const WaterAirTables tables = FileInUse();
    for (double p_bar = 0.006112; p_bar <= 8.5; p_bar *= 1.05) {
        double reciprocal = 0;
        for (std::size_t i = 10; i <= 14; ++i) {
            reciprocal += tables.KSatt[i] * std::pow(std::log(p_bar * 100000), i - 10);
        }
        EXPECT_NEAR(tables.RefTemp / reciprocal, SiedeTemperatur(tables, p_bar), 2) << p_bar;
    }
}

}  // namespace
}  // namespace zandrell
