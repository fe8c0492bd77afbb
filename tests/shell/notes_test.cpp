// What the form tells besides its texts: fields that are not used and why, texts that are not yet
// confirmed, figures of earlier inputs, tools that run or may not be started, and the status line.
#include <gtest/gtest.h>

#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kStates =
    "set Temp1 20\nset relF1 50\nset Temp2 30\nset relF2 40\nset LuftM1 1000\nset LuftM2 500\n";
constexpr const char* kPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nset tabLuft 26\nset PHIAbluft 50\nset Taus 32\n"
    "set PhiAussen 40\nset TZuluft 18\nset PHIZuluft 64\nset tKA 12\nset phiKanal 95\n"
    "set dtVent1 1\nset dtVent2 .5\nclick AnlageButt\n";

std::string Hint(const Json& dump, const char* name) {
    return dump.at(name).value("hint", std::string());
}
bool Says(const Json& dump, const char* name, const char* flag) {
    return dump.at(name).value(flag, false);
}

TEST(FieldHints, SayWhyAValueIsNotUsed) {
    const struct {
        std::string script;
        const char* field;
        const char* hint;
        bool heals = true;  // 17 in the field is used
    } cases[] = {
        {"click BearButt\nset Temp1 41\nreturn Temp1\n", "Temp1",
         "not used: outside the chart's range, -20 to 40 °C"},
        {"click BearButt\nset Temp2 -21\nreturn Temp2\n", "Temp2",
         "not used: outside the chart's range, -20 to 40 °C"},
        {"click BearButt\nset relF1 101\nreturn relF1\n", "relF1",
         "not used: only 0 to 100 % is possible"},
        {"click BearButt\nset relF2 abc\nreturn relF2\n", "relF2", "not used: not a number"},
        {"click BearButt\nset Temp1 \nreturn Temp1\n", "Temp1", "not used: value missing"},
        {"click BearButt\nset LuftM1 0\nreturn LuftM1\n", "LuftM1",
         "not used: only values above 0 are possible"},
        {"click BearButt\nset Kleist 10\nreturn Kleist\n", "Kleist",
         "not used: no positive air flow gives this capacity", false},
        // 40 degC, 50 % hold 23.6 g/kg, more than 25 degC can: the tool's own figure is not used.
        {"set Temp1 40\nset Temp2 25\nclick Heiz_start\n", "relF2",
         "not used: only 0 to 100 % is possible", false},
        {std::string(kPlant) + "set TZuluft 9\nreturn TZuluft\n", "TZuluft",
         "not used: below the coil temperature plus fan rise"},
        {std::string(kPlant) + "set dtVent1 5\nreturn dtVent1\n", "dtVent1",
         "not used: only 0 to 3 K is possible", false},
        // 1 K stands in for it, which moves the supply bar, and that asks for a run of its own.
        {std::string(kPlant) + "set dtVent1 0\nreturn dtVent1\nset TZuluft 12\nreturn TZuluft\n" +
             "set dtVent1 5\nreturn dtVent1\n",
         "dtVent1", "not used: only 0 to 3 K is possible", false},
        {std::string(kPlant) + "set vhaussen -1\nreturn vhaussen\n", "vhaussen",
         "not used: only values above 0 are possible"},
        {std::string(kPlant) + "set phiKanal 130\nreturn phiKanal\n", "phiKanal",
         "counts as 100 %"},
        {std::string(kPlant) + "set PhiAussen -5\nreturn PhiAussen\n", "PhiAussen",
         "counts as 1 %"},
        {std::string(kPlant) + "set Taus -400\nreturn Taus\n", "Taus",
         "not used: only -50 to 800 °C is possible"},
        // Steam of 300 degC and 40 % has more than the pressure of the air (IAPWS-IF97: 85.9 bar).
        {"click optButt\ncheck qvopt.ExactBox on\nclick qvopt.Command3D1\n" + std::string(kPlant) +
             "set Taus 300\nreturn Taus\n",
         "Taus", "not used: humid air has no state with these values"},
    };
    for (const auto& c : cases) {
        ScriptSession session;
        const auto dumps = session.Run(kStates + c.script + "dump\nset " + c.field +
                                       " 17\nreturn " + c.field + "\ndump\n");
        EXPECT_EQ(Hint(dumps[0], c.field), c.hint) << c.script;
        EXPECT_FALSE(Says(dumps[0], c.field, "pending")) << c.script;
        if (c.heals) {
            EXPECT_EQ(Hint(dumps[1], c.field), "") << c.script;
        }
    }
}

