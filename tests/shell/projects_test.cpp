// Projects, hand-overs and undo in the running program, by the acts of a user.
#include <gtest/gtest.h>

#include "canvas/palette.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr const char* kPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nset Taus 32\nset PhiAussen 40\nset tabLuft 26\n"
    "set PHIAbluft 50\nset TZuluft 18\nset PHIZuluft 64\nset tKA 12\nset phiKanal 95\n";

// The sample inputs with another outside temperature.
std::string StateWith(const std::string& outside) {
    return "\"12\"\r\n\"" + outside +
           "\"\r\n\"18\"\r\n\"26\"\r\n\"10000\"\r\n\"3\"\r\n\"64\"\r\n\"50\"\r\n\"40\"\r\n\"1000\""
           "\r\n\"500\"\r\n\"30\"\r\n\"16\"\r\n\"40\"\r\n\"90\"\r\n\"1\"\r\n\".5\"\r\n#TRUE#\r\n"
           "#FALSE#\r\n\"95\"\r\n";
}

TEST(Loads, EndInOneCalculationOfTheProcessInForce) {
    ScriptSession session;
    session.folder.Write("QV_ACT.dat", StateWith("28"));
    const auto direct = session.RunOnce("click AnlageButt\ndump\n");
    session.folder.Write("QV_ACT.dat", StateWith("28"));
    const auto loaded = session.Run(std::string(kPlant) +
                                    "click AnlageButt\nset vhAnlage 5000\nset tabLuft 24\n"
                                    "click PLbutt\ndump\n")[0];
    for (const char* name : {"Taus", "vhAnlage", "vhinnen", "vhaussen", "Kuehl", "Heiz2",
                             "RaumLeist", "RaumLatLeist", "PHIAbluft"}) {
        EXPECT_EQ(TextOf(loaded, name), TextOf(direct, name)) << name;
        EXPECT_NE(TextOf(loaded, name), "") << name;
    }
    EXPECT_EQ(loaded["taScroll"]["value"], 280);
    EXPECT_EQ(loaded["PP5"]["left"], direct["PP5"]["left"]);
}

TEST(Loads, InputsStayAsTheyWereSaved) {
    ScriptSession session;
    session.folder.Write("QV_ACT.dat", StateWith("28,50"));
    const Json dump = session.RunOnce(
        "set Temp1 20\nset relF1 50\nset Temp2 25\nset relF2 60\nset LuftM1 700\nclick ZAButt\n"
        "click PLbutt\ndump Temp1 LuftM1 Tscroll1 VScroll1 LuftSchritt1 Taus\n");
    EXPECT_EQ(TextOf(dump, "Temp1"), "30") << "no bar rewrites the text";
    EXPECT_EQ(TextOf(dump, "Taus"), "28,50");
    EXPECT_EQ(dump["Tscroll1"]["value"], 300);
    EXPECT_EQ(dump["LuftSchritt1"], 10) << "the step of the flow that was loaded";
    EXPECT_EQ(dump["VScroll1"]["value"], 100);
}

TEST(HandOvers, ShowTwoTemperatureLines) {
    const auto lines = [](int kind, const char* chart) {
        ScriptSession session;
        session.folder.Write("qv_par.dat", std::string("1.013\r\n-20\r\n40\r\n0\r\n40\r\n0\r\n") +
                                               chart + "\r\n1\r\n");
        session.folder.Write("ZANDData.dat",
                             "1," + std::to_string(kind) +
                                 ",\"\",\"\",\"\",12,7,\"\",\"\",T,R,\"\",\"to = 12\",\"tc\"\r\n");
        std::istringstream input("");
        std::ostringstream output;
        ScriptedUser user(input, output);
        DataFiles files(session.folder.Path());
        MainForm form(user, files, NamedFolder(session.folder.Path()));
        std::string error;
        EXPECT_TRUE(user.Run(form, error));
        std::vector<CanvasOperation> found;
        const auto& all = form.chart.picture.Operations();
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (all[i].stroke == Stroke::Text && (all[i].text == "to = 12" || all[i].text == "tc"))
                found.insert(found.end(), {all[i - 1], all[i]});
        }
        return found;
    };
    for (const int kind : {1, 4}) {
        const auto found = lines(kind, "0");
        ASSERT_EQ(found.size(), 4U) << kind;
        EXPECT_EQ(found[0].x1, 35);
        EXPECT_EQ(found[0].colour, 9);
        EXPECT_EQ(found[2].colour, 12);
        EXPECT_EQ(found[0].y1, found[0].y2) << "an isotherm";
        // 8.72 g/kg at saturation and 45 units for a gram.
        EXPECT_NEAR(found[0].x2, 35 + 45 * 8.72, 2);
        EXPECT_EQ(found[1].x1, found[0].x2);
    }
    const auto carrier = lines(1, "1");
    ASSERT_EQ(carrier.size(), 4U);
    EXPECT_EQ(carrier[0].x1, carrier[0].x2) << "turned, it stands upright";
    EXPECT_TRUE(lines(0, "0").empty());
    EXPECT_TRUE(lines(7, "0").empty());
}

