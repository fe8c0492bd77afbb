#include "selection/unit_figures.h"

#include <gtest/gtest.h>

#include "support/catalogue_files.h"

namespace zandrell {
namespace {

constexpr double kExact = 1e-9;

SelectionInputs InputsOf(int KatalogArt) {
    SelectionInputs shared;
    shared.KatalogArt = KatalogArt;
    return shared;
}

UnitFigures FiguresOf(const UnitNumbers& unit, SelectionInputs shared) {
    UnitFigures figures;
    CalculateUnit(unit, shared, figures);
    return figures;
}

TEST(UnitNumbers, ComeFromTheFieldsOfTheRecord) {
    using enum KatalogFeld;
    const std::string bytes = selection_test::RecordBytes({{KatWert, "12,5"},
                                                           {KatWert2, "3 rows"},
                                                           {KatLeistung, " S2"},
                                                           {KatAntrieb, ".75"},
                                                           {KatLamelle, "7"},
                                                           {KatBasis, "2"}});
    const UnitNumbers unit = ReadUnit(KatalogSatz(bytes));
    EXPECT_EQ(unit.KatWert, 12.5);
    EXPECT_EQ(unit.KatWert2, 3);
    EXPECT_EQ(unit.KatLeistung, 0);
    EXPECT_EQ(unit.code, "S2");
    EXPECT_EQ(unit.KatAntrieb, 0.75);
    EXPECT_EQ(unit.KatLamelle, 7);
    EXPECT_EQ(unit.KatBasis, 2);
}

TEST(AirCooler, CorrectsItsCapacityByFactorAndBasis) {
    struct Case {
        const char* module;
        int KatBasis, KuehlerBasis;
        double Q;  // of 20 kW x 0.9 = 18 kW
    };
    const Case cases[] = {{"QV", 0, 0, 18},       {"QV", 2, 0, 18},     {"molk", 2, 0, 29.988},
                          {"MOLK", 2, 1, 29.988}, {"MOLK", 0, 2, 10.8}, {"MOLK", 1, 2, 10.8},
                          {"MOLK", 2, 2, 18},     {"MOLK", 1, 1, 18},   {"MOLK", 3, 2, 18},
                          {"MOLK", 2, 3, 18}};
    for (const auto& c : cases) {
        SelectionInputs shared = InputsOf(600);
        shared.ModuleTag = c.module;
        shared.LeistFaktor = 0.9;
        shared.KuehlerBasis = c.KuehlerBasis;
        UnitNumbers unit;
        unit.KatLeistung = 20;
        unit.KatBasis = c.KatBasis;
        EXPECT_NEAR(FiguresOf(unit, shared).Q, c.Q, kExact)
            << c.module << c.KatBasis << c.KuehlerBasis;
    }
}

TEST(EfficiencyClass, GoesByStoredCapacityAndPower) {
    struct Case {
        int kind;
        double KatLeistung, KatAntrieb, KatLamelle, ratio;
        const char* name;
    };
    const Case cases[] = {
        // Coolers: (20/1.23)/0.8 = 20.3252; with 7 mm x (7/4.5)^0.5 = 1.247219: 25.3499.
        {600, 20, 0.8, 4.5, 20.3, "C"},
        {600, 20, 0.8, 7, 25.3, "B"},
        {600, 20, 0.8, 0, 0, "E"},
        {600, 20, 0, 4.5, 16260.1, "A++"},  // (20/1.23)/0.001
        {600, 20, -3, 4.5, 16260.1, "A++"},
        {600, 20, 0.8, -7, 0, "E"},      // no root: as at the start of the run
        {650, 100, 0.7, 0, 142.8, "A"},  // 100/0.7 = 142.857
        {650, 24, 0.1, 0, 240, "A++"},
        {650, 100, 0, 0, 100000, "A++"},
        {100, 20, 0.8, 4.5, 0, ""},
    };
    for (const auto& c : cases) {
        UnitNumbers unit;
        unit.KatLeistung = c.KatLeistung;
        unit.KatAntrieb = c.KatAntrieb;
        unit.KatLamelle = c.KatLamelle;
        SelectionInputs shared = InputsOf(c.kind);
        shared.LeistFaktor = 0.5;  // has no part in it
        const double ratio = FiguresOf(unit, shared).class_ratio;
        EXPECT_NEAR(ratio, c.ratio, kExact) << c.kind << " " << c.KatAntrieb;
        EXPECT_EQ(EfficiencyClass(FamilyOf(c.kind), ratio), c.name);
    }
}

TEST(EfficiencyClass, BeginsAtItsLimit) {
    struct Case {
        KatalogFamilie family;
        double limit;
        const char *at, *below;
    };
    const auto cooler = KatalogFamilie::AirCoolers, condenser = KatalogFamilie::Condensers;
    const Case cases[] = {
        {cooler, 45, "A++", "A+"},     {cooler, 35, "A+", "A"},     {cooler, 27, "A", "B"},
        {cooler, 21, "B", "C"},        {cooler, 16, "C", "D"},      {cooler, 12, "D", "E"},
        {condenser, 240, "A++", "A+"}, {condenser, 160, "A+", "A"}, {condenser, 110, "A", "B"},
        {condenser, 70, "B", "C"},     {condenser, 45, "C", "D"},   {condenser, 30, "D", "E"}};
    for (const auto& c : cases) {
        EXPECT_EQ(EfficiencyClass(c.family, c.limit), c.at) << c.limit;
        EXPECT_EQ(EfficiencyClass(c.family, c.limit - 0.1), c.below) << c.limit;
    }
}

TEST(StoredCapacity, SetsTheFactorThatNobodySet) {
    SelectionInputs shared = InputsOf(100);
    UnitFigures figures;
    UnitNumbers unit;
    unit.KatAntrieb = 7;  // stands in for the capacity
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.Q, 7.259, kExact);  // 7 x 1.037
    EXPECT_EQ(shared.LeistFaktor, 1.037);
    unit.KatLeistung = 10;
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.Q, 10.37, kExact);
    shared.LeistFaktor = 0.5;
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.Q, 5, kExact);
}

