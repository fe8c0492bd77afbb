#include "processes/plant.h"

#include "hand_air.h"
#include "process_window.h"

namespace zandrell {
namespace {

PlantInputs Summer() {
    PlantInputs inputs;
    inputs.V = 10000;
    inputs.r = 1;
    inputs.tAb = 26, inputs.phiAb = 50;
    inputs.tAus = 32, inputs.phiAus = 40;
    inputs.tZu = 18, inputs.phiZu = 75;
    inputs.tKA = 12, inputs.phiKa = 95;
    inputs.dt1 = inputs.dt2 = 1;
    inputs.steam = true;
    return inputs;
}

// Exhaust 26 degC, 50 %: 10.49 g/kg, 52.9 kJ/kg. The plant's dry-air flow V * rho * (1 - x / 1000)
// = 11621 kg/h; the dry air that 10000 m3 really hold is 11601 kg, 0.17 % less, since x counts on
// dry air. Behind the fan (27 degC) the enthalpy comes out 0.5 kJ/kg below that of 10.49 g/kg.
TEST(Plant, MixingByHand) {
    ProcessWindow window;
    const auto mixing = MixingOf(window.solver, Summer());
    ASSERT_TRUE(mixing);
    const double xAb = hand::X(0.5, 26), xAus = hand::X(0.4, 32);
    EXPECT_NEAR(mixing->exhaust.x, xAb, 0.02);
    EXPECT_NEAR(mixing->exhaust.h, hand::H(26, xAb), 0.06);
    EXPECT_NEAR(mixing->mL / (10000 * hand::DryAirDensity(0.5, 26)), 1.0017, 0.0002);
    EXPECT_NEAR(mixing->behind_fan.h, hand::HWithRatioAsHumidity(27, xAb), 0.06);
    EXPECT_NEAR(hand::H(27, xAb) - mixing->behind_fan.h, 0.5, 0.1);
    EXPECT_DOUBLE_EQ(mixing->mixed.t, 29.5);
    EXPECT_NEAR(mixing->mixed.x, (xAb + xAus) / 2, 0.03);
    EXPECT_NEAR(mixing->mixed.h, (hand::HWithRatioAsHumidity(27, xAb) + hand::H(32, xAus)) / 2,
                0.06);
}

TEST(Plant, MixFollowsTheRatioAlone) {
    ProcessWindow window;
    const struct { double r, t; } rows[] = {{0, 32}, {1, 29.5}, {4, 28}, {1e12, 27}};
    for (const auto& row : rows) {
        PlantInputs inputs = Summer();
        inputs.r = row.r;
        EXPECT_NEAR(MixingOf(window.solver, inputs)->mixed.t, row.t, 1e-9) << row.r;
    }
}

// Floor 8.289 g/kg of the coil; saturated air of 18 degC holds 12.93, so 60 % are raised to 64.1 %.
// An exhaust of 30 % (6.26 g/kg) below a supply of 65 % (8.35) is raised to 100 * 8.35 / 21.36 =
// 39.1 %, and then nothing else is looked at.
TEST(Plant, RaisedHumiditiesByHand) {
    const double floor_percent = 100 * hand::X(0.95, 12) / hand::X(1, 18);
    const double exhaust_percent = 100 * hand::X(0.65, 18) / hand::X(1, 26);
    const struct {
        const char* name;
        double phiAb, tAus, phiZu, phiAb_after, phiZu_after;
        bool nothing_to_cool;
    } rows[] = {
        {"possible", 50, 32, 75, 50, 75, false},
        {"supply below the coil", 50, 32, 60, 50, floor_percent, false},
        {"outside as warm as the coil", 50, 12, 60, 50, 60, true},
        {"outside cold, supply below it", 50, 12, 20, 50, 100 * hand::X(0.4, 12) / hand::X(1, 18),
         true},
        {"exhaust below supply", 30, 32, 65, exhaust_percent, 65, false},
        {"the same with cold outside air", 30, 5, 65, exhaust_percent, 65, false},
    };
    for (const auto& row : rows) {
        ProcessWindow window;
        PlantInputs inputs = Summer();
        inputs.phiAb = row.phiAb;
        inputs.tAus = row.tAus;
        inputs.phiZu = row.phiZu;
        const auto room = HumiditiesOfRoom(window.solver, inputs);
        EXPECT_EQ(RaiseHumidities(window.solver, *room, inputs), row.nothing_to_cool) << row.name;
        EXPECT_NEAR(inputs.phiAb, row.phiAb_after, 0.1) << row.name;
        EXPECT_NEAR(inputs.phiZu, row.phiZu_after, 0.1) << row.name;
    }
}

TEST(Plant, AnzeigefaktorIsFinerAtItsLimits) {
    const struct {
        double total, factor;
    } rows[] = {{-5000, 1000}, {10, 1000}, {10.1, 100}, {100, 100},
                {101, 10},     {1000, 10}, {1001, 1}};
    for (const auto& row : rows) EXPECT_EQ(AnzeigefaktorOf(row.total), row.factor) << row.total;
}

TEST(Plant, FanThatDoesNotWarmHasNoSaturation) {
    ProcessWindow window;
    const AirPoint supply{18, 9.65, 42.5};
    EXPECT_EQ(FanInletOf(window.solver, supply, 0)->xs1, 0);
    EXPECT_EQ(FanInletOf(window.solver, supply, 0)->air.h, 42.5);
    EXPECT_NEAR(FanInletOf(window.solver, supply, 1)->xs1, hand::X(1, 17), 0.02);
}

// Supply 18 degC, 75 %, so t1 = 17 degC and the whole per cents 100 * 9.654 / 12.13 = 79.6 become
// 79: the line of constant enthalpy is that of 17 degC, 79 %. Air from the coil (8.289 g/kg) meets
// it at about 20.1 degC, by its ratio taken as humidity a little warmer.
TEST(Plant, HeaterInFrontOfTheWaterHumidifier) {
    ProcessWindow window;
    const auto coil = CoilOf(window.solver, Summer(), 17);
    ASSERT_TRUE(coil);
    const AirPoint before_fan{17, hand::X(0.75, 18), 0};
    const auto way = CoolerWayOf(window.solver, false, *coil, before_fan);
    ASSERT_TRUE(way);
    const double hW = hand::H(17, hand::X(0.79, 17));
    EXPECT_TRUE(way->BefeuchterNoetig);
    EXPECT_NEAR(way->hDiff, hW - hand::H(12, hand::X(0.95, 12)), 0.06);
    EXPECT_NEAR(hand::HWithRatioAsHumidity(way->heated.t, hand::X(0.95, 12)), hW, 0.06);
    EXPECT_NEAR(way->heated.t, 20.1, 0.3);
    EXPECT_EQ(CoolerWayOf(window.solver, true, *coil, before_fan)->heated.t, 17);
}

TEST(Plant, OutsideTheLimitsThereIsNoAnswer) {
    ProcessWindow window;
    PlantInputs inputs = Summer();
    inputs.tAb = 900;
    EXPECT_FALSE(HumiditiesOfRoom(window.solver, inputs));
    EXPECT_FALSE(MixingOf(window.solver, inputs));
    inputs = Summer();
    inputs.dt2 = -1e9;
    EXPECT_FALSE(MixingOf(window.solver, inputs));
    inputs.tKA = -60;
    EXPECT_FALSE(CoilOf(window.solver, inputs, 17));
    EXPECT_FALSE(FanInletOf(window.solver, {18, 9, 40}, -1e9));
}

}  // namespace
}  // namespace zandrell
