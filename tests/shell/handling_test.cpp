// What an impatient hand does to the inputs, and what must stand on the screen afterwards.
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nset tabLuft 26\nset PHIAbluft 50\nset Taus 32\n"
    "set PhiAussen 40\nset TZuluft 18\nset PHIZuluft 64\nset tKA 12\nset phiKanal 95\n"
    "set dtVent1 1\nset dtVent2 .5\nclick AnlageButt\n";
constexpr const char* kStates =
    "set Temp1 20\nset relF1 50\nset Temp2 30\nset relF2 50\nset LuftM1 1000\nset LuftM2 500\n";

double Number(const Json& dump, const char* control) { return ToDouble(TextOf(dump, control)); }

// A place on the chart of a mark that a dump shows.
std::string PlaceOf(const Json& dump, const char* mark) {
    return std::to_string(dump[mark]["left"].get<double>() + 6) + " " +
           std::to_string(dump[mark]["top"].get<double>() + 6);
}

// 40 degC, 50 % hold 23.6 g/kg and 25 degC at most 20.1: the outlet would lie in the fog. Back at
// 20 degC everything is as before, 7.26 g/kg.
TEST(Tools, AnImpossibleOutletLocksNothing) {
    ScriptSession session;
    const auto dumps =
        session.Run(std::string(kStates) +
                    "set Temp2 25\nclick Heiz_start\ndump\nset Temp1 40\nreturn Temp1\ndump\n"
                    "set Temp1 20\nreturn Temp1\ndump\n");
    EXPECT_GT(Number(dumps[1], "relF2"), 100);
    for (const char* figure : {"absF1", "relF2", "enth2", "Kleist"}) {
        EXPECT_EQ(TextOf(dumps[2], figure), TextOf(dumps[0], figure)) << figure;
    }
    EXPECT_EQ(TextOf(dumps[2], "absF1"), " 7.26");
}

TEST(Tools, TheRedOfAnImpossibleHumidityLeavesWithItsTool) {
    ScriptSession session;
    const auto dumps = session.Run(std::string(kStates) +
                                   "set Temp2 -10\nclick Humid_W_Start\ndump relF2\n"
                                   "click Command3D4\nclick Heiz_start\ndump relF2\n");
    EXPECT_EQ(dumps[0]["relF2"]["background"], 12);
    EXPECT_FALSE(dumps[1]["relF2"].contains("background"));
}

// 30 degC, 50 % against 20 degC, 50 %: the change takes heat in, so 10 kW of cooling have no flow.
TEST(Capacity, AFlowThatIsNotPositiveIsNotTaken) {
    ScriptSession session;
    const Json dump = session.RunOnce(std::string(kStates) +
                                      "click BearButt\nset Kleist 10\nreturn Kleist\ndump\n");
    EXPECT_EQ(Number(dump, "LuftM1"), 1000);
    EXPECT_LT(Number(dump, "KLatent") + Number(dump, "Ksensibel"), 100);
}

// Beyond the axis at the lowest chart the pointer shows "-": no air is that cold.
TEST(Plant, NothingIsTakenFromADropWhereThereIsNoState) {
    ScriptSession session;
    const std::string cold = "click optButt\nset qvopt.qvTmind -50\nclick qvopt.Command3D1\n";
    const Json before = session.RunOnce(cold + kPlant + "dump\n");
    const Json after = session.RunOnce(cold + kPlant + "pointer press " + PlaceOf(before, "PP2") +
                                       "\npointer move 300 579.9\npointer press 300 579.9\ndump\n");
    ASSERT_EQ(TextOf(after, "relF"), "-");
    for (const char* kept : {"Taus", "PhiAussen", "Kuehl"}) {
        EXPECT_EQ(TextOf(after, kept), TextOf(before, kept)) << kept;
    }
    EXPECT_EQ(after["Phiaussenscroll"]["value"], before["Phiaussenscroll"]["value"]);
    EXPECT_EQ(after["PP2"]["left"], before["PP2"]["left"]);
}

