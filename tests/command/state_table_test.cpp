#include <nlohmann/json.hpp>

#include "command/table_run.h"
#include "kernel/kernel_support.h"

namespace zandrell::command_test {
namespace {

constexpr const char* kAdded =
    ",x_g_per_kg,h_kj_per_kg,h_dry_air_kj_per_kg,p_dry_air_pa,p_vapour_pa,density_kg_per_m3,"
    "density_dry_air_kg_per_m3,t_boiling_k";
constexpr const char* kEmptyResults = ",,,,,,,,";

TEST(StateTable, AddsThePublishedFigures) {
    struct Case {
        const char* row;
        double x, h, h_dry, p_vapour, density, density_dry;
    };
    // Computed from the published constants by an independent calculation; enthalpies to 0.02
    // kJ/kg.
    const std::vector<Case> cases{
        {"20,0,1.013", 0, 20.0857, 20.0857, 0, 1.203863162, 1.203863162},
        {"20,50,1.013", 7.264747888, 38.5275, 20.0857, 1169.542563, 1.200147971, 1.203863162},
        {"32,40,1.01325", 11.91667649, 62.6605, 32.1454, 1904.841673, 1.150950778, 1.156806757},
        {"-20,90,1.013", 0.6947128846, -18.3605, -20.0726, 113.0210317, 1.393673067, 1.39408448},
        {"50,30,0.9", 26.7729513, 119.6984, 50.2493, 3714.196526, 0.9592423416, 0.9702774269},
        // What the state function replaces: above 100 % is saturation, below 0 is 1 %.
        {"20,130,1.013", 14.70120866, 57.4001, 20.0857, 2339.085126, 1.196344966, 1.203863162},
        // A hundredth of the vapour pressure above: 1000 * 287.04 / 461.5 * 23.39085 / 101276.609.
        {"20,-3,1.013", 0.14365066, 20.4504, 20.0857, 23.39085126, 1.2037897, 1.203863162},
    };
    std::string table = "t,rh,p\n";
    for (const auto& c : cases) table += std::string(c.row) + "\n";
    const TableRun run = RunTable(StateLine(), table);
    ASSERT_TRUE(run.done) << run.error;
    EXPECT_EQ(run.reports, "");
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), cases.size() + 1);
    EXPECT_EQ(lines[0], "t,rh,p" + std::string(kAdded));
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[i];
        const auto found = LastNumbers(lines[i + 1], 8);
        EXPECT_TRUE(lines[i + 1].starts_with(c.row + std::string(",")));
        const double total =
            1e5 * std::stod(std::string(c.row).substr(std::string(c.row).find_last_of(',') + 1));
        const bool replaced = std::string(c.row).find("-3") != std::string::npos;
        const double relative = replaced ? 1e-7 : 1e-9;  // fewer digits by hand
        EXPECT_NEAR(found[0], c.x, relative * c.x) << c.row;
        EXPECT_NEAR(found[1], c.h, 0.02) << c.row;
        EXPECT_NEAR(found[2], c.h_dry, 0.02) << c.row;
        EXPECT_NEAR(found[3], total - c.p_vapour, 1e-3) << c.row;
        EXPECT_NEAR(found[4], c.p_vapour, relative * c.p_vapour) << c.row;
        EXPECT_NEAR(found[5], c.density, relative * c.density) << c.row;
        EXPECT_NEAR(found[6], c.density_dry, 1e-9 * c.density_dry) << c.row;
    }
    // Water boils at 99.99 degC at 1.013 bar.
    EXPECT_NEAR(LastNumbers(lines[1], 1)[0], 373.14, 0.02);
}

