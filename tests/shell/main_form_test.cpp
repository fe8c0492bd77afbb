#include <gtest/gtest.h>

#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kStates =
    "set Temp1 30\nset relF1 40\nset Temp2 20\nset relF2 50\nset LuftM1 1000\nset LuftM2 500\n";

TEST(MainForm, StartsWithItsChartAndItsCaptions) {
    ScriptSession session;
    const Json dump = session.RunOnce("dump\n");
    EXPECT_EQ(dump["title"], "Zandrell 10.11.2 : h,x Chart Project  ");
    EXPECT_EQ(TextOf(dump, "Label27"), "Zandrell 10.11.2 - Created 30/1/2026");
    EXPECT_EQ(TextOf(dump, "proj"), "&Project");
    EXPECT_EQ(TextOf(dump, "ProLad"), "&Load Project");
    EXPECT_EQ(TextOf(dump, "ProSpeichU"), "Save &As");
    EXPECT_EQ(TextOf(dump, "ZAButt_l"), "     State Change");
    EXPECT_EQ(TextOf(dump, "Label33"), "Air Flow Rate /[m³/h]:");
    EXPECT_EQ(dump["BearButt"]["tool_tip"], "Capacity : Capacity  Latent/Sensible, Water");
    EXPECT_EQ(dump["Rechenmodus"], 0);
    EXPECT_EQ(dump["PanelZustand"], 0);
    // 1280 pixels: w = (19200 + 2600) / 19200, (w * 2000 + 10) / 580 = 3.932471
    EXPECT_NEAR(dump["CarrierFaktor"].get<double>(), 3.932471264, 1e-8);
}

TEST(MainForm, GermanAndTheWordOrdersOfOtherLanguages) {
    const struct {
        const char* tag;
        const char* load_project;
        const char* humidity;
    } cases[] = {{"DEU", "Projekt &Laden", "φ /[%]:"},
                 {"NDL", nullptr, "φ /[%]:"},
                 {"FRA", nullptr, "HR /[%]:"},
                 {"POR", nullptr, "HR /[%]:"}};
    for (const auto& c : cases) {
        ScriptSession session;
        std::string parameters = session.folder.Read("kparam.dat");
        parameters.replace(parameters.find("ENG"), 3, c.tag);
        session.folder.Write("kparam.dat", parameters);
        const Json dump = session.RunOnce("dump\n");
        if (c.load_project != nullptr) {
            EXPECT_EQ(TextOf(dump, "ProLad"), c.load_project);
        }
        EXPECT_EQ(TextOf(dump, "Label57"), c.humidity) << c.tag;
        const bool with_article = TextOf(dump, "ProLad").find(" un ") != std::string::npos;
        EXPECT_EQ(with_article, std::string(c.tag) == "FRA" || std::string(c.tag) == "POR")
            << c.tag;
    }
}

TEST(MainForm, ModesAndWhoRefusesWhen) {
    ScriptSession session;
    const struct {
        const char* acts;
        int mode, state;
        bool point_panel, plant_panel;
    } cases[] = {
        {"click ZAButt", 1, 44, true, false},
        {"click ZAButt\nclick MischButt", 1, 44, true, false},
        {"click ZAButt\nclick Misch", 3, 44, true, false},
        {"click ZAButt\nclick Kleis", 2, 44, true, false},
        {"click ZAButt\nclick BearButt_l", 1, 44, true, false},
        {"click ZAButt\nclick Command3D4\nclick BearButt_l", 2, 44, true, false},
        {"click AnlageButt\nclick BearButt", 5, 33, false, true},
        {"click AnlageButt\nclick Kuehl_start", 5, 33, false, true},
        {"click AnlageButt\nclick MischButt", 3, 44, true, false},
        {"click ZAButt\nclick AnlageButt", 1, 44, true, false},
        {"click AnlageButt\nclick AnlageAbButt", 5, 0, false, false},
        {"click Heiz_start", 13, 44, true, false},
        {"click Humid_W_Start\nclick abbcom\nclick Humid_D_Start", 15, 44, true, false},
    };
    for (const auto& c : cases) {
        const Json dump = session.RunOnce(std::string(kStates) + c.acts + "\ndump\n");
        EXPECT_EQ(dump["Rechenmodus"], c.mode) << c.acts;
        EXPECT_EQ(dump["PanelZustand"], c.state) << c.acts;
        EXPECT_EQ(Shown(dump, "Anlage1PN"), c.point_panel) << c.acts;
        EXPECT_EQ(Shown(dump, "Frame1"), c.plant_panel) << c.acts;
    }
}

