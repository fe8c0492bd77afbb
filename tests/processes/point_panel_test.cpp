#include "processes/point_panel.h"

#include "base/number_text.h"
#include "hand_air.h"
#include "process_window.h"

namespace zandrell {
namespace {

TEST(PointPanel, ShowsWhatTheModeNeeds) {
    const struct {
        Calculation mode;
        bool capacity, flow1, flow2, humidity_bar2;
    } rows[] = {{Calculation::StateChange, false, false, false, true},
                {Calculation::Capacity, true, true, false, true},
                {Calculation::Mixing, false, true, true, true},
                {Calculation::Cooler, true, true, false, true},
                {Calculation::Heater, true, true, false, false},
                {Calculation::WaterHumidifier, true, true, false, false},
                {Calculation::SteamHumidifier, true, true, false, true}};
    ProcessWindow window;
    PointPanel& panel = window.point;
    panel.Anlage1PN.visible = false;
    for (const auto& row : rows) {
        window.overlay.PP3.visible = window.overlay.tmLab.visible = true;
        window.Open(row.mode);
        EXPECT_EQ(panel.Panel3D9.visible, row.capacity) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.Label33.visible, row.flow1) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.LuftM1.visible, row.flow1) << static_cast<int>(row.mode);
        EXPECT_TRUE(panel.VScroll1.visible) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.LuftM2.visible, row.flow2) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.Vscroll2.visible, row.flow2) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.absFM.visible, row.flow2) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.FScroll2.visible, row.humidity_bar2) << static_cast<int>(row.mode);
        EXPECT_EQ(panel.Tscroll2.visible, row.mode != Calculation::SteamHumidifier)
            << static_cast<int>(row.mode);
        EXPECT_FALSE(window.overlay.PP3.visible || window.overlay.tmLab.visible)
            << static_cast<int>(row.mode);
        EXPECT_EQ(window.overlay.t2lab.text, "2");
        EXPECT_TRUE(panel.Anlage1PN.visible);
    }
    window.Open(Calculation::Capacity);
    EXPECT_FALSE(panel.Tscroll2.visible) << "hidden for good by the steam humidifier";
    EXPECT_EQ(panel.Tscroll1.LowEnd(), -200);
    EXPECT_EQ(panel.Tscroll1.HighEnd(), 400);
}

struct Shown {
    const char *absF1, *enth1, *absF2, *enth2, *Kleist, *KLatent, *Ksensibel, *KondW;
    double KondensatWasser;
};

void ExpectShown(const ProcessWindow& window, const Shown& expected, const char* name) {
    const PointPanel& panel = window.point;
    EXPECT_EQ(panel.absF1.text, expected.absF1) << name;
    EXPECT_EQ(panel.enth1.text, expected.enth1) << name;
    EXPECT_EQ(panel.absF2.text, expected.absF2) << name;
    EXPECT_EQ(panel.enth2.text, expected.enth2) << name;
    EXPECT_EQ(panel.Kleist.text, expected.Kleist) << name;
    EXPECT_EQ(panel.KLatent.text, expected.KLatent) << name;
    EXPECT_EQ(panel.Ksensibel.text, expected.Ksensibel) << name;
    EXPECT_EQ(panel.KondW.text, expected.KondW) << name;
    EXPECT_DOUBLE_EQ(window.figures.KondensatWasser, expected.KondensatWasser) << name;
    EXPECT_EQ(window.figures.KuehlLeistText, expected.Kleist) << name;
}

