// The selection window, driven as a user and its opener would.
#include <gtest/gtest.h>

#include "selection_session.h"

namespace zandrell {
namespace {

using selection_test::Cooler;
using selection_test::EndMark;
using selection_test::RecordBytes;
using enum KatalogFeld;

// A duty of 10 kW, and series that fit it in different ways. The last one has 48 units.
std::string CoolerSession(const TestFolder& folder) {
    folder.Write("I600.DAT",
                 "ULMAK,1,Ulm flat,0\nESKNV,1,Esk large,0\nESKNV,1,Esk small,3\nNOTHG,1,Nix,0\n"
                 "ULMAK,1,Ulm hidden,0\nULMAK,1,ab,0\nLONGS,1,Ulm long,0\n");
    folder.Write("Prodhide.dat", "hidden\n");
    folder.Write("ULMAKN.rdm", Cooler("AK 1", "5") + Cooler("AK 2", "9") + Cooler("AK 3", "12") +
                                   Cooler("AK 4", "30") + EndMark());
    folder.Write("ESKNVN.rdm", Cooler("NV 1", "16") + Cooler("NV 2", "25,0009") + EndMark() +
                                   Cooler("K\x81hl", "2") + Cooler("NV 4", "9"));
    std::string units;
    for (int i = 1; i <= 49; ++i) {
        units += Cooler("L " + std::to_string(i), std::to_string(i + 1));
    }
    folder.Write("LONGSN.rdm", units);
    return "share KatalogArt 600\nshare QoSoll 9\nshare QoZusatz 1\nshare LeistFaktor 1\n"
           "share PN19 Qo : 10 kW\nopen\n";
}

Json Cells(const Json& dump, const char* grid) { return dump.at(grid).at("cells"); }
Json Backs(const Json& dump, const char* grid) { return dump.at(grid).at("backs"); }

TEST(SelectionWindow, ListsTheSeriesWithTheirRanges) {
    SelectionSession session;
    const Json dump = session.RunOnce(CoolerSession(session.folder) +
                                      "dump KatalogSpread HerstellList title StatusLab Shape9\n");
    const Json cells = Cells(dump, "KatalogSpread"), backs = Backs(dump, "KatalogSpread");
    const struct {
        const char *first, *last, *text, *locator;
        Json first_back, last_back, stripe;
    } rows[] = {
        {" 5", " 30", "Ulm flat", "0#$§  ULMAK", 10, 10, 7},
        // 16 is above 1.5 x 10 and below 2 x 10.
        {" 16", " 25", "Esk large", "0#$§  ESKNV", 14, 12, nullptr},
        // 9 is below 10 and above 8.5.
        {" 2", " 9", "Esk small", "3#$§  ESKNV", 12, 14, 7},
        // Without a unit: 0, and the 9 of the series before.
        {" 0", " 9", "Nix", "0#$§  NOTHG", 12, 14, nullptr},
        // The 47th of 48.
        {" 2", " 48", "Ulm long", "0#$§  LONGS", 10, 10, 7},
    };
    ASSERT_EQ(cells.size(), 6U);
    EXPECT_EQ(cells[0], Json({"", "Qo min [kW]", "Qo max [kW]", "Manufacturer/Series", ""}));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto& row = rows[i];
        EXPECT_EQ(cells[i + 1],
                  Json({std::to_string(i + 1), row.first, row.last, row.text, row.locator}));
        EXPECT_EQ(backs[i + 1],
                  Json({nullptr, row.first_back, row.last_back, row.stripe, row.stripe}));
    }
    EXPECT_EQ(dump.at("HerstellList").at("items"), Json({"Ulm", "Esk", "Nix"}));
    // Records read: 4 and the mark, 2 and the mark, 2 and the end of the file, that of no file, 48.
    EXPECT_EQ(dump.at("title"), "Select Series: 60 Qo ");
    EXPECT_NE(dump.at("StatusLab").at("text").get<std::string>().find("NOTHGN.rdm"),
              std::string::npos);
    EXPECT_EQ(dump.at("Shape9").at("width"), 3000) << "full at the end";
}

TEST(SelectionWindow, ShowsTheUnitsOfASeries) {
    SelectionSession session;
    const auto dumps =
        session.Run(CoolerSession(session.folder) +
                    "pick KatalogSpread 0 3\ndump DialogMode\nkey KatalogSpread i\ndump AssitPN\n"
                    "pick KatalogSpread 1 3\ndump\npick KatalogSpread 2 3\nopen\n"
                    "pick Venttab 6 1\npick Venttab 2 4\ndump\n");
    ASSERT_EQ(dumps.size(), 4U);
    EXPECT_EQ(dumps[0].at("DialogMode"), 0) << "heads do nothing";
    EXPECT_EQ(dumps[1].at("AssitPN").at("text"), "File = ULMAKN.rdm   Adress =  0 ");
    const Json& open = dumps[2];
    const Json cells = Cells(open, "Venttab"), backs = Backs(open, "Venttab");
    ASSERT_EQ(cells.size(), 49U);
    EXPECT_EQ(cells[0],
              Json({"", "Type/Designation", "Refrigerating Capacity [kW]", "", "Volume Flow [m³/h]",
                    "Throw[m]", "Rated Value", "Weight [kg]", "", "", "", "", "", ""}));
    // (5 / 1.23) / 0.5 = 8.1, the poorest class; (12 / 1.23) / 0.5 = 19.5.
    EXPECT_EQ(cells[1], Json({"1", "AK 1 4 mm", " 5", "E", "7090", "19", "DT 8", "70", "", "", "",
                              "", "", "1"}));
    EXPECT_EQ(cells[3][3], "C");
    EXPECT_EQ(cells[5], Json({"5", "", "", "", "", "", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(backs[1][2], 12) << "not above 8.5";
    EXPECT_EQ(backs[2][2], 14) << "9";
    EXPECT_EQ(backs[3][2], 10) << "12";
    EXPECT_EQ(backs[4][2], 12) << "30";
    EXPECT_EQ(backs[5], Json({nullptr, 7, 7, 7, 7, 7, 7, 7, nullptr, nullptr, nullptr, nullptr,
                              nullptr, nullptr}));
    EXPECT_EQ(open.at("SerienPN").at("text"), "Ulm flat:\r\nQo min =  5 kW, Qo max =  30 kW");
    for (const auto& [name, value] : {std::pair<const char*, Json>{"DialogMode", 21},
                                      {"FensterZu", 1},
                                      {"Rueckkehr", 1},
                                      {"OffeneSerie", 77},
                                      {"AuswahlZeile", 3},
                                      {"KatalogDatei", "ULMAKN.rdm"}}) {
        EXPECT_EQ(open.at(name), value) << name;
    }
    const Json& chosen = dumps[3];
    EXPECT_EQ(chosen.at("DialogMode"), 21) << "a hidden window takes no act, and opening sets none";
    EXPECT_EQ(chosen.at("FensterZu"), 0);
    EXPECT_EQ(chosen.at("AuswahlZeile"), 2) << "the sixth row has no unit";
    EXPECT_EQ(chosen.at("venttabText").at("text"), "7090");
    EXPECT_EQ(chosen.at("Venttab").at("tool_tip"), "2 Volume Flow [m³/h]: 7090");
    EXPECT_EQ(chosen.at("R_Label").at("text"), "D") << "(9 / 1.23) / 0.5 = 14.6";
    EXPECT_EQ(chosen.at("Picture5").at("top"), 2135);
    EXPECT_EQ(chosen.at("BildDatei"), "600.bmp");
}

TEST(SelectionWindow, SearchesForOneWordOrTwo) {
    SelectionSession session;
    const std::string start = CoolerSession(session.folder);
    const struct {
        const char *text, *deep;
        std::vector<std::string> found;
    } cases[] = {
        {"ulm", "off", {"Ulm flat", "Ulm hidden", "Ulm long"}},
        {"u", "off", {}},
        {"  esk   LARGE ", "off", {"Esk large"}},
        {"esk flat", "off", {}},
        {"k\xC3\xBChl", "off", {}},
        // As stored: the letter is another byte in the old code page.
        {"k\xC3\xBChl", "on", {}},
        {"NV", "on", {"Esk large", "Esk small"}},
        // Both parts of one name hold one of the words each.
        {"ak mm", "on", {"Ulm flat", "Ulm hidden"}},
        {"ak xx", "on", {}},
        {"", "on", {}},
    };
    for (const auto& c : cases) {
        const Json dump = session.RunOnce(start + "check Check1 " + c.deep + "\nset search " +
                                          c.text + "\nreturn search\ndump\n");
        std::vector<std::string> found;
        const Json cells = Cells(dump, "KatalogSpread");
        for (std::size_t row = 1; row < cells.size(); ++row) found.push_back(cells[row][3]);
        EXPECT_EQ(found, c.found) << c.text << c.deep;
        EXPECT_EQ(dump.at("StatusLab").at("text").get<std::string>().empty(), !found.empty());
    }
    const Json maker = session.RunOnce(start + "pick HerstellList Nix\ndump KatalogSpread\n");
    EXPECT_EQ(Cells(maker, "KatalogSpread").size(), 2U);
}

// (2.592E9/20^2 x 1^2)/(2 x 1200)/100 = 27 mbar, (6.75/27)^0.5 = 50 %; kv 10: 108 mbar, 25 %.
TEST(SelectionWindow, ShowsPressureDropsOfLineComponents) {
    SelectionSession session;
    const auto valve = [](const char* kv, const char* least) {
        return RecordBytes({{KatTyp, "V"}, {KatWert, kv}, {KatAntrieb, least}});
    };
    const std::string units = valve("10", "6,75") + valve("20", "6,75") + valve("20", "30");
    session.folder.Write("VALVEN.rdm", units);
    session.folder.Write("I250.DAT", "VALVE,1,Zwi MV,0\n");
    session.folder.Write("I150.DAT", "VALVE,1,Zwi FT,0\n");
    const std::string start = "share MassenStrom 1\nshare KatBezug 1200\nshare OeffnungMax 40\n";
    const std::string open = "open\npick KatalogSpread 1 3\ndump\n";
    const Json regulating = session.RunOnce(start + "share KatalogArt 250\n" + open);
    const Json cells = Cells(regulating, "Venttab"), backs = Backs(regulating, "Venttab");
    EXPECT_EQ(cells[0][2], "Pressure Drop[mbar]");
    EXPECT_EQ(cells[0][5], "Valve Opening [%]");
    EXPECT_EQ(cells[1][2], " 108");
    EXPECT_EQ(cells[1][4], "10");
    EXPECT_EQ(cells[1][5], " 25");
    EXPECT_EQ(cells[2][2], " 27");
    EXPECT_EQ(cells[2][5], " 50");
    EXPECT_EQ(backs[2][5], 12) << "above 40 %";
    EXPECT_EQ(backs[3][2], 12) << "27 mbar, 30 are needed";
    EXPECT_EQ(regulating.at("SerienPN").at("text"), "Zwi MV:") << "there is no range";
    EXPECT_EQ(regulating.at("AuswahlZeile"), 2) << "the unit in front of the first that fails";
    EXPECT_EQ(Cells(regulating, "KatalogSpread")[1], Json({"1", "", "", "Zwi MV", "0#$§  VALVE"}));
    EXPECT_EQ(regulating.at("KatalogSpread").at("widths"), Json({450, 0, 0, 6000, 0}));
    const Json other = session.RunOnce(start + "share KatalogArt 150\n" + open);
    EXPECT_EQ(Cells(other, "Venttab")[0][2], "Pressure Drop mbar]");
    EXPECT_EQ(Cells(other, "Venttab")[2][2], " 27");
    EXPECT_EQ(Cells(other, "Venttab")[2][4], "") << "kv stands in the column of width 0";
    EXPECT_EQ(Cells(other, "Venttab")[2][5], "20");
}

TEST(SelectionWindow, ScrollsByTwoRowsAndShowsPreviews) {
    SelectionSession session;
    session.folder.Write("UNITSN.rdm",
                         RecordBytes({{KatTyp, "A"}, {KatWert, "1"}, {KatBild, "screw.Bmp"}}));
    session.folder.Write("I550.DAT", "UNITS,1,One A,0\nUNITS,1,Two B,5\n");
    const std::string start = "share KatalogArt 550\nopen\n";
    const auto dumps = session.Run(
        start +
        "move KatalogSpread 1\ndump Picture2\nmove KatalogSpread 2\ndump Picture2\n"
        "leave KatalogSpread\ndump Picture2\nkey KatalogSpread Up\nwheel KatalogSpread down\n"
        "dump KatalogSpread\n");
    ASSERT_EQ(dumps.size(), 4U);
    EXPECT_EQ(dumps[0].at("Picture2").at("picture"), "SCREW.BMP");
    EXPECT_EQ(dumps[0].at("Picture2").at("top"), 240);
    EXPECT_EQ(dumps[0].at("Picture2").at("left"), 7770);
    EXPECT_EQ(dumps[1].at("Picture2").at("picture"), "550.bmp");
    EXPECT_EQ(dumps[1].at("Picture2").at("top"), 480);
    EXPECT_EQ(dumps[2].at("Picture2").at("visible"), false);
    EXPECT_EQ(dumps[3].at("KatalogSpread").at("top_row"), 1) << "3 is past the end";
    const Json units = session.RunOnce(CoolerSession(session.folder) +
                                       "pick KatalogSpread 1 3\nopen\nkey Venttab Down\n"
                                       "wheel Venttab down\nkey Venttab Up\ndump Venttab\n");
    EXPECT_EQ(units.at("Venttab").at("top_row"), 3);
}

TEST(SelectionWindow, LeavesItsRequestForItsOpener) {
    SelectionSession session;
    const std::string start =
        CoolerSession(session.folder) + "share ventlabel AK 3\nshare Label28 4,5\n";
    const std::string open_unit = "pick KatalogSpread 1 3\nopen\npick Venttab 3 1\n";
    const struct {
        const char *caller, *acts;
        Json expected;
    } cases[] = {
        {"1", "click Klein\n", {{"DialogMode", 17}, {"FensterZu", 1}, {"loaded", true}}},
        {"1", "click Gross\n", {{"DialogMode", 18}, {"Rueckkehr", 1}}},
        {"88", "click VentEinstell\n", {{"DialogMode", 23}, {"Rueckkehr", 1}}},
        {"1", "click UeberNehm\n", {{"DialogMode", 19}, {"ErgebnisDa", 1}, {"loaded", false}}},
        {"55", "click UeberNehm\n", {{"DialogMode", 0}, {"ErgebnisDa", 0}, {"VentAufruf", 113}}},
        {"88", "click UeberNehm\n", {{"DialogMode", 20}, {"ErgebnisDa", 0}, {"VentAufruf", 88}}},
        {"444", "click VentSpeich\n", {{"DialogMode", 19}, {"ResultText", "AK 3"}}},
        {"7", "click VentSpeich\n", {{"DialogMode", 0}, {"loaded", true}}},
        {"7", "close\n", {{"DialogMode", 20}, {"VentAufruf", 113}, {"Rueckkehr", 0}}},
        {"88", "check EcoCheck on\n", {{"DialogMode", 15}, {"VentAufruf2", 88}, {"EcoStufe", 1}}},
        {"88",
         "click Command3D2\n",
         {{"DialogMode", 25}, {"VentAufruf2", 88}, {"OffeneSerie", 0}, {"AuswahlZeile", 3}}},
        {"1", "edit 5\nreturn venttabText\n", {{"DialogMode", 25}, {"BetriebsFreq", 50.0}}},
        {"1", "click Command3D3\n", {{"DialogMode", 21}, {"OffeneSerie", 0}, {"FensterZu", 0}}},
    };
    for (const auto& c : cases) {
        std::string script = start;
        script.append("share VentAufruf ").append(c.caller).append("\n").append(open_unit);
        script.append("share VentAufruf ").append(c.caller);
        script.append("\nopen\npick Venttab 3 1\n").append(c.acts).append("dump\n");
        const Json dump = session.RunOnce(script);
        for (const auto& [name, value] : c.expected.items()) {
            const bool was_open = name == "DialogMode" && value == 0;
            EXPECT_EQ(dump.at(name), was_open ? Json(21) : value) << c.caller << c.acts << name;
        }
        EXPECT_EQ(dump.at("venttabText").at("visible").get<bool>() && dump.at("DialogMode") == 25,
                  false)
            << c.acts;
    }
    const Json molk =
        session.RunOnce(start + "share ModuleTag molk\nopen\nclick UeberNehm\ndump\n");
    EXPECT_EQ(molk.at("LeistungFreq"), 4.5);
}

// The window of 2,200 series and the search keep what was chosen: reopening fills with the new duty
// and leaves the request alone.
TEST(SelectionWindow, ReopensTheSeriesForANewDuty) {
    SelectionSession session;
    const Json dump = session.RunOnce(CoolerSession(session.folder) +
                                      "pick KatalogSpread 2 3\nshare LeistFaktor 2\n"
                                      "open\ndump\n");
    EXPECT_EQ(Cells(dump, "Venttab")[1][2], " 32");
    EXPECT_EQ(Cells(dump, "KatalogSpread")[2][1], " 16") << "the list stays";
    EXPECT_EQ(dump.at("pn77").at("visible"), true);
    EXPECT_EQ(dump.at("Rueckkehr"), 0);
    EXPECT_EQ(dump.at("FensterZu"), 0);
}

// 40 of 50 Hz with 20 m3/h: 16; wanted 20; (16/20) x 10 kW = 8. Typed 25.5: 50/25.5 x 20 = 39.21.
TEST(SelectionWindow, RescalesACompressorToAFrequency) {
    SelectionSession session;
    session.folder.Write("I550.DAT", "");
    const std::string start =
        "share KatalogArt 550\nshare QoSoll 10\nshare VolumenNenn 20\nshare LeistungNenn 5\n"
        "share Label26 20\nshare Label27 6\nshare FreqTitel Qo\nopen\n";
    const auto dumps =
        session.Run(start +
                    "scroll HScroll1 40\ndump\nset KPFreq 25,5\nreturn KPFreq\ndump\n"
                    "set KPFreq abc\nreturn KPFreq\ndump\nset KPFreq 100\n"
                    "return KPFreq\ndump\nset KPFreq 0\nreturn KPFreq\ndump\n");
    ASSERT_EQ(dumps.size(), 5U);
    const auto text = [](const Json& dump, const char* name) {
        return dump.at(name).at("text").get<std::string>();
    };
    EXPECT_EQ(text(dumps[0], "KPFreq"), " 40");
    EXPECT_EQ(text(dumps[0], "Label29"), "Volume Flow Compressor ( 40Hz)  /[m³/h] :");
    EXPECT_EQ(text(dumps[0], "Label25"), " 16");
    EXPECT_EQ(text(dumps[0], "Label28"), " 4");
    EXPECT_EQ(text(dumps[0], "Label1"), " 8");
    EXPECT_EQ(text(dumps[0], "Label37_l"), "Qo Refrigerating Capacity ( 40Hz) :  8kW");
    EXPECT_EQ(dumps[0].at("Label37_l").at("background"), 12) << "below 8.5";
    EXPECT_EQ(dumps[0].at("Label25").at("background"), 15);
    EXPECT_EQ(dumps[0].at("Label27").at("background"), 12) << "5 kW, 6 are needed";
    EXPECT_EQ(text(dumps[1], "Label25"), " 39.21");
    EXPECT_EQ(dumps[1].at("HScroll1").at("value"), 26) << "a tie goes to the even";
    EXPECT_EQ(dumps[1].at("BetriebsFreq"), 25.5);
    for (std::size_t i = 2; i < dumps.size(); ++i) {
        EXPECT_EQ(dumps[i].at("BetriebsFreq"), 25.5);
        EXPECT_EQ(text(dumps[i], "Label25"), " 39.21");
        EXPECT_EQ(text(dumps[i], "StatusLab"),
                  "Only frequencies between 0 and 100 Hz can be taken");
    }
}

TEST(SelectionWindow, HandsItsDocumentsToTheViewer) {
    SelectionSession session;
    session.folder.Write("unit.pdf", "x");
    session.folder.Write("empty.pdf", "");
    const std::string start =
        CoolerSession(session.folder) + "share ventlabel AK 3\nshare ViewDatei1 empty.pdf\nopen\n";
    const Json refused = session.RunOnce(start + "click viewbutt\ndump\n");
    EXPECT_FALSE(std::filesystem::exists(session.folder / "zdview.dat"));
    EXPECT_NE(refused.at("StatusLab").at("text").get<std::string>().find("empty.pdf"),
              std::string::npos);
    session.RunOnce(start +
                    "share ViewDatei2 unit.pdf\nclick viewbutt\n"
                    "click Hilfebox.Command3D1\ndump Rueckkehr\n");
    EXPECT_EQ(session.folder.Read("zdview.dat"),
              "\"empty.pdf\"\r\n\"unit.pdf\"\r\n\"AK 3\"\r\n\"Qo : 10 kW\"\r\n");
}

}  // namespace
}  // namespace zandrell
