// A state of the point panel by another pair of figures than temperature and relative humidity.
#include <gtest/gtest.h>

#include <array>

#include "base/number_text.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kExact =
    "click optButt\ncheck qvopt.ExactBox on\nset qvopt.absD 1.01325\nclick qvopt.Command3D1\n";
constexpr const char* kPanel =
    "set Temp1 26\nset relF1 50\nset Temp2 20\nset relF2 60\nset LuftM1 1000\nclick BearButt\n"
    "return Temp1\n";

std::string InPanel(const std::string& acts) { return std::string(kExact) + kPanel + acts; }

std::string Given(int pair, const std::string& first, const std::string& second,
                  const std::string& state = "1") {
    std::string acts = "select GiveAs" + state + " " + NumberText(pair).substr(1) + "\n";
    acts += "set Given" + state + "A " + first + "\nset Given" + state + "B " + second + "\n";
    return acts + "return Given" + state + "B\n";
}

double Number(const Json& dump, const std::string& control) {
    return ParsedNumber(TextOf(dump, control.c_str()));
}

std::string Hint(const Json& dump, const char* name) {
    return dump.at(name).value("hint", std::string());
}

// The pairs in the order of the menu, by the places of their figures in State below.
constexpr std::array<std::array<std::size_t, 2>, 24> kPairs = {
    {{0, 1}, {0, 2}, {0, 3}, {0, 4}, {0, 5}, {0, 6}, {0, 7}, {1, 2},
     {1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 7}, {2, 3}, {2, 5}, {2, 7},
     {3, 4}, {3, 6}, {3, 7}, {4, 5}, {4, 7}, {5, 6}, {5, 7}, {6, 7}}};

// degC, per cent, g/kg, kJ/kg, dew point, wet bulb, hPa, kg/m3, as fields have them.
using State = std::array<const char*, 8>;

// From real_air_states.csv and real_air_wet_bulbs.csv, an independent calculation at 101,325 Pa.
constexpr State kStates[] = {
    {"-10", "50", "0.802064772", "-8.0656272", "-17.58281", "-11.64485", "1.30501158",
     "1.34177301"},
    {"20", "50", "7.2936977", "38.6228389", "9.27443", "13.77647", "11.7448899", "1.19935928"},
    {"35", "50", "17.8524705", "81.001692", "23.02616", "26.13954", "28.2730342", "1.13381554"}};

TEST(GiveAs, EveryPairGivesTheIndependentState) {
    for (const State& state : kStates) {
        std::string acts;
        for (int pair = 1; pair < 24; ++pair) {
            const auto& [first, second] = kPairs[static_cast<std::size_t>(pair)];
            acts += Given(pair, state[first], state[second], pair % 2 ? "1" : "2") + "dump\n";
            acts += "set Temp1 15\nset relF1 30\nset Temp2 15\nset relF2 30\nreturn Temp1\n";
        }
        ScriptSession session;
        const auto dumps = session.Run(InPanel(acts));
        ASSERT_EQ(dumps.size(), 23U) << session.error;
        for (int pair = 1; pair < 24; ++pair) {
            const Json& dump = dumps[static_cast<std::size_t>(pair - 1)];
            const std::string number = pair % 2 ? "1" : "2";
            const auto& words = dump.at("GiveAs" + number).at("text");
            EXPECT_NEAR(Number(dump, "Temp" + number), ParsedNumber(state[0]), 0.01) << words;
            EXPECT_NEAR(Number(dump, "relF" + number), ParsedNumber(state[1]), 0.3) << words;
            // What was given is what the panel shows, not cut one unit too low.
            EXPECT_NEAR(Number(dump, "absF" + number), ParsedNumber(state[2]), 0.01) << words;
        }
    }
}

// Air of 26 degC and 50 %: x 10.53 g/kg, 14.8 degC dew point, 18.7 degC wet bulb (ASHRAE Handbook).
TEST(GiveAs, FiguresFollowTheStateAndLeaveItAsItWas) {
    const struct {
        int pair;
        double first, second, tolerance;
    } cases[] = {
        {1, 26, 10.53, 0.06}, {3, 26, 14.8, 0.11}, {4, 26, 18.7, 0.1}, {19, 14.8, 18.7, 0.11}};
    for (const auto& c : cases) {
        ScriptSession session;
        const auto dumps = session.Run(InPanel("select GiveAs1 " + NumberText(c.pair).substr(1) +
                                               "\ndump\nreturn Given1A\nreturn Given1B\ndump\n"));
        const Json &chosen = dumps.at(0), &returned = dumps.at(1);
        EXPECT_NEAR(Number(chosen, "Given1A"), c.first, c.tolerance);
        EXPECT_NEAR(Number(chosen, "Given1B"), c.second, c.tolerance);
        EXPECT_EQ(Number(returned, "Temp1"), 26);
        EXPECT_EQ(Number(returned, "relF1"), 50);
        for (const char* name : {"Given1A", "Given1B", "absF1", "enth1", "Kleist"}) {
            EXPECT_EQ(TextOf(returned, name), TextOf(chosen, name)) << name;
            EXPECT_EQ(Hint(returned, name), "") << name;
        }
    }
}