// States and densities of the independent table. Worked by hand:
// capacity: see state_change_test; water 21.308 g/s * 3.6 = 76.71 kg/h, one decimal from 10 g/s on.
// warming: m = 10000 * 1.233280009 / 3600 = 3.425778; total -3.425778 * 24.432 = -83.699, cut
//   downwards; water -3.425778 * 6.412006 * 3.6 = -79.0779, text with e = 10, figure with d = 100.
// cooler at its cap: 90 % at 12 degC is x = 7.850 and h = 31.86, m = 0.332318: total 0.332318 *
//   (57.4001 - 31.86) = 8.487; absF2 stays x1 though the load is that of the 90 % state.
// heater: 11.9 % at 20 degC is x = 1.7138, h = 20.0857 + 1.7138e-3 * 2538.5 = 24.436; m = 0.372251:
//   0.372251 * (24.436 + 5.658) = 11.2027.
// water humidifier: m = 0.333374, x2 = 9.255 at 87.1 %; water 0.333374 * (9.255 - 7.265) = 0.664
//   g/s, 2.389 kg/h with e = 1000, 2.38 with d = 100; latent over 20 degC at x2: h = 20.0857 +
//   9.255e-3 * 2538.5 = 43.579, so 0.333374 * (43.579 - 38.5275) = 1.684, searched to 0.005 g/kg.
// steam: 0.333374 * (57.4001 - 38.5275) = 6.2917; water 0.333374 * 7.436461 * 3.6 = 8.9249.
TEST(PointPanel, ToolsByHand) {
    struct Fields {
        const char *flow, *t1, *relF1, *t2, *relF2;
    };
    const struct {
        const char* name;
        Calculation mode;
        Fields fields;
        const char *t2_after, *relF2_after;
        Shown shown;
    } rows[] = {
        {"capacity",
         Calculation::Capacity,
         {"10000", "20", "100", "12", "95"},
         "12",
         "95",
         {" 14.7", " 57.4", " 8.28", " 33", " 81.19", " 54.04", " 27.14", " 76.7", 76.7}},
        {"warming",
         Calculation::Capacity,
         {"10000", "12", "95", "20", "100"},
         "20",
         "100",
         {" 8.28", " 33", " 14.7", " 57.4", "-83.7", " 55.71", " 27.98", "-79.1", -79.08}},
        {"cooler",
         Calculation::Cooler,
         {"1000", "20", "100", "12", "50"},
         "12",
         " 90",
         {" 14.7", " 57.4", " 14.7", " 31.9", " 8.48", " 5.77", " 2.71", " 8.19", 8.19}},
        {"heater",
         Calculation::Heater,
         {"1000", "-10", "100", "20", "50"},
         "20",
         " 11.9",
         {" 1.76", "-5.7", " 1.76", " 24.4", " 11.2", " 0", " 11.2", " 0", 0}},
        {"water",
         Calculation::WaterHumidifier,
         {"1000", "20", "50", "15", "50"},
         "15",
         " 87.1",
         {" 7.26", " 38.5", " 9.27", " 38.5", " 1.69", " 1.69", " 0", " 2.389", 2.38}},
        {"steam",
         Calculation::SteamHumidifier,
         {"1000", "20,0", "50", "15", "100"},
         "20,0",
         "100",
         {" 7.26", " 38.5", " 14.7", " 57.4", " 6.29", " 6.29", " 0", " 8.92", 8.92}},
    };
    for (const auto& row : rows) {
        ProcessWindow window;
        const Fields& fields = row.fields;
        window.point.LuftM1.text = fields.flow;
        window.SetStates(fields.t1, fields.relF1, fields.t2, fields.relF2);
        window.Open(row.mode);
        window.Calculate();
        EXPECT_EQ(window.point.Temp2.text, row.t2_after) << row.name;
        EXPECT_EQ(window.point.relF2.text, row.relF2_after) << row.name;
        ExpectShown(window, row.shown, row.name);
        EXPECT_EQ(window.shared.ZurueckVomDialog, DialogEcho::Expected);
    }
}

// The second state out of the fields' limits: texts and figures stay, until the tool finds it back.
TEST(PointPanel, HeaterBelowTheDewPointAndBack) {
    ProcessWindow window;
    PointPanel& panel = window.point;
    panel.LuftM1.text = "1000";
    window.SetStates("-10", "100", "20", "50");
    window.Open(Calculation::Heater);
    window.Calculate();
    panel.Temp2.text = "-20";
    window.Calculate();
    EXPECT_NEAR(ToDouble(panel.relF2.text), 228.5, 0.5) << "no cap";
    EXPECT_EQ(panel.Kleist.text, " 11.2");
    window.Calculate();
    EXPECT_EQ(panel.Kleist.text, " 11.2");
    panel.Temp2.text = "20";
    window.Calculate();
    EXPECT_EQ(panel.relF2.text, " 11.9");
    EXPECT_EQ(panel.enth2.text, " 24.4");
}

