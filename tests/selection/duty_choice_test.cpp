#include "selection/duty_choice.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zandrell {
namespace {

TEST(Surplus, IsWhatAUnitDoesBeyondItsDuty) {
    struct Case {
        int kind;
        double Q, pressure_drop, opening, KatWert;
        std::optional<double> surplus;
    };
    // Duty 20 + 3 kW, heat rejection 30 kW, lowest pressure drop 12 mbar, opening to 80 %, and at
    // most 50 mbar.
    const Case cases[] = {
        {600, 25, 0, 0, 0, 2},  {600, 23, 0, 0, 0, 0},   {600, 22.9, 0, 0, 0, {}},
        {650, 31, 0, 0, 0, 1},  {650, 29, 0, 0, 0, {}},  {550, 21, 0, 0, 0, 1},
        {100, 19, 0, 0, 0, {}}, {250, 0, 27, 67, 2, 15}, {250, 0, 11, 67, 2, {}},
        {50, 0, 27, 81, 2, {}}, {150, 0, 27, 0, 2, 23},  {150, 0, 51, 0, 2, {}},
        {150, 0, 27, 0, 0, {}}, {601, 99, 99, 0, 2, {}},
    };
    for (const auto& c : cases) {
        SelectionInputs shared;
        shared.KatalogArt = c.kind;
        shared.QoSoll = 20;
        shared.QoZusatz = 3;
        shared.KatBezug = 30;
        shared.OeffnungMax = 80;
        UnitNumbers unit;
        unit.KatWert = c.KatWert;
        unit.KatAntrieb = 12;
        EXPECT_EQ(Surplus(unit, {c.Q, c.pressure_drop, c.opening, 0}, shared, 50), c.surplus)
            << c.kind << " " << c.Q << " " << c.pressure_drop;
    }
}

TEST(MissingInput, NamesWhatTheKindNeeds) {
    SelectionInputs shared;
    const auto missing = [&](int kind) {
        shared.KatalogArt = kind;
        return MissingInput(shared);
    };
    EXPECT_EQ(missing(600), "");
    EXPECT_EQ(missing(550), "QoSoll must be above 0");
    EXPECT_EQ(missing(350), "MassenStrom must be above 0");
    EXPECT_EQ(missing(7), "there is no kind 7");
    shared.QoSoll = shared.DruckPc = shared.LiefergradBezug = shared.Label26 = 1;
    shared.DruckPo = 0.5;
    shared.VerlustPo = 500;
    EXPECT_EQ(missing(550), "DruckPo less VerlustPo must be above 0");
    shared.VerlustPo = 400;
    EXPECT_EQ(missing(550), "");
}

TEST(SelectionInputs, AreSetByName) {
    SelectionInputs shared;
    for (const auto& input : kNumberInputs) {
        SetInput(shared, input, 2.5);
        EXPECT_EQ(InputOf(shared, input), input.whole != nullptr ? 2 : 2.5) << input.name;
        SetInput(shared, input, std::nan(""));
        SetInput(shared, input, HUGE_VAL);
        EXPECT_EQ(InputOf(shared, input), input.whole != nullptr ? 2 : 2.5) << input.name;
        EXPECT_EQ(NumberInputNamed(input.name), &input);
    }
    EXPECT_EQ(shared.KuehlerBasis, 2);
    EXPECT_EQ(shared.Label26, 2.5);
    EXPECT_EQ(NumberInputNamed("qosoll"), nullptr);
}

}  // namespace
}  // namespace zandrell