void ExpectFigures(const Json& dump, const char* first, const char* second) {
    EXPECT_EQ(ParsedNumber(TextOf(dump, "Given1A")), ParsedNumber(first));
    EXPECT_EQ(ParsedNumber(TextOf(dump, "Given1B")), ParsedNumber(second));
    for (const char* name : {"Given1A", "Given1B"}) {
        EXPECT_EQ(Hint(dump, name), "") << name;
        EXPECT_FALSE(dump.at(name).value("stale", false)) << name;
    }
}

// x of 40 % at 26 degC: 8.40 g/kg by independent formulas.
TEST(GiveAs, WhatIsTypedStaysAndWhatIsMovedIsFollowed) {
    ScriptSession session;
    const auto dumps =
        session.Run(InPanel(Given(1, "26", "8") +
                            "dump\nscroll FScroll1 400\ndump\nscroll Tscroll1 300\ndump\n"
                            "set relF1 60\nreturn relF1\ndump\nclick Undo\nclick Undo\ndump\n"));
    ASSERT_EQ(dumps.size(), 5U) << session.error;
    const Json& typed = dumps[0];
    ExpectFigures(typed, "26", "8");
    EXPECT_EQ(TextOf(typed, "absF1"), " 8");
    EXPECT_EQ(TextOf(typed, "Temp1"), " 26");
    EXPECT_EQ(typed.at("FScroll1").at("value"), 381);  // follows, and rounds nothing
    EXPECT_NEAR(Number(typed, "relF1"), 38.1, 0.05);
    EXPECT_NE(Number(typed, "relF1"), 38.1);
    EXPECT_NEAR(Number(dumps[1], "Given1B"), 8.40, 0.04);
    EXPECT_EQ(TextOf(dumps[1], "Given1B"), TextOf(dumps[1], "absF1"));
    EXPECT_EQ(Number(dumps[2], "Given1A"), 30);
    EXPECT_EQ(TextOf(dumps[2], "Given1B"), TextOf(dumps[2], "absF1"));
    EXPECT_EQ(Number(dumps[3], "relF1"), 40) << "a figure that follows is not typed";
    ExpectFigures(dumps[4], "26", "8");
    EXPECT_EQ(TextOf(dumps[4], "relF1"), TextOf(typed, "relF1"));
}

TEST(GiveAs, FollowsAMarkThatIsPutDown) {
    const std::string start = InPanel("select GiveAs1 1\n");
    ScriptSession before;
    const Json mark = before.RunOnce(start + "dump\n").at("PP1");
    const std::string place = NumberText(mark.at("left").get<double>() + 6) +
                              NumberText(mark.at("top").get<double>() + 6);
    ScriptSession session;
    const Json dump = session.RunOnce(start + "pointer press" + place +
                                      "\npointer move 700 300\npointer press 700 300\ndump\n");
    EXPECT_NE(Number(dump, "Temp1"), 26);
    EXPECT_EQ(Number(dump, "Given1A"), Number(dump, "Temp1"));
    EXPECT_EQ(TextOf(dump, "Given1B"), TextOf(dump, "absF1"));
}

TEST(GiveAs, UndoBringsBackThePairWithItsFigures) {
    ScriptSession session;
    const auto dumps = session.Run(InPanel(Given(1, "26", "8") + "select GiveAs1 4\ndump\n" +
                                           "click Undo\ndump\nclick Redo\ndump\n"));
    ASSERT_EQ(dumps.size(), 3U) << session.error;
    EXPECT_EQ(TextOf(dumps[0], "Given1BWord"), "Wet Bulb /[°C]:");
    EXPECT_EQ(TextOf(dumps[1], "GiveAs1"), "Temperature, Humidity Ratio");
    EXPECT_EQ(TextOf(dumps[1], "Given1BWord"), "Humidity Ratio /[g/kg]:");
    ExpectFigures(dumps[1], "26", "8");
    EXPECT_EQ(TextOf(dumps[2], "Given1B"), TextOf(dumps[0], "Given1B"));
}