TEST(MainForm, WhatTheModesShow) {
    ScriptSession session;
    const struct {
        const char* open;
        bool results, flow, second_flow, humidity2, temperature2;
    } cases[] = {
        {"ZAButt", false, false, false, true, true},
        {"BearButt", true, true, false, true, true},
        {"MischButt", false, true, true, true, true},
        {"Kuehl_start", true, true, false, true, true},
        {"Heiz_start", true, true, false, false, true},
        {"Humid_W_Start", true, true, false, false, true},
        {"Humid_D_Start", true, true, false, true, false},
    };
    for (const auto& c : cases) {
        const Json dump = session.RunOnce(std::string("click ") + c.open + "\ndump\n");
        EXPECT_EQ(Shown(dump, "Panel3D9"), c.results) << c.open;
        EXPECT_EQ(Shown(dump, "LuftM1"), c.flow) << c.open;
        EXPECT_EQ(Shown(dump, "Label33"), c.flow) << c.open;
        EXPECT_TRUE(Shown(dump, "VScroll1")) << c.open;
        for (const char* name : {"LuftM2", "Vscroll2", "TempM", "relFM", "absFM"}) {
            EXPECT_EQ(Shown(dump, name), c.second_flow) << c.open << ' ' << name;
        }
        EXPECT_EQ(Shown(dump, "FScroll2"), c.humidity2) << c.open;
        EXPECT_EQ(Shown(dump, "Tscroll2"), c.temperature2) << c.open;
    }
    // The steam humidifier's lasting effect.
    const Json later = session.RunOnce("click Humid_D_Start\nclick abbcom\nclick ZAButt\ndump\n");
    EXPECT_FALSE(Shown(later, "Tscroll2"));
    EXPECT_TRUE(Shown(later, "FScroll2"));
}

TEST(MainForm, PanelsAreDraggedByTheirOutlineAndStayThere) {
    ScriptSession session;
    std::istringstream script;
    std::ostringstream dumps;
    ScriptedUser user(script, dumps);
    DataFiles files(session.folder.Path());
    MainForm form(user, files, NamedFolder(session.folder.Path()));
    form.Load();
    form.Resize(1280, 800);
    form.Activate();
    form.UserClick("ZAButt");
    auto& panel = form.processes.point.Anlage1PN;
    // (12000 - 7680) / (12000 / 580) and (19200 - 8960) / (19200 / (2000 * 1.135417))
    EXPECT_NEAR(panel.top, 208.8, 1e-9);
    EXPECT_NEAR(panel.left, 1211.111, 1e-3);
    form.Panels().Press(panel, {panel.left + 10, panel.top + 4});
    EXPECT_FALSE(panel.visible);
    EXPECT_TRUE(form.controls.Shape3.visible);
    form.Panels().Move({110, 54});
    EXPECT_EQ(form.controls.Shape3.left, 100);
    form.Panels().Release();
    EXPECT_TRUE(panel.visible);
    EXPECT_EQ(panel.left, 100);
    EXPECT_EQ(panel.top, 50);
    form.UserClick("Command3D4");
    form.Resize(1920, 1080);
    form.UserClick("ZAButt");
    EXPECT_EQ(panel.left, 100) << "a panel moved once is no more placed by the program";
}

