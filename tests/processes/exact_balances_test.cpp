// Balances that an engineer can sign: what the panels show under Exact, against hand calculations
// and an independent balance.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "hand_air.h"
#include "independent_air.h"
#include "kernel/air_from_x.h"
#include "process_window.h"

namespace zandrell {
namespace {

struct ExactWindow : ProcessWindow {
    ExactWindow() {
        settings.convention = Convention::Exact;
        ApplyBaseScale(settings, scale);
    }
    void UseTool(Calculation mode, const char* t1, const char* relF1, const char* t2,
                 const char* relF2) {
        Open(mode);
        SetStates(t1, relF1, t2, relF2);
        point.LuftM1.text = "1000";
        Calculate();
    }
};

double Number(const Control& control) { return ParsedNumber(control.text); }

// 1000 m3/h of 20 degC and 50 % hold 1189.96 kg of dry air per hour with 7.2647 g/kg. Heated to 30
// degC, each kilogram takes up 10.049 + 0.0072647 * 18.5 = 10.184 kJ: 3.366 kW. 26 degC and 40 %
// (8.365 g/kg) leave a cooler of 15 degC dry; one of 5 degC is capped at 90 %: 4.85 g/kg.
TEST(ExactTools, KeepWhatTheApparatusKeeps) {
    ExactWindow window;
    PointPanel& panel = window.point;
    window.UseTool(Calculation::Heater, "20", "50", "30", "0");
    EXPECT_EQ(panel.Kleist.text, " 3.36");
    EXPECT_EQ(panel.Ksensibel.text, " 3.36");
    EXPECT_EQ(panel.ZustandX2, panel.ZustandX1);
    EXPECT_EQ(panel.absF2.text, panel.absF1.text);
    EXPECT_NEAR(Number(panel.enth2) - Number(panel.enth1), 10.2, 0.11);

    window.UseTool(Calculation::Cooler, "26", "40", "15", "0");
    EXPECT_EQ(panel.ZustandX2, panel.ZustandX1);
    EXPECT_EQ(panel.KLatent.text, " 0");
    EXPECT_EQ(panel.KondW.text, " 0");
    EXPECT_EQ(panel.Kleist.text, panel.Ksensibel.text);
    const double x = hand::X(0.4, 26);
    EXPECT_NEAR(Number(panel.Kleist),
                hand::DryAirDensity(0.4, 26) * (hand::H(26, x) - hand::H(15, x)) / 3.6, 0.02);

    window.UseTool(Calculation::Cooler, "26", "40", "5", "0");
    EXPECT_EQ(panel.relF2.text, " 90");
    EXPECT_NEAR(panel.ZustandX2, hand::X(0.9, 5), 0.02);
    EXPECT_NEAR(Number(panel.absF2), panel.ZustandX2, 0.01) << "not that of the inlet";
    EXPECT_NEAR(Number(panel.KondW), hand::DryAirDensity(0.4, 26) * (x - panel.ZustandX2), 0.02);
}

// 30 degC and 20 % (5.26 g/kg, 43.6 kJ/kg) take up water down to 20 degC: x = (43.6 - 20.09) /
// 2538.6 = 9.26 g/kg, 63.7 %. Down to 10 degC they would lie in the fog.
TEST(ExactTools, HumidifiersKeepEnthalpyOrTemperature) {
    ExactWindow window;
    PointPanel& panel = window.point;
    window.UseTool(Calculation::WaterHumidifier, "30", "20", "20", "0");
    EXPECT_EQ(panel.enth2.text, panel.enth1.text);
    const double x = 1000 * (hand::H(30, hand::X(0.2, 30)) - hand::H(20, 0)) / (2501.6 + 1.85 * 20);
    EXPECT_NEAR(panel.ZustandX2, x, 0.02);
    EXPECT_NEAR(Number(panel.relF2), 100 * x / hand::X(1, 20), 0.6);
    EXPECT_NEAR(*FractionFromX(window.solver, 20, panel.ZustandX2), Number(panel.relF2) / 100,
                0.001);
    EXPECT_EQ(panel.Ksensibel.text, " 0");
    window.UseTool(Calculation::WaterHumidifier, "30", "20", "10", "0");
    EXPECT_EQ(panel.relF2.text, " 99");
    EXPECT_EQ(panel.relF2.background, kLightRed);

    window.UseTool(Calculation::SteamHumidifier, "20", "30", "0", "60");
    EXPECT_EQ(panel.Temp2.text, "20");
    EXPECT_NEAR(panel.ZustandX2, hand::X(0.6, 20), 0.02);
    EXPECT_EQ(panel.Ksensibel.text, " 0");
}

TEST(ExactTools, HeaterLineFollowsXOnBothCharts) {
    for (const int kind : {kMollier, kCarrier}) {
        ExactWindow window;
        window.ChooseChart(kind);
        window.UseTool(Calculation::Heater, "10", "50", "30", "0");
        const ChartLine& line = window.overlay.ZAeLine;
        const ChartState from = window.scale.StateAt({line.x1, line.y1});
        const ChartState to = window.scale.StateAt({line.x2, line.y2});
        EXPECT_NEAR(from.x, to.x, 1e-9) << kind;
        EXPECT_NEAR(to.t, 30, 1e-9) << kind;
    }
}

// By dry air: 1000 m3/h of 26 degC, 50 % are 1160.3 kg, as many of -10 degC, 80 % 1338.0 kg. x is
// (1160.3 * 10.49 + 1338 * 1.41) / 2498.3 = 5.63 g/kg; t follows from the enthalpies 52.95 and
// -6.5.
TEST(ExactMixing, WeighsByDryAir) {
    ExactWindow window;
    window.Open(Calculation::Mixing);
    window.SetStates("26", "50", "-10", "80");
    window.point.LuftM1.text = window.point.LuftM2.text = "1000";
    window.Calculate();
    const double one = hand::DryAirDensity(0.5, 26), other = hand::DryAirDensity(0.8, -10);
    const double x1 = hand::X(0.5, 26), x2 = hand::X(0.8, -10);
    const double x = (one * x1 + other * x2) / (one + other);
    const double h = (one * hand::H(26, x1) + other * hand::H(-10, x2)) / (one + other);
    EXPECT_NEAR(Number(window.point.absFM), x, 0.02);
    EXPECT_NEAR(Number(window.point.TempM), (h - 2.5016 * x) / (1.0044 + 0.00185 * x), 0.03);
}

struct Row {
    const char *name, *V, *r, *tAb, *phiAb, *tAus, *phiAus, *tZu, *phiZu, *tKA, *phiKa, *dt1, *dt2;
};
void Set(ProcessWindow& window, const Row& p) {
    window.SetPlant(p.V, p.r, p.tAb, p.phiAb, p.tAus, p.phiAus, p.tZu, p.phiZu, p.tKA, p.phiKa,
                    p.dt1, p.dt2);
}
std::string Figures(const PlantPanel& panel) {
    std::string all;
    for (const Control* control : std::initializer_list<const Control*>{
             &panel.RaumLeist, &panel.RaumSensLeist, &panel.RaumLatLeist, &panel.RaumWasserLeist,
             &panel.Kuehl, &panel.Heiz2, &panel.Bef, &panel.TZuluft, &panel.PHIAbluft,
             &panel.PHIZuluft}) {
        all.append(control->text).append(";");
    }
    return all;
}

// Corrections end where they are shown: the coil lifts the supply bar to 14 degC, the room cannot
// take up moisture, the supply cannot be drier than the coil, hundredths have no place on the bars.
TEST(ExactPlant, OneReturnAndTwoGiveTheSame) {
    const Row rows[] = {
        {"bar", "10000", "1", "26", "50", "32", "40", "13", "75", "13.5", "95", "1", "1"},
        {"room", "10000", "1", "26", "30", "32", "40", "18", "75", "12", "95", "1", "1"},
        {"coil", "10000", "3", "26", "50", "32", "40", "18", "40", "12", "95", "1", "0.5"},
        {"outside", "10000", "3", "22", "42", "8", "95", "26", "12", "10", "95", "1", "0.5"},
        {"hundredth", "10000", "1", "26,05", "50,55", "32", "40", "18", "75,25", "12", "95", "1",
         "1"}};
    for (const Row& row : rows) {
        ExactWindow window;
        Set(window, row);
        window.OpenPlant();
        const std::string first = Figures(window.plant);
        window.Return(window.plant.tKA);
        EXPECT_EQ(Figures(window.plant), first) << row.name;
        EXPECT_NEAR(Number(window.plant.PHIZuluft) * 10, window.plant.PhiZuscroll.Position(), 0.51)
            << row.name;
        if (std::string(row.name) == "bar") {
            EXPECT_EQ(window.plant.TZuluft.text, " 14");
        }
        EXPECT_EQ(window.plant.exhaust_raised, std::string(row.name) == "room");
        if (!window.plant.exhaust_raised) continue;
        EXPECT_EQ(window.plant.RaumWasserLeist.text, " 0 kg/h");
        EXPECT_EQ(window.plant.RaumLatLeist.text, " 0 kW");
    }
}

// 0.01 K over 3.2 kg/s are 0.03 kW; with 0 the suite leaves 0.5 kW away, or counts them twice.
TEST(ExactPlant, AFanRiseOfAHundredthChangesNothing) {
    for (const bool water : {false, true}) {
        ExactWindow window;
        Row row{"", "10000", "3", "26", "50", "32", "40", "18", "64", "12", "95", "0", "0"};
        if (water) window.ChooseWater();
        double heater = 0, cooler = 0;
        for (const char* rise : {"0", "0.01"}) {
            row.dt1 = row.dt2 = rise;
            Set(window, row);
            window.OpenPlant();
            if (*rise == '0' && rise[1] == 0) {
                heater = window.figures.HeizLeist;
                cooler = Number(window.plant.Kuehl);
            }
        }
        EXPECT_NEAR(window.figures.HeizLeist, heater, 0.05);
        EXPECT_NEAR(Number(window.plant.Kuehl), cooler, 0.05);
    }
}

TEST(ExactPlant, ADecimalCommaCountsOnOpening) {
    ExactWindow window;
    window.SetPlant("10000", "1", "26,5", "50", "32", "40", "18", "75", "12", "95", "1", "1");
    window.OpenPlant();
    EXPECT_EQ(window.plant.tabScroll.Position(), 265);
}

// What goes in and out of a plant by formulas and constants of its own; only the humidity ratios
// are those of the run, since 0.2 % of them hang on the saturation pressures.
struct IndependentPlant {
    IndependentPlant(const ExactPlantRun& run, double p_pa) : run_(run), p_(p_pa) {
        const PlantInputs& in = run.inputs;
        const double share = 1 / (1 + in.r), t1 = in.tZu - in.dt1;
        const double xAb = run.mixing.exhaust.x, xAus = run.mixing.outside.x, xZu = run.supply.x;
        kg_per_h = in.V * independent::DryAir(in.tAb, xAb, p_);
        mixed_x = xAb + share * (xAus - xAb);
        const double inlet_x = run.OhneKuehler ? mixed_x : run.coil.air.x;
        fans_kw = Kw(in.tAb + in.dt2, xAb, in.tAb, xAb) + Kw(in.tZu, xZu, t1, xZu);
        outside_kw = share * Kw(in.tAus, xAus, in.tAb + in.dt2, xAb);
        humidifier_kw = in.steam ? Kw(t1, xZu, t1, inlet_x) : 0;
        room_kw = Kw(in.tAb, xAb, in.tZu, xZu);
        heater_kw = Kw(run.heated.t, inlet_x, Inlet().t, inlet_x);
        cooler_kw = run.OhneKuehler ? 0 : Kw(run.mixing.mixed.t, mixed_x, in.tKA, inlet_x);
        outside_water = share * kg_per_h * (xAus - xAb) / 1000;
        condensate = run.OhneKuehler ? 0 : kg_per_h * (mixed_x - inlet_x) / 1000;
        turnover_kw = std::abs(room_kw) + std::abs(heater_kw) + std::abs(cooler_kw) + fans_kw +
                      std::abs(outside_kw) + std::abs(humidifier_kw);
    }
    const AirPoint& Inlet() const { return run_.OhneKuehler ? run_.mixing.mixed : run_.coil.air; }
    double Kw(double to_t, double to_x, double from_t, double from_x) const {
        return kg_per_h * (independent::H(to_t, to_x, p_) - independent::H(from_t, from_x, p_)) /
               3600;
    }
    double kg_per_h = 0, mixed_x = 0, fans_kw = 0, outside_kw = 0, humidifier_kw = 0, room_kw = 0,
           heater_kw = 0, cooler_kw = 0, outside_water = 0, condensate = 0, turnover_kw = 0;

