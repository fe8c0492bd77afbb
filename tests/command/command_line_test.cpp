#include "command/command_line.h"

#include <sstream>

#include "gtest/gtest.h"

namespace zandrell {
namespace {

struct Reading {
    CommandLine line;
    std::optional<int> status;
    std::string error;
    std::ostringstream out;
};

void Read(std::vector<const char*> words, Reading& reading) {
    words.insert(words.begin(), "zandrell-calc");
    reading.status = ReadCommandLine(static_cast<int>(words.size()), words.data(), reading.line,
                                     reading.out, reading.error);
}

TEST(CommandLine, RefusesInOneClearLine) {
    struct Case {
        std::vector<const char*> words;
        const char* part;
    };
    for (const auto& c : std::vector<Case>{
             {{}, "a verb is needed"},
             {{"draw"}, "draw"},
             {{"state", "--frob"}, "--frob"},
             {{"state", "--t", "5"}, "needs two figures, such as --t and --rh"},
             {{"state", "--air", "suite", "--t", "5"}, "both --t and --rh"},
             {{"state", "--p", "1"}, "--p belongs to one state"},
             {{"state", "--rh", "5", "--t-wet", "3", "--t", "4"}, "needs two figures"},
             {{"state", "--air", "real", "--t", "5"}, "needs two figures"},
             {{"state", "--air", "suite", "--t", "5", "--x", "5"}, "--x needs --air real"},
             {{"state", "--t", "warm", "--rh", "50"}, "--t: no number: \"warm\""},
             {{"state", "a.csv", "--t", "1", "--rh", "50"}, "not both"},
             {{"invert"}, "SEARCH"},
             {{"invert", "t-from-x"}, "t-from-x"},
             {{"form"}, "SCRIPT"},
             {{"chart"}, "--output"},
             {{"chart", "-o", "a.gif"}, "a.gif: a chart file ends in .svg, .png or .pdf"},
             {{"chart", "-o", ".svg"}, ".svg: a chart file ends"},
             {{"chart", "-o", "a.svg", "--kind", "round"}, "round"},
             {{"chart", "-o", "a.svg", "--size", "1600"}, "WIDTHxHEIGHT"},
             {{"chart", "-o", "a.svg", "--size", "0x900"}, "1 to 20000"},
             {{"chart", "-o", "a.svg", "--size", "20001x900"}, "1 to 20000"},
             {{"chart", "-o", "a.svg", "--size", "1.5x900"}, "1 to 20000"},
             {{"chart", "-o", "a.svg", "--zoom", "1,2,3"}, "LEFT,TOP,WIDTH,HEIGHT"},
             {{"chart", "-o", "a.svg", "--zoom", "1,2,nan,4"}, "no number"},
             {{"chart", "-o", "a.svg", "--zoom", "1,2,0,4"}, "1 or more"},
             {{"chart", "-o", "a.svg", "--zoom", "1,2,3,1e300"}, "far outside"}}) {
        Reading reading;
        Read(c.words, reading);
        EXPECT_NE(reading.status.value_or(0), 0);
        EXPECT_NE(reading.error.find(c.part), std::string::npos) << reading.error;
        EXPECT_EQ(reading.error.find('\n'), std::string::npos) << reading.error;
    }
}

TEST(CommandLine, TakesWhatIsAsked) {
    Reading state;
    Read({"state", "--t", "-2,5", "--rh=50", "--data", "set", "--json"}, state);
    ASSERT_FALSE(state.status) << state.error;
    EXPECT_EQ(state.line.state->given[0], -2.5);
    EXPECT_EQ(state.line.state->given[1], 50);
    EXPECT_EQ(state.line.air, AirChoice::Convention);
    EXPECT_FALSE(state.line.state->p);
    EXPECT_EQ(state.line.data, "set");
    EXPECT_TRUE(state.line.json);

    Reading bulb;
    Read({"state", "--air", "real", "--t_wet", "18", "--t-dew", "14"}, bulb);
    ASSERT_FALSE(bulb.status) << bulb.error;
    EXPECT_EQ(bulb.line.state->given[4], 14);
    EXPECT_EQ(bulb.line.state->given[5], 18);
    EXPECT_EQ(bulb.line.air, AirChoice::Real);

    Reading invert;
    Read({"--data", "set", "invert", "t-from-h", "-"}, invert);
    ASSERT_FALSE(invert.status) << invert.error;
    EXPECT_EQ(invert.line.verb, Verb::Invert);
    EXPECT_EQ(invert.line.search, "t-from-h");

    Reading chart;
    Read({"chart", "-o", "a.PDF", "--size", "800x600", "--zoom", "-10,0,20.5,30", "--kind",
          "carrier", "--form", "-", "--convention", "exact"},
         chart);
    ASSERT_FALSE(chart.status) << chart.error;
    EXPECT_EQ(chart.line.convention, Convention::Exact);
    EXPECT_FALSE(invert.line.convention);
    Reading form;
    Read({"form", "--convention", "suite", "a.txt"}, form);
    EXPECT_EQ(form.line.convention, Convention::Suite);
    EXPECT_EQ(chart.line.chart.width, 800);
    EXPECT_EQ(chart.line.chart.height, 600);
    EXPECT_EQ(chart.line.chart.kind, kCarrier);
    EXPECT_EQ(chart.line.chart.zoom->left, -10);
    EXPECT_EQ(chart.line.chart.zoom->width, 20.5);
    EXPECT_EQ(chart.line.chart.script, "-");
}

TEST(CommandLine, HelpNamesTheColumns) {
    for (const auto& [verb, word] : std::vector<std::pair<const char*, const char*>>{
             {"state", "density_dry_air_kg_per_m3"}, {"invert", "step_after"}, {"form", "dump"}}) {
        Reading reading;
        Read({verb, "--help"}, reading);
        EXPECT_EQ(reading.status, 0);
        EXPECT_EQ(reading.error, "");
        EXPECT_NE(reading.out.str().find(word), std::string::npos) << reading.out.str();
    }
}

}  // namespace
}  // namespace zandrell
