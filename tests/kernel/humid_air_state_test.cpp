#include "kernel/humid_air_state.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <utility>

#include "kernel/steam.h"
#include "kernel_support.h"
#include "plain_formulas.h"

namespace zandrell {
namespace {

using kernel_test::ExpectRelative;
using kernel_test::RealTables;

// Computed once from the published constants by an independent calculation. Enthalpies depend on
// the fit of the specific heats, others do not.
TEST(HumidAirState, IndependentlyComputedStates) {
    const struct {
        double relF, t, p, x, p_vapour, density, dry_density, h_air, h;
    } rows[] = {
        {0, 20, 1.013, 0, 0, 1.203863162, 1.203863162, 20.0857, 20.0857},
        {0.5, 20, 1.013, 7.264747888, 1169.542563, 1.200147971, 1.203863162, 20.0857, 38.5275},
        {1, 20, 1.013, 14.70120866, 2339.085126, 1.196344966, 1.203863162, 20.0857, 57.4001},
        {0.4, 32, 1.01325, 11.91667649, 1904.841673, 1.150950778, 1.156806757, 32.1454, 62.6605},
        {0.95, 12, 1.013, 8.289202848, 1332.299164, 1.233280009, 1.237638036, 12.0496, 32.9681},
        {1, -10, 1.013, 1.763842834, 286.463139, 1.340102817, 1.34110768, -10.0377, -5.6580},
        {0.9, -20, 1.013, 0.6947128846, 113.0210317, 1.393673067, 1.39408448, -20.0726, -18.3605},
        {0.3, 50, 0.9, 26.7729513, 3714.196526, 0.9592423416, 0.9702774269, 50.2493, 119.6984},
        {1, 60, 1.013, 153.2276143, 20023.17909, 0.9903679417, 1.059320084, 60.3159, 460.1923},
        {0.1, 90, 1.013, 46.86144817, 7097.530651, 0.9524636206, 0.9718091314, 90.5621, 215.6309},
        {0.02, 150, 1.013, 12.80550389, 2043.547356, 0.8294758947, 0.8340127285, 151.3337,
         186.9799},
        {0.6, 25, 0.795, 15.2465539, 1902.175241, 0.9229282528, 0.9289447692, 25.1097, 63.9525},
        {1, 35, 4.0, 8.884453587, 5633.266279, 4.505191158, 4.522258648, 35.1614, 57.9534},
    };
    for (const auto& row : rows) {
        const auto state = EvaluateState(RealTables(), row.relF, row.t, row.p);
        ASSERT_TRUE(state) << row.t;
        const std::string at = std::to_string(row.t) + " degC";
        ExpectRelative(state->ZustandX, row.x, 1e-9, at);
        ExpectRelative(state->ZustandPDampf, row.p_vapour, 1e-9, at);
        ExpectRelative(state->ZustandPLuft, row.p * 100000 - row.p_vapour, 1e-9, at);
        ExpectRelative(state->ZustandDichte, row.density, 1e-9, at);
        ExpectRelative(state->ZustandDichteTrocken, row.dry_density, 1e-9, at);
        EXPECT_NEAR(state->ZustandHLuft, row.h_air, 0.02) << at;
        EXPECT_NEAR(state->ZustandH, row.h, 0.02) << at;  // held above 60 degC too
    }
}

// Moist-air tables for 101.325 kPa (ASHRAE). They have the enhancement factor, so that our x is 0.3
// to 0.45 % lower at saturation; below 10 degC the last digit printed widens that to 0.6 %.
TEST(HumidAirState, PublishedMoistAirTables) {
    const struct {
        double t, x, lower_by_least, lower_by_most, h;
    } rows[] = {
        {0.01, 3.79, 0.002, 0.006, 0},     {10, 7.66, 0.0025, 0.005, 29.35},
        {20, 14.76, 0.003, 0.0045, 57.56}, {30, 27.33, 0.003, 0.0045, 100.01},
        {40, 49.14, 0.003, 0.0045, 0},
    };
    for (const auto& row : rows) {
        const auto state = EvaluateState(RealTables(), 1, row.t, 1.01325);
        ASSERT_TRUE(state);
        EXPECT_LT(state->ZustandX, row.x * (1 - row.lower_by_least)) << row.t;
        EXPECT_GT(state->ZustandX, row.x * (1 - row.lower_by_most)) << row.t;
        if (row.h == 0) continue;
        // The missing 0.45 % of x at most carries that part of h - h of dry air; 0.05 for digits.
        EXPECT_LT(state->ZustandH, row.h + 0.05) << row.t;
        EXPECT_GT(state->ZustandH, row.h - 0.0045 * (row.h - row.t) - 0.05) << row.t;
    }
}

TEST(HumidAirState, AgreesWithThePlainOrderOfOperations) {
    for (const double p : {0.3, 0.7, 1.013, 4.0, 8.5}) {
        const double boiling = SiedeTemperatur(RealTables(), p);
        for (double t = -50; t <= 800; t += t < 200 ? 2.3 : 31.7) {
            for (const double relF : {0.0, 0.003, 0.2, 0.55, 0.97, 1.0}) {
                const auto state = EvaluateState(RealTables(), relF, t, p);
                ASSERT_TRUE(state);
                const AirState plain = plain::State(RealTables(), relF, t, p, boiling);
                // Near boiling x and h hang on a small difference of two pressures.
                const double loss = p * 100000 / std::abs(plain.ZustandPLuft);
                const std::string at = std::to_string(t) + " " + std::to_string(relF);
                ExpectRelative(state->ZustandX, plain.ZustandX, 1e-12 * loss, at);
                EXPECT_NEAR(state->ZustandHLuft, plain.ZustandHLuft, 1e-12 * (std::abs(t) + 1));
                EXPECT_NEAR(state->ZustandH, plain.ZustandH,
                            1e-12 * (std::abs(t) + 1 + 2.6 * std::abs(plain.ZustandX) * loss))
                    << at;
                ExpectRelative(state->ZustandPLuft, plain.ZustandPLuft, 1e-12 * loss, at);
                ExpectRelative(state->ZustandPDampf, plain.ZustandPDampf, 1e-12, at);
                ExpectRelative(state->ZustandDichteTrocken, plain.ZustandDichteTrocken, 1e-12, at);
                EXPECT_NEAR(state->ZustandDichte, plain.ZustandDichte,
                            1e-12 * (1 + std::abs(plain.ZustandX / 1000) * loss) *
                                plain.ZustandDichteTrocken)
                    << at;
            }
        }
    }
}

TEST(HumidAirState, ClampsAndLimits) {
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInf = std::numeric_limits<double>::infinity();
    const struct {
        double relF, t, p, clamped_relF, clamped_p;
        bool answered;
    } rows[] = {
        {-0.2, 20, 1.013, 0.01, 1.013, true}, {1.3, 20, 1.013, 1, 1.013, true},
        {0, 20, 1.013, 0, 1.013, true},       {-0.0, 20, 1.013, 0, 1.013, true},
        {0.5, 20, 0, 0.5, 1.01, true},        {0.5, 20, -0.0, 0.5, 1.01, true},
        {-kInf, 20, 8.5, 0.01, 8.5, true},    {kInf, 20, 8.5, 1, 8.5, true},
        {0.5, -50, 1, 0.5, 1, true},          {0.5, 800, 1, 0.5, 1, true},
        {0.5, -50.001, 1, 0.5, 1, false},     {0.5, 800.001, 1, 0.5, 1, false},
        {0.5, 20, 8.501, 0.5, 8.501, false},  {0.5, 20, -0.001, 0.5, -0.001, false},
        {0.5, kNan, 1, 0.5, 1, false},        {0.5, kInf, 1, 0.5, 1, false},
        {-1, 900, 0, 0.01, 1.01, false},
    };
    for (const auto& row : rows) {
        double relF = row.relF, p = row.p;
        ClampArguments(relF, p);
        EXPECT_EQ(relF, row.clamped_relF) << row.relF;
        EXPECT_EQ(p, row.clamped_p) << row.p;
        EXPECT_EQ(WithinLimits(relF, row.t, p), row.answered) << row.relF << " " << row.t;
        const auto state = EvaluateState(RealTables(), row.relF, row.t, row.p);
        EXPECT_EQ(state.has_value(), row.answered) << row.relF << " " << row.t;
        if (!state) continue;
        const auto same = EvaluateState(RealTables(), relF, row.t, p);
        EXPECT_EQ(state->ZustandH, same->ZustandH);
    }
    for (const auto& [relF, p] : {std::pair{kNan, 1.0}, {0.5, kNan}}) {
        EXPECT_FALSE(EvaluateState(RealTables(), relF, 20, p));
    }
    EXPECT_FALSE(EvaluateState(WaterAirTables{}, 0.5, 20, 1));
}

TEST(HumidAirState, DryAirIsExact) {
    const auto state = EvaluateState(RealTables(), 0, 37, 1.013);
    ASSERT_TRUE(state);
    EXPECT_EQ(state->ZustandX, 0);
    EXPECT_EQ(state->ZustandPDampf, 0);
    EXPECT_EQ(state->ZustandH, state->ZustandHLuft);
    EXPECT_EQ(state->ZustandDichte, state->ZustandDichteTrocken);
}

// Below 611 Pa the vapour's enthalpy is the latent heat with the integral of cp, from there on that
// of the steam table: 2501.6 + 1.860 * 20 = 2538.8 against the steam table's 2538.2 at 20 degC.
TEST(HumidAirState, VapourEnthalpyChangesItsSourceAt611Pascal) {
    const double p_saturated = EvaluateState(RealTables(), 1, 20, 1.013)->ZustandPDampf;
    const struct {
        double p_vapour, vapour_enthalpy;
    } rows[] = {{610.999, 2538.83}, {611.001, 2538.5}};
    double step[2] = {};
    for (std::size_t i = 0; i < 2; ++i) {
        const auto state = EvaluateState(RealTables(), rows[i].p_vapour / p_saturated, 20, 1.013);
        ASSERT_TRUE(state);
        step[i] = 1000 * (state->ZustandH - state->ZustandHLuft) / state->ZustandX;
    }
    EXPECT_NEAR(step[0], 2501.6 + 1.862 * 20, 0.05);
    ExpectRelative(step[1], plain::Enthalpy(RealTables(), 293.15, 0.00611001), 1e-9, "steam table");
    EXPECT_GT(std::abs(step[0] - step[1]), 0.01);
}

// Above boiling humidity refers to steam at the total pressure: at relF 1 no air is left, at 0.5
// the ideal-gas pressure of half the steam's density remains.
TEST(HumidAirState, AboveBoiling) {
    const auto pure = EvaluateState(RealTables(), 1, 150, 1.013);
    ASSERT_TRUE(pure);
    EXPECT_NEAR(pure->ZustandPDampf, 101300, 1500);
    EXPECT_NEAR(pure->SiedeTempK, 373.14, 0.01);
    EXPECT_LT(pure->ZustandPLuft, 0) << "real steam is denser than the ideal gas";
    EXPECT_LT(pure->ZustandX, 0);
    const auto half = EvaluateState(RealTables(), 0.5, 150, 1.013);
    // Steam tables: v(150 degC, 1.013 bar) = 1.912 m3/kg; pD = 0.5 * 461.5 * 423.15 / 1.912.
    EXPECT_NEAR(half->ZustandPDampf, 0.5 * 461.5 * 423.15 / 1.912, 30);
}

// Steam as an ideal gas and a boiling temperature near 0 K: above it the vapour takes the whole
// pressure, and where no rounding is left the air's pressure is 0. x then stays at its start.
TEST(HumidAirState, WithoutAirPressureHumidityStaysZero) {
    WaterAirTables c;
    c.KSatt[1] = 1e-9;
    c.KSatt[9] = 1e300;
    c.KSatt[10] = 100;
    c.IdealI1 = 1;
    c.RefDruck = 1;
    c.RefTemp = 1;
    c.RefVolumen = 461.5;
    c.LGrenz[0] = 1e30;
    int met = 0;
    for (double t = 0; t <= 100; ++t) {
        const auto state = EvaluateState(c, 1, t, 1);
        if (!state || state->ZustandPLuft != 0) continue;
        ++met;
        EXPECT_EQ(state->ZustandX, 0);
        EXPECT_EQ(state->ZustandDichte, state->ZustandDichteTrocken);
    }
    EXPECT_GT(met, 0);
}

TEST(HumidAirState, ShortAndSenselessTablesGiveNumbersOrNothing) {
    std::mt19937 random(611);
    std::uniform_real_distribution<double> exponent(-40, 40);
    int answered = 0, refused = 0;
    for (int count = 0; count <= 2 * kCoefficientCount; ++count) {
        std::string text = kernel_test::FirstNumbers(std::min(count, kCoefficientCount));
        if (count > kCoefficientCount) {
            text.clear();
            for (int i = 0; i < kCoefficientCount; ++i) {
                text += std::to_string(std::pow(10, exponent(random))) + ",";
            }
        }
        const WaterAirTables tables = ReadWaterAirTables(text);
        for (const double t : {-50.0, 0.0, 20.0, 150.0, 800.0}) {
            const auto state = EvaluateState(tables, 0.5, t, 1.013);
            ++(state ? answered : refused);
            if (!state) continue;
            for (const double field :
                 {state->ZustandX, state->ZustandH, state->ZustandHLuft, state->ZustandPLuft,
                  state->ZustandPDampf, state->ZustandDichte, state->ZustandDichteTrocken,
                  state->SiedeTempK}) {
                EXPECT_TRUE(std::isfinite(field)) << count << " " << t;
            }
        }
    }
    EXPECT_GT(refused, 0);
    EXPECT_GT(answered, 0);
}

}  // namespace
}  // namespace zandrell