// Ratio 4.85, size V = 100 m3/h, LiefergradBezug 0.8, Label26 = 90 m3/h, QoSoll = 50 kW.
// Second family, step 2: efficiency(v) = 0.835 (1 - 1/(7 v + 10)) 1.02 = 0.8517 (1 - 1/(7 v + 10)).
//   v1 = 80:       1 - 1/570      -> 0.85020579
//   v2 = 85.020579: 1 - 1/605.144 -> 0.85029257
//   v3 = 85.029257: 1 - 1/605.205 -> 0.85029271
//   Q = 100 x 0.85029271 / (90 x 0.8) x 50 = 59.048105
// First family, step 1: efficiency(v) = 0.796 x 1.03 (1 - 1/(1.2 v^0.92 + 10)).
//   v1 = 80:        80^0.92 = 56.34273, 1/77.61128 -> 0.80931617
//   v2 = 80.931617: 56.94597, 1/78.33517           -> 0.80941381
//   v3 = 80.941381: 56.95229, 1/78.34275           -> 0.80941482
//   Q = 56.209363
SelectionInputs CompressorInputs() {
    SelectionInputs shared = InputsOf(550);
    shared.DruckPc = 9.7;
    shared.DruckPo = 2;
    shared.LiefergradBezug = 0.8;
    shared.Label26 = 90;
    shared.QoSoll = 50;
    return shared;
}

TEST(Compressor, IteratesItsEfficiencyInThreePasses) {
    SelectionInputs shared = CompressorInputs();
    UnitFigures figures;
    UnitNumbers unit;
    unit.KatWert = 100;
    unit.code = "S2";
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.Q, 59.048105, 1e-6);
    unit.code = "H1";
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.Q, 56.209363, 1e-6);
    unit.code = "";  // as the unit before
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.Q, 56.209363, 1e-6);
    EXPECT_EQ(shared.VerdichterArt, 1);
    EXPECT_EQ(shared.VerdichterStufe, 1);
}

