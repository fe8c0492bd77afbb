#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Fits = std::map<std::string, std::vector<double>>;

// The arrays of a header by their names.
Fits ReadFits(const fs::path& path) {
    std::ifstream file(path);
    Fits fits;
    std::string name;
    for (std::string line; std::getline(file, line);) {
        const auto brace = line.find('{');
        if (line.starts_with("inline constexpr") && brace != std::string::npos) {
            name = line.substr(line.rfind(' ') + 1, brace - line.rfind(' ') - 1);
        } else if (line.starts_with("    ")) {
            fits[name].push_back(std::strtod(line.c_str(), nullptr));
        }
    }
    return fits;
}

double Polynomial(const std::vector<double>& coefficients, double w) {
    double sum = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) sum = sum * w + coefficients[i];
    return sum;
}

// Processors round the last digits of a fit differently, so what it says is compared.
TEST(RealAirFits, TheHeaderInUseIsTheOneThatTheToolMakes) {
    const fs::path source = fs::path(ZANDRELL_SOURCE_DATA) / "properties" / "real-air.csv";
    const fs::path made =
        fs::temp_directory_path() / ("zandrell_real_air_" + std::to_string(std::random_device{}()));
    const auto run = [&made](const fs::path& from) {
        const fs::path liquid = from.parent_path() / "saturated-water.csv";
        return std::system(("\"" ZANDRELL_MAKE_REAL_AIR "\" \"" + from.string() + "\" \"" +
                            liquid.string() + "\" \"" + made.string() + "\" >/dev/null 2>&1")
                               .c_str());
    };
    ASSERT_EQ(run(source), 0);
    const Fits fresh = ReadFits(made);
    const Fits used = ReadFits(fs::path(ZANDRELL_SOURCE) / "src/kernel/real_air_fits.h");
    fs::remove(made);
    ASSERT_EQ(fresh.size(), 15U);
    ASSERT_EQ(used.size(), fresh.size());
    for (const auto& [name, coefficients] : fresh) {
        ASSERT_TRUE(used.contains(name)) << name;
        for (double t = -60; t <= 100; t += 5) {
            const double w = 273.16 / (t + 273.15) - 1;
            const double expected = Polynomial(coefficients, w);
            EXPECT_NEAR(Polynomial(used.at(name), w), expected, 1e-7 * (std::abs(expected) + 0.01))
                << name << " at " << t;
        }
    }
    EXPECT_NE(run("/nowhere"), 0);
}

}  // namespace