TEST(Marks, APanelThatClosesPutsThemBack) {
    struct Case {
        const char *what, *open, *close, *mark;
    };
    const Case cases[] = {{"two states", "click ZAButt\n", "click Command3D4\n", "PP1"},
                          {"plant", "", "click Command3D6\n", "PP5"},
                          {"another tool", "click ZAButt\n", "click Misch\n", "PP2"}};
    for (const Case& c : cases) {
        ScriptSession session;
        const bool plant = std::string(c.what) == "plant";
        const std::string start = plant ? std::string(kPlant) : std::string(kStates) + c.open;
        const Json before = session.RunOnce(start + "dump\n");
        const Json after = session.RunOnce(start + "pointer press " + PlaceOf(before, c.mark) +
                                           "\npointer move 900 300\n" + c.close + "dump\n");
        for (const char* value : {"ZustandX1", "ZustandX2"}) {
            EXPECT_EQ(after[value], before[value]) << c.what << ": " << value;
        }
        for (const char* field : {"TZuluft", "PHIZuluft", "Kuehl"}) {
            EXPECT_EQ(TextOf(after, field), TextOf(before, field)) << c.what << ": " << field;
        }
        EXPECT_EQ(after[c.mark]["left"], before[c.mark]["left"]) << c.what;
        EXPECT_EQ(after[c.mark]["shape"], 0) << c.what;
    }
}

TEST(Marks, OneThatIsCarriedIsGreenAlsoOnAZoomedChart) {
    ScriptSession session;
    const std::string start =
        std::string(kStates) +
        "pointer press 100 100\npointer move 1500 560\npointer release 1500 560\n"
        "pointer move 800 300\npointer press 800 300\nclick ZAButt\n";
    const Json zoomed = session.RunOnce(start + "dump\n");
    ASSERT_TRUE(Shown(zoomed, "ZOOMMIN"));
    const Json carried = session.RunOnce(start + "pointer press " + PlaceOf(zoomed, "PP1") +
                                         "\npointer move 700 300\ndump\n");
    EXPECT_EQ(carried["PP1Gefasst"], 1);
    EXPECT_EQ(carried["PP1"]["colour"], 10);
}

TEST(Options, ATypedTextBringsNoMarksBackWithoutAPanel) {
    ScriptSession session;
    const Json dump = session.RunOnce(std::string(kStates) +
                                      "click BearButt\nset Temp1 25\nclick optButt\n"
                                      "click qvopt.Command3D1\ndump\n");
    EXPECT_FALSE(Shown(dump, "PP1"));
    EXPECT_FALSE(Shown(dump, "Anlage1PN"));
    EXPECT_EQ(TextOf(dump, "Temp1"), "25");
}

TEST(Frame, APanelThatOpensTakesItAway) {
    ScriptSession session;
    const Json dump = session.RunOnce(std::string(kStates) +
                                      "pointer press 100 100\npointer move 600 300\n"
                                      "pointer release 600 300\nclick ZAButt\ndump\n");
    EXPECT_FALSE(Shown(dump, "ZoomShape"));
    EXPECT_EQ(dump["PanelZustand"], 44);
}

// One key on a bar goes on from the field, also below zero and at the very first start.
TEST(Start, BarsStandWhereTheFieldsAre) {
    ScriptSession session;
    session.folder.Write(
        "QV_ACT.dat",
        "\"12\"\n\"-5\"\n\"18\"\n\"26\"\n\"10000\"\n\"3\"\n\"64\"\n\"50\"\n\"40\"\n"
        "\"1000\"\n\"500\"\n\"-10\"\n\"16\"\n\"40\"\n\"90\"\n\"1\"\n\".5\"\n"
        "#TRUE#\n#TRUE#\n\"95\"\n");
    const auto dumps = session.Run("dump\nclick ZAButt\nkey Tscroll1 Right\ndump\n");
    EXPECT_EQ(dumps[0]["Tscroll1"]["value"], -100);
    EXPECT_EQ(dumps[0]["taScroll"]["value"], -50);
    EXPECT_EQ(TextOf(dumps[1], "Temp1"), "-9.9");
    EXPECT_EQ(dumps[0]["Option3D3"]["value"], true);
    EXPECT_EQ(dumps[0]["Option3D4"]["value"], false) << "a file of other hands may hold both";
}

TEST(Start, ADataFolderThatIsNotThereIsNamed) {
    ScriptSession session;
    session.folder.Write("kparam.dat", "x\n/nowhere/at/all/\nx\nENG\n");
    const Json dump = session.RunOnce("dump\n");
    ASSERT_EQ(dump["dialogs"].size(), 1U);
    const std::string text = dump["dialogs"][0]["text"];
    EXPECT_NE(text.find("/nowhere/at/all"), std::string::npos) << text;
    EXPECT_EQ(dump["DataFolder"], session.folder.Path().string());
    EXPECT_EQ(TextOf(dump, "Label24"), "Project :") << "the window has its words";
}

