// Print-out and help as a user meets them on the main form.

#include "base/number_text.h"
#include "printing/print_device.h"
#include "script_session.h"

namespace zandrell {
namespace {

// A printer that keeps what it got, and the names of the files.
struct KeptPages : PrintDevice {
    std::string file;
    std::vector<std::pair<std::string, Sheet>> pages;
    int previews = 0;

    std::vector<std::string> FontNames() override { return {"Arial"}; }
    DeviceSize PrintableSize(const std::string&, bool) override { return {210, 297}; }
    DeviceSize ScreenSize() override { return {1920, 1080}; }
    void PrintToFile(const std::string& path) override { file = path; }
    bool Print(const Sheet& sheet, std::string&) override {
        pages.emplace_back(file, sheet);
        return true;
    }
    void Preview(const Sheet&) override { ++previews; }
};

struct PrintedSession : ScriptSession {
    KeptPages printer;
    void ChooseExact() {
        folder.Write("qv_par.dat", "1.013\r\n-20\r\n40\r\n0\r\n40\r\n0\r\n0\r\n1\r\n1\r\n");
    }
    std::vector<Json> RunPrinting(const std::string& script) {
        std::istringstream input(script);
        std::ostringstream output;
        ScriptedUser user(input, output);
        DataFiles files(folder.Path());
        MainForm form(user, files, NamedFolder(folder.Path()));
        form.printing.SetDevice(&printer);
        EXPECT_EQ(user.Run(form, error), !expects_error) << error;
        std::vector<Json> dumps;
        std::istringstream lines(output.str());
        for (std::string line; std::getline(lines, line);) dumps.push_back(Json::parse(line));
        return dumps;
    }
};

constexpr const char* kCapacity =
    "set LuftM1 3000\nset Temp1 32\nset relF1 40\nset Temp2 16\nset relF2 90\nclick BearButt\n";

constexpr const char* kPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nset tabLuft 26\nset PHIAbluft 50\nset Taus 32\n"
    "set PhiAussen 40\nset tKA 12\nset phiKanal 95\nset TZuluft 18\nset PHIZuluft 64\n"
    "set dtVent1 1\nset dtVent2 0.5\nclick AnlageButt\n";

// With where they stand: the labels on the chart move with the process.
std::vector<std::string> TextsOf(const Sheet& sheet) {
    std::vector<std::string> texts;
    for (const SheetItem& item : sheet.Items()) {
        if (item.kind != SheetItem::Kind::Text) continue;
        texts.push_back(item.text);
        if (item.on_chart) texts.back().append(NumberText(item.x1)).append(NumberText(item.y1));
    }
    return texts;
}

bool Holds(const Sheet& sheet, const std::string& text) {
    const auto& items = sheet.Items();
    return std::any_of(items.begin(), items.end(),
                       [&](const SheetItem& item) { return item.text == text; });
}

TEST(PrintingActs, OneLineIsTheWholeRoad) {
    PrintedSession session;
    const auto dumps = session.RunPrinting(std::string(kCapacity) +
                                           "clock 2027-03-05\nset Proj_T Halle 7\n"
                                           "print a b.pdf\n"
                                           "dump PanelZustand Rechenmodus DialogMode ProjektArt\n");
    ASSERT_EQ(session.printer.pages.size(), 1U);
    EXPECT_EQ(session.printer.pages[0].first, "a b.pdf");
    const Sheet& sheet = session.printer.pages[0].second;
    EXPECT_TRUE(Holds(sheet, "Project :Halle 7"));
    EXPECT_TRUE(Holds(sheet, "Date :03-05-2027"));
    // The panel stays open, and the pointer still belongs to it.
    EXPECT_EQ(dumps[0]["PanelZustand"], 44);
    EXPECT_EQ(dumps[0]["Rechenmodus"], 2);
    EXPECT_EQ(dumps[0]["DialogMode"], 0);
    const auto& dialogs = dumps[0]["dialogs"];
    ASSERT_EQ(dialogs.size(), 2U);  // the setup, and the printer dialog of the system
    EXPECT_EQ(dialogs[0]["title"], "Zandrell 10.11.2 - Printer Settings");
    EXPECT_EQ(dialogs[1]["title"], "Zandrell 10.11.2 - Printer Settings");
}

TEST(PrintingActs, EveryButtonLeadsToTheSetup) {
    for (const char* button : {"druckbutt", "druckbutt_l", "mPributt", "mPributt_2"}) {
        PrintedSession session;
        session.RunPrinting("printer x.pdf\nclick " + std::string(button) +
                            "\nclick DruckEInstell.Okbutt\n");
        EXPECT_EQ(session.printer.pages.size(), 1U) << button;
    }
}

TEST(PrintingActs, APanelThatIsClosedStaysClosed) {
    PrintedSession session;
    const auto dumps = session.RunPrinting(
        "click AnlageButt\nclick Command3D6\nprint x.pdf\ndump PanelZustand Frame1\n"
        "click AnlageButt\nprint x.pdf\ndump PanelZustand Frame1\n");
    EXPECT_EQ(dumps[0]["PanelZustand"], 0);
    EXPECT_FALSE(Shown(dumps[0], "Frame1"));
    EXPECT_EQ(dumps[1]["PanelZustand"], 33);
    EXPECT_TRUE(Shown(dumps[1], "Frame1"));
}

TEST(PrintingActs, AZoomedPrintOutEndsInTheWholeChart) {
    PrintedSession session;
    const auto dumps = session.RunPrinting(
        "pointer press 300 100\npointer move 900 350\npointer release 900 350\n"
        "pointer move 500 200\npointer press 500 200\ndump MassstabX PanelZustand\n"
        "print x.pdf\ndump MassstabX PanelZustand ZOOMMIN\n"
        "pointer move 500 200\npointer press 300 100\ndump PanelZustand\n");
    EXPECT_EQ(dumps[0]["PanelZustand"], 77);
    EXPECT_GT(dumps[0]["MassstabX"].get<double>(), 100);
    EXPECT_DOUBLE_EQ(dumps[1]["MassstabX"].get<double>(), 45);
    EXPECT_EQ(dumps[1]["PanelZustand"], 0);
    EXPECT_FALSE(Shown(dumps[1], "ZOOMMIN"));
    EXPECT_EQ(dumps[2]["PanelZustand"], 1) << "a new frame can be drawn";
}

TEST(PrintingActs, CancelledRoadsLeaveEverything) {
    for (const char* road : {"click druckbutt\nclick DruckEInstell.Abbutt\n",
                             "click druckbutt\nclose\n", "answer cancel\nclick druckbutt\n",
                             "click druckbutt\nanswer cancel\nclick DruckEInstell.Okbutt\n"}) {
        PrintedSession session;
        const std::string before = "click ZAButt\ndump PanelZustand title\n";
        const auto dumps = session.RunPrinting("printer x.pdf\n" + before + road +
                                               "dump PanelZustand title DialogMode\n");
        EXPECT_TRUE(session.printer.pages.empty()) << road;
        EXPECT_EQ(dumps[1]["PanelZustand"], dumps[0]["PanelZustand"]) << road;
        EXPECT_EQ(dumps[1]["DialogMode"], 0) << road;
    }
}

// What was typed last is on the page, as if Return had been pressed in each field; under the
// suite's convention the page has the process that was computed last.
TEST(PrintingActs, ExactPagesBelongToTheFieldsAsTheyStand) {
    const struct {
        std::string shown, typed, confirmed;
    } rows[] = {
        {kCapacity, "set Temp1 30\nset relF2 80\n", "return Temp1\nset relF2 80\nreturn relF2\n"},
        {kCapacity, "set Kleist 40\n", "return Kleist\n"},
        {kPlant, "set Taus 20\nset vhinnen 3000\n", "return vhinnen\n"},
        {kPlant + std::string("click Command3D6\n"), "", ""},
        {kPlant, "set Taus 20\nclick Command3D6\n",
         "click AnlageButt\nreturn Taus\nclick Command3D6\n"},
    };
    for (const bool exact : {true, false}) {
        for (const auto& row : rows) {
            PrintedSession left_typed, confirmed;
            if (exact) left_typed.ChooseExact(), confirmed.ChooseExact();
            left_typed.RunPrinting(row.shown + row.typed + "print x.pdf\n");
            confirmed.RunPrinting(row.shown + row.typed + row.confirmed + "print x.pdf\n");
            ASSERT_EQ(left_typed.printer.pages.size(), 1U) << row.typed;
            ASSERT_EQ(confirmed.printer.pages.size(), 1U) << row.typed;
            const bool same = TextsOf(left_typed.printer.pages[0].second) ==
                              TextsOf(confirmed.printer.pages[0].second);
            EXPECT_EQ(same, exact || row.typed.empty()) << row.shown << row.typed;
        }
    }
}

TEST(PrintingActs, ExactPagesAreRefusedWhereTheChartHasAnotherProcess) {
    const struct {
        std::string acts;
        bool printed;
    } rows[] = {{kCapacity + std::string("set relF1 150\n"), false},
                {kPlant + std::string("set PhiAussen -1\n"), false},
                {kCapacity + std::string("set LuftM1 0\n"), true},  // without loads
                {"click BearButt\n", true}};                        // nothing is drawn
    for (const auto& row : rows) {
        PrintedSession session;
        session.ChooseExact();
        const auto dumps =
            session.RunPrinting(row.acts + "print x.pdf\nclick PrintPreview\ndump\n");
        EXPECT_EQ(session.printer.pages.size(), row.printed ? 1U : 0U) << row.acts;
        EXPECT_EQ(session.printer.previews, row.printed ? 1 : 0) << row.acts;
        int words = 0;
        for (const auto& dialog : dumps[0]["dialogs"]) {
            words += dialog["text"].get<std::string>().starts_with("The process on the chart");
        }
        EXPECT_EQ(words, row.printed ? 0 : 2) << row.acts;
        if (!row.printed) continue;
        for (const std::string& text : TextsOf(session.printer.pages[0].second)) {
            EXPECT_FALSE(text.starts_with("Capacity Total")) << row.acts;
        }
    }
}

TEST(PrintingActs, SetupHoldsForTheRunAndTheMenusWork) {
    PrintedSession session;
    const auto dumps = session.RunPrinting(
        "printer x.pdf\nclick druckbutt\npick DruckEInstell.Size_combo A3\n"
        "choose DruckEInstell.Option2\nset DruckEInstell.Date_Combo 1 May\n"
        "click DruckEInstell.viewButt\nclick DruckEInstell.Okbutt\n"
        "click PrintPreview\nclick PrinterSetup\n"
        "dump PaperSize PaperOrientation DateFormatCode ZurueckVomDialog\n"
        "activate\nclick druckbutt\ndump DruckEInstell.Size_combo DruckEInstell.Option2\n");
    EXPECT_EQ(session.printer.previews, 2);
    EXPECT_EQ(dumps[0]["PaperSize"], "A3");
    EXPECT_EQ(dumps[0]["PaperOrientation"], 2);
    EXPECT_EQ(dumps[0]["ZurueckVomDialog"], 1);
    EXPECT_EQ(dumps[1]["DruckEInstell.Size_combo"]["text"], "A3");
    EXPECT_EQ(dumps[1]["DruckEInstell.Option2"]["value"], true);
}

TEST(PrintingActs, BadLinesAreNamed) {
    for (const char* bad :
         {"printer", "print", "clock", "clock 2026-02-30", "clock today", "open", "open Nowhere"}) {
        PrintedSession session;
        session.expects_error = true;
        session.RunPrinting(bad);
        EXPECT_TRUE(session.error.starts_with("line 1: ")) << bad << ": " << session.error;
    }
    ScriptSession without;
    without.expects_error = true;
    without.Run("\nprint x.pdf\n");
    EXPECT_EQ(without.error, "line 2: there is no printer here");
}

TEST(HelpActs, TheTopicIsThatOfWhatIsDone) {
    struct Case {
        const char* acts;
        const char* topic;
    };
    const Case cases[] = {
        {"key Proj_T F1\n", "Chart and Read-out"},
        {"click HelpHere\n", "Chart and Read-out"},
        {"click ZAButt\nkey Temp1 F1\n", "Air Treatment"},
        {"click AnlageButt\nclick HelpHere\n", "Air Treatment"},
        {"click optButt\nkey qvopt.absD F1\n", "Settings"},
        {"click druckbutt\nkey DruckEInstell.Text1 F1\n", "Settings"},
        {"click HelpSoftware\n", "Zandrell-Software"},
        {"click HelpValues\n", "Set of Values"},
        {"click HelpProject\n", "Project Data"},
        {"open Hilfebox Component\n", "Component"},
        {"open Hilfebox Select Series\n", "Select Series"},
    };
    for (const Case& c : cases) {
        ScriptSession session;
        const auto dump = session.RunOnce(std::string(c.acts) +
                                          "dump Hilfebox.InfoText DateText HelpClosed\nclose\n");
        EXPECT_EQ(dump["DateText"], c.topic) << c.acts;
        EXPECT_GT(TextOf(dump, "Hilfebox.InfoText").size(), 400U) << c.acts;
        EXPECT_EQ(TextOf(dump, "Hilfebox.InfoText").find('\r'), std::string::npos);
        EXPECT_EQ(dump["HelpClosed"], 0);
    }
}

TEST(HelpActs, TheWindowBelowIsBackWhenTheHelpCloses) {
    ScriptSession session;
    const auto dumps = session.Run(
        "click optButt\nkey qvopt.absD F1\nset Hilfebox.InfoText own words\n"
        "click Hilfebox.Command3D2\nclick Hilfebox.Command3D1\nset qvopt.absD 0.9\n"
        "click qvopt.Command3D1\ndump ChartDruckBar HelpClosed\n"
        "open Hilfebox Settings\ndump Hilfebox.InfoText\nclose\ndump Rechenmodus\n");
    EXPECT_DOUBLE_EQ(dumps[0]["ChartDruckBar"].get<double>(), 0.9);
    EXPECT_EQ(dumps[0]["HelpClosed"], 1);
    EXPECT_EQ(TextOf(dumps[1], "Hilfebox.InfoText"), "own words");
    EXPECT_EQ(dumps.size(), 3U);
}

}  // namespace
}  // namespace zandrell