TEST(StateTable, FindsColumnsByNameAndPassesTheOthersThrough) {
    const TableRun plain = RunTable(StateLine(), "t,rh\n20,50\n");
    ASSERT_TRUE(plain.done) << plain.error;
    const std::string results = Lines(plain.output)[1].substr(5);
    // Without p it is the 1.013 bar of the delivered settings.
    EXPECT_NEAR(LastNumbers(results, 8)[0], 7.264747888, 1e-8);

    const std::string table =
        "\xEF\xBB\xBF\"rh\",note , t\r\n"
        "50,\"a, \"\"b\"\"\",20\r\n"
        "\r\n"
        "\"50,0\", \x80 caf\xE9,\" +2.0e1 \"\r\n"
        "5E1,,20.";
    const std::string expected =
        "\xEF\xBB\xBF\"rh\",note , t" + std::string(kAdded) + "\n50,\"a, \"\"b\"\"\",20" + results +
        "\n\"50,0\", \x80 caf\xE9,\" +2.0e1 \"" + results + "\n5E1,,20." + results + "\n";
    for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, table.size()}) {
        const TableRun run = RunTable(StateLine(), table, piece);
        EXPECT_EQ(run.output, expected) << "in pieces of " << piece;
        EXPECT_EQ(run.reports, "");
    }
}

TEST(StateTable, ReportsBadRowsAndGoesOn) {
    struct Case {
        std::string row, passed_through, report;
    };
    const std::vector<Case> cases{
        {"abc,50,1,", "abc,50,1,", "t is no number: \"abc\""},
        {"20,,1,", "20,,1,", "rh is empty"},
        {"20,12x,1,", "20,12x,1,", "rh is no number: \"12x\""},
        {"20,1e999,1,", "20,1e999,1,", "rh is no number: \"1e999\""},
        {"20,50,nan,", "20,50,nan,", "p is no number: \"nan\""},
        {"inf,50,1,", "inf,50,1,", "t is no number: \"inf\""},
        {"+-2,50,1,", "+-2,50,1,", "t is no number: \"+-2\""},
        {"1 0,50,1,", "1 0,50,1,", "t is no number: \"1 0\""},
        {"0x10,50,1,", "0x10,50,1,", "t is no number: \"0x10\""},
        {"\"1,000.5\",50,1,", "\"1,000.5\",50,1,", "t is no number: \"1,000.5\""},
        {"20,50", "20,50,,", "2 cells, but the header has 4"},
        {"20,5,5,1,", "20,5,5,1,", "5 cells, but the header has 4"},
        {"800.1,50,1,", "800.1,50,1,", "t = 800.1 is outside -50..800 degC"},
        {"20,50,-0.1,", "20,50,-0.1,", "p = -0.1 is outside 0..8.5 bar"},
        // Rows that would run into the next one are not passed on.
        {"20,50,1,\"open", ",,,", "a quoted cell does not end where it should"},
        {"\"20\"0,50,1,", ",,,", "a quoted cell does not end where it should"},
        {"20,50,1," + std::string(3U << 20U, 'x'), ",,,", "the line is longer than 1048576 bytes"},
    };
    std::string table = "t,rh,p,note\n", reports;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        table += cases[i].row + "\n20,50,1.013,good\n";
        reports += "line " + std::to_string(2 * i + 2) + ": " + cases[i].report + "\n";
    }
    const TableRun run = RunTable(StateLine(), table, 4096);
    EXPECT_TRUE(run.done) << run.error;
    EXPECT_EQ(run.reports, reports);
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 2 * cases.size() + 1);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(lines[2 * i + 1], cases[i].passed_through + kEmptyResults);
        EXPECT_NEAR(LastNumbers(lines[2 * i + 2].substr(17), 8)[0], 7.264747888, 1e-8);
    }
}

