#include "kernel/real_air_pair.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>
#include <string>

#include "kernel/real_air_wet_bulb.h"

namespace zandrell {
namespace {

using enum AirFigure;

constexpr AirFigure kFigures[] = {Temperature, RelativeHumidity, HumidityRatio,  Enthalpy,
                                  DewPoint,    WetBulb,          VapourPressure, Density};

// An independent calculation of the same model has them; the second column where an iced and a wet
// bulb are both solutions.
TEST(RealWetBulb, MeetsTheReferenceStates) {
    std::ifstream file(std::string(ZANDRELL_SOURCE) + "/tests/kernel/real_air_wet_bulbs.csv");
    int bulbs = 0, both = 0;
    for (std::string line; std::getline(file, line);) {
        double t, rh, p, t_wet, other;
        for (char& c : line) c = c == ',' ? ' ' : c;
        std::istringstream cells(line);
        if (!(cells >> t >> rh >> p >> t_wet)) continue;
        const auto state = EvaluateRealAir(rh / 100, t, p / 1e5);
        ASSERT_TRUE(state) << line;
        const auto bulb = RealWetBulb(t, state->x, state->enthalpy, p / 1e5);
        if (cells >> other) {
            ++both;
            ASSERT_TRUE(bulb && bulb->liquid) << line;
            EXPECT_NEAR(bulb->t, std::min(t_wet, other), 0.005) << line;
            EXPECT_NEAR(*bulb->liquid, std::max(t_wet, other), 0.005) << line;
            continue;
        }
        ASSERT_TRUE(bulb) << line;
        ++bulbs;
        EXPECT_NEAR(bulb->t, t_wet, 0.005) << line;
    }
    EXPECT_GT(bulbs, 1400);
    EXPECT_EQ(both, 7);
}

// Steam tables (IAPWS-IF97) have 83.91 and 209.34 kJ/kg at saturation, and 0.1 more at 1 bar; ice
// melts at 333.44 kJ/kg (IAPWS R10-06).
TEST(RealWetBulb, CondensedWaterByTheTables) {
    EXPECT_NEAR(CondensedEnthalpy(20, 1.01325), 84.01, 0.03);
    EXPECT_NEAR(CondensedEnthalpy(50, 1.01325), 209.42, 0.03);
    EXPECT_NEAR(CondensedEnthalpy(0.01, 1.01325), -333.34, 0.2);
}

bool TellsVapourAlone(AirFigure figure) {
    return figure == HumidityRatio || figure == DewPoint || figure == VapourPressure;
}

// Dry and saturated air, and air where ice melts, are among the states.
TEST(RealAirPair, EveryPairLeadsBackToItsFigures) {
    std::mt19937 random(15);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    int closed = 0, twice = 0;
    for (int i = 0; i < 20000; ++i) {
        const AirFigure one = kFigures[i % 8], two = kFigures[i / 8 % 8];
        RealAirPoint point{between(-50, 90), between(0.01, 1)};
        if (i % 5 == 0) point.t = between(-0.1, 0.6);
        if (i % 15 == 0) point.t = between(0.005, 0.015);
        if (i % 7 < 2) point.relF = i % 7;
        const double p = between(0.6, 1.9);
        const auto first = FigureOf(one, point, p), second = FigureOf(two, point, p);
        if (!first || !second || one == two) continue;
        if (TellsVapourAlone(one) && TellsVapourAlone(two)) continue;
        const auto answer = RealAirFromPair({one, *first}, {two, *second}, p);
        const std::string where = std::to_string(i % 8) + " " + std::to_string(i / 8 % 8) + " " +
                                  std::to_string(point.t) + " " + std::to_string(point.relF) + " " +
                                  std::to_string(p);
        const bool humidity = one == RelativeHumidity || two == RelativeHumidity;
        if (point.relF == 0 && humidity && (TellsVapourAlone(one) || TellsVapourAlone(two))) {
            EXPECT_EQ(answer.end, PairEnd::NotIndependent) << where;
            continue;
        }
        ASSERT_EQ(answer.end, PairEnd::Found) << where;
        ++closed;
        if (answer.warmer) ++twice;
        const auto away = [&](const RealAirPoint& found) {
            return std::abs(found.t - point.t) + std::abs(found.relF - point.relF);
        };
        EXPECT_LT(std::min(away(*answer.point), away(answer.warmer.value_or(*answer.point))), 1e-6)
            << where;
        for (const auto& found : {answer.point, answer.warmer}) {
            if (!found) continue;
            for (const auto& [figure, value] : {std::pair{one, *first}, {two, *second}}) {
                const auto again = FigureOf(figure, *found, p);
                ASSERT_TRUE(again) << where;
                EXPECT_NEAR(*again, value, 1e-8 * std::max(1.0, std::abs(value))) << where;
            }
        }
    }
    EXPECT_GT(closed, 13000);
    EXPECT_GT(twice, 10);
}

// Saturated air of 25 degC holds 20.17 g/kg. Dry air of 25 degC cools at a wet bulb to where it
// takes up (25.15 - 8.3) / 2.48 = 6.8 g/kg, which saturates 8.2 degC; air with a wet bulb of 26
// degC and its 21.4 g/kg has 26 + 21.4 * 2.44 = 78 degC when it is dry.
TEST(RealAirPair, SaysWhatContradictsItself) {
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        GivenFigure first, second;
        PairEnd end;
        double least, most;  // of the figure at fault
    } rows[] = {
        {{Temperature, 25}, {WetBulb, 26}, PairEnd::Contradicting, 8.24, 25},
        {{Temperature, 25}, {DewPoint, 25.5}, PairEnd::Contradicting, -100, 25},
        {{Temperature, 25}, {HumidityRatio, -1}, PairEnd::SecondOutside, 0, 10000},
        {{Temperature, 25}, {HumidityRatio, 21}, PairEnd::Contradicting, 0, 20.17},
        {{WetBulb, 26}, {Temperature, 25}, PairEnd::Contradicting, 26, 77.9},
        {{Temperature, 25}, {RelativeHumidity, 1.2}, PairEnd::SecondOutside, 0, 1},
        {{Temperature, 101}, {Enthalpy, 50}, PairEnd::FirstOutside, -60, 100},
        {{HumidityRatio, 5}, {DewPoint, 4}, PairEnd::NotIndependent, 0, 0},
        {{Enthalpy, 50}, {Enthalpy, 50}, PairEnd::NotIndependent, 0, 0},
        {{Temperature, kNan}, {Enthalpy, 50}, PairEnd::FirstOutside, -60, 100},
        {{Temperature, 20}, {Enthalpy, kNan}, PairEnd::SecondOutside, -1e300, 1e300},
        {{Enthalpy, 50}, {Density, 3}, PairEnd::Contradicting, 1.0, 1.3},
        {{RelativeHumidity, 0}, {DewPoint, 5}, PairEnd::DryAir, 0, 0},
        {{RelativeHumidity, 0}, {HumidityRatio, 0}, PairEnd::NotIndependent, 0, 0},
        {{VapourPressure, 0}, {RelativeHumidity, 0}, PairEnd::NotIndependent, 0, 0},
    };
    for (const auto& row : rows) {
        const auto answer = RealAirFromPair(row.first, row.second, 1.01325);
        EXPECT_EQ(answer.end, row.end) << row.first.value << " " << row.second.value;
        EXPECT_FALSE(answer.point);
        if (row.most > 1e299 || row.first.figure == Enthalpy) continue;
        EXPECT_NEAR(answer.least, row.least, 0.6) << row.first.value << " " << row.second.value;
        EXPECT_NEAR(answer.most, row.most, 0.6) << row.first.value << " " << row.second.value;
    }
    EXPECT_EQ(RealAirFromPair({Temperature, 20}, {Enthalpy, 40}, 3).end, PairEnd::OutsideModel);
    // By the tables of saturated air (15 degC: 42.113 kJ/kg, 10.69 g/kg; 16 degC: 44.963, 11.41)
    // 43 kJ/kg saturates 15.31 degC, and less the water of a bulb, 4.19 kJ/(kg K), 15.57 degC.
    const auto bulb = RealAirFromPair({Enthalpy, 43}, {WetBulb, 20}, 1.01325);
    EXPECT_EQ(bulb.end, PairEnd::Contradicting);
    EXPECT_NEAR(bulb.least, 15.31, 0.02);
    EXPECT_NEAR(bulb.most, 15.57, 0.02);
}

// To the last digit, so that what a screen cuts shows it and a pair takes it.
TEST(RealAirPair, SaturatedAirIsItsOwnDewPointAndWetBulb) {
    for (const double t : {-40.0, -10.0, 0.0, 0.01, 1.0, 7.0, 20.0, 32.0, 38.0, 60.0}) {
        for (const double p : {0.7, 1.013, 1.9}) {
            for (const AirFigure figure : {DewPoint, WetBulb}) {
                EXPECT_EQ(FigureOf(figure, {t, 1}, p), t) << p;
                EXPECT_LE(*FigureOf(figure, {t, 1 - 1e-14}, p), t) << p;
                const auto answer = RealAirFromPair({Temperature, t}, {figure, t}, p);
                ASSERT_TRUE(answer.point) << t << " " << p;
                EXPECT_NEAR(answer.point->relF, 1, 1e-9);
            }
        }
    }
}

// Water dissolves air and ice does not: as ice melts saturated air loses some 0.02 % of its vapour,
// and a little above 0.01 degC it holds once more what it held at 0.0095.
TEST(RealAirPair, TellsBothStatesWhereIceMelts) {
    const double x = *FigureOf(HumidityRatio, {0.0095, 1}, 1.01325);
    const auto answer = RealAirFromPair({RelativeHumidity, 1}, {HumidityRatio, x}, 1.01325);
    ASSERT_TRUE(answer.point && answer.warmer);
    EXPECT_NEAR(answer.point->t, 0.0095, 1e-9);
    EXPECT_GT(answer.warmer->t, 0.01);
    EXPECT_LT(answer.warmer->t, 0.0126);
    EXPECT_NEAR(*FigureOf(HumidityRatio, *answer.warmer, 1.01325), x, 1e-9);
    EXPECT_FALSE(RealAirFromPair({RelativeHumidity, 1}, {HumidityRatio, 3.7}, 1.01325).warmer);
    EXPECT_FALSE(RealAirFromPair({RelativeHumidity, 0}, {Enthalpy, 0.01006}, 1.01325).warmer);
}

}  // namespace
}  // namespace zandrell
