#include "selection/economizer.h"

#include <gtest/gtest.h>

namespace zandrell {
namespace {

EconomizerState State() {
    EconomizerState eco;
    eco.HDampf = 400;
    eco.HFluessig = 260;
    eco.HZwischen = 200;
    eco.CpDampf = 0.8;
    eco.CpFluessig = 1.25;
    eco.Ueberhitzung = 10;
    eco.Unterkuehlung = 4;
    eco.DruckMitte1 = 4;
    eco.DruckMitte2 = 16;
    return eco;
}

// 153 kW over (400 + 10 x 0.8) - (260 - 4 x 1.25) = 153 kJ/kg.
TEST(Economizer, IsPassedOverWhenItIsOff) {
    for (const int step : {0, -1, 10}) {
        SelectionInputs inputs;
        inputs.QoSoll = 153;
        EconomizerState eco = State();
        eco.EcoStufe = step;
        EXPECT_DOUBLE_EQ(MassenStromRechnen(7, 99, inputs, eco), 1);
        EXPECT_EQ(inputs.QoSoll, 153);
        EXPECT_EQ(eco.EcoDruck, 0);
        inputs.QoSoll = 0;
        EXPECT_EQ(MassenStromRechnen(7, 99, inputs, eco), 7);
    }
}

// s = (260 - 200)/2.5 - 8 = 16 K; difference = 408 - (260 - 20) = 168; m = 336/168 = 2 kg/s;
// load 2 x 16 x 1.25 = 40 kW; flow 40/168; pressure (4 x 16)^0.5 = 8 bar, 16/8 = 2;
// share (336 - 2 x 40)/336 = 16/21; 2/(16/21) = 2.625 kg/s.
TEST(Economizer, SubcoolsTheLiquid) {
    SelectionInputs inputs;
    EconomizerState eco = State();
    eco.EcoStufe = 1;
    EXPECT_DOUBLE_EQ(MassenStromRechnen(0, 336, inputs, eco), 2.625);
    EXPECT_EQ(inputs.QoSoll, 336);
    EXPECT_DOUBLE_EQ(eco.EcoLeistung, 40);
    EXPECT_DOUBLE_EQ(eco.EcoMassenStrom, 40.0 / 168);
    EXPECT_DOUBLE_EQ(eco.EcoDruck, 8);
    EXPECT_DOUBLE_EQ(eco.EcoAnteil, 16.0 / 21);
    EXPECT_DOUBLE_EQ(eco.EcoUnterkuehlung, 16);
}

}  // namespace
}  // namespace zandrell
