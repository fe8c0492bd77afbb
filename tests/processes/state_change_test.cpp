#include "processes/state_change.h"

#include <gtest/gtest.h>

#include "hand_air.h"
#include "process_window.h"

namespace zandrell {
namespace {

// States of the independent table: 100 % at 20 degC, 95 % at 12 degC.
constexpr AirPoint kWarm{20, 14.70120866, 57.4001}, kCold{12, 8.289202848, 32.9681};

// 10000 m3/h at 1.196344966 kg/m3 are m = 3.323180 kg/s. Total 3.323180 * (57.4001 - 32.9681) =
// 81.192 kW. Auxiliary point 20 degC, 8.289 g/kg: h = 20.0857 + 0.008289203 * 2538.5 = 41.128, so
// latent 3.323180 * (57.4001 - 41.128) = 54.08, sensible 3.323180 * (41.128 - 32.9681) = 27.12.
// The auxiliary humidity is searched to 0.005 g/kg, that is to 0.05 kW and one move more.
TEST(LoadsBetween, CoolingByHand) {
    ProcessWindow window;
    const double m = 10000 * 1.196344966 / 3600;
    const auto loads = LoadsBetween(window.solver, kWarm, kCold, m);
    ASSERT_TRUE(loads);
    EXPECT_NEAR(loads->total_kw, 81.192, 0.001);
    EXPECT_NEAR(loads->latent_kw, 54.08, 0.1);
    EXPECT_NEAR(loads->sensible_kw, 27.12, 0.1);
    EXPECT_NEAR(loads->latent_kw + loads->sensible_kw, loads->total_kw, 1e-9);
    EXPECT_NEAR(loads->water_g_per_s, 3.323180461 * (14.70120866 - 8.289202848), 1e-6);
}

// Warming: the total counts from state 1 to 2 and is negative, both shares count the other way.
TEST(LoadsBetween, WarmingHasPositiveShares) {
    ProcessWindow window;
    const auto loads = LoadsBetween(window.solver, kCold, kWarm, 1);
    ASSERT_TRUE(loads);
    EXPECT_NEAR(loads->total_kw, 32.9681 - 57.4001, 1e-9);
    EXPECT_NEAR(loads->latent_kw, 57.4001 - 41.128, 0.03);
    EXPECT_NEAR(loads->sensible_kw, 41.128 - 32.9681, 0.03);
}

// At one temperature everything is latent: 8 g/kg have 20.0857 + 0.008 * 2538.5 = 40.394 kJ/kg.
TEST(LoadsBetween, EqualTemperaturesTakeTheFirstBranch) {
    ProcessWindow window;
    const auto loads = LoadsBetween(window.solver, kWarm, {20, 8, 40.394}, 1);
    ASSERT_TRUE(loads);
    EXPECT_NEAR(loads->latent_kw, 57.4001 - 40.394, 0.03);
    EXPECT_NEAR(loads->sensible_kw, 0, 0.03);
}

TEST(LoadsBetween, OutsideTheLimitsThereAreNone) {
    ProcessWindow window;
    EXPECT_FALSE(LoadsBetween(window.solver, {900, 5, 900}, kCold, 1));
}

TEST(LoadsOfTool, SignsAndShares) {
    const Loads loads{-8, -5, -3, -2};
    const struct {
        Calculation mode;
        Loads expected;
    } rows[] = {
        {Calculation::Capacity, {-8, -5, -3, -2}},    {Calculation::Cooler, {-8, -5, -3, -2}},
        {Calculation::Heater, {8, 0, 8, 0}},          {Calculation::WaterHumidifier, {5, 5, 0, 2}},
        {Calculation::SteamHumidifier, {8, 8, 0, 2}},
    };
    for (const auto& row : rows) {
        const Loads seen = LoadsOfTool(row.mode, loads);
        EXPECT_EQ(seen.total_kw, row.expected.total_kw) << static_cast<int>(row.mode);
        EXPECT_EQ(seen.latent_kw, row.expected.latent_kw) << static_cast<int>(row.mode);
        EXPECT_EQ(seen.sensible_kw, row.expected.sensible_kw) << static_cast<int>(row.mode);
        EXPECT_EQ(seen.water_g_per_s, row.expected.water_g_per_s) << static_cast<int>(row.mode);
    }
}

TEST(DecimalsOf, LimitsBelongToTheCoarserSide) {
    const struct {
        double total, water, capacity_factor, water_factor;
    } rows[] = {{99.99, 0.99, 100, 1000},
                {100, 1, 10, 100},
                {-999.9, -9.99, 10, 100},
                {1000, 10, 1, 10},
                {-1000, -10, 1, 10}};
    for (const auto& row : rows) {
        const Decimals seen = DecimalsOf({row.total, 0, 0, row.water});
        EXPECT_EQ(seen.capacity, row.capacity_factor) << row.total;
        EXPECT_EQ(seen.water, row.water_factor) << row.water;
    }
}

// 3000 m3/h of 20 degC, 50 % (7.264747888 g/kg) and 1000 m3/h of -10 degC, 100 % (1.763842834):
// weight 0.75, t = -10 + 0.75 * 30 = 12.5, x = 1.763842834 + 0.75 * 5.500905054 = 5.889521625.
// By mass the weight would be 0.75 * 1.2001 / (0.75 * 1.2001 + 0.25 * 1.3401) = 0.729 and t 11.9.
TEST(MixtureOf, WeighsByVolume) {
    ProcessWindow window;
    const AirPoint inner{20, 7.264747888, 0}, outer{-10, 1.763842834, 0};
    const Mixture mixture = MixtureOf(window.solver, inner, 3000, outer, 1000);
    EXPECT_DOUBLE_EQ(mixture.MischTemp, 12.5);
    EXPECT_NEAR(mixture.MischX, 5.889521625, 1e-9);
    EXPECT_NEAR(hand::X(mixture.rel_percent / 100, 12.5), 5.8895, 0.02);
    EXPECT_NEAR(window.solver.ZustandX, 5.8895, 0.01) << "the mixture is the current state";
}

// Saturated air of 30 and -10 degC mixes into the fog: 10 degC would hold 7.6 g/kg of the 14.5.
TEST(MixtureOf, FogComesOutCloseToSaturation) {
    ProcessWindow window;
    const Mixture mixture =
        MixtureOf(window.solver, {30, 27.2, 0}, 500, {-10, 1.763842834, 0}, 500);
    EXPECT_DOUBLE_EQ(mixture.MischTemp, 10);
    EXPECT_GT(mixture.rel_percent, 99.9);
    EXPECT_LE(mixture.rel_percent, 100);
}

}  // namespace
}  // namespace zandrell
