#include <map>
#include <nlohmann/json.hpp>

#include "command/table_run.h"
#include "kernel/kernel_support.h"
#include "support/test_folder.h"

namespace zandrell::command_test {
namespace {

CommandLine RealLine() { return StateLine(AirChoice::Real); }

constexpr const char* kAdded =
    "x_g_per_kg,h_kj_per_kg,h_dry_air_kj_per_kg,p_dry_air_pa,p_vapour_pa,density_kg_per_m3,"
    "density_dry_air_kg_per_m3,t_boiling_k,t_degc,rh_percent,t_dew_degc,t_wet_degc,"
    "t_wet_liquid_degc,v_m3_per_kg,enhancement";

enum Result {
    kX,
    kEnthalpy,
    kDryEnthalpy,
    kDryPressure,
    kVapourPressure,
    kDensity,
    kDryDensity,
    kBoiling,
    kT,
    kHumidity,
    kDewPoint,
    kWetBulb,
    kLiquidBulb,
    kVolume,
    kEnhancement,
    kResults
};

// From an independent calculation of the model: 25 degC, 50 % at 1.01325 bar.
TEST(RealAirTable, AnyTwoFiguresGiveAllOthers) {
    const std::vector<const char*> pairs{"t,rh\n25,50", "t,t_wet\n25,WET",  "t_dew,t\nDEW,25",
                                         "x,h\nX,H",    "rh,t_wet\n50,WET", "p_vapour,h\nPV,H"};
    const std::map<std::string, std::string> figures{{"WET", "17.88349"},
                                                     {"DEW", "13.86689"},
                                                     {"X", "9.9257393"},
                                                     {"H", "50.4234504"},
                                                     {"PV", "1591.66341"}};
    for (std::string table : pairs) {
        for (const char* name : {"WET", "DEW", "PV", "X", "H"}) {
            const auto at = table.find(name, table.find('\n'));
            if (at != std::string::npos) {
                table.replace(at, std::string(name).size(), figures.at(name));
            }
        }
        const std::string head = table.substr(0, table.find('\n'));
        table.insert(head.size(), ",p").append(",1.01325\n");
        const TableRun run = RunTable(RealLine(), table);
        ASSERT_TRUE(run.done) << run.error;
        EXPECT_EQ(run.reports, "") << table;
        const auto lines = Lines(run.output);
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[0], head + ",p," + kAdded);
        const auto found = LastNumbers(lines[1], kResults);
        EXPECT_NEAR(found[kT], 25, 0.002) << table;
        EXPECT_NEAR(found[kHumidity], 50, 0.02) << table;
        EXPECT_NEAR(found[kX], 9.9257393, 0.002) << table;
        EXPECT_NEAR(found[kEnthalpy], 50.4234504, 0.005) << table;
        EXPECT_NEAR(found[kDewPoint], 13.86689, 0.002) << table;
        EXPECT_NEAR(found[kWetBulb], 17.88349, 0.002) << table;
        EXPECT_EQ(found[kLiquidBulb], -1e9) << "there is one wet bulb";
        EXPECT_NEAR(found[kDensity], 1.1773602, 0.0002) << table;
        // The same calculation for dry air.
        EXPECT_NEAR(found[kDryEnthalpy], 25.1484154, 0.005) << table;
        EXPECT_NEAR(found[kDryDensity], 1.18434596, 0.0002) << table;
        EXPECT_NEAR(found[kDryPressure], 101325 - 1591.66341, 0.3) << table;
        EXPECT_NEAR(found[kBoiling], 373.124, 0.001) << "the normal boiling point of water";
    }
}

TEST(RealAirTable, WithoutAChoiceOtherFiguresThanTAndRhAreOfRealAir) {
    const struct {
        const char* table;
        bool real;
    } rows[] = {{"t,rh,p\n25,50,1\n", false},
                {"t,rh,t_wet,p\n25,50,18,1\n", false},
                {"room, t ,\"t_wet\",p\r\n7,25,18,1\r\n", true},
                {"\xEF\xBB\xBFx,h,p\n7,40,1", true}};
    const TestFolder folder;  // with settings of the suite
    folder.CopyWholeSet();
    for (const auto& row : rows) {
        CommandLine line = StateLine(AirChoice::Convention);
        for (const bool suite : {false, true}) {
            if (suite) line.data = folder.Path();
            const TableRun run = RunTable(line, row.table);
            ASSERT_TRUE(run.done) << row.table << run.error;
            EXPECT_EQ(run.reports, "") << row.table;
            const auto lines = Lines(run.output);
            ASSERT_EQ(lines.size(), 2U) << row.table;
            EXPECT_EQ(lines[0].ends_with(kAdded), row.real || !suite) << lines[0];
            EXPECT_EQ(lines[0].ends_with("t_boiling_k"), !row.real && suite) << lines[0];
            EXPECT_GT(LastNumbers(lines[1], 1)[0], 0.9) << "a result in the last column";
        }
        line.air = AirChoice::Suite;
        EXPECT_EQ(RunTable(line, row.table).done, !row.real) << "the suite needs t and rh";
    }
    const CommandLine line = StateLine(AirChoice::Convention);
    EXPECT_FALSE(RunTable(line, "").done);
    EXPECT_EQ(RunTable(line, "t,RH\n").error, "line 1: there is no column rh, but RH");
    EXPECT_TRUE(RunTable(line, "t,x").done) << "a header alone is a table without rows";
}

// Scripts that read the suite's columns find them in their places, with figures of real air.
TEST(RealAirTable, WithoutAChoiceTAndRhHaveTheAirOfTheSettings) {
    const std::string table = "t,rh,p\n25,50,1.01325\n-10,90,1\n20,130,1\n120,10,1.01325\n";
    CommandLine line = StateLine(AirChoice::Convention);
    const auto exact = Lines(RunTable(line, table).output);
    line.air = AirChoice::Real;
    const auto real = Lines(RunTable(line, table).output);
    line.air = AirChoice::Suite;
    const TableRun suite = RunTable(line, table);
    const auto names = Lines(suite.output)[0];
    EXPECT_TRUE(exact[0].starts_with(names + ",t_degc")) << exact[0];
    EXPECT_EQ(exact[1], real[1]);
    EXPECT_EQ(exact[2], real[2]);
    EXPECT_NE(exact[2], Lines(suite.output)[2]);
    EXPECT_EQ(LastNumbers(exact[3], kResults)[kHumidity], 100) << "what was used in its place";
    line.air = AirChoice::Convention;
    EXPECT_EQ(RunTable(line, table).reports,
              "line 4: rh = 130 is outside 0..100 %, 100 is taken\n");

    const TestFolder folder;  // with settings of the suite
    folder.CopyWholeSet();
    line = StateLine(AirChoice::Convention);
    line.data = folder.Path();
    EXPECT_EQ(RunTable(line, table).output, suite.output) << "settings of an older installation";
    line.state = StateOptions{{25, 50}, 1.01325};
    EXPECT_EQ(Lines(RunTable(line, "").output).size(), 11U);
    line.data = ZANDRELL_STAGED_DATA;
    EXPECT_NE(RunTable(line, "").output.find("Wet bulb                             17.88349"),
              std::string::npos);
}

// Beyond the model the air of the settings goes on; where it ends too, the limits are its own.
TEST(RealAirTable, TheAirOfTheSettingsGoesOnBeyondTheModel) {
    const TableRun run = RunTable(StateLine(AirChoice::Convention),
                                  "t,rh,p\n120,10,1.01325\n99.999999,5,1\n100.000001,5,1\n-55,50,1"
                                  "\n20,50,3\n20,50,0.3\n-55,50,3\n-61,50,1\n801,1,1\n20,50,9\n"
                                  "120,60,1.01325\n20,0,3\n20,,1\n20,-5,1\n20,50,0\n");
    ASSERT_TRUE(run.done) << run.error;
    // Of 198.67 kPa, the pressure of steam at 120 degC, 101.325 are 51 %.
    const std::vector<std::string> reasons{
        "line 8: t = -55 is outside -50..800 degC",
        "line 9: t = -61 is outside -60..800 degC",
        "line 10: t = 801 is outside -60..800 degC",
        "line 11: p = 9 is outside 0..8.5 bar",
        "line 12: rh = 60 is outside 0..51.002842 %, with this t",
        "line 14: rh is empty",
        "line 15: rh = -5 is outside 0..100 %",
        "line 16: p = 0 is not above 0 bar"};
    EXPECT_EQ(Lines(run.reports), reasons);
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 16U);
    // Steam tables: 198.67 kPa at 120 degC. x = 621.945 * 19867 / (101325 - 19867); the density by
    // the gas law, 81458 / (287.04 * 393.15) + 19867 / (461.5 * 393.15).
    const auto hot = LastNumbers(lines[1], kResults);
    EXPECT_NEAR(hot[kVapourPressure], 19867, 2);
    EXPECT_NEAR(hot[kX], 151.69, 0.05);
    EXPECT_NEAR(hot[kDensity], 0.8313, 0.002);
    EXPECT_EQ(hot[kEnhancement], -1e9);
    const auto below = LastNumbers(lines[2], kResults), above = LastNumbers(lines[3], kResults);
    for (std::size_t i = 0; i < kEnhancement; ++i) {
        EXPECT_NEAR(below[i], above[i], 1e-6 * std::abs(below[i])) << "no jump in figure " << i;
    }
    // Over ice at -55 degC 2.0934 Pa (IAPWS R14-08), which the enhancement raises by 0.7 %.
    EXPECT_NEAR(LastNumbers(lines[4], kResults)[kVapourPressure], 1.0467 * 1.0066, 0.001);
    // 1169.6 Pa by the steam tables, more or less of which is enhancement.
    EXPECT_NEAR(LastNumbers(lines[5], kResults)[kVapourPressure], 1169.6, 12);
    EXPECT_NEAR(LastNumbers(lines[6], kResults)[kVapourPressure], 1169.6, 12);
    EXPECT_EQ(LastNumbers(lines[12], kResults)[kDewPoint], -1e9) << "dry air";