  private:
    const ExactPlantRun& run_;
    double p_;
};

TEST(ExactPlant, EnergyAndWaterCloseOverDrawnPlants) {
    constexpr double kTolerance = 5e-4;
    std::mt19937 random(11);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    ProcessWindow window;
    int with_cooler = 0, raised = 0, in_fog = 0;
    double worst = 0;
    for (int i = 0; i < 2000; ++i) {
        const bool summer = i % 2 == 0;
        PlantInputs in;
        in.steam = i / 2 % 2 == 0;
        in.V = between(500, 50000), in.r = i % 7 == 0 ? 0 : between(0, 9);
        in.tAb = between(19, 28), in.phiAb = between(25, 65);
        in.tAus = summer ? between(20, 38) : between(-20, 12), in.phiAus = between(20, 100);
        in.tZu = summer ? between(14, 24) : between(18, 36), in.phiZu = between(10, 75);
        in.tKA = between(5, 13), in.phiKa = between(80, 100);
        in.dt1 = between(0, 3), in.dt2 = i % 5 == 0 ? 0 : between(0, 3);
        window.solver.ChartDruckBar = between(0.8, 1.05);
        const double p = 1e5 * window.solver.ChartDruckBar, phiAb = in.phiAb, phiZu = in.phiZu;
        const auto humidities = RaiseExactly(window.solver, in);
        ASSERT_TRUE(humidities) << i;
        const auto run = RunExactly(window.solver, in, *humidities);
        ASSERT_TRUE(run) << i;
        // The independent formulas know no fog.
        const AirPoint* const airs[] = {&run->mixing.mixed, &run->heated, &run->fan_inlet.air};
        if (std::any_of(std::begin(airs), std::end(airs), [&](const AirPoint* air) {
                return *FractionFromX(window.solver, air->t, air->x) > 1;
            })) {
            ++in_fog;
            continue;
        }
        with_cooler += run->OhneKuehler ? 0 : 1;
        raised += in.phiAb != phiAb || in.phiZu != phiZu ? 1 : 0;

        const IndependentPlant other(*run, p);
        const double energy = run->room.total_kw + run->heater_kw - run->cooler_kw + other.fans_kw +
                              other.outside_kw + other.humidifier_kw;
        worst = std::max(worst, std::abs(energy) / other.turnover_kw);
        EXPECT_LE(std::abs(energy), kTolerance * other.turnover_kw) << i;
        const double water = run->room.water_kg_per_h + run->humidifier_kg_per_h +
                             other.outside_water - other.condensate;
        EXPECT_LE(std::abs(water),
                  kTolerance * (std::abs(run->room.water_kg_per_h) + std::abs(other.outside_water) +
                                std::abs(run->humidifier_kg_per_h) + std::abs(other.condensate)))
            << i;
        // One by one: what the polygon shows is what the figures count.
        EXPECT_NEAR(run->room.total_kw, other.room_kw, kTolerance * other.turnover_kw) << i;
        EXPECT_NEAR(run->heater_kw, other.heater_kw, kTolerance * other.turnover_kw) << i;
        EXPECT_NEAR(run->cooler_kw, other.cooler_kw, kTolerance * other.turnover_kw) << i;
    }
    RecordProperty("worst_energy", std::to_string(worst));
    EXPECT_GT(with_cooler, 500);
    EXPECT_GT(raised, 300);
    EXPECT_LT(in_fog, 200);
}

}  // namespace
}  // namespace zandrell