TEST(HandOvers, BringThePressureOfAPlantAndOpenIt) {
    const struct {
        const char* pressure;
        double in_force;
    } cases[] = {{".9", 0.9}, {"0", 1.013}, {"", 1.013}, {"20", 1.013}, {"-1", 1.013}};
    for (const auto& c : cases) {
        ScriptSession session;
        session.folder.Write("Own.dat", StateWith("33"));
        session.folder.Write("ZANDData.dat", std::string("1,111,\"\",\"\",Own.dat,0,0,\"\",\"\","
                                                         "T,R,\"\",\"\",\"\",Coil,behind,\"\",\"\","
                                                         "\"\",") +
                                                 c.pressure + "\r\n");
        const auto dumps =
            session.Run("dump\nclick optButt\nclick qvopt.Command3D1\ndump\nclose\n");
        EXPECT_EQ(dumps[0]["PanelZustand"], 33);
        EXPECT_EQ(TextOf(dumps[0], "Taus"), "33");
        EXPECT_EQ(dumps[0]["ChartDruckBar"], c.in_force) << c.pressure;
        EXPECT_EQ(dumps[1]["ChartDruckBar"], c.in_force) << "the options do not end it";
        EXPECT_EQ(dumps[1]["ProjektArt"], 111);
        EXPECT_EQ(dumps[0]["title"], "Zandrell 10.11.2 : h,x Chart Project T behind");
        EXPECT_NE(TextOf(dumps[0], "Kuehl_start").find("Coil"), std::string::npos);
        EXPECT_EQ(TextOf(dumps[0], "Proj_T"), "T");
        const std::string duty = dumps[1]["KuehlLeistText"].get<std::string>();
        EXPECT_FALSE(duty.empty());
        EXPECT_NE(session.folder.Read("ZANDData.dat").find("\"" + duty + "\"\r\n"),
                  std::string::npos)
            << "the duty of the cooler is reported";
    }
}

TEST(Projects, AScriptSavesLoadsAndDeletesAProject) {
    ScriptSession session;
    const std::string folder = session.folder.Path().string();
    session.folder.Write("kparam.dat", "\"\",\"\",\"\",ENG,,,,,,,,,,,,,,,\"" + folder + "/\"\r\n");
    const auto dumps = session.Run(
        "set Proj_T Halle 3\nset Schr_T Süd\nset Taus 31\nclick ProSpeich\n"
        "dump ProjLaden.ProNam ProjLaden.title CurrentFolder\nreturn ProjLaden.ProNam\n"
        "dump title LastProjectFile modified\n"
        "set Taus 35\ndump modified\nclick NeuPro\ndump title Taus Proj_T LastProjectFile\n"
        "click ProLad\npick ProjLaden.List1 Halle3.PRJ\ndump ProjLaden.List1\n"
        "doubleclick ProjLaden.List1\ndump title Taus DialogMode modified Recent1\n"
        "open ProjLaden 5\nanswer yes\nselect ProjLaden.List1 0\nclick ProjLaden.Command3D1\n"
        "dump Recent1\nopen ProjLaden 1\nclose\ndump CurrentFolder\n");
    EXPECT_EQ(TextOf(dumps[0], "ProjLaden.ProNam"), "Halle3.prj");
    EXPECT_EQ(dumps[0]["ProjLaden.title"], "Save As");
    EXPECT_EQ(dumps[0]["CurrentFolder"], folder);
    EXPECT_EQ(dumps[1]["LastProjectFile"], "Halle3.PRJ");
    EXPECT_EQ(dumps[1]["title"], "Zandrell 10.11.2 : h,x Chart Project Halle 3 ");
    EXPECT_FALSE(dumps[1]["modified"]);
    EXPECT_TRUE(dumps[2]["modified"]);
    EXPECT_EQ(TextOf(dumps[3], "Taus") + TextOf(dumps[3], "Proj_T"), "");
    EXPECT_EQ(dumps[3]["LastProjectFile"], "");
    EXPECT_EQ(dumps[4]["ProjLaden.List1"]["tool_tip"], "Halle3.PRJ: Project Halle 3, Süd");
    EXPECT_EQ(TextOf(dumps[5], "Taus"), "31");
    EXPECT_EQ(dumps[5]["DialogMode"], 0);
    EXPECT_FALSE(dumps[5]["modified"]);
    EXPECT_TRUE(Shown(dumps[5], "Recent1"));
    EXPECT_EQ(dumps[6]["dialogs"].back()["text"], "     Project ''Halle3.PRJ'' Delete ?!");
    EXPECT_FALSE(Shown(dumps[6], "Recent1"));
    EXPECT_FALSE(std::filesystem::exists(session.folder / "Halle3.PRJ"));
    EXPECT_EQ(dumps[7]["CurrentFolder"], std::filesystem::current_path().string());
}