    // A specific heat of vapour that overflows.
    const TestFolder folder;
    folder.CopyStaged("qv_par.dat");
    folder.Write("qvdata.dat", kernel_test::FirstNumbers(116) + ",1e295,0");
    CommandLine line = StateLine(AirChoice::Convention);
    line.data = folder.Path();
    EXPECT_EQ(RunTable(line, "t,rh,p\n50,5,1\n150,1,1\n").reports,
              "line 3: the state is no finite number\n");
}

TEST(RealAirTable, SaysLineByLineWhatIsWrong) {
    const TableRun run = RunTable(
        RealLine(),
        "t,rh,x,h,t_dew,t_wet,p\n25,,,,,26,1.01325\n25,,,,30,,\n25,,-1,,,,\n25,1,2,,,,\n25,,,"
        ",,,\n,,5,,3,,\n25,50,,,,,3\n120,50,,,,,\n0.3,,,,,0,1.01325\n20,0,,,,,\n25,,,,,x,\n,0,,,5,,"
        "\n,0,0,,,,\n,100,3.7939,,,,1.013\n"
        "25,100,,,,,\n");
    ASSERT_TRUE(run.done) << run.error;
    const std::vector<std::string> reasons{
        "line 2: t_wet = 26 is outside 8.243169..25 degC, with this t",
        "line 3: t_dew = 30 is outside -100..25 degC, with this t",
        "line 4: x = -1 is outside 0..10000 g/kg",
        "line 5: two of t, rh, x, h, t_dew, t_wet, p_vapour and density are needed, not 3",
        "line 6: two of t, rh, x, h, t_dew, t_wet, p_vapour and density are needed, not 1",
        "line 7: x and t_dew do not determine a state",
        "line 8: p = 3 is outside 0.5..2 bar",
        "line 9: t = 120 is outside -60..100 degC",
        "line 12: t_wet is no number: \"x\"",
        "line 13: dry air has no dew point",
        "line 14: rh and x do not determine a state",
        "line 15: air of 0.009312 degC and of 0.01053 degC has both figures; the first is taken"};
    EXPECT_EQ(Lines(run.reports), reasons);
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 16U);
    EXPECT_NEAR(LastNumbers(lines[14], kResults)[kT], 0.009312, 1e-6);
    const auto saturated = LastNumbers(lines[15], kResults);
    EXPECT_EQ(saturated[kDewPoint], 25);
    EXPECT_EQ(saturated[kWetBulb], 25);
    EXPECT_TRUE(lines[1].ends_with(std::string(kResults, ','))) << lines[1];
    const auto both = LastNumbers(lines[9], kResults);
    EXPECT_EQ(both[kWetBulb], 0) << "iced";
    EXPECT_GT(both[kLiquidBulb], 0.01) << "a wet bulb that is not iced is a solution too";
    const auto dry = LastNumbers(lines[10], kResults);
    EXPECT_EQ(dry[kDewPoint], -1e9) << "dry air has no dew point, and that is no fault";
    EXPECT_EQ(dry[kX], 0);
}

