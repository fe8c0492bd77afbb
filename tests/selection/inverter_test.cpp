#include "selection/inverter.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zandrell {
namespace {

constexpr int kWhite = 15, kYellow = 14, kRed = 12, kGreen = 10;  // of the palette

// A compressor that sweeps 84.37 m3/h and takes 12.345 at 50 Hz, where 70 m3/h and 12 are wanted.
SelectionInputs Chosen() {
    SelectionInputs shared;
    shared.VolumenNenn = 84.37;
    shared.LeistungNenn = 12.345;
    shared.Label26 = 70;
    shared.Label27 = 12;
    shared.QoSoll = 40;
    shared.InverterNetzFreq = 50;
    return shared;
}

// Volume = f/50 x 84.37; capacity = volume/70 x 40; power = f/50 x 12.345; two decimals are kept.
// Colours of the capacity change at 34, 38, 44 and 52 kW (0.85, 0.95, 1.1, 1.3 x 40); the volume is
// red above 0.95 x 70 = 66.5 m3/h.
TEST(Inverter, TheSliderScalesWithTheFrequency) {
    struct Case {
        int position;
        double Label25, Label28, Label1;
        int volume, capacity;
    };
    const Case cases[] = {{35, 59.05, 8.64, 33.74, kWhite, kRed},     // 59.059 8.6415 33.748
                          {37, 62.43, 9.13, 35.67, kWhite, kYellow},  // 62.4338 9.1353 35.6765
                          {40, 67.49, 9.87, 38.56, kRed, kGreen},     // 67.496 9.876 38.569
                          {47, 79.3, 11.6, 45.31, kRed, kYellow},     // 79.3078 11.6043 45.3187
                          {61, 102.93, 15.06, 58.81, kRed, kRed}};    // 102.9314 15.0609 58.8179
    for (const auto& c : cases) {
        SelectionInputs shared = Chosen();
        const InverterFigures figures = inverter_rech(c.position, shared);
        EXPECT_EQ(figures.Label25, c.Label25) << c.position;
        EXPECT_EQ(figures.Label28, c.Label28) << c.position;
        EXPECT_EQ(figures.Label1, c.Label1) << c.position;
        EXPECT_NEAR(shared.QoFreq, c.position / 50.0 * 84.37 / 70 * 40, 1e-9);
        EXPECT_EQ(shared.Label25, c.Label25);
        EXPECT_EQ(shared.BetriebsFreq, c.position);
        EXPECT_EQ(figures.label25_back, c.volume) << c.position;
        EXPECT_EQ(figures.label37_back, c.capacity) << c.position;
        EXPECT_EQ(figures.label27_back, kWhite) << "12.345 is not below 12";
    }
}

TEST(Inverter, TheMainsChangeWhatIsWanted) {
    SelectionInputs shared = Chosen();
    shared.InverterNetzFreq = 60;
    shared.Label27 = 12.4;
    const InverterFigures figures = inverter_rech(60, shared);
    EXPECT_EQ(figures.Label25, 101.24);                   // 60/50 x 84.37 = 101.244
    EXPECT_EQ(figures.Label28, 12.34);                    // 60/60 x 12.345
    EXPECT_NEAR(shared.QoFreq, 101.244 / 84 * 40, 1e-9);  // 70 x 60/50 = 84 wanted
    EXPECT_EQ(figures.label27_back, kRed);

    shared = Chosen();
    shared.InverterNetzFreq = -1;
    inverter_rech(50, shared);
    EXPECT_EQ(shared.InverterNetzFreq, 50) << "not set";
}

TEST(Inverter, KeepsTheCapacityThatCanNotBeFormed) {
    SelectionInputs shared = Chosen();
    shared.QoFreq = 39;
    shared.Label26 = 0;
    const InverterFigures figures = inverter_rech(50, shared);
    EXPECT_EQ(shared.QoFreq, 39);
    EXPECT_EQ(figures.Label1, 39);
    EXPECT_EQ(figures.label37_back, kGreen);
}

// Mains over frequency: 50/40 x 84.37 = 105.4625 m3/h; the power stays 12.345.
TEST(Inverter, TypingTurnsTheRatioRound) {
    SelectionInputs shared = Chosen();
    double MainsFrequency = 60;
    shared.VolumenRef = 60;  // 50/40 x 60 = 75, more than 70
    auto figures = TypedFrequency(40, shared, MainsFrequency);
    ASSERT_TRUE(figures);
    EXPECT_EQ(MainsFrequency, 50);
    EXPECT_EQ(figures->Label25, 105.46);
    EXPECT_EQ(figures->Label28, 12.34);
    EXPECT_EQ(figures->label25_back, kRed);
    EXPECT_EQ(figures->label27_back, kWhite);
    EXPECT_FALSE(figures->Label1) << "the capacity is not touched";
    EXPECT_EQ(shared.BetriebsFreq, 40);
    EXPECT_EQ(shared.Label25, 105.46);

    shared = Chosen();
    shared.InverterNetzFreq =
        0;  // the mains of the suite stay: 60/80 x 84.37 = 63.2775, 0.75 x 12.345 < 12
    MainsFrequency = 60;
    figures = TypedFrequency(80, shared, MainsFrequency);
    ASSERT_TRUE(figures);
    EXPECT_EQ(MainsFrequency, 60);
    EXPECT_EQ(figures->Label25, 63.27);
    EXPECT_EQ(figures->label25_back, kWhite);
    EXPECT_EQ(figures->label27_back, kRed);
}

TEST(Inverter, RefusesFrequenciesThatNoneCanBe) {
    for (const double typed : {0.0, 100.0, -5.0, 1000.0, std::nan("")}) {
        SelectionInputs shared = Chosen();
        double MainsFrequency = 60;
        EXPECT_FALSE(TypedFrequency(typed, shared, MainsFrequency)) << typed;
        EXPECT_EQ(MainsFrequency, 60);
        EXPECT_EQ(shared.BetriebsFreq, 0);
    }
}

}  // namespace
}  // namespace zandrell