std::vector<std::string> Texts(const std::vector<Json>& dumps, const char* name) {
    std::vector<std::string> texts;
    texts.reserve(dumps.size());
    for (const Json& dump : dumps) texts.push_back(TextOf(dump, name));
    return texts;
}

// What a file lacks is told, by how much and where, and is not called loaded.
TEST(Projects, AnIncompleteProjectIsNotCalledLoaded) {
    const std::string whole = StateWith("10");
    const std::size_t last = whole.rfind('\n', whole.size() - 2) + 1;
    const struct {
        std::string state, tag, words;  // words empty: loaded
    } rows[] = {
        {whole, "QV", ""},
        {whole.substr(0, last), "QV", ""},  // an older file
        {"\"12\"\r\n\"32\"\r\n\"18\"\r\n\"26", "QV", "is incomplete: 16 of 20 inputs"},
        {"abc\r\n\xff\xfe", "QV", "is incomplete: 20 of 20 inputs"},
        {"", "QV", "is incomplete: 20 of 20 inputs"},
        {whole, "XY", "is a project of another module (XY)"},
    };
    for (const auto& row : rows) {
        ScriptSession session;
        const std::string folder = session.folder.Path().string();
        session.folder.Write("A.prj", "\"A\",\"R\",\"\",\"" + row.tag + "\"\r\n" + row.state);
        const auto d = session.Run("set Taus 31\nclick ProLad\nset ProjLaden.Text1 " + folder +
                                   "\nreturn ProjLaden.Text1\nset ProjLaden.ProNam A.prj\n"
                                   "click ProjLaden.Command3D1\ndump\n"
                                   "click PrevState\ndump Taus\n");
        std::string said;
        for (const auto& dialog : d[0]["dialogs"]) {
            if (dialog["icon"] == "stop") said = dialog["text"];
        }
        EXPECT_EQ(TextOf(d[0], "StatusLine"), row.words.empty() ? "Loaded" : "") << row.state;
        EXPECT_EQ(said.empty(), row.words.empty()) << said;
        EXPECT_NE(said.find(row.words), std::string::npos) << said;
        const bool told = said.find("A.prj") != std::string::npos &&
                          said.find("Restore Previous State") != std::string::npos;
        EXPECT_EQ(told, !row.words.empty()) << said;
        EXPECT_EQ(TextOf(d[1], "Taus"), "31") << "and the inputs of before come back";
    }
}

TEST(Projects, ANewOneSaysHowTheInputsComeBack) {
    ScriptSession session;
    const auto d = session.Run(
        "click NeuPro\ndump StatusLine\nset Taus 31\nclick NeuPro\ndump StatusLine Taus\n"
        "click PrevState\ndump Taus\n");
    EXPECT_EQ(TextOf(d[0], "StatusLine"), "") << "nothing was there";
    EXPECT_TRUE(TextOf(d[1], "StatusLine").starts_with("“Restore Previous State”"));
    EXPECT_EQ(TextOf(d[1], "Taus"), "");
    EXPECT_EQ(TextOf(d[2], "Taus"), "31");
}