TEST(RealAirTable, OneStateForPeopleAndAsJson) {
    CommandLine line = RealLine();
    line.state = StateOptions{{25, 50}, 1.01325};
    const TableRun people = RunTable(line, "");
    EXPECT_NE(people.output.find("Dew or frost point"), std::string::npos);
    EXPECT_EQ(people.output.find("not iced"), std::string::npos);
    line.json = true;
    const auto json = nlohmann::json::parse(RunTable(line, "").output);
    EXPECT_NEAR(json["t_wet_degc"].get<double>(), 17.88349, 0.002);
    EXPECT_TRUE(json["t_wet_liquid_degc"].is_null());
    EXPECT_EQ(json["t"], 25);
    line.state->given[1] = 150;
    const TableRun wrong = RunTable(line, "");
    EXPECT_FALSE(wrong.done);
    EXPECT_EQ(wrong.error, "rh = 150 is outside 0..100 %");

    line = StateLine(AirChoice::Convention);
    line.state = StateOptions{{200, 1}, 1};
    EXPECT_TRUE(RunTable(line, "").reports.starts_with("note: beyond -60..100 degC, 0.5..2 bar"));
    line.state = StateOptions{{20, 130}, 1};
    EXPECT_EQ(RunTable(line, "").reports, "note: rh = 130 is outside 0..100 %, 100 is taken\n");
    line.state = StateOptions{{20, 50}, 1};
    EXPECT_EQ(RunTable(line, "").reports, "");
}

}  // namespace
}  // namespace zandrell::command_test