TEST(StateTable, WritesOneJsonObjectALine) {
    CommandLine line = StateLine();
    line.json = true;
    const TableRun run = RunTable(line,
                                  "t,rh,p,code,re\"mark\n"
                                  "20,\"50,0\",1.013,007,\"a \"\"b\"\"\tc\\\"\n"
                                  "20,x,1.013,-1.50e3,caf\xE9\n"
                                  "1,2\n"
                                  "-0,\"-0,0\",1.013,-0,\n");
    ASSERT_TRUE(run.done) << run.error;
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_TRUE(lines[0].starts_with(R"({"t":20,"rh":50,"p":1.013,"code":"007","re\"mark":)"))
        << lines[0];
    EXPECT_TRUE(lines[1].starts_with(R"({"t":20,"rh":"x","p":1.013,"code":-1.50e3,)")) << lines[1];
    const auto good = nlohmann::json::parse(lines[0]);
    EXPECT_EQ(good["re\"mark"], "a \"b\"\tc\\");
    EXPECT_NEAR(good["x_g_per_kg"].get<double>(), 7.264747888, 1e-8);
    EXPECT_EQ(good.size(), 13U);
    const auto bad = nlohmann::json::parse(lines[1]);
    EXPECT_EQ(bad["re\"mark"], "caf\xC3\xA9");
    EXPECT_TRUE(bad["t_boiling_k"].is_null());
    EXPECT_TRUE(nlohmann::json::parse(lines[2])["p"].is_null());
    // A negative zero means zero; what is passed through keeps its sign.
    EXPECT_TRUE(lines[3].starts_with(R"({"t":0,"rh":0,"p":1.013,"code":-0,)")) << lines[3];
}

// A specific heat of vapour that overflows above some 30 degC takes the enthalpy away, not the
// rest.
TEST(StateTable, ResultsAreLackingOneByOne) {
    kernel_test::TemporaryFolder folder;
    folder.WriteCoefficients(kernel_test::FirstNumbers(116) + ",1e295,0");
    CommandLine line = StateLine();
    line.data = folder.Path();
    const TableRun run = RunTable(line, "t,rh,p\n20,5,1.013\n60,2,1.013\n");
    EXPECT_EQ(run.reports, "line 3: h_kj_per_kg is no finite number\n");
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1].find(",,"), std::string::npos) << lines[1];
    const auto empty = lines[2].find(",,");
    ASSERT_NE(empty, std::string::npos) << lines[2];
    // p_vapour is 2 % of the published 0.19920 bar at 60 degC; dry air has 60.4 kJ/kg there.
    EXPECT_NEAR(LastNumbers(lines[2], 6)[0], 60.4, 0.1);
    EXPECT_NEAR(LastNumbers(lines[2], 4)[0], 0.02 * 19920, 5);

    line.state = StateOptions{{60, 2}, 1.013};
    EXPECT_EQ(Lines(RunTable(line, "").output)[4],
              "Enthalpy                                    -  kJ/kg dry air");
    line.json = true;
    const auto json = nlohmann::json::parse(RunTable(line, "").output);
    EXPECT_TRUE(json["h_kj_per_kg"].is_null());
    EXPECT_NEAR(json["p_vapour_pa"].get<double>(), 0.02 * 19920, 5);
}

// Many lines at once are shared among the cores, few are not: rows and reports are the same, in
// the order of the lines.
TEST(StateTable, RowsStayInTheirOrder) {
    std::string states = "t,rh,p,n\n", searches = "t_start,h,kind,step,rh,x,p\n";
    for (int i = 0; i < 3000; ++i) {
        const std::string n = std::to_string(i);
        states += std::to_string(i % 90 - 20) + (i % 11 == 0 ? ",bad," : ",40,") +
                  std::to_string(0.9 + i % 13 * 0.01) + "," + n + "\n";
        searches += std::to_string(i % 40) + "," + std::to_string(i % 70) + "," +
                    std::to_string(i % 4) + ",30,50,7," + std::to_string(0.9 + i % 5 * 0.02) + "\n";
    }
    for (const bool json : {false, true}) {
        for (CommandLine line : {StateLine(), InvertLine("t-from-h")}) {
            line.json = json;
            const std::string& table = line.verb == Verb::Invert ? searches : states;
            const TableRun few = RunTable(line, table, 100), many = RunTable(line, table, 1 << 20);
            EXPECT_EQ(Lines(few.output).size(), json ? 3000U : 3001U);
            EXPECT_GT(Lines(few.reports).size(), 200U);
            EXPECT_TRUE(few.output == many.output) << "rows differ";
            EXPECT_EQ(few.reports, many.reports);
        }
    }
}

