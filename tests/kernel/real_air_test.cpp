#include "kernel/real_air.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>

namespace zandrell {
namespace {

// Every state of the reference, those with more than half vapour too, to a tenth of what the model
// promises, but for dew points below the fits' range.
TEST(RealAir, MeetsTheReferenceStates) {
    std::ifstream file(std::string(ZANDRELL_SOURCE) + "/tests/kernel/real_air_states.csv");
    int states = 0, dew_points = 0;
    for (std::string line; std::getline(file, line);) {
        double t, rh, p, x, h, v, rho, p_vapour, t_dew, f;
        for (char& c : line) c = c == ',' ? ' ' : c;
        std::istringstream cells(line);
        if (!(cells >> t >> rh >> p >> x >> h >> v >> rho >> p_vapour)) continue;  // heading
        const auto state = EvaluateRealAir(rh / 100, t, p / 1e5);
        ASSERT_TRUE(state) << line;
        ++states;
        EXPECT_NEAR(state->x, x, 5e-5 * x) << line;
        EXPECT_NEAR(state->enthalpy, h, 0.01) << line;
        EXPECT_NEAR(state->volume, v, 5e-5 * v) << line;
        EXPECT_NEAR(state->density, rho, 5e-5 * rho) << line;
        EXPECT_NEAR(state->vapour_pressure, p_vapour, 5e-5 * p_vapour) << line;
        if (rh == 0) continue;
        ASSERT_TRUE(cells >> t_dew >> f) << line;
        EXPECT_NEAR(state->enhancement, f, 1e-5) << line;
        const auto found = RealDewPoint(p_vapour, p / 1e5);
        ASSERT_TRUE(found) << line;
        ++dew_points;
        const double tolerance = t_dew < -60 ? 0.01 : 0.001;
        EXPECT_NEAR(*found, t_dew, tolerance) << line;
    }
    EXPECT_EQ(states, 1581);
    EXPECT_GT(dew_points, 1300);
}

// ASHRAE Handbook of Fundamentals 2017, chapter 1, tables 2 and 3: saturated air at 101.325 kPa,
// and the saturation pressure.
TEST(RealAir, MeetsThePublishedTables) {
    const struct {
        double t, x, h;
    } air[] = {{-50, 0.0243, -50.222}, {-20, 0.6373, -18.542}, {-5, 2.4863, 1.164},
               {5, 5.425, 18.639},     {25, 20.173, 76.504},   {50, 86.863, 275.353},
               {85, 838.105, 2307.539}};
    for (const auto& row : air) {
        const auto state = EvaluateRealAir(1, row.t, 1.01325);
        ASSERT_TRUE(state) << row.t;
        EXPECT_NEAR(state->x, row.x, 0.0005 + 1e-6 * row.x) << row.t;
        EXPECT_NEAR(state->enthalpy, row.h, 0.001 + 1e-5 * row.h) << row.t;
    }
    const struct {
        double t, p;
    } saturation[] = {{-60, 1.08},     {-20, 103.24}, {-5, 401.74},
                      {0.01, 611.657}, {25, 3169.7},  {100, 101418}};
    for (const auto& row : saturation) {
        EXPECT_NEAR(RealSaturationPressure(row.t), row.p, 0.006 + 2e-5 * row.p) << row.t;
    }
    // IAPWS-IF97, table 36.
    const struct {
        double p_bar, T;
    } boiling[] = {{1, 372.755919}, {10, 453.035632}, {100, 584.149488}};
    for (const auto& row : boiling) {
        const auto t = RealBoilingTemperature(row.p_bar);
        EXPECT_NEAR(t.value_or(0) + 273.15, row.T, 1e-6) << row.p_bar;
        EXPECT_NEAR(RealSaturationPressure(*t), 1e5 * row.p_bar, 1e-3 * row.p_bar) << row.p_bar;
    }
    for (const double p_bar : {0.006, 221.0, std::nan("")}) {
        EXPECT_FALSE(RealBoilingTemperature(p_bar)) << p_bar;
    }
    EXPECT_NEAR(EvaluateRealAir(0, 25, 1.01325)->volume, 0.8443, 0.0001);
    EXPECT_NEAR(EvaluateRealAir(0, 0, 1.01325)->enthalpy, 0, 0.0005);
}

TEST(RealAir, SaysWhereItsModelEnds) {
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        double relF, t, p;
        bool answered;
    } states[] = {
        {0.5, -60, 1, true},     {0.5, -60.01, 1, false}, {0.5, 100, 1.5, true},
        {0.5, 100.01, 1, false}, {0.5, 20, 0.5, true},    {0.5, 20, 0.49, false},
        {0.5, 20, 2, true},      {0.5, 20, 2.01, false},  {-0.01, 20, 1, false},
        {1.01, 20, 1, false},    {kNan, 20, 1, false},    {0.5, kNan, 1, false},
        {0.5, 20, kNan, false},  {1, 100, 1, false},      {0.9, 100, 1, true},
    };
    for (const auto& row : states) {
        EXPECT_EQ(EvaluateRealAir(row.relF, row.t, row.p).has_value(), row.answered)
            << row.relF << " " << row.t << " " << row.p;
    }
    const struct {
        double p_vapour, p_bar;
        bool answered;
    } dew_points[] = {{0, 1, false},       {-5, 1, false},     {0.001, 1, false}, {0.0015, 1, true},
                      {101000, 1.5, true}, {110000, 2, false}, {1e300, 1, false}, {kNan, 1, false},
                      {1000, 0.4, false},  {1000, kNan, false}};
    for (const auto& row : dew_points) {
        const auto found = RealDewPoint(row.p_vapour, row.p_bar);
        EXPECT_EQ(found.has_value(), row.answered) << row.p_vapour << " " << row.p_bar;
        EXPECT_TRUE(!found || std::isfinite(*found));
    }
}

TEST(RealAir, AnArrayHasTheSameStates) {
    const std::array<double, 3> relF{0.2, 0.9, 2}, t{-20, 30, 20}, p{0.9, 1.5, 1};
    std::array<std::optional<RealAirState>, 3> states;
    EvaluateRealAirs(relF, t, p, states);
    EXPECT_EQ(states[1]->x, EvaluateRealAir(0.9, 30, 1.5)->x);
    EXPECT_FALSE(states[2]);
    EvaluateRealAirs(relF, t, std::span(p).first(1), states);
    EXPECT_EQ(states[1]->density, EvaluateRealAir(0.9, 30, 0.9)->density);
}

// At saturation the dew point is the temperature itself, on either side of the triple point.
TEST(RealAir, DewPointIsTheTemperatureAtSaturation) {
    for (const double p : {0.5, 1.01325, 2.0}) {
        for (double t = -60; t <= 80; t += 0.37) {
            const auto state = EvaluateRealAir(1, t, p);
            if (!state) break;  // close to boiling
            const auto found = RealDewPoint(state->vapour_pressure, p);
            ASSERT_TRUE(found) << t;
            EXPECT_NEAR(*found, t, 1e-8) << t << " " << p;
        }
        // Just above the triple point the frost point is one too, a little lower.
        for (const double t : {0.01, 0.010001, 0.0105, 0.012, 0.02}) {
            const auto found = RealDewPoint(EvaluateRealAir(1, t, p)->vapour_pressure, p);
            ASSERT_TRUE(found) << t;
            EXPECT_LE(*found, t + 1e-8) << p;
            EXPECT_NEAR(*found, t, t == 0.01 || t == 0.02 ? 1e-8 : 0.0027) << p;
        }
    }
}

}  // namespace
}  // namespace zandrell
