#include <gtest/gtest.h>

#include "script_session.h"

namespace zandrell {
namespace {

TEST(Options, ShowTheSettingsAndKeepThem) {
    ScriptSession session;
    const auto dumps = session.Run(
        "click optButt\n"
        "dump\n"
        "set qvopt.absD 0,95\n"
        "set qvopt.qvTmind -10\n"
        "set qvopt.qvtmaxi 50\n"
        "set qvopt.Xmaxi 60\n"
        "choose qvopt.Option3d2\n"
        "click qvopt.Panel3D12\n"
        "click qvopt.Command3D1_l\n"
        "dump ChartDruckBar ChartTMin ChartTMax ChartXMax DiagrammArt Helligkeit PanelZustand "
        "AbsDruck\n");
    ASSERT_EQ(dumps.size(), 2U);
    EXPECT_EQ(TextOf(dumps[0], "qvopt.absD"), " 1.013");
    EXPECT_EQ(TextOf(dumps[0], "qvopt.qvTmind"), "-20");
    EXPECT_EQ(TextOf(dumps[0], "qvopt.Option3d1"), "Mollier ");
    EXPECT_EQ(TextOf(dumps[0], "qvopt.OptPNUeb"), "Settings Zandrell 10.11.2 h,x Chart :");
    EXPECT_TRUE(dumps[0]["qvopt.white"]["value"]);
    EXPECT_EQ(dumps[0]["dialogs"][0]["title"], "Settings Zandrell 10.11.2 h,x Chart");
    EXPECT_EQ(dumps[1]["ChartDruckBar"], 0.95);
    EXPECT_EQ(dumps[1]["ChartTMin"], -10);
    EXPECT_EQ(dumps[1]["ChartTMax"], 50);
    EXPECT_EQ(dumps[1]["ChartXMax"], 60);
    EXPECT_EQ(dumps[1]["DiagrammArt"], 1);
    EXPECT_EQ(dumps[1]["Helligkeit"], 0);
    EXPECT_EQ(TextOf(dumps[1], "AbsDruck"), " .95");
    EXPECT_EQ(session.folder.Read("qv_par.dat"), ".95\r\n-10\r\n50\r\n0\r\n60\r\n0\r\n1\r\n0\r\n");
    EXPECT_TRUE(session.folder.Read("qv_wert.dat").starts_with(".95,-10,50,0,60,1,"));
}

TEST(Options, TheBoxChoosesTheConventionAndTheNinthItem) {
    ScriptSession session;
    const std::string eight = "1.013\r\n-20\r\n40\r\n0\r\n40\r\n0\r\n0\r\n1\r\n";
    // A heater of 1000 m3/h from 20 degC, 50 % to 30 degC: 3.371 kW in an exact balance.
    const std::string heater =
        "click Heiz_start\nset Temp1 20\nset relF1 50\nset Temp2 30\nset LuftM1 1000\n"
        "return LuftM1\ndump Kleist\nclick abbcom\nclick optButt\ndump qvopt.ExactBox\n";
    const struct {
        const char *act, *capacity;
        bool on;
    } rows[] = {{"", " 3.18", false},
                {"check qvopt.ExactBox on\nclick qvopt.Command3D1\n", " 3.37", true},
                {"click qvopt.Command3D1\n", " 3.37", true},
                {"check qvopt.ExactBox off\nclick qvopt.Command3D5\n", " 3.37", true},
                {"check qvopt.ExactBox off\nclick qvopt.Command3D1\n", " 3.18", false}};
    for (const auto& row : rows) {
        const std::string script = *row.act == 0 ? "" : std::string("click optButt\n") + row.act;
        const auto dumps = session.Run(script + heater);
        ASSERT_EQ(dumps.size(), 2U);
        EXPECT_EQ(TextOf(dumps[0], "Kleist"), row.capacity) << row.act;
        EXPECT_EQ(dumps[1]["qvopt.ExactBox"]["value"], row.on) << row.act;
        EXPECT_EQ(session.folder.Read("qv_par.dat"), row.on ? eight + "1\r\n" : eight) << row.act;
    }
}

TEST(Options, FogLinesCanBeHadUnderExactAlone) {
    ScriptSession session;
    const std::string exact = "1.013\r\n-20\r\n40\r\n0\r\n40\r\n0\r\n0\r\n1\r\n1\r\n";
    const struct {
        const char* acts;
        bool enabled, on, stored;
    } rows[] = {{"check qvopt.ExactBox off\n", false, false, false},
                {"check qvopt.ExactBox on\n", true, false, false},
                {"check qvopt.ExactBox on\ncheck qvopt.FogLinesBox on\n", true, true, true},
                {"", true, true, true},
                {"check qvopt.FogLinesBox off\n", true, false, false}};
    for (const auto& row : rows) {
        const auto dumps =
            session.Run("click optButt\n" + std::string(row.acts) +
                        "dump qvopt.FogLinesBox qvopt.ExactBox\nclick qvopt.Command3D1\n");
        ASSERT_EQ(dumps.size(), 1U);
        EXPECT_EQ(dumps[0]["qvopt.FogLinesBox"]["enabled"], row.enabled) << row.acts;
        EXPECT_EQ(dumps[0]["qvopt.FogLinesBox"]["value"], row.on) << row.acts;
        const std::string file = session.folder.Read("qv_par.dat");
        EXPECT_EQ(file.ends_with("1\r\n1\r\n1\r\n"), row.stored) << row.acts;
        if (dumps[0]["qvopt.ExactBox"]["value"] == true) {
            EXPECT_EQ(file, row.stored ? exact + "1\r\n" : exact) << row.acts;
        }
    }
}

TEST(Options, TestsOfTheRanges) {
    const struct {
        const char* tmin;
        const char* tmax;
        const char* xmin;
        std::vector<std::string> messages;
        bool stored;
    } cases[] = {
        {"0", "25", "0", {}, true},
        {"-50", "100", "0", {}, true},
        {"-20", "110", "0", {"Temperature maximal  > 100°C !"}, true},
        {"-20", "130", "0", {"Temperature maximal  > 100°C !"}, false},
        {"-51",
         "20",
         "0",
         {"Temperature minimal  < -50°C !", "Temperature maximal  < 25°C !"},
         false},
        {"1",
         "40",
         "-1",
         {"Temperature minimal  > 0°C !", "Humidity Ratio minimal < 0 g/kg !"},
         false},
        {"1e999", "--5", "0", {"Temperature maximal  < 25°C !"}, false},
    };
    for (const auto& c : cases) {
        ScriptSession session;
        const std::string before = session.folder.Read("qv_par.dat");
        const Json dump =
            session.RunOnce(std::string("click optButt\nset qvopt.qvTmind ") + c.tmin +
                            "\nset qvopt.qvtmaxi " + c.tmax + "\nset qvopt.Xmini " + c.xmin +
                            "\nset qvopt.Xmaxi 99\nclick qvopt.Command3D1\ndump\n");
        std::vector<std::string> shown;
        for (const auto& dialog : dump["dialogs"]) {
            if (dialog["icon"] == "stop") {
                shown.push_back(dialog["text"]);
                EXPECT_EQ(dialog["title"], "Zandrell");
            }
        }
        EXPECT_EQ(shown, c.messages) << c.tmin << ' ' << c.tmax;
        EXPECT_EQ(session.folder.Read("qv_par.dat") != before, c.stored) << c.tmax;
        EXPECT_EQ(!dump.contains("qvopt.absD"), c.stored) << "else the window stays open";
    }
}

TEST(Options, HeightGivesThePressureAndTheTopTemperatureTheHumidity) {
    ScriptSession session;
    // Standard atmosphere: 1000 m has 898.7 hPa of 1013.25; with 1.013 + .0005 the cut figure is
    // .898. Saturated air of 25 degC holds 20.1 g/kg in published tables; 1.1 times that is 22.1.
    const struct {
        const char* height;
        const char* pressure;
    } heights[] = {{"0", " 1.013"},
                   {"1000", " .898"},
                   {"3000", " 1.013"},
                   {"-200", " 1.013"},
                   {"x", " 1.013"}};
    for (const auto& c : heights) {
        const Json dump = session.RunOnce(std::string("click optButt\nset qvopt.geoH ") + c.height +
                                          "\nreturn qvopt.geoH\nset qvopt.qvtmaxi 25\nreturn "
                                          "qvopt.qvtmaxi\ndump qvopt.absD qvopt.Xmaxi\n");
        EXPECT_EQ(TextOf(dump, "qvopt.absD"), c.pressure) << c.height;
        EXPECT_EQ(TextOf(dump, "qvopt.Xmaxi"), " 22");
    }
    // A humidity range below a tenth of that is lifted in the file: at 40 degC published saturation
    // is 49.1 g/kg, ours .4 % lower, so Floor(1.1 * 48.9) = 53.
    session.Run("click optButt\nset qvopt.Xmaxi 1\nclick qvopt.Command3D1\n");
    EXPECT_TRUE(
        session.folder.Read("qv_par.dat").starts_with("1.013\r\n-20\r\n40\r\n0\r\n5.3\r\n"));
}

// A chart of such settings would have no curves: refused under Exact, taken as ever without it.
TEST(Options, ExactSettingsAreThoseThatAChartCanShow) {
    const struct {
        std::string acts, field, message;  // message empty: taken
    } rows[] = {
        {"set qvopt.absD abc\n", "absD", "Pressure /[bar]: not used: not a number"},
        {"set qvopt.absD 0\n", "absD", "Pressure /[bar]: not used: only .1 to 8.5 bar is possible"},
        {"set qvopt.absD -1\n", "absD",
         "Pressure /[bar]: not used: only .1 to 8.5 bar is possible"},
        {"set qvopt.absD 50\n", "absD",
         "Pressure /[bar]: not used: only .1 to 8.5 bar is possible"},
        {"set qvopt.absD .8\n", "absD", ""},
        {"set qvopt.Xmini 30\nset qvopt.Xmaxi 10\n", "Xmaxi",
         "Humidity Ratio max. : not used: only 31 to 10000 g/kg is possible"},
        {"set qvopt.Xmaxi 1e300\n", "Xmaxi",
         "Humidity Ratio max. : not used: only 1 to 10000 g/kg is possible"},
        {"set qvopt.Xmini 1e300\nset qvopt.Xmaxi 1e300\n", "Xmini",
         "Humidity Ratio min. : not used: only 0 to 9999 g/kg is possible\n"
         "Humidity Ratio max. : not used: only 10000 to 10000 g/kg is possible"},
        {"set qvopt.qvTmind x\n", "qvTmind", "Temperature min. : not used: not a number"},
        {"set qvopt.qvtmaxi 130\n", "qvtmaxi", "Temperature maximal  > 100°C !"},
        {"set qvopt.geoH 5000\n", "geoH",
         "Altitude /[m]: not used: only -199 to 2999 m is possible"},
        {"set qvopt.geoH 5000\nset qvopt.absD .54\n", "geoH", ""},
    };
    for (const bool exact : {true, false}) {
        for (const auto& row : rows) {
            ScriptSession session;
            const auto dumps = session.Run("click optButt\ncheck qvopt.ExactBox " +
                                           std::string(exact ? "on\n" : "off\n") + row.acts +
                                           "click qvopt.Command3D1\ndump\n");
            std::string shown;
            for (const auto& dialog : dumps[0]["dialogs"]) {
                if (dialog["icon"] == "stop") shown = dialog["text"];
            }
            const bool suites = row.message.find('!') != std::string::npos;
            const bool refused = !row.message.empty() && (exact || suites);
            EXPECT_EQ(shown, exact || suites ? row.message : "") << row.acts;
            ASSERT_EQ(dumps[0].contains("qvopt.absD"), refused) << row.acts << exact;
            if (!refused) continue;
            EXPECT_EQ(dumps[0]["qvopt." + row.field].contains("hint"), exact) << row.acts;
        }
    }
}

// 1500 m have 845.6 hPa in the standard atmosphere of 1013.25; of 1.013, cut, .845.
TEST(Options, AHeightThatWasTypedLastCountsWithoutReturn) {
    const struct {
        const char *acts, *file;  // how the file begins
    } rows[] = {{"check qvopt.ExactBox on\nset qvopt.geoH 1500\n", ".845\r\n"},
                {"check qvopt.ExactBox on\nset qvopt.geoH 1500\nset qvopt.absD .9\n", ".9\r\n"},
                {"check qvopt.ExactBox on\nset qvopt.absD x\nset qvopt.geoH 1500\n", ".845\r\n"},
                {"set qvopt.geoH 1500\n", "1.013\r\n"}};
    for (const auto& row : rows) {
        ScriptSession session;
        session.Run(std::string("click optButt\n") + row.acts + "click qvopt.Command3D1\n");
        const std::string file = session.folder.Read("qv_par.dat");
        EXPECT_TRUE(file.starts_with(row.file)) << row.acts << file;
        EXPECT_NE(file.find("\r\n1500\r\n"), std::string::npos) << file;
    }
}

TEST(Options, CancelAndTheEscapeKeyLeaveEverything) {
    for (const char* leave : {"click qvopt.Command3D5", "key qvopt.absD Escape"}) {
        ScriptSession session;
        const std::string before = session.folder.Read("qv_par.dat");
        const Json dump = session.RunOnce(
            std::string("click ZAButt\npointer release 500 300 right\n") + "set qvopt.absD 0.5\n" +
            leave + "\ndump PanelZustand ChartDruckBar Anlage1PN OptionenSignal PP1\n");
        EXPECT_EQ(session.folder.Read("qv_par.dat"), before);
        EXPECT_EQ(dump["ChartDruckBar"], 1.013);
        EXPECT_EQ(dump["PanelZustand"], 0) << "the hidden panel no longer owns the pointer";
        EXPECT_EQ(dump["OptionenSignal"], 0);
        EXPECT_FALSE(Shown(dump, "Anlage1PN"));
        EXPECT_FALSE(Shown(dump, "PP1"));
    }
}

// Under Exact chart and table of states go on telling of the same process.
TEST(Options, TheExactProcessStaysOnTheChart) {
    const char* const process =
        "set LuftM1 3000\nset LuftM2 1000\nset Temp1 26\nset relF1 50\nset Temp2 -10\n"
        "set relF2 90\n";
    for (const bool exact : {true, false}) {
        for (const char* leave : {"set qvopt.absD .9\nclick qvopt.Command3D5\n",
                                  "set qvopt.qvtmaxi 50\nclick qvopt.Command3D1\n"}) {
            ScriptSession session;
            if (exact) {
                session.folder.Write("qv_par.dat",
                                     "1.013\r\n-20\r\n40\r\n0\r\n40\r\n0\r\n0\r\n1\r\n1\r\n");
            }
            const auto dumps = session.Run(std::string(process) +
                                           "click MischButt\ndump PP1 PP3 ZAeLine tmLab PP4\n"
                                           "click optButt\n" +
                                           leave + "dump PP1 PP3 ZAeLine tmLab PP4\n");
            for (const char* mark : {"PP1", "PP3", "ZAeLine", "tmLab"}) {
                ASSERT_TRUE(Shown(dumps[0], mark)) << mark;
                EXPECT_EQ(Shown(dumps[1], mark), exact) << mark << leave;
            }
            EXPECT_FALSE(Shown(dumps[1], "PP4"));
            // A chart that reaches higher has every state lower.
            const bool moved = dumps[0]["PP1"]["top"] != dumps[1]["PP1"]["top"];
            EXPECT_EQ(moved, exact && std::string(leave).find("qvtmaxi") != std::string::npos);
        }
    }
}

TEST(Options, AFileThatCannotBeWrittenIsReportedAndTheWindowStays) {
    ScriptSession session;
    std::filesystem::remove(session.folder / "qv_par.dat");
    std::filesystem::create_directory(session.folder / "qv_par.dat");
    const Json dump = session.RunOnce("click optButt\nclick qvopt.Command3D1\ndump\n");
    EXPECT_NE(dump["dialogs"][1]["text"].get<std::string>().find("qv_par.dat"), std::string::npos);
    EXPECT_TRUE(dump.contains("qvopt.absD"));
}

}  // namespace
}  // namespace zandrell