TEST(Compressor, KeepsTheFigureThatCanNotBeFormed) {
    SelectionInputs shared = CompressorInputs();
    UnitFigures figures{12.5, 0, 0, 0};
    UnitNumbers unit;
    unit.KatWert = 100;
    shared.Label26 = 0;
    CalculateUnit(unit, shared, figures);
    EXPECT_EQ(figures.Q, 12.5);
}

// (2.592E9 / 2^2 x 0.1^2) / (2 x 1200) / 100 = 6.48E6 / 2400 / 100 = 27 mbar.
TEST(LineComponent, HasAPressureDropByItsKv) {
    for (const int kind : {1, 50, 150, 200, 250, 300, 350, 450, 700, 750}) {
        SelectionInputs shared = InputsOf(kind);
        shared.MassenStrom = 0.1;
        shared.KatBezug = 1200;
        UnitFigures figures;
        UnitNumbers unit;
        CalculateUnit(unit, shared, figures);
        EXPECT_EQ(figures.pressure_drop, 0) << "a kv of 0 at the start of the run";
        unit.KatWert = 2;
        CalculateUnit(unit, shared, figures);
        EXPECT_NEAR(figures.pressure_drop, 27, kExact) << kind;
        unit.KatWert = 0;
        CalculateUnit(unit, shared, figures);
        EXPECT_NEAR(figures.pressure_drop, 27, kExact) << "kv 0 keeps it, kind " << kind;
        EXPECT_EQ(figures.Q, 0) << kind;
    }
}

TEST(RegulatingComponent, OpensAsFarAsItsLimitAsks) {
    SelectionInputs shared = InputsOf(250);
    shared.MassenStrom = 0.1;
    shared.KatBezug = 1200;
    UnitFigures figures;
    UnitNumbers unit;
    unit.KatWert = 2;
    unit.KatAntrieb = 12;
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.opening, 66.6666667, 1e-6);  // (12/27)^0.5
    unit.KatWert = 0;
    unit.KatAntrieb = 3;
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.opening, 33.3333333, 1e-6);  // by the 27 mbar of the unit before
    shared.MassenStrom = 0;
    unit.KatWert = 2;
    CalculateUnit(unit, shared, figures);
    EXPECT_EQ(figures.pressure_drop, 0);
    EXPECT_NEAR(figures.opening, 33.3333333, 1e-6) << "no opening without a pressure drop";
    shared.KatalogArt = 150;
    shared.MassenStrom = 0.1;
    CalculateUnit(unit, shared, figures);
    EXPECT_NEAR(figures.opening, 33.3333333, 1e-6) << "other kinds have none";
}

TEST(UnitFigures, AKindThatIsNotHandledHasNone) {
    UnitNumbers unit;
    unit.KatWert = unit.KatLeistung = 10;
    SelectionInputs shared = InputsOf(601);
    shared.LeistFaktor = shared.MassenStrom = shared.KatBezug = 1;
    const UnitFigures figures = FiguresOf(unit, shared);
    EXPECT_EQ(figures.Q, 0);
    EXPECT_EQ(figures.pressure_drop, 0);
}

TEST(TargetCapacity, IsTheDutyOfTheKind) {
    SelectionInputs shared;
    shared.QoSoll = 20;
    shared.QoZusatz = 3;
    shared.KatBezug = 31;
    const std::pair<int, double> cases[] = {{600, 23}, {650, 31}, {550, 20}, {100, 20}, {250, 0}};
    for (const auto& [kind, target] : cases) {
        shared.KatalogArt = kind;
        EXPECT_EQ(TargetCapacity(shared), target) << kind;
    }
}

}  // namespace
}  // namespace zandrell