TEST(FigureMarks, FiguresOfOtherInputsAreStale) {
    ScriptSession session;
    const auto dumps = session.Run(std::string(kStates) +
                                   "click BearButt\ndump\nset Temp1 21\ndump\nreturn Temp1\ndump\n"
                                   "set Temp1 60\nreturn Temp1\ndump\nset Temp1 21\n"
                                   "return Temp1\nset LuftM1 0\nreturn LuftM1\ndump\n");
    const struct {
        const char* what;
        std::size_t dump;
        bool states, outcome, pending;
    } cases[] = {{"computed", 0, false, false, false},
                 {"typed", 1, true, true, true},
                 {"confirmed", 2, false, false, false},
                 {"refused", 3, true, true, false},
                 {"states good, no flow", 4, false, true, false}};
    for (const auto& c : cases) {
        for (const char* figure : {"absF1", "enth2"}) {
            EXPECT_EQ(Says(dumps[c.dump], figure, "stale"), c.states) << c.what;
        }
        for (const char* figure : {"KLatent", "KondW", "Kleist"}) {
            EXPECT_EQ(Says(dumps[c.dump], figure, "stale"), c.outcome) << c.what;
        }
        EXPECT_EQ(Says(dumps[c.dump], "Temp1", "pending"), c.pending) << c.what;
    }
    const auto typed = session.Run(std::string(kStates) +
                                   "click BearButt\nset Kleist 10\ndump\nreturn Temp1\n"
                                   "set Temp2 -400\nreturn Temp2\ndump\n");
    EXPECT_TRUE(Says(typed[0], "KLatent", "stale")) << "of another capacity than is typed";
    EXPECT_FALSE(Says(typed[0], "absF1", "stale"));
    EXPECT_NE(Hint(typed[1], "Temp2"), "");
    EXPECT_EQ(Hint(typed[1], "relF2"), "") << "the temperature alone is at fault";
    EXPECT_EQ(Hint(dumps[1], "absF1"), "belongs to earlier inputs");
    EXPECT_EQ(Hint(dumps[1], "Temp1"), "not taken yet, confirm with the Return key");
}

// Without need of a humidifier its figure keeps what it showed last: cooling from 32 degC to a
// supply as dry as the coil.
TEST(FigureMarks, AFigureThatARunLeavesAloneIsStale) {
    ScriptSession session;
    const auto dumps =
        session.Run(std::string(kPlant) + "dump\nset Taus 33\ndump\nreturn Taus\ndump\n");
    EXPECT_TRUE(Says(dumps[0], "Bef", "stale"));
    EXPECT_FALSE(Says(dumps[0], "Kuehl", "stale"));
    EXPECT_TRUE(Says(dumps[1], "Kuehl", "stale"));
    EXPECT_FALSE(Says(dumps[2], "Kuehl", "stale"));
}