// Events still come while the program goes down; none of them opens or writes anything.
TEST(End, AfterItNoActDoesAnything) {
    for (const char* ending : {"click Command3D7\n", "close\n"}) {
        ScriptSession session;
        const auto dumps =
            session.Run(std::string(kPlant) + "click AnlageAbButt\n" + ending +
                        "dump\nset Taus 99\nclick PSButt\nclick optButt\nclick AnlageButt\n"
                        "open ProjLaden 1\nopen Hilfebox\npointer press 300 300 right\n"
                        "pointer release 300 300 right\nwindow 900 600\nclick druckbutt\ndump\n");
        EXPECT_EQ(dumps[0]["ended"], true);
        EXPECT_EQ(dumps[1], dumps[0]) << ending;
        EXPECT_EQ(session.folder.Read("QV_ACT.dat").find("99"), std::string::npos) << ending;
    }
}

// A byte that is no UTF-8 in one field leaves the others as they are.
TEST(Script, EachLineIsDecodedByItself) {
    ScriptSession session;
    const Json dump = session.RunOnce("set Proj_T K\xC3\xBChlhaus\nset Schr_T caf\xE9\ndump\n");
    EXPECT_EQ(TextOf(dump, "Proj_T"), "K\xC3\xBChlhaus");
    EXPECT_EQ(TextOf(dump, "Schr_T"), "caf\xC3\xA9");
}

// A tag with a slash would lead out of the data folder.
TEST(Start, ALanguageTagIsThreeLetters) {
    for (const char* tag : {"../x", "DE", "DEUT", "D/U", "12A"}) {
        ScriptSession session;
        std::string parameters = session.folder.Read("kparam.dat");
        parameters.replace(parameters.find("\"ENG\"") + 1, 3, tag);
        session.folder.Write("kparam.dat", parameters);
        EXPECT_EQ(session.RunOnce("dump LanguageTag\n")["LanguageTag"], "ENG") << tag;
    }
}

// Ranges and inputs at the end of what numbers can hold: a dump shows every figure that is no
// number as null.
TEST(Numbers, WhatIsNoNumberReachesNoMarkLineOrScale) {
    const char* const settings[] = {
        "1.013\n-20\n40\n0\n40\n0\n0\n1",
        "1.013\n0\n1e-306\n0\n1e-306\n0\n0\n1",
        "1.013\n0\n1e-306\n0\n1e-306\n0\n1\n1",
        "1.013\n-20\n40\n0\n1e-306\n0\n1\n1\n1",
        "1e308\n-1e308\n1e308\n-1e308\n1e308\n0\n0\n1",
    };
    for (const char* file : settings) {
        ScriptSession session;
        session.folder.Write("qv_par.dat", file);
        const auto dumps = session.Run(
            std::string(kStates) +
            "click MischButt\ndump\nset Temp1 1e308\nset LuftM1 1e308\n"
            "return LuftM1\ndump\nclick Command3D4\n" +
            kPlant +
            "set Taus 1e308\nset vhAnlage 1e308\nreturn Taus\npointer move 500 300\ndump\n");
        for (const Json& dump : dumps) {
            EXPECT_EQ(dump.dump().find("null"), std::string::npos) << file;
        }
    }
}

// Five megabytes are no working state of this program, but they may be of worth to their owner.
TEST(Start, AWorkingStateThatCannotBeReadIsToldAndKept) {
    ScriptSession session;
    const std::string unreadable(5000000, 'x');
    session.folder.Write("QV_ACT.dat", unreadable);
    const auto dumps = session.Run(
        "dump ended\nclick PLbutt\ndump ended\nset Taus 31\nclick PSButt\ndump ended\n");
    for (const std::size_t told : {0U, 1U}) {
        ASSERT_EQ(dumps[told]["dialogs"].size(), 1U);
        const std::string text = dumps[told]["dialogs"][0]["text"];
        EXPECT_TRUE(text.ends_with("QV_ACT.dat cannot be read: File too large")) << text;
    }
    EXPECT_TRUE(dumps[2]["dialogs"].empty());
    EXPECT_EQ(session.folder.Read("QV_ACT.bak"), unreadable);
    EXPECT_NE(session.folder.Read("QV_ACT.dat").find("31"), std::string::npos);
}

}  // namespace
}  // namespace zandrell