TEST(PointPanel, WaterHumidifierBeyondSaturationTurnsRedAndBack) {
    ProcessWindow window;
    PointPanel& panel = window.point;
    window.SetStates("20", "50", "10", "50");
    window.Open(Calculation::WaterHumidifier);
    window.Calculate();
    EXPECT_EQ(panel.relF2.text, " 99");
    EXPECT_EQ(panel.relF2.background, 12);
    EXPECT_EQ(panel.enth2.text, " 38.5") << "that of state 1, not of 99 %";
    panel.Temp2.text = "15";
    window.Calculate();
    EXPECT_EQ(panel.relF2.background, 15);
}

TEST(PointPanel, MixtureAndItsMarks) {
    ProcessWindow window;
    PointPanel& panel = window.point;
    window.SetStates("20", "50", "-10", "100");
    panel.LuftM1.text = "3000";
    panel.LuftM2.text = "0";
    window.Open(Calculation::Mixing);
    window.Calculate();
    EXPECT_EQ(panel.TempM.text, "");
    EXPECT_FALSE(window.overlay.PP3.visible);
    panel.LuftM2.text = "1000";
    window.Calculate();
    EXPECT_EQ(panel.TempM.text, " 12.5");
    EXPECT_EQ(panel.absFM.text, " 5.88");  // 5.8895
    EXPECT_NEAR(ToDouble(panel.relFM.text), 65.6, 0.1);
    // 1800 units for 40 g/kg and 580 for 1.07 * 60 K, origin (35, 560 - 181).
    EXPECT_NEAR(window.overlay.tmLab.left, 35 + 5.889521625 * 45, 1e-6) << "at the point itself";
    EXPECT_NEAR(window.overlay.tmLab.top, 379 - 12.5 * 580 / 64.2, 1e-6);
    EXPECT_NEAR(window.overlay.PP3.left, window.overlay.tmLab.left - 6, 1e-9);
    EXPECT_TRUE(window.overlay.PP3.visible && window.overlay.tmLab.visible);
    EXPECT_EQ(panel.Kleist.text, "") << "mixing has no capacity";

    panel.Temp1.text = "200";  // off the chart: all figures stay
    window.Calculate();
    EXPECT_EQ(panel.TempM.text, " 12.5");
    EXPECT_EQ(panel.absF1.text, " 7.26");
}

TEST(PointPanel, MarksOnBothChartsCarriedAndHeated) {
    for (const int chart : {kMollier, kCarrier}) {
        ProcessWindow window;
        window.ChooseChart(chart);
        PointPanel& panel = window.point;
        Overlay& overlay = window.overlay;
        window.SetStates("20", "50", "-10", "100");
        window.Open(Calculation::StateChange);
        window.Calculate();
        // On the Carrier chart 580 units for 1.2 * 60 K, origin 500 - 162, aspect 2.5.
        const bool mollier = chart == kMollier;
        const double along_x = 35 + 7.264747888 * 45;
        const double x = mollier ? along_x : 1800 - (338 - 20 * 580 / 72.0) * 2.5;
        const double y = mollier ? 379 - 20 * 580 / 64.2 : 560 - along_x / 2.5;
        EXPECT_NEAR(overlay.PP1.left, x - 6, 1e-6);
        EXPECT_NEAR(overlay.PP1.top, y - 6, 1e-6);
        EXPECT_NEAR(overlay.t1Lab.left, x + 5, 1e-6);
        EXPECT_NEAR(overlay.ZAeLine.x1, x, 1e-6);
        EXPECT_TRUE(overlay.ZAeLine.visible && overlay.PP2.visible && overlay.t2lab.visible);

        const double left = overlay.PP2.left, top = overlay.PP2.top;
        window.read_out.Temp.text = " 0";
        panel.MarkenSetzen(Calculation::StateChange, MarkPlacing::SecondCarried);
        EXPECT_NE(overlay.PP2.left + overlay.PP2.top, left + top) << "follows the pointer";
        EXPECT_NEAR(overlay.PP1.left, x - 6, 1e-6);
        window.read_out.Temp.text = "-";
        const double carried = overlay.PP2.top;
        panel.MarkenSetzen(Calculation::StateChange, MarkPlacing::SecondCarried);
        EXPECT_EQ(overlay.PP2.top, carried) << "there is no air at the pointer";

        panel.MarkenSetzen(Calculation::Heater, MarkPlacing::FromFields);
        EXPECT_EQ(overlay.ZAeLine.x2, overlay.ZAeLine.x1) << "vertical on either chart";
        EXPECT_EQ(overlay.PP2.left, overlay.PP1.left);
    }
}