TEST(StateTable, RefusesATableWithoutItsColumns) {
    struct Case {
        std::string table;
        bool json;
        const char* error;
    };
    for (const auto& c : std::vector<Case>{
             {"", false, "the input is empty: its first line must name the columns"},
             {"t;rh;p\n1;2;3\n", false, "line 1: there is no column t: commas part the cells"},
             {"t,RH\n", false, "line 1: there is no column rh, but RH"},
             {"t,p\n", false, "line 1: there is no column rh"},
             {"t,rh,t\n", false, "line 1: there are two columns t"},
             {"t,\"rh\n", false, "line 1: no header line that names the columns"},
             {std::string(2U << 20U, 't'), false, "line 1: no header line that names the columns"},
             {"t,rh,h_kj_per_kg\n", true,
              "line 1: a JSON object cannot hold two members \"h_kj_per_kg\""}}) {
        CommandLine line = StateLine();
        line.json = c.json;
        const TableRun run = RunTable(line, c.table);
        EXPECT_FALSE(run.done);
        EXPECT_EQ(run.error, c.error);
        EXPECT_EQ(run.output, "");
    }
}

TEST(StateTable, NamesACoefficientFileThatIsMissingOrBroken) {
    kernel_test::TemporaryFolder folder;
    CommandLine line = StateLine();
    line.data = folder.Path();
    const std::string name = (folder.Path() / "qvdata.dat").string();
    EXPECT_EQ(RunTable(line, "t,rh\n").error, name + ": missing");
    folder.WriteCoefficients(kernel_test::FirstNumbers(100));
    const TableRun broken = RunTable(line, "t,rh\n");
    EXPECT_FALSE(broken.done);
    EXPECT_EQ(broken.error, name + ": malformed, 100 numbers of 118 can be read");
}

TEST(StateTable, StopsWhenNobodyTakesTheOutput) {
    RowStreams streams;
    int reads = 0;
    streams.input = [&reads](std::span<char> block) {
        const std::string_view text = reads++ == 0 ? "t,rh\n" : "20,50\n";
        std::copy(text.begin(), text.end(), block.begin());
        return std::optional(text.size());
    };
    streams.output = [](std::string_view) { return false; };
    streams.reports = [](std::string_view) { return true; };
    std::string error;
    EXPECT_FALSE(RunState(StateLine(), streams, error));
    EXPECT_EQ(error, "the output cannot be written");
    streams.input = [](std::span<char>) { return std::nullopt; };
    EXPECT_FALSE(RunState(StateLine(), streams, error));
    EXPECT_EQ(error, "the input cannot be read");
}

TEST(SingleState, ShowsATableForPeople) {
    CommandLine line = StateLine();
    line.state = StateOptions{{20, 150}, std::nullopt};
    const auto lines = Lines(RunTable(line, "").output);
    ASSERT_EQ(lines.size(), 11U);
    for (const auto& text : lines) EXPECT_EQ(text.find("  ", 33 + 11), 45U) << text;
    EXPECT_EQ(lines[1], "Relative humidity                         100  %");
    EXPECT_EQ(lines[3], "Humidity ratio                       14.70121  g/kg dry air");
    EXPECT_EQ(lines[8], "Density                              1.196345  kg/m3");
    line.json = true;
    const auto json = nlohmann::json::parse(RunTable(line, "").output);
    EXPECT_EQ(json["rh"], 100) << "what was used, as in the table";
    EXPECT_NEAR(json["p_vapour_pa"].get<double>(), 2339.085126, 1e-5);
    line.state->given[0] = -50.5;
    const TableRun outside = RunTable(line, "");
    EXPECT_FALSE(outside.done);
    EXPECT_EQ(outside.error, "t = -50.5 is outside -50..800 degC");
}

}  // namespace
}  // namespace zandrell::command_test
