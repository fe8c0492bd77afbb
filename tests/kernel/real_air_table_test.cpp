#include "kernel/real_air_table.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>

#include "kernel/real_air.h"

namespace zandrell {
namespace {

template <std::size_t figures>
void ExpectTheSame(const std::array<double, figures>& found,
                   const std::array<double, figures>& wanted, double t) {
    for (std::size_t i = 0; i < figures; ++i) {
        EXPECT_NEAR(found[i], wanted[i], 1e-9 * (1 + std::abs(wanted[i]))) << i << " at " << t;
    }
}

// Between the nodes, at the borders of the cells and on both sides of the triple point.
TEST(RealAirTable, HasWhatTheFitsHave) {
    const auto& table = RealAirTable::Get();
    const auto compare = [&](double t) {
        ExpectTheSame(std::bit_cast<std::array<double, 10>>(table.SaturationAt(t)),
                      std::bit_cast<std::array<double, 10>>(RealAirTable::SaturationByFits(t)), t);
        ExpectTheSame(std::bit_cast<std::array<double, 16>>(table.GasAt(t)),
                      std::bit_cast<std::array<double, 16>>(RealAirTable::GasByFits(t)), t);
    };
    for (int i = 0; i <= 16200; i += 7) compare(-60 + 0.01 * i);
    for (const double t : {-60.0, 0.0, 0.01, std::nextafter(0.01, 1.0), 0.02, 100.0, 102.0}) {
        compare(t);
    }
    EXPECT_EQ(table.SaturationAt(0.01).henry, 0) << "ice dissolves no air";
    EXPECT_GT(table.SaturationAt(0.0100001).henry, 0.2);
}

TEST(RealAirTable, TakesASaturationPressureBackToItsTemperature) {
    const auto& table = RealAirTable::Get();
    const auto temperature = [&table](double pressure) {
        return table.SaturationTemperatureAt(std::log(pressure) - table.LogOfTriplePressure());
    };
    for (double t = -59.99; t < 102; t += 0.037) {
        const double pressure = RealSaturationPressure(t);
        EXPECT_NEAR(table.SaturationPressureAt(t), pressure, 1e-9 * pressure) << t;
        EXPECT_NEAR(temperature(pressure).value_or(-999), t, 1e-8) << t;
    }
    // Steam tables boil water at 99.974 degC under 1.01325 bar.
    EXPECT_NEAR(temperature(101325).value_or(0), 99.974, 0.001);
    for (const double outside : {0.0, 1.0, 110000.0, -5.0}) EXPECT_FALSE(temperature(outside));
}

}  // namespace
}  // namespace zandrell