TEST(PointPanel, FollowsPressureAndZoom) {
    ProcessWindow window;
    window.SetStates("25", "60", "10", "50");
    window.Open(Calculation::StateChange);
    window.solver.ChartDruckBar = 0.795;
    window.Calculate();
    EXPECT_EQ(window.point.absF1.text, " 15.24");  // 15.2465539 in the independent table
    const double width = window.overlay.ZAeLine.x1 - window.overlay.ZAeLine.x2;
    ApplyZoom({400, 100, 600, 200}, 0.5, 0.25, window.scale);
    window.point.MarkenSetzen(Calculation::StateChange, MarkPlacing::FromFields);
    EXPECT_NEAR(window.overlay.ZAeLine.x1 - window.overlay.ZAeLine.x2, 2 * width, 1e-6);
}

TEST(PointPanel, BarsFollowFieldsAndFieldsBars) {
    ProcessWindow window;
    PointPanel& panel = window.point;
    panel.LuftM1.text = "2500";
    window.SetStates("20,5", "50", "12.37", "95");
    window.Open(Calculation::Capacity);
    window.Return(panel.Temp1);
    EXPECT_EQ(panel.Tscroll1.Position(), 205);
    EXPECT_EQ(panel.Temp1.text, " 20.5") << "the bar that moved wrote its field";
    EXPECT_EQ(panel.Temp2.text, " 12.4");
    EXPECT_EQ(panel.VScroll1.Position(), 100);
    EXPECT_EQ(panel.LuftSchritt1, 25);

    panel.VScroll1.SetPosition(160);
    EXPECT_EQ(panel.LuftM1.text, " 4000");
    EXPECT_EQ(window.shared.ZurueckVomDialog, DialogEcho::None);
    panel.LuftM1.text = "9000";
    window.Return(panel.LuftM1);
    EXPECT_EQ(panel.LuftSchritt1, 90);
    EXPECT_EQ(panel.VScroll1.Position(), 100);

    panel.Temp1.text = "40";  // the end of the chart is not strictly inside
    panel.relF1.text = "100.1";
    panel.SchieberAbgleich();
    EXPECT_EQ(panel.Tscroll1.Position(), 205);
    EXPECT_EQ(panel.FScroll1.Position(), 500);
}

// 1000 m3/h give 8.119 kW, shown 8.11, so 20.5 kW need 1000 * 20.5 / 8.11 = 2527.7, rounded 2528
// m3/h. These give 20.52 kW; the shares of 54.04 and 27.14 in 81.19 are scaled back to 20.5 kW.
TEST(PointPanel, FlowFromCapacity) {
    ProcessWindow window;
    PointPanel& panel = window.point;
    window.SetStates("20", "100", "12", "95");
    window.Open(Calculation::Capacity);
    panel.Kleist.text = " 20,5 ";
    panel.VolumeFromCapacity(Calculation::Capacity);
    EXPECT_EQ(panel.Kleist.text, "20.5");
    EXPECT_EQ(panel.LuftM1.text, " 2528");
    EXPECT_NEAR(ToDouble(panel.KLatent.text), 20.5 * 54.04 / 81.19, 0.02);
    EXPECT_NEAR(ToDouble(panel.Ksensibel.text), 20.5 * 27.14 / 81.19, 0.02);
    EXPECT_EQ(panel.VScroll1.Position(), 100);
    EXPECT_DOUBLE_EQ(panel.LuftSchritt1, 25.28);
}

TEST(PointPanel, FlowFromCapacityOfEqualStatesKeepsTheTrialFlow) {
    ProcessWindow window;
    window.SetStates("20", "80", "20", "80");
    window.Open(Calculation::Capacity);
    window.point.Kleist.text = "20";
    window.point.VolStrm_rech(Calculation::Capacity);
    EXPECT_EQ(ToDouble(window.point.LuftM1.text), 1000);
}

}  // namespace
}  // namespace zandrell