TEST(Undo, TakesBackFieldsBarsOptionsAndTools) {
    ScriptSession session;
    const std::string dump = "dump Temp1 Temp2 Option3D4 Rechenmodus Anlage1PN absF1\n";
    const auto d = session.Run(
        "set Temp1 30\nset relF1 40\nset Temp2 20\nset relF2 50\nset LuftM1 1000\nclick ZAButt\n" +
        dump +                                                // 0
        "set Temp1 3\nset Temp1 31\nreturn Temp1\n" + dump +  // 1
        "scroll Tscroll1 250\nchoose Option3D4\n" + dump +    // 2
        "click Undo\n" + dump + "click Undo\n" + dump +       // 3, 4
        "click Undo\n" + dump +                               // 5
        "click Redo\nclick Redo\nclick Redo\n" + dump +       // 6
        "click Command3D4\nclick Kuehl_start\n" + dump +      // 7
        "click Undo\n" + dump);                               // 8
    EXPECT_EQ(Texts(d, "Temp1"), (std::vector<std::string>{"30", " 31", " 25", " 25", " 31", "30",
                                                           " 25", " 25", " 25"}));
    EXPECT_FALSE(d[3]["Option3D4"]["value"]);
    EXPECT_TRUE(d[6]["Option3D4"]["value"]);
    EXPECT_EQ(TextOf(d[5], "absF1"), TextOf(d[0], "absF1")) << "figures follow the inputs";
    EXPECT_EQ(d[7]["Rechenmodus"], 12);
    EXPECT_EQ(d[8]["Rechenmodus"], 1) << "with the process that they belong to";
}

TEST(Undo, TakesBackALoadWithTheNameOfTheProject) {
    ScriptSession session;
    const std::string folder = session.folder.Path().string();
    session.folder.Write("A.prj", "\"A\",\"RA\",\"\",\"QV\"\r\n" + StateWith("10"));
    session.folder.Write("B.prj", "\"B\",\"RB\",\"\",\"QV\"\r\n" + StateWith("20"));
    const std::string load = "click ProLad\nset ProjLaden.Text1 " + folder +
                             "\nreturn ProjLaden.Text1\npick ProjLaden.List1 ";
    const std::string dump = "dump Taus Proj_T LastProjectFile modified title\n";
    const auto d = session.Run(load + "A.prj\ndoubleclick ProjLaden.List1\nset Taus 11\n" + load +
                               "B.prj\ndoubleclick ProjLaden.List1\n" + dump + "click Undo\n" +
                               dump + "click Undo\n" + dump + "click Redo\nclick Redo\n" + dump);
    EXPECT_EQ(Texts(d, "Taus"), (std::vector<std::string>{"20", "11", "10", "20"}));
    EXPECT_EQ(Texts(d, "Proj_T"), (std::vector<std::string>{"B", "A", "A", "B"}));
    EXPECT_EQ(d[1]["LastProjectFile"], "A.prj");
    EXPECT_TRUE(d[1]["modified"]);
    EXPECT_FALSE(d[2]["modified"]) << "back at what was saved";
    EXPECT_EQ(d[2]["title"], "Zandrell 10.11.2 : h,x Chart Project A ");
    EXPECT_EQ(d[3]["LastProjectFile"], "B.prj");
}

TEST(Undo, TakesBackTheSettingsOfTheChart) {
    ScriptSession session;
    const auto d = session.Run(
        "click optButt\nset qvopt.qvtmaxi 60\nset qvopt.absD .9\nclick qvopt.Command3D1\n"
        "dump ChartTMax ChartDruckBar\nclick Undo\ndump ChartTMax ChartDruckBar\n"
        "click Redo\ndump ChartTMax ChartDruckBar\n");
    EXPECT_EQ(d[0]["ChartTMax"], 60);
    EXPECT_EQ(d[1]["ChartTMax"], 40);
    EXPECT_EQ(d[1]["ChartDruckBar"], 1.013);
    EXPECT_EQ(d[2]["ChartDruckBar"], 0.9);
}

TEST(Undo, ADragOfABarIsOneStep) {
    ScriptSession session;
    std::istringstream input("");
    std::ostringstream output;
    ScriptedUser user(input, output);
    DataFiles files(session.folder.Path());
    MainForm form(user, files, NamedFolder(session.folder.Path()));
    std::string error;
    ASSERT_TRUE(user.Run(form, error));
    for (const auto& [field, text] : {std::pair{"Temp1", "30"},
                                      {"relF1", "40"},
                                      {"Temp2", "20"},
                                      {"relF2", "50"},
                                      {"LuftM1", "1000"}}) {
        form.UserSetText(field, text);
    }
    form.UserClick("ZAButt");
    for (int drag = 0; drag < 2; ++drag) {
        form.BeginDrag();
        for (int i = 1; i <= 20; ++i) form.UserScroll("Tscroll1", 300 - 20 * drag - i);
        form.EndDrag();
    }
    EXPECT_EQ(form.processes.point.Temp1.text, " 26");
    form.UserClick("Undo");
    EXPECT_EQ(form.processes.point.Temp1.text, " 28");
    form.UserClick("Undo");
    EXPECT_EQ(form.processes.point.Temp1.text, "30");
}

}  // namespace
}  // namespace zandrell
