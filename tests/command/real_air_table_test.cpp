#include <map>
#include <nlohmann/json.hpp>

#include "command/table_run.h"

namespace zandrell::command_test {
namespace {

CommandLine RealLine() {
    CommandLine line = StateLine();
    line.real_air = true;
    return line;
}

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
        EXPECT_EQ(lines[0], head +
                                ",p,t_degc,rh_percent,x_g_per_kg,h_kj_per_kg,t_dew_degc,t_wet_degc,"
                                "t_wet_liquid_degc,p_vapour_pa,density_kg_per_m3,v_m3_per_kg,"
                                "enhancement");
        const auto found = LastNumbers(lines[1], 11);
        EXPECT_NEAR(found[0], 25, 0.002) << table;
        EXPECT_NEAR(found[1], 50, 0.02) << table;
        EXPECT_NEAR(found[2], 9.9257393, 0.002) << table;
        EXPECT_NEAR(found[3], 50.4234504, 0.005) << table;
        EXPECT_NEAR(found[4], 13.86689, 0.002) << table;
        EXPECT_NEAR(found[5], 17.88349, 0.002) << table;
        EXPECT_EQ(found[6], -1e9) << "there is one wet bulb";
        EXPECT_NEAR(found[8], 1.1773602, 0.0002) << table;
    }
}

TEST(RealAirTable, WithoutAChoiceTheColumnsChooseTheAir) {
    const struct {
        const char *table, *added;
        bool real;
    } rows[] = {{"t,rh,p\n25,50,1\n", "density_dry_air_kg_per_m3,t_boiling_k", false},
                {"t,rh,t_wet,p\n25,50,18,1\n", "density_dry_air_kg_per_m3,t_boiling_k", false},
                {"room, t ,\"t_wet\",p\r\n7,25,18,1\r\n", "v_m3_per_kg,enhancement", true},
                {"\xEF\xBB\xBFx,h,p\n7,40,1", "v_m3_per_kg,enhancement", true}};
    for (const auto& row : rows) {
        CommandLine line = StateLine();
        line.air_by_columns = true;
        const TableRun run = RunTable(line, row.table);
        ASSERT_TRUE(run.done) << row.table << run.error;
        EXPECT_EQ(run.reports, "") << row.table;
        const auto lines = Lines(run.output);
        ASSERT_EQ(lines.size(), 2U) << row.table;
        EXPECT_TRUE(lines[0].ends_with(row.added)) << lines[0];
        EXPECT_GT(LastNumbers(lines[1], 1)[0], 0.9) << "a result in the last column";
        line.air_by_columns = false;
        EXPECT_EQ(RunTable(line, row.table).done, !row.real) << "the suite needs t and rh";
    }
    CommandLine line = StateLine();
    line.air_by_columns = true;
    EXPECT_FALSE(RunTable(line, "").done);
    EXPECT_TRUE(RunTable(line, "t,x").done) << "a header alone is a table without rows";
}

TEST(RealAirTable, SaysLineByLineWhatIsWrong) {
    const TableRun run = RunTable(
        RealLine(),
        "t,rh,x,h,t_dew,t_wet,p\n25,,,,,26,1.01325\n25,,,,30,,\n25,,-1,,,,\n25,1,2,,,,\n25,,,"
        ",,,\n,,5,,3,,\n25,50,,,,,3\n120,50,,,,,\n0.3,,,,,0,1.01325\n20,0,,,,,\n25,,,,,x,\n");
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
        "line 12: t_wet is no number: \"x\""};
    EXPECT_EQ(Lines(run.reports), reasons);
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 12U);
    EXPECT_TRUE(lines[1].ends_with(",,,,,,,,,,,")) << lines[1];
    const auto both = LastNumbers(lines[9], 11);
    EXPECT_EQ(both[5], 0) << "iced";
    EXPECT_GT(both[6], 0.01) << "a wet bulb that is not iced is a solution too";
    const auto dry = LastNumbers(lines[10], 11);
    EXPECT_EQ(dry[4], -1e9) << "dry air has no dew point, and that is no fault";
    EXPECT_EQ(dry[2], 0);
}

TEST(RealAirTable, OneStateForPeopleAndAsJson) {
    CommandLine line = RealLine();
    line.real_state = RealStateOptions{};
    line.real_state->given[0] = 25;
    line.real_state->given[1] = 50;
    line.real_state->p = 1.01325;
    const TableRun people = RunTable(line, "");
    EXPECT_NE(people.output.find("Dew or frost point"), std::string::npos);
    EXPECT_EQ(people.output.find("not iced"), std::string::npos);
    line.json = true;
    const auto json = nlohmann::json::parse(RunTable(line, "").output);
    EXPECT_NEAR(json["t_wet_degc"].get<double>(), 17.88349, 0.002);
    line.real_state->given[1] = 150;
    const TableRun wrong = RunTable(line, "");
    EXPECT_FALSE(wrong.done);
    EXPECT_EQ(wrong.error, "rh = 150 is outside 0..100 %");
}

}  // namespace
}  // namespace zandrell::command_test
