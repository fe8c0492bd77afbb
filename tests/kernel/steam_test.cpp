#include "kernel/steam.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <utility>

#include "kernel/humid_air_state.h"
#include "kernel_support.h"
#include "plain_formulas.h"

namespace zandrell {
namespace {

using kernel_test::ExpectRelative;
using kernel_test::RealTables;

// Steam tables of the 1967 formulation (VDI and ASME editions); tolerances are half the last digit
// that they print. Saturated steam is taken at its unrounded pressure.
TEST(Steam, PublishedSteamTables) {
    const struct {
        double t, p_bar, p_tolerance, v, v_tolerance, h;
    } rows[] = {
        {0.01, 0.006112, 5e-7, 206.2, 0.05, 2501.6}, {20, 0.02337, 5e-6, 57.84, 0.005, 2538.2},
        {50, 0.12335, 5e-6, 12.05, 0.005, 2592.2},   {100, 1.01325, 5e-6, 1.673, 0.0005, 2676.0},
        {150, 4.760, 5e-4, 0.3924, 0.00005, 2745.4}, {200, 1, 0, 2.172, 0.0005, 2875.4},
        {300, 5, 0, 0.5226, 0.00005, 3064.8},        {500, 1, 0, 3.565, 0.0005, 3488.1},
    };
    for (const auto& row : rows) {
        const double T = row.t + 273.15;
        double p_bar = row.p_bar;
        if (row.p_tolerance > 0) {
            p_bar = SaettigungsDruck(RealTables(), T / 647.3, kPressureInBar);
            EXPECT_NEAR(p_bar, row.p_bar, row.p_tolerance) << row.t;
        }
        EXPECT_NEAR(DampfVolumen(RealTables(), T, p_bar), row.v, row.v_tolerance) << row.t;
        EXPECT_NEAR(DampfEnthalpie(RealTables(), T, p_bar), row.h, 0.05) << row.t;
    }
}

// At high pressure the enthalpy is the published one, while the volume is off by exactly the sum
// over mu = 6..8 that it leaves out. 350 degC and 100 bar: v 0.02242, h 2925.8 (VDI edition).
TEST(Steam, VolumeLacksTheFractionsAtHighPressure) {
    const double T = 623.15, p_bar = 100;
    EXPECT_NEAR(DampfEnthalpie(RealTables(), T, p_bar), 2925.8, 0.1);
    EXPECT_NEAR(plain::Volume(RealTables(), T, p_bar, true), 0.02242, 0.000005);
    const double volume = DampfVolumen(RealTables(), T, p_bar);
    ExpectRelative(volume, plain::Volume(RealTables(), T, p_bar, false), 1e-12, "without the sum");
    EXPECT_GT(std::abs(volume - 0.02242), 0.00003) << "the sum must not enter";
    // At the pressures of humid air nothing is to be seen of it.
    ExpectRelative(DampfVolumen(RealTables(), 446, 8.5),
                   plain::Volume(RealTables(), 446, 8.5, true), 1e-5, "8.5 bar");
}

// Boiling line as printed in the same tables, degC.
TEST(Steam, PublishedBoilingLine) {
    const struct {
        double p_bar, t, tolerance;
    } rows[] = {
        {0.006112, 0.01, 0.01}, {0.02337, 20, 0.005},  {0.12335, 50, 0.005},
        {1, 99.63, 0.005},      {1.01325, 100, 0.002}, {2, 120.23, 0.005},
        {4.760, 150, 0.005},    {5, 151.84, 0.005},    {8, 170.41, 0.005},
    };
    for (const auto& row : rows) {
        const double T = SiedeTemperatur(RealTables(), row.p_bar);
        EXPECT_NEAR(T - kKelvinOffset, row.t, row.tolerance) << row.p_bar;
        ExpectRelative(SaettigungsDruck(RealTables(), T / RealTables().RefTemp, kPressureInBar),
                       row.p_bar, 1e-9, "back to the pressure");
    }
}

TEST(Steam, SaturationPressureByModus) {
    const double theta = 373.15 / 647.3;
    const double reduced = SaettigungsDruck(RealTables(), theta, 1);
    EXPECT_NEAR(SaettigungsDruck(RealTables(), theta, 2), 1.01325, 0.00001);
    for (const int modus : {2, 0, -7, 99}) {
        ExpectRelative(SaettigungsDruck(RealTables(), theta, modus), reduced * 221.2, 1e-15, "bar");
    }
}

// A flat saturation line: the residual does not change, so the first round keeps the upper start
// point. 1 / theta0 = 2 and RefTemp 600 K make theta0 300 K, and the result 1.5 K more.
TEST(Steam, FlatSaturationLineStopsInTheFirstRound) {
    WaterAirTables c;
    c.KSatt[9] = 1e300;
    c.KSatt[10] = 2;
    c.RefTemp = 600;
    c.RefDruck = 100000;
    EXPECT_DOUBLE_EQ(SiedeTemperatur(c, 1), 301.5);
}

TEST(Steam, BoilingTemperatureEndsForAnything) {
    std::mt19937 random(1967);
    std::uniform_real_distribution<double> exponent(-300, 300);
    WaterAirTables garbage;
    for (int i = 0; i < 2000; ++i) {
        for (double& k : garbage.KSatt) k = std::pow(10, exponent(random)) * (i % 2 == 0 ? 1 : -1);
        garbage.RefTemp = i % 5 == 0 ? 0 : std::pow(10, exponent(random) / 100);
        garbage.RefDruck = i % 7 == 0 ? 0 : 22120000;
        EXPECT_TRUE(std::isfinite(SiedeTemperatur(garbage, 1.013))) << i;
    }
    for (double p_bar = 1e-300; p_bar <= 8.5; p_bar *= 7) {
        EXPECT_TRUE(std::isfinite(SiedeTemperatur(RealTables(), p_bar))) << p_bar;
    }
}

// beta-L is 1000 and beta 1, so the quotient is exactly 0.001; the coefficient 1E+30 undoes the
// tenth power. Volume: 11 * 1E-30 * 1E+30 = 11. Enthalpy: 1E-30 * 1E+30 * (1 + 2 * 10 * 50 / 1000)
// = 2, times RefDruck * RefVolumen / 1000 = 100. A boundary a little higher takes the term away.
TEST(Steam, BoundaryTermBeginsAtAThousandth) {
    WaterAirTables c;
    c.RefTemp = 300;
    c.RefDruck = 100000;
    c.RefVolumen = 1;
    c.BWasser[9][0] = 1e30;
    c.LGrenz = {900, 50, 0};
    const double T = 600;  // theta 2
    ExpectRelative(DampfVolumen(c, T, 1), 11, 1e-14, "at 0.001");
    ExpectRelative(DampfEnthalpie(c, T, 1), 200, 1e-14, "at 0.001");
    c.LGrenz[0] = std::nextafter(900.0, 901) + 1e-12;
    EXPECT_EQ(DampfVolumen(c, T, 1), 0);
    EXPECT_EQ(DampfEnthalpie(c, T, 1), 0);
}

// The kernel's arrangement gives the plain sums: with the real coefficients; with a boundary term
// so large that it counts at these pressures; and with exponents that std::pow has to serve.
TEST(Steam, AgreesWithThePlainSums) {
    WaterAirTables boundary = RealTables(), powers = RealTables();
    for (double& B : boundary.BWasser[9]) B *= 1e14;
    for (std::size_t mu = 1; mu <= 8; ++mu) powers.ExpZ[mu][2] += 0.37;
    PlanExponents(powers);
    ASSERT_FALSE(powers.plan.whole_exponents);
    // The coefficients of the boundary term nearly cancel, which costs three digits.
    for (const WaterAirTables* c :
         {&RealTables(), &std::as_const(boundary), &std::as_const(powers)}) {
        for (double t = -50; t <= 800; t += 12.5) {
            for (const double p_bar : {1e-5, 0.006, 0.7, 1.013, 4.0, 8.5}) {
                const double T = t + 273.15;
                // Where supercooled steam has no volume left the terms cancel.
                const double ideal =
                    c->IdealI1 * c->RefVolumen * T / c->RefTemp * c->RefDruck / (p_bar * 100000);
                const double v = plain::Volume(*c, T, p_bar);
                if (!(v > 0.01 * ideal && v < 100 * ideal)) continue;
                const std::string where = std::to_string(t) + " " + std::to_string(p_bar);
                const double tolerance = c == &boundary ? 1e-10 : 1e-12;
                ExpectRelative(DampfVolumen(*c, T, p_bar), v, tolerance, where);
                ExpectRelative(DampfEnthalpie(*c, T, p_bar), plain::Enthalpy(*c, T, p_bar),
                               tolerance, where);
            }
        }
    }
}

// The pressure found for the volume of steam at a pressure is that pressure.
TEST(Steam, EquationOfStatePressureInvertsTheVolume) {
    for (const double t : {20.0, 60.0, 100.0, 180.0, 500.0, 800.0}) {
        for (const double p_bar : {0.00611, 0.02, 0.199, 1.0, 8.5}) {
            const double T = t + 273.15;
            if (p_bar > SaettigungsDruck(RealTables(), T / 647.3, kPressureInBar)) continue;
            const double volume = DampfVolumen(RealTables(), T, p_bar);
            ExpectRelative(EquationOfStatePressure(RealTables(), T, volume), p_bar, 1e-6,
                           std::to_string(t));
        }
    }
}

// Thin steam is an ideal gas, where residuals at pA = 0.9 pE and pB = 1.1 pE are 1/0.9 - 1 = 0.1111
// and, 1000 times larger, 1000 (1/1.1 - 1) = -90.909. The first step then leads to
// (1.1 - 0.2 * 90.909 / 91.020) pE = 0.90024 pE. The search ends when pA and pB are closer than
// 1E-06 bar, which these two starting pressures bring about before and after that step.
TEST(Steam, EquationOfStatePressureMixesItsFirstResiduals) {
    const double T = 300;
    const struct { double start_bar, quotient; } rows[] = {{4e-6, 1.1}, {5.003e-6, 0.90024}};
    for (const auto& row : rows) {
        const double volume = 461.5 * T / (row.start_bar * 100000);
        ExpectRelative(EquationOfStatePressure(RealTables(), T, volume) / row.start_bar,
                       row.quotient, 1e-4, "pE");
    }
}

}  // namespace
}  // namespace zandrell
