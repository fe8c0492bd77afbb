#include "processes/tools.h"

#include <gtest/gtest.h>

#include "hand_air.h"
#include "process_window.h"

namespace zandrell {
namespace {

constexpr double kX20 = 7.264747888, kH20 = 38.5275;  // 20 degC, 50 %

// Saturated vapour of 12 degC: 1332.299164 / 0.95 = 1402.420 Pa, so x = 287.04 / 461.5 * 1402.420 /
// (101300 - 1402.420) = 8.7316 g/kg and f = 7.264747888 / 8.7316 = 0.8320.
TEST(Tools, CoolerByHand) {
    ProcessWindow window;
    EXPECT_NEAR(*HumidityBehindCooler(window.solver, kX20, 12), 0.8320, 1e-4);
    EXPECT_EQ(*HumidityBehindCooler(window.solver, kX20, 5), 0.9) << "capped";
}

// 1.763842834 / 14.70120866 = 0.119980. Below the dew point there is no cap: saturated -10 degC air
// "heated" to -20 degC would have 1.763842834 / (0.6947128846 / 0.9) = 2.285, a little less since x
// is not quite proportional.
TEST(Tools, HeaterByHand) {
    ProcessWindow window;
    EXPECT_NEAR(*HumidityBehindHeater(window.solver, 1.763842834, 20), 0.119980, 1e-6);
    EXPECT_NEAR(*HumidityBehindHeater(window.solver, 1.763842834, -20), 2.285, 0.005);
}

// Constant enthalpy from 38.5275 kJ/kg to 15 degC: x = (38.5275 - 1.0044 * 15) / (2501.6 + 1.85 *
// 15) = 9.276 g/kg of 10.62 at saturation.
TEST(Tools, WaterHumidifierByHand) {
    ProcessWindow window;
    const auto air = BehindWaterHumidifier(window.solver, kH20, 15);
    ASSERT_TRUE(air);
    EXPECT_FALSE(air->impossible);
    EXPECT_NEAR(air->x, 9.276, 0.02);
    EXPECT_NEAR(air->rel_percent, 100 * 9.276 / hand::X(1, 15), 0.4);
    EXPECT_NEAR(hand::H(15, air->x), kH20, 0.05) << "the energy stays";
}

TEST(Tools, WaterHumidifierOutsideTheChartIsMarked) {
    ProcessWindow window;
    for (const double t : {10.0, 45.0}) {  // in the fog; warmer than dry air of that enthalpy
        const auto air = BehindWaterHumidifier(window.solver, kH20, t);
        ASSERT_TRUE(air);
        EXPECT_TRUE(air->impossible);
        EXPECT_EQ(air->rel_percent, 99);
        // The humidity is that of the state asked for, not of 99 %.
        EXPECT_NEAR(air->x, 1000 * (kH20 - 1.0044 * t) / (2501.6 + 1.85 * t), 0.05) << t;
    }
}

TEST(Tools, SteamHumidifierByHand) {
    ProcessWindow window;
    EXPECT_NEAR(*HumidityBehindSteamHumidifier(window.solver, 20, 100), 14.70120866, 1e-7);
}

TEST(Tools, OutsideTheLimitsThereIsNoAnswer) {
    ProcessWindow window;
    EXPECT_FALSE(HumidityBehindCooler(window.solver, kX20, 801));
    EXPECT_FALSE(HumidityBehindHeater(window.solver, kX20, -51));
    EXPECT_FALSE(BehindWaterHumidifier(window.solver, kH20, 1e300));
    EXPECT_FALSE(HumidityBehindSteamHumidifier(window.solver, 1e12, 50));
}

}  // namespace
}  // namespace zandrell