TEST(Offers, TheRunningToolIsNamedAndCheckedAndWhatWouldBeRefusedIsOff) {
    ScriptSession session;
    const auto dumps = session.Run(std::string(kStates) +
                                   "dump\nclick Heiz_start\ndump\nclick Command3D4\n"
                                   "click AnlageButt\ndump\nclick Command3D6\ndump\n");
    const auto offered = [&](std::size_t dump, const char* name) {
        const bool on = dumps[dump].at(name).at("enabled").get<bool>();
        if (name != std::string("wrgEinst")) {
            EXPECT_EQ(Hint(dumps[dump], name), on ? "" : "close the open panel first") << name;
        }
        return on;
    };
    const struct {
        const char* name;
        bool offered[4];
    } cases[] = {
        {"BearButt", {true, false, false, true}}, {"ZAButt", {true, false, true, true}},
        {"AnlageS", {true, false, true, true}},   {"Kuehl_start", {true, false, false, true}},
        {"ZustAe", {true, true, true, true}},     {"wrgEinst", {false, false, true, false}}};
    for (const auto& c : cases) {
        for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(offered(i, c.name), c.offered[i]) << c.name;
    }
    EXPECT_EQ(TextOf(dumps[1], "PointToolName"), "Calculate Heater");
    EXPECT_EQ(TextOf(dumps[2], "PlantToolName"), "AHU");
    EXPECT_TRUE(Says(dumps[1], "Heiz_start", "checked"));
    EXPECT_FALSE(Says(dumps[1], "Kuehl_start", "checked"));
    EXPECT_TRUE(Says(dumps[2], "AnlageButt", "checked"));
    EXPECT_FALSE(Says(dumps[3], "AnlageButt", "checked"));
}

TEST(StatusLine, TellsWhatHasHappenedAndKeepsTheLast) {
    ScriptSession session;
    const auto dumps = session.Run(
        std::string(kPlant) +
        "dump StatusLine\nset PHIAbluft 20\nreturn PHIAbluft\ndump\nclick PSButt\n"
        "dump StatusLine\nclick PLbutt\ndump StatusLine\nclick kopieren\ndump StatusLine\n"
        "pointer press 900 300\npointer release 900 300\ndump StatusLine\n");
    EXPECT_EQ(dumps[0]["StatusLine"]["text"], "Supply air humidity raised to 64.1 %");
    const std::string raised = TextOf(dumps[1], "PHIAbluft");
    EXPECT_EQ(
        dumps[1]["StatusLine"]["text"],
        "Extract air humidity raised to " + raised.substr(raised.find_first_not_of(' ')) + " %");
    EXPECT_EQ(dumps[2]["StatusLine"]["text"], "Saved");
    EXPECT_EQ(dumps[3]["StatusLine"]["text"], "Loaded");
    EXPECT_EQ(dumps[4]["StatusLine"]["text"], "Copied to the clipboard");
    EXPECT_EQ(dumps[5]["StatusLine"]["text"], "Close the panel to draw a new frame");
    const std::string tip = dumps[5]["StatusLine"]["tool_tip"];
    EXPECT_TRUE(tip.ends_with("Copied to the clipboard\nLoaded\nSaved\n" +
                              dumps[1]["StatusLine"]["text"].get<std::string>()))
        << tip;
}

// The coil of 12 degC and 95 % leaves 8.36 g/kg in the air: at 18 degC 64.3 to 64.5 % by either
// convention.
TEST(StatusLine, TellsThatTheSupplyHumidityWasRaised) {
    for (const bool exact : {false, true}) {
        for (const char* humidity : {"60", "66"}) {
            ScriptSession session;
            session.folder.Write("qv_par.dat",
                                 std::string("1.013,-20,40,0,40,0,0,1") + (exact ? ",1" : ""));
            std::string plant = kPlant;
            plant.replace(plant.find("PHIZuluft 64") + 10, 2, humidity);
            const auto dump = session.RunOnce(plant + "dump\n");
            EXPECT_EQ(TextOf(dump, "StatusLine").starts_with("Supply air humidity raised to 64."),
                      std::string(humidity) == "60")
                << humidity << exact << TextOf(dump, "StatusLine");
        }
    }
}

// What is taken back is no longer true; the tool tip still tells what was said.
TEST(StatusLine, EndsWithTheActThatItTellsOf) {
    ScriptSession session;
    const auto dumps = session.Run(std::string(kPlant) +
                                   "click PSButt\nset Taus 10\nreturn Taus\nclick PLbutt\n"
                                   "click Undo\ndump StatusLine Taus\n");
    EXPECT_EQ(TextOf(dumps[0], "Taus"), " 10");
    EXPECT_EQ(TextOf(dumps[0], "StatusLine"), "");
    EXPECT_TRUE(dumps[0]["StatusLine"]["tool_tip"].get<std::string>().starts_with("Loaded"));
}

}  // namespace
}  // namespace zandrell