// Hidden by the suite's convention; a tool works out its second state.
TEST(GiveAs, IsShownWhereAStateIsTyped) {
    const struct {
        std::string acts;
        bool first, second;
    } cases[] = {{"click ZAButt\n", false, false},
                 {std::string(kExact) + "click ZAButt\n", true, true},
                 {std::string(kExact) + "click Heiz_start\n", true, false},
                 {InPanel("select GiveAs1 1\nselect GiveAs2 1\nclick optButt\n"
                          "check qvopt.ExactBox off\nclick qvopt.Command3D1\nclick BearButt\n"),
                  false, false}};
    for (const auto& c : cases) {
        ScriptSession session;
        const Json dump = session.RunOnce(c.acts + "dump\n");
        EXPECT_EQ(Shown(dump, "GiveAs1"), c.first) << c.acts;
        EXPECT_EQ(Shown(dump, "GiveAs2"), c.second) << c.acts;
        EXPECT_FALSE(Shown(dump, "Given1A")) << c.acts;
        EXPECT_FALSE(Shown(dump, "Given2B")) << c.acts;
    }
}

TEST(GiveAs, WhatIsTypedMakesTheFiguresOfItsStateOlder) {
    ScriptSession session;
    const Json dump =
        session.RunOnce(InPanel("select GiveAs1 4\nset Given1B 15\ndump absF1 absF2 KLatent\n"));
    EXPECT_TRUE(dump.at("absF1").value("stale", false));
    EXPECT_FALSE(dump.at("absF2").value("stale", false));
    EXPECT_TRUE(dump.at("KLatent").value("stale", false));
}

// To the whole degree, which the search does not miss by a rounding.
TEST(GiveAs, TakesSaturatedAir) {
    for (const char* t : {"32", "7", "40", "-10", "0", "1", "38", "-20"}) {
        for (const int pair : {3, 4}) {  // dew point, wet bulb
            ScriptSession session;
            const Json dump = session.RunOnce(InPanel(Given(pair, t, t) + "dump\n"));
            EXPECT_EQ(Hint(dump, "Given1B"), "") << t << " " << pair;
            EXPECT_EQ(Number(dump, "relF1"), 100) << t << " " << pair;
            EXPECT_EQ(Number(dump, "Given1B"), ParsedNumber(t)) << pair;
        }
    }
}

// Saturated air of 26 degC has 21.45 g/kg, of 40 degC 49.14; of 40 degC and 50 % 101.0 kJ/kg; with
// 10 g/kg saturated at 14.0 degC 39.4 and at 40 degC 66.0 kJ/kg (ASHRAE Handbook).
TEST(GiveAs, RefusesWhatTheChartHasNotAndTellsItsLimits) {
    const struct {
        std::string acts;
        const char *field, *hint;
    } cases[] = {
        {Given(4, "26", "30"), "Given1B", "not used: only 8.8 to 26 °C is possible"},
        {Given(1, "26", "-1"), "Given1B", "not used: only 0 to 21.45 g/kg is possible"},
        {Given(1, "26", "0"), "Given1B", "not used: only values above 0 are possible"},
        {Given(5, "26", "0"), "Given1B", "not used: only values above 0 are possible"},
        {Given(13, "0", "30"), "Given1A", "not used: only values above 0 are possible"},
        {Given(7, "0", "8"), "Given1A", "not used: only values above 0 are possible"},
        {Given(3, "26", "26.5"), "Given1B", "not used: only -100 to 26 °C is possible"},
        {Given(1, "41", "8"), "Given1A", "not used: outside the chart's range, -20 to 40 °C"},
        {Given(7, "101", "8"), "Given1A", "not used: only 0 to 100 % is possible"},
        {Given(8, "50", "150"), "Given1B", "not used: only -19.3 to 101 kJ/kg is possible"},
        {Given(13, "60", "80"), "Given1A", "not used: only 0 to 49.14 g/kg is possible"},
        {Given(13, "10", "10"), "Given1B", "not used: only 39.4 to 65.9 kJ/kg is possible"},
        {Given(14, "10", "10"), "Given1B", "not used: only 14 to 22.5 °C is possible"},
        {Given(5, "26", "abc"), "Given1B", "not used: not a number"},
        {Given(5, "", "10"), "Given1A", "not used: value missing"},
        {"click optButt\nset qvopt.absD 3\nclick qvopt.Command3D1\nclick BearButt\n" +
             Given(4, "26", "20"),
         "Given1B", "not used: only .5 to 2 bar is possible"},
    };
    for (const auto& c : cases) {
        ScriptSession session;
        const Json dump = session.RunOnce(InPanel(c.acts + "dump\n"));
        EXPECT_EQ(Hint(dump, c.field), c.hint) << c.acts;
        EXPECT_EQ(Number(dump, "Temp1"), 26) << c.acts;
        EXPECT_EQ(Number(dump, "relF1"), 50) << c.acts;
    }
}

}  // namespace
}  // namespace zandrell
