// The opener of the selection window: what it supplies, and how it answers each request.
#include "selection/selection_opener.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "selection/planner_form.h"
#include "selection_session.h"

namespace zandrell {
namespace {

using selection_test::EndMark;
using selection_test::RecordBytes;
using enum KatalogFeld;

// A window with its opener over the delivered data.
class OpenerTest : public ::testing::Test {
  protected:
    OpenerTest() {
        folder.CopyWholeSet();
        desk.Load();
        opener.Load();
    }
    void OpenUnit(int series, int unit) {
        desk.window.UserPickCell("KatalogSpread", series, 3);
        opener.React();
        desk.window.UserPickCell("Venttab", unit, 1);
        desk.window.UserClick("Command3D2");
        opener.React();
    }

    TestFolder folder;
    DataFiles files{folder.Path()};
    std::istringstream no_script;
    std::ostringstream no_dumps;
    ScriptedUser user{no_script, no_dumps};
    SelectionDesk desk{user, files, NamedFolder(folder.Path())};
    SelectionContext context{files, desk.shared, desk.captions, user, desk.selection};
    SelectionOpener opener{context, desk.window};
    VentZeigControls& c = desk.window.controls;
};

// R134a, -10/45 degC, IIR tables: hv 392.67, hl 263.9 kJ/kg, cp 0.85 and 1.5; po 2.006, pc 11.6
// bar; vapour 10.04 kg/m3. Superheat 8, subcooling 3: 10 kW over 392.67 + 6.8 - 263.9 + 4.5 = 140
// kJ/kg is 0.0714 kg/s; the suction gas 10.04 x 263.15/271.15 = 9.74 kg/m3, so with an efficiency
// of 0.8 0.0714/9.74/0.8 x 3600 = 33 m3/h. Power 10 x 55/263.15/0.55 = 3.8 kW.
TEST_F(OpenerTest, SuppliesTheOperatingPoint) {
    opener.duty.KatalogArt = 550;
    ASSERT_FALSE(opener.Open());
    const SelectionShared& s = desk.selection;
    EXPECT_NEAR(s.inputs.DruckPo, 2.006, 0.005);
    EXPECT_NEAR(s.inputs.DruckPc, 11.6, 0.02);
    EXPECT_NEAR(s.eco.HDampf, 392.67, 0.2);
    EXPECT_NEAR(s.eco.HFluessig, 263.9, 0.2);
    EXPECT_NEAR(s.inputs.MassenStrom, 0.0714, 0.0003);
    EXPECT_NEAR(ParsedNumber(c.Label26.text), 33, 0.3);
    EXPECT_NEAR(ParsedNumber(c.Label27.text), 3.8, 0.01);
    EXPECT_EQ(s.tSL, -2);
    EXPECT_EQ(s.GWP, 1430);
    // The liquid in front of the valve over the boiling one: (263.9 - 4.5 - 186.7)/206 = 0.353.
    EXPECT_NEAR(s.xd, 0.353, 0.004);
    EXPECT_TRUE(s.eco.HZwischen > 200 && s.eco.HZwischen < s.eco.HFluessig);
    EXPECT_EQ(c.KatalogSpread.RowCount(), 8);
    opener.duty.KatalogArt = 650;
    ASSERT_FALSE(opener.Open());
    EXPECT_NEAR(s.inputs.KatBezug, 13.8, 0.01) << "cooling and estimated power";
    opener.duty.KatalogArt = 250;
    ASSERT_FALSE(opener.Open());
    EXPECT_NEAR(s.inputs.KatBezug, 1125, 3) << "liquid at 45 degC";
    opener.duty.KatalogArt = 50;
    ASSERT_FALSE(opener.Open());
    EXPECT_NEAR(s.inputs.KatBezug, 10.04, 0.03) << "vapour at -10 degC";
}

TEST_F(OpenerTest, RefusesWhatCannotBeComputed) {
    ASSERT_FALSE(opener.Open());
    const SelectionInputs before = desk.selection.inputs;
    const struct {
        void (*change)(SelectionDuty&);
        const char* message;
    } cases[] = {
        {[](SelectionDuty& d) { d.capacity = 0; },
         "Refrigerating Capacity must be a number above 0"},
        {[](SelectionDuty& d) { d.capacity = -5; },
         "Refrigerating Capacity must be a number above 0"},
        {[](SelectionDuty& d) { d.evaporating = -60.5; },
         "-60.5 °C lies outside the table of R134A, which has -60 to 90 °C"},
        {[](SelectionDuty& d) { d.condensing = 200; },
         "200 °C lies outside the table of R134A, which has -60 to 90 °C"},
        {[](SelectionDuty& d) { d.condensing = -10; }, "Condensation must lie above evaporation"},
        {[](SelectionDuty& d) { d.refrigerant = "R999"; },
         "The file refrigerants.csv cannot be read"},
    };
    for (const auto& c_ : cases) {
        opener.duty = SelectionDuty{};
        c_.change(opener.duty);
        const auto message = opener.Open();
        ASSERT_TRUE(message) << c_.message;
        EXPECT_EQ(*message, c_.message);
        EXPECT_EQ(desk.selection.inputs.QoSoll, before.QoSoll);
        EXPECT_EQ(desk.selection.inputs.DruckPo, before.DruckPo);
    }
}

// The unit AW 22 of the delivered set: 13.8 kW, and what its record says of power and air.
TEST_F(OpenerTest, TakesAUnitAndItsNeighbours) {
    opener.duty.hours = 1000;
    ASSERT_FALSE(opener.Open());
    EXPECT_EQ(c.ventlabel.text, "");
    desk.window.UserClick("Gross");
    opener.React();
    EXPECT_EQ(c.StatusLab.text, "No unit is chosen");
    OpenUnit(3, 22);
    EXPECT_FALSE(desk.window.closed) << "it opens again";
    EXPECT_EQ(c.ventlabel.text, "AW 22 7 mm");
    EXPECT_EQ(c.Label1.text, " 13.8");
    EXPECT_EQ(c.GewLab.text, "70.1");
    EXPECT_EQ(c.volStrLab.text, "Volume Flow : 7090 m³/h");
    const double power = opener.Unit()->numbers.KatAntrieb;
    ASSERT_GT(power, 0);
    EXPECT_NEAR(ParsedNumber(c.BetrKo.text), std::floor(power * 1000 * 0.25), 0.001);
    EXPECT_NEAR(ParsedNumber(c.CO2consum.text), power * 0.4, 0.01);
    EXPECT_NEAR(ParsedNumber(c.LeistZ.text), 13.8 / power, 0.01);
    desk.window.UserClick("Gross");
    opener.React();
    EXPECT_EQ(c.ventlabel.text, "AW 23 7 mm");
    desk.window.UserClick("Klein");
    opener.React();
    desk.window.UserClick("Klein");
    opener.React();
    EXPECT_EQ(c.ventlabel.text, "AW 21 7 mm");
    desk.window.UserClick("UeberNehm");
    EXPECT_EQ(opener.React(), SelectionEnd::WithResult);
    EXPECT_EQ(opener.Unit()->name, "AW 21 7 mm");
}

// Without a unit there is nothing to take over: the window stays as it stood and says so.
TEST_F(OpenerTest, StaysOpenUntilAUnitIsChosen) {
    ASSERT_FALSE(opener.Open());
    desk.window.UserSetText("search", "eskedal");
    desk.window.UserClick("GoButt");
    ASSERT_EQ(c.KatalogSpread.RowCount(), 4);
    desk.window.UserClick("UeberNehm");
    EXPECT_EQ(opener.React(), SelectionEnd::None);
    EXPECT_FALSE(desk.window.closed);
    EXPECT_EQ(c.StatusLab.text, "No unit is chosen");
    EXPECT_EQ(c.KatalogSpread.RowCount(), 4);
    OpenUnit(1, 5);
    EXPECT_EQ(c.StatusLab.text, "");
    desk.window.UserClick("UeberNehm");
    EXPECT_EQ(opener.React(), SelectionEnd::WithResult);
}

// A file that is missing is told of where it is missing, and no longer than it is.
TEST_F(OpenerTest, MessagesEndWithTheirKindAndWithTheirCause) {
    const std::string index = folder.Read("I150.DAT");
    std::filesystem::remove(folder / "I150.DAT");
    const struct {
        int kind;
        bool restored, told;
    } rows[] = {{150, false, true}, {600, false, false}, {150, false, true}, {150, true, false}};
    for (const auto& row : rows) {
        if (row.restored) folder.Write("I150.DAT", index);
        opener.duty.KatalogArt = row.kind;
        ASSERT_FALSE(opener.Open());
        EXPECT_EQ(c.StatusLab.text.find("I150.DAT") != std::string::npos, row.told)
            << row.kind << c.StatusLab.text;
    }
}

TEST_F(OpenerTest, AnswersTheOtherRequests) {
    ASSERT_FALSE(opener.Open());
    const double plain = desk.selection.inputs.MassenStrom;
    const double swept = ParsedNumber(c.Label26.text);
    desk.window.UserCheck("EcoCheck", true);
    EXPECT_EQ(opener.React(), SelectionEnd::None);
    EXPECT_NE(desk.selection.inputs.MassenStrom, plain);
    EXPECT_NEAR(ParsedNumber(c.Label26.text) / swept, desk.selection.inputs.MassenStrom / plain,
                5e-3)
        << "the swept volume follows";
    EXPECT_FALSE(desk.window.closed);
    desk.window.UserClick("VentEinstell");
    opener.React();
    EXPECT_TRUE(opener.wants_settings);
    OpenUnit(3, 1);
    desk.window.UserClick("Klein");
    opener.React();
    EXPECT_EQ(c.StatusLab.text, "The series has no such unit");
    EXPECT_EQ(c.ventlabel.text, "AW 01 7 mm");
    desk.window.UserClick("Abbrech");
    EXPECT_EQ(opener.React(), SelectionEnd::WithoutResult);
}

TEST_F(OpenerTest, PlannerHidesSortsAndCompares) {
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    SelectionDuty duty;
    duty.capacity = 12;
    planner.Start(duty);
    planner.UserCheck("HideUnfit", true);
    // 12 kW: only the quiet series up to 11 kW and the single unit of .62 kW cannot do it.
    for (int row = 1; row <= 10; ++row) {
        EXPECT_EQ(c.KatalogSpread.Height(row) == 0, row == 2 || row == 10) << row;
    }
    desk.window.UserPickCell("KatalogSpread", 3, 3);
    planner.Follow();
    EXPECT_EQ(c.Venttab.Height(20), 0) << "11.9 kW";
    EXPECT_NE(c.Venttab.Height(21), 0) << "12.8 kW";
    EXPECT_EQ(c.Venttab.row, 21);
    const auto plot = planner.lists.Plot();
    ASSERT_TRUE(plot);
    EXPECT_EQ(plot->duty, 12);
    EXPECT_EQ(plot->points.front().figure, "12.8 kW");
    EXPECT_TRUE(plot->points.front().chosen);
    EXPECT_GE(plot->top, plot->points.back().capacity);
    EXPECT_EQ(plot->ticks.front().text, "0");
    planner.UserCheck("HideUnfit", false);
    planner.Follow();
    EXPECT_EQ(c.Venttab.Height(20), 240);
    desk.window.UserSort("Venttab", kUnitFigure);
    desk.window.UserSort("Venttab", kUnitFigure);
    EXPECT_EQ(c.Venttab.Text(1, kUnitFigure), " 85");
    EXPECT_EQ(c.Venttab.Back(1, kUnitName), 7) << "the stripes stay where they were";
    EXPECT_FALSE(c.Venttab.Back(2, kUnitName));
    for (const int row : {1, 2, 3, 4, 5, 5}) {
        desk.window.UserPickCell("Venttab", row, 1);
        planner.UserClick("Compare");
    }
    const Grid& comparison = planner.lists.Comparison;
    ASSERT_EQ(comparison.ColumnCount(), 1 + PlannerLists::kMostCompared);
    EXPECT_EQ(comparison.Text(0, 1), c.Venttab.Text(2, kUnitName)) << "the first one has gone";
    EXPECT_EQ(comparison.Text(0, 4), c.Venttab.Text(5, kUnitName)) << "and none stands twice";
    EXPECT_EQ(comparison.Text(1, 4), c.Venttab.Text(5, kUnitFigure));
    for (int row = 0; row < comparison.RowCount(); ++row) {
        EXPECT_NE(comparison.Text(row, 0), "Pressure Drop [mbar]") << "a cooler has none";
    }
    // The figures of the duty in force, not those of the time of the choice: half the correction,
    // half the capacity.
    const double whole = ParsedNumber(comparison.Text(1, 4));
    planner.UserSetText("Correction", "0.5");
    planner.UserReturn("Correction");
    EXPECT_TRUE(planner.lists.CompareAnew(opener.duty));
    EXPECT_NEAR(ParsedNumber(comparison.Text(1, 4)), whole / 2, 0.01);
    // Units of another kind have nothing to be compared by.
    planner.UserPick("KindBox", "550 Compressors");
    planner.UserClick("Compare");
    EXPECT_EQ(planner.Message.text, "No unit is chosen");
    EXPECT_EQ(comparison.ColumnCount(), 1);
}

TEST_F(OpenerTest, PlannerAsksForWhatTheKindNeeds) {
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    planner.Start({});
    const struct {
        const char *kind, *asked, *not_asked;
    } kinds[] = {{"600 Air Coolers", "AddedLoad", "Rejection"},
                 {"650 Condensers", "Rejection", "MeanDifference"},
                 {"550 Compressors", "LossSuction", "Correction"},
                 {"250 Regulating Valves", "OpeningLimit", "Price"}};
    for (const auto& kind : kinds) {
        EXPECT_TRUE(planner.UserPick("KindBox", kind.kind)) << kind.kind;
        EXPECT_TRUE(planner.form.Find(kind.asked)->visible) << kind.kind;
        EXPECT_FALSE(planner.form.Find(kind.not_asked)->visible) << kind.kind;
        EXPECT_TRUE(planner.form.Find("Capacity")->visible);
    }
    // What is not seen must not stand in the way.
    planner.form.Find("Price")->text = "abc";
    planner.UserSetText("Capacity", "7");
    planner.UserReturn("Capacity");
    EXPECT_EQ(planner.Message.text, "");
    EXPECT_EQ(desk.selection.inputs.QoSoll, 7);
}

TEST_F(OpenerTest, SaysThatTheRefrigerantsAreMissing) {
    std::filesystem::remove(folder / "refrigerants.csv");
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    planner.Start({});
    EXPECT_EQ(planner.Message.text,
              "The file " + (folder / "refrigerants.csv").string() + " cannot be read");
    EXPECT_FALSE(desk.window.loaded);
}

TEST_F(OpenerTest, AnotherRefrigerantStandsInForOneThatIsUnknown) {
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    SelectionDuty duty;
    duty.refrigerant = "R999";
    planner.Start(duty);
    EXPECT_EQ(planner.Message.text, "");
    EXPECT_EQ(desk.selection.inputs.KaelteMittel, opener.Refrigerants().tables.front().Name());
}

TEST_F(OpenerTest, PlannerWritesTheListHeSees) {
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    planner.Start({});
    const std::string old = "kept";
    folder.Write("list.csv", old);
    std::string file;
    std::string proposed;
    planner.ask_file = [&](const std::string& proposal) {
        proposed = proposal;
        return file;
    };
    planner.UserClick("Csv");
    EXPECT_EQ(planner.Message.text, "") << "nobody named a file";
    EXPECT_EQ(proposed, "600 Air Coolers.csv");
    file = (folder / "nowhere" / "list.csv").string();
    planner.UserClick("Csv");
    EXPECT_NE(planner.Message.text.find(file), std::string::npos);
    EXPECT_NE(planner.Message.text.find("No such file"), std::string::npos) << planner.Message.text;
    EXPECT_FALSE(std::filesystem::exists(file));
    // A folder of that name can not be replaced by a file.
    file = (folder / "list.csv.d").string();
    std::filesystem::create_directories(file + "/inside");
    planner.UserClick("Csv");
    EXPECT_NE(planner.Message.text, "Saved " + file);
    EXPECT_TRUE(std::filesystem::exists(file + "/inside"));
    EXPECT_EQ(folder.Read("list.csv"), old);
    file = (folder / "list.csv").string();
    planner.UserClick("Csv");
    EXPECT_EQ(planner.Message.text, "Saved " + file);
    const std::string series = folder.Read("list.csv");
    EXPECT_NE(series.find("Ulmrain AW Würfelkühler"), std::string::npos) << series;
    desk.window.UserPickCell("KatalogSpread", 3, 3);
    planner.Follow();
    planner.UserClick("Csv");
    const std::string units = folder.Read("list.csv");
    EXPECT_NE(units.find("AW 21 7 mm"), std::string::npos) << "the units of the open series";
    EXPECT_EQ(proposed, "Ulmrain AW Würfelkühler.csv");
    EXPECT_EQ(units.find("Ulmrain"), std::string::npos);
}

TEST_F(OpenerTest, PlannerRefusesFiguresThatAreNone) {
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    planner.Start({});
    planner.UserSetText("Capacity", "abc");
    planner.UserSetText("Hours", "");
    planner.UserReturn("Capacity");
    EXPECT_EQ(planner.form.Find("Capacity")->background, 12);
    EXPECT_NE(planner.form.Find("Hours")->tool_tip, "");
    EXPECT_NE(planner.Message.text.find("Refrigerating Capacity /[kW]"), std::string::npos);
    EXPECT_EQ(desk.selection.inputs.QoSoll, 10) << "nothing is computed";
    planner.UserSetText("Hours", "4000");
    planner.UserSetText("Capacity", "-3");
    planner.UserReturn("Capacity");
    EXPECT_EQ(planner.Message.text, "Refrigerating Capacity must be a number above 0");
    EXPECT_EQ(desk.selection.inputs.QoSoll, 10);
    planner.UserSetText("Capacity", "7,5");
    planner.UserReturn("Capacity");
    EXPECT_EQ(planner.Message.text, "");
    EXPECT_EQ(desk.selection.inputs.QoSoll, 7.5);
    SelectionDuty kept;
    ReadDuty(files, kept);
    EXPECT_EQ(kept.capacity, 7.5);
    EXPECT_EQ(kept.hours, 4000);
}

}  // namespace
}  // namespace zandrell
