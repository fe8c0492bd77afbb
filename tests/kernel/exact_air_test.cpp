#include "kernel/exact_air.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <fstream>
#include <functional>
#include <limits>
#include <random>
#include <sstream>

#include "kernel/continued_air.h"
#include "kernel/state_solver.h"
#include "tests/processes/independent_air.h"

namespace zandrell {
namespace {

struct ExactAirTest : testing::Test {
    DataFiles files{ZANDRELL_STAGED_DATA};
    StateSolver solver{files};

    ExactAir At(double p_bar) {
        solver.ChartDruckBar = p_bar;
        return ExactAir(solver);
    }
};

// An independent calculation of the model, by humidity and by x; the wet bulbs are checked with the
// model itself.
TEST_F(ExactAirTest, IsRealAirWithinItsLimits) {
    std::ifstream file(std::string(ZANDRELL_SOURCE) + "/tests/kernel/real_air_states.csv");
    int states = 0;
    for (std::string line; std::getline(file, line);) {
        double t, rh, p, x, h, v, rho, p_vapour, t_dew;
        for (char& c : line) c = c == ',' ? ' ' : c;
        std::istringstream cells(line);
        if (!(cells >> t >> rh >> p >> x >> h >> v >> rho >> p_vapour)) continue;  // heading
        const ExactAir air = At(p / 1e5);
        const auto by_humidity = air.FromHumidity(rh / 100, t), by_x = air.FromX(t, x);
        ASSERT_TRUE(by_humidity && by_x) << line;
        ++states;
        for (const auto& state : {*by_humidity, *by_x}) {
            EXPECT_NEAR(state.x, x, 5e-5 * x) << line;
            EXPECT_NEAR(state.fraction, rh / 100, 5e-5) << line;
            EXPECT_NEAR(state.enthalpy, h, 0.01 + 3e-6 * x) << line;
            EXPECT_NEAR(state.volume, v, 5e-5 * v) << line;
            EXPECT_NEAR(state.density, rho, 5e-5 * rho) << line;
            EXPECT_NEAR(state.vapour_pressure, p_vapour, 5e-5 * p_vapour) << line;
        }
        if (rh == 0 || rh == 100 || !(cells >> t_dew) || t_dew < -60) continue;
        EXPECT_NEAR(air.DewPoint(*by_humidity).value_or(1e9), t_dew, 0.003) << line;
    }
    EXPECT_EQ(states, 1581);
}

struct Place {
    double t, x, p;
};

std::array<double, 4> FiguresAt(StateSolver& solver, const Place& place) {
    solver.ChartDruckBar = place.p;
    const ExactAir air(solver);
    const auto state = air.FromX(place.t, place.x);
    EXPECT_TRUE(state) << place.t << ' ' << place.x << ' ' << place.p;
    if (!state) return {};
    const double bulb = air.WetBulb(*state).value_or(1e9), dew = air.DewPoint(*state).value_or(1e9);
    return {state->enthalpy / (1 + place.x / 100), std::log(state->density),
            std::log(state->fraction), bulb + dew};
}

TEST_F(ExactAirTest, NothingJumpsAtTheBordersOfTheModel) {
    constexpr double kStep = 1e-7;
    const Place borders[] = {
        {100, 5, 1.013},   {100, 600, 1.013}, {100, 20, 0.6},   {100, 400, 2},    {20, 5, 0.5},
        {20, 5, 2},        {-20, 0.3, 0.5},   {60, 300, 0.5},   {85, 40, 0.5},    {90, 300, 2},
        {10, 30, 0.5},     {-10, 4, 2},       {100, 10000, 2},  {98, 10000, 0.8}, {100, 20, 0.5},
        {100, 10000, 0.5}, {100, 12000, 1.5}, {105, 10000, 1.2}};
    int walked = 0;
    for (const Place& at : borders) {
        const auto walk = [&](double dt, double dx, double dp) {
            const auto one = FiguresAt(solver, {at.t - dt, at.x - dx, at.p - dp});
            const auto other = FiguresAt(solver, {at.t + dt, at.x + dx, at.p + dp});
            ++walked;
            for (std::size_t i = 0; i < one.size(); ++i) {
                EXPECT_NEAR(one[i], other[i], 2e-5)
                    << i << " at " << at.t << " degC, " << at.x << " g/kg, " << at.p << " bar";
            }
        };
        if (at.t == 100) walk(kStep, 0, 0);
        if (at.x == 10000) walk(0, 1e3 * kStep, 0);
        if (at.p == 0.5 || at.p == 2) walk(0, 0, kStep);
    }
    EXPECT_EQ(walked, 24);
}

// Specific heats and virial coefficients that the kernel does not have. Its steam counts from the
// ideal gas at 0.01 degC, 0.03 kJ/kg higher.
TEST_F(ExactAirTest, BeyondTheModelEnthalpyAndDensityGoOnAsAirDoes) {
    const Place places[] = {{140, 10, 1.013}, {200, 50, 1.013}, {300, 0, 1},  {160, 200, 1},
                            {20, 7, 0.35},    {40, 30, 0.3},    {90, 50, 0.4}};
    for (const Place& at : places) {
        const auto state = At(at.p).FromX(at.t, at.x);
        ASSERT_TRUE(state) << at.t;
        const double h = independent::H(at.t, at.x, 1e5 * at.p);
        EXPECT_NEAR(state->enthalpy, h, 0.3 + 1e-3 * std::abs(h)) << at.t;
        const double dry = independent::DryAir(at.t, at.x, 1e5 * at.p);
        EXPECT_NEAR(1 / state->volume, dry, 1.5e-3 * dry) << at.t;
        EXPECT_NEAR(state->density * state->volume, 1 + at.x / 1000, 1e-12) << at.t;
    }
    // Steam tables: 476.16 kPa at 150 degC, 1554.9 kPa at 200 degC.
    EXPECT_NEAR(ContinuedSaturation(150, 1), 476160, 300);
    EXPECT_NEAR(ContinuedSaturation(200, 1), 1554900, 1000);
}

// Ice and water saturate air at another pressure each where ice melts.
TEST_F(ExactAirTest, DewPointsDoNotPassTheTemperatureWhereIceMelts) {
    for (const double p : {0.2, 0.5, 1.0, 2.0, 2.5, 8.0}) {
        for (const double t : {-0.02, 0.0, 0.01, 0.0100001, 0.011, 0.015, 0.1}) {
            const ExactAir air = At(p);
            const double dew = air.DewPoint(*air.FromHumidity(1, t)).value_or(1e9);
            EXPECT_LE(dew, t + 1e-8) << p;
            EXPECT_GE(dew, t - (t > 0.01 && t < 0.1 ? 0.01 : 1e-8)) << p << ' ' << t;
        }
    }
}

// ASHRAE Handbook of Fundamentals 2017, chapter 1, table 2, at 101.325 kPa: saturated air of 20
// degC 14.758 g/kg and 57.555 kJ/kg, of -20 degC 0.6373 g/kg and -18.542 kJ/kg. Steam tables: water
// of 20 degC 83.91 kJ/kg (and 0.1 for the pressure); ice of 0.01 degC -333.44 and of -20 degC
// -374.0 kJ/kg (ASHRAE table 3: -333.42 at 0 degC, -374.03 at -20).
TEST_F(ExactAirTest, InTheFogWaterOrIceIsAddedToSaturatedAir) {
    const ExactAir air = At(1.01325);
    const auto fog = air.FromX(20, 20);
    ASSERT_TRUE(fog);
    EXPECT_TRUE(fog->IsFog());
    EXPECT_NEAR(fog->liquid, 20 - 14.758, 0.008);
    EXPECT_EQ(fog->ice, 0);
    EXPECT_NEAR(fog->enthalpy, 57.555 + 0.005242 * 84.0, 0.02);
    EXPECT_NEAR(fog->density, 1.02 / fog->volume, 1e-12);
    EXPECT_NEAR(fog->vapour_pressure, air.FromHumidity(1, 20)->vapour_pressure, 1e-9);
    EXPECT_EQ(air.DewPoint(*fog), 20.0);
    EXPECT_EQ(air.WetBulb(*fog), 20.0);
    const auto frost = air.FromX(-20, 3);
    ASSERT_TRUE(frost);
    EXPECT_NEAR(frost->ice, 3 - 0.6373, 0.0005);
    EXPECT_EQ(frost->liquid, 0);
    EXPECT_NEAR(frost->enthalpy, -18.542 - 0.0023627 * 374.03, 0.003);
    EXPECT_FALSE(air.FromX(20, *air.SaturatedX(20))->IsFog());
    EXPECT_TRUE(air.FromX(20, 1.000001 * *air.SaturatedX(20))->IsFog());
    // Above boiling at 0.7 bar (90 degC) no humidity is fog.
    EXPECT_FALSE(At(0.7).FromX(95, 5000)->IsFog());
    EXPECT_FALSE(At(0.7).SaturatedX(95));
}

// Ice of 1 g takes 0.3335 kJ to melt, at one temperature.
TEST_F(ExactAirTest, MeltingTakesHeatAtOneTemperature) {
    const ExactAir air = At(1.01325);
    const double x = 10, low = *air.Enthalpy(0.01, x), condensed = air.FromX(0.01, x)->ice;
    EXPECT_NEAR(condensed, x - 3.79, 0.01);
    for (const double melted : {0.02, 0.5, 0.98}) {
        const double h = low + melted * condensed * 0.3335;
        const auto state = air.FromEnthalpy(h, x);
        ASSERT_TRUE(state) << melted;
        EXPECT_EQ(state->t, 0.01) << melted;
        EXPECT_NEAR(state->liquid, melted * condensed, 0.003 * condensed) << melted;
        EXPECT_NEAR(state->ice + state->liquid, condensed, 1e-9) << melted;
        EXPECT_EQ(state->enthalpy, h);
    }
    EXPECT_LT(*air.Temperature(low - 0.01, x), 0.01);
    EXPECT_GT(*air.Temperature(low + 1.02 * condensed * 0.3335, x), 0.01);
    EXPECT_EQ(air.Temperature(low + 0.5 * condensed * 0.3335, x), 0.01);
}

TEST_F(ExactAirTest, SearchesAreInverseInAirFogAndBeyondTheModel) {
    std::mt19937 random(5);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    int fog = 0, ice = 0, beyond = 0;
    for (int i = 0; i < 5000; ++i) {
        const double p = i % 5 == 0 ? between(0.2, 6) : between(0.6, 1.2);
        const double t = i % 7 == 0 ? between(60, 400) : between(-49, 60);
        const ExactAir air = At(p);
        const double most = std::min(air.SaturatedX(t).value_or(9000), 9000.0);
        const double x = std::min(most * between(0, i % 3 == 0 ? 3 : 1), 9999.0);
        const auto state = air.FromX(t, x);
        ASSERT_TRUE(state) << i;
        fog += state->liquid > 0 ? 1 : 0;
        ice += state->ice > 0 ? 1 : 0;
        beyond += t > 100 || p < 0.5 || p > 2 ? 1 : 0;
        const auto again = air.FromEnthalpy(state->enthalpy, x);
        ASSERT_TRUE(again) << i << ": " << t << ' ' << x << ' ' << p;
        EXPECT_NEAR(again->t, t, 2e-9) << i << ": " << x << ' ' << p;
        EXPECT_NEAR(again->liquid, state->liquid, 1e-6 * (1 + x)) << i;
        EXPECT_NEAR(again->ice, state->ice, 1e-6 * (1 + x)) << i;
        if (state->IsFog()) continue;
        const auto found = air.XFromEnthalpy(t, state->enthalpy);
        ASSERT_TRUE(found) << i << ": " << t << ' ' << x << ' ' << p;
        EXPECT_NEAR(*found, x, 1e-8 * (1 + x)) << i;
        EXPECT_NEAR(air.FromHumidity(state->fraction, t)->x, x, 1e-9 * (1 + x)) << i;
    }
    EXPECT_GT(fog, 200);
    EXPECT_GT(ice, 200);
    EXPECT_GT(beyond, 500);
}

TEST_F(ExactAirTest, WhatIsNoAirHasNoAnswer) {
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    const ExactAir air = At(1.013);
    for (const double bad : {-1e-9, -5.0, kNan, kInfinite}) {
        EXPECT_FALSE(air.FromX(20, bad)) << bad;
        EXPECT_FALSE(air.FromEnthalpy(50, bad)) << bad;
    }
    for (const double relF : {-0.01, 1.01, kNan}) EXPECT_FALSE(air.FromHumidity(relF, 20)) << relF;
    for (const double t : {-50.01, 800.01, kNan, kInfinite}) {
        EXPECT_FALSE(air.FromX(t, 5)) << t;
        EXPECT_FALSE(air.XFromEnthalpy(t, 50)) << t;
    }
    EXPECT_TRUE(air.FromX(-50, 5) && air.FromX(800, 5));
    for (const double h : {-1e4, 1e4, kNan, kInfinite}) EXPECT_FALSE(air.Temperature(h, 5)) << h;
    EXPECT_FALSE(air.XFromEnthalpy(20, 19)) << "drier than dry";
    EXPECT_FALSE(air.XFromEnthalpy(20, 60)) << "in the fog";
    EXPECT_FALSE(air.FromHumidity(1, 101)) << "boils";
    EXPECT_FALSE(air.DewPoint(*air.FromX(20, 0)));
    for (const double p : {-1.0, 9.0, kNan}) EXPECT_FALSE(At(p).FromX(20, 5)) << p;
    const DataFiles nowhere("/nowhere");
    StateSolver without(nowhere);
    EXPECT_FALSE(ExactAir(without).FromX(20, 5)) << "no coefficients";
}

}  // namespace
}  // namespace zandrell