TEST(MainForm, ClosingKeepsTheWorkingStateAndNeverWritesOverAnUnreadableOne) {
    ScriptSession session;
    session.Run("set Temp1 31,5\nset phiKanal 90\nchoose Option3D4\nclose\n");
    const std::string saved = session.folder.Read("QV_ACT.dat");
    const Json dump = session.RunOnce("dump\n");
    EXPECT_EQ(TextOf(dump, "Temp1"), "31,5");
    EXPECT_EQ(TextOf(dump, "phiKanal"), "90");
    EXPECT_TRUE(dump["Option3D4"]["value"]);
    EXPECT_FALSE(dump["Option3D3"]["value"]);
    const auto left = session.Run(
        "set Temp1 1\nclick Command3D2\ndump ended\n"
        "answer yes\nclick Command3D2\ndump ended\n");
    EXPECT_EQ(left[0]["ended"], false) << "what was typed is not lost without a question";
    EXPECT_EQ(left[0]["dialogs"][0]["icon"], "question");
    EXPECT_EQ(left[1]["ended"], true);
    EXPECT_EQ(session.folder.Read("QV_ACT.dat"), saved) << "closing without saving";
    EXPECT_EQ(session.RunOnce("click Command3D2\ndump ended\n")["ended"], true)
        << "nothing typed, nothing asked";

    const std::string huge(5U << 20U, 'x');
    session.folder.Write("QV_ACT.dat", huge);
    session.Run("set Temp1 22\nclose\n");
    EXPECT_EQ(session.folder.Read("QV_ACT.dat").size(), huge.size());
    session.Run("set Temp1 22\nclick PSButt\nclose\n");
    EXPECT_LT(session.folder.Read("QV_ACT.dat").size(), 1000U) << "on request it is replaced";
}

TEST(MainForm, InputsThatCanNotBeSavedHoldTheFirstCloseUp) {
    ScriptSession session;
    std::filesystem::create_directory(session.folder / "QV_ACT.dat");
    const auto dumps =
        session.Run("set Temp1 22\nclick PSButt\nclose\ndump ended\nclose\ndump ended\n");
    EXPECT_FALSE(dumps[0]["ended"]);
    ASSERT_EQ(dumps[0]["dialogs"].size(), 3U) << "at the start, for the button, for the close";
    EXPECT_EQ(dumps[0]["dialogs"][1]["text"],
              (session.folder / "QV_ACT.dat").string() + " cannot be saved: Is a directory");
    EXPECT_TRUE(dumps[1]["ended"]);
}

TEST(MainForm, TheOptionsDoNotThrowAwayWhatWasTyped) {
    ScriptSession session;
    const Json dump = session.RunOnce(std::string(kStates) +
                                      "click BearButt\nclick optButt\nset qvopt.absD .9\nclick "
                                      "qvopt.Command3D1\ndump Temp1 LuftM1 ChartDruckBar\n");
    EXPECT_EQ(TextOf(dump, "Temp1"), "30");
    EXPECT_EQ(TextOf(dump, "LuftM1"), "1000");
    EXPECT_EQ(dump["ChartDruckBar"], 0.9);
}

TEST(MainForm, OpensOnEveryBrokenDataFolder) {
    const std::string binary("\0\xFF\"\r,\x80\n", 7);
    for (const std::string& content : {std::string(), binary, std::string(200'000, '9')}) {
        ScriptSession session;
        for (const char* name :
             {"qvdata.dat", "kparam.dat", "qv_par.dat", "qv_wert.dat", "QV_ACT.dat", "Caption.ENG",
              "QVCapt.ENG", "AirCoCap.ENG", "rechOpt.dat"}) {
            session.folder.Write(name, content);
            session.Run(std::string(kStates) +
                        "click BearButt\npointer move 500 300\npointer press 500 300\nclick "
                        "Command3D4\nclick AnlageButt\ndump\n");
        }
        session.folder.Write("kparam.dat", "");
    }
    ScriptSession gone;
    std::filesystem::remove_all(gone.folder.Path());
    gone.Run(std::string(kStates) + "click BearButt\npointer move 500 300\ndump\n");
}

TEST(Script, ReportsWhatItCannotDoWithTheLine) {
    const struct {
        const char* script;
        const char* error;
    } cases[] = {
        {"# fine\n\nset Temp9 5\n", "line 3: unknown name: Temp9"},
        {"jump Temp1\n", "line 1: unknown act: jump"},
        {"click Temp1\n", "line 1: click does not fit Temp1"},
        {"dump Nothing\n", "line 1: unknown name: Nothing"},
        {"set qvopt.absD 1\n", "line 1: no open window qvopt"},
        {"click optButt\nset Temp1 4\n", "line 2: qvopt is open"},
        {"scroll Tscroll1 abc\n", "line 1: scroll needs a whole position"},
        {"pointer hop 1 2\n", "line 1: unknown pointer act: hop"},
        {"window 0 5\n", "line 1: window needs a width and a height in pixels"},
    };
    for (const auto& c : cases) {
        ScriptSession session;
        session.expects_error = true;
        session.Run(c.script);
        EXPECT_EQ(session.error, c.error);
    }
}

}  // namespace
}  // namespace zandrell
