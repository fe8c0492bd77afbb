// The data sheet of the selection, byte by byte, and the page that is printed of it.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/text_encoding.h"
#include "selection_session.h"
#include "shell/data_sheet_page.h"

namespace zandrell {
namespace {

// The operating point: to -10 degC, tc 45 degC. dho = (402 - 256) + 0.75 x 6 + 2 x 1.5 = 153.5.
constexpr const char* kPoint =
    "clock 2026-03-09\nshare LeistFaktor 1\nshare QoSoll 10\nshare KaelteMittel R22\n"
    "share GWP 1810\nshare ProjectTitle Halle\nshare ProjectRemark Süd\n"
    "share ProjectFileName halle.prj\nshare T0 263.15\nshare Tc 318.75\nshare DruckPo 3.549\n"
    "share DruckPc 17.29\nshare HDampf 402\nshare HFluessig 256\nshare CpDampf 0.75\n"
    "share CpFluessig 1.5\nshare Ueberhitzung 6\nshare Unterkuehlung 2\nshare MassenStrom .06678\n"
    "share xd .2345\nshare tSL -3.5\nshare dtM 8\nshare PN19 Qo : 10 kW\nshare ventlabel AK 3\n"
    "share Label1 12.3456\n";

// Pairs that a kind does not have.
std::string Hidden(std::initializer_list<const char*> labels) {
    std::string acts;
    for (const char* label : labels) acts.append("show ").append(label).append(" off\n");
    return acts;
}

std::string Line(const std::string& text) { return "        " + text + "\r\n"; }
std::string Spaced(const std::string& text) { return Line(text) + "\r\n"; }
const std::string kRule = Spaced(std::string(155, '-'));

// What every sheet begins with, up to the picture. 3.549 x 14.504 = 51.47; 17.29 x 14.504 = 250.77;
// 17.29 / 3.549 = 4.871.
std::string Head(const std::string& po, const std::string& ratio) {
    return kRule + Spaced("Project : §$&Halle") + Spaced("Remark : §$&Süd") +
           Spaced("Project File Name : §$&halle.prj") + Spaced("Date : §$&03-09-2026") +
           Spaced("Edited by : §$&Kalt") + Spaced("Refrigerant : §$&R22 / GWP =  1810") + kRule +
           Spaced("Component Qo : §$&10 kW") + "\r\n" + Spaced("Selected Unit : §$&AK 3") + "\r\n" +
           Spaced("Refrigerating Capacity  /[kW] : §$& 12.34") + kRule +
           Spaced("&$$Evaporation :") + Spaced("Temperature  to /[°C] : §$&-10") +
           Spaced("Pressure  po /[bar a/psi a] : §$&" + po) +
           Spaced("Enthalpy Cooler   dho /[kJ/kg] : §$& 153.5") +
           Spaced("Mass Flow   mp /[kg/s] : §$& .066") +
           Spaced("Vapour Fraction Cooler  xd /[--] : §$& .234") +
           Spaced("&$$Condensation      :") + Line("Temperature  tc /[°C] : §$& 45") +
           Line("Pressure  pc /[bar a/psi a] : §$& 17.29/ 250.7") + ratio +
           Line("Subcooling  tü /[K] : §$& 2") + Line("Superheat  toh /[K] : §$& 6") +
           Line("Temperature Suction Gas  tSL /[°C] : §$&-4") + kRule + kRule + Line("Part_Pic");
}

std::string Ratio(const std::string& figure) {
    return Line("Pressure Condensation / Evaporation    pc/po /[--] :§$&" + figure);
}

// In UTF-8; the file is in the code page of the suite.
std::string SheetOf(SelectionSession& session, const std::string& acts) {
    session.folder.Write("I600.DAT", "");
    session.folder.Write("I650.DAT", "");
    session.folder.Write("I550.DAT", "");
    session.RunOnce(kPoint + acts +
                    "open\nclick druckbutt\nclick DruckEInstell.Abbutt\n"
                    "dump PrintOwner\n");
    return DecodeText(session.folder.Read("BT_calc.DAT"));
}

TEST(SelectionSheet, IsWrittenByteByByte) {
    const std::string pairs = Hidden({"Label29", "Label24", "Label39", "Label6", "Label41"});
    const std::string figures =
        "share Label30 Required :\nshare Label26 20.5\nshare Label31 P :\nshare Label27 3\n"
        "share Label32 P unit :\nshare Label28 4\nshare R_Label B\n";
    const std::string shown = Line("Required :§$& 20.5");
    const std::string power = Line("P :§$& 3") + Line("P unit :§$& 4");
    const std::string cls = "\r\n" + Spaced("Efficiency Class : §$&B");
    const std::string class_mark = Line("Eff_class§§§$$$ B");
    const std::string surfaces = Hidden({"DefrLab", "FlLab", "volStrLab"});
    const std::string fits = Head(" 3.54/ 51.4", Ratio(" 4.87"));
    const std::string name49 = std::string(44, 'x') + " ( 5)";  // 49 characters

    const struct {
        const char* name;
        std::string acts, expected;
    } cases[] = {
        // tr = -10 + 8, tL2 = -10 + 6, tL1 = -10 + 10.
        {"air cooler",
         "share KatalogArt 600\n" + pairs + figures +
             "share volStrLab Flow : 7090 m³/h\nshare wurfWLab Throw:19 m\n"
             "share FlLab Surface\\n 40 m²\\n 7 mm\nshare LamALab Fins\\n5\n"
             "share DefrLab Defrost\\nelectric\nshow Label37 off\n",
         fits + shown + cls + power + Line("Flow: §$& 7090 m³/h") + Line("Throw: §$& 19 m") +
             Line("Surface§$& 40 m²") + Line("§$& 7 mm") + Line("Fins§$& 5") + class_mark +
             Line("Defrost§$& electric") + kRule + Line("Temperature Room :§$&tr = -2°C") +
             Spaced("VDBild") +
             Line(".                                tL2 = -4°C§$&.                               "
                  "                      tL1 =  0°C") +
             Line("§$&.                                                       DT1 =  10K") +
             Line(".                                 dtM =  8K§$&to = -10°C") + kRule},
        {"condenser",
         "share KatalogArt 650\n" + pairs + figures + surfaces + "share Label37_l Qc  : 14 kW\n",
         fits + shown + cls + power + class_mark + kRule + Line("Qc§$& 14 kW") + Spaced("") +
             Spaced("") + Spaced("") + Spaced("") + kRule},
        // 12.34 / 4 + 0.005 = 3.09.
        {"compressor",
         "share KatalogArt 550\n" + pairs + figures + surfaces +
             "share Label37_l Qo ( 50Hz) :  12.34kW\n",
         fits + shown + power + kRule + Line("Qo ( 50Hz)§$& 12.34kW") + Line("EER =  3.09") +
             kRule},
        {"49 characters",
         "share KatalogArt 550\n" + pairs + figures + surfaces + "share Label37_l " + name49 +
             " :  12kW\n",
         fits + shown + power + kRule + Line(name49 + "§$& 12kW") + Line("EER =  3") + kRule},
        {"50 characters, and no power",
         "share KatalogArt 550\n" + pairs + surfaces + "show Label30 off\nshow Label31 off\n" +
             "show Label32 off\nshare Label28 4\nshare Label37_l x" + name49 + " :  12kW\n",
         fits + kRule + Line("x" + name49 + "  /[kW] : §$& 12") + Line("EER =  0") + kRule},
        {"no pressure",
         "share KatalogArt 550\nshare DruckPo 0\n" + pairs + figures + surfaces +
             "show Label37 off\n",
         Head(" 0/ 0", "") + shown + power + kRule},
    };
    for (const auto& c : cases) {
        SelectionSession session;
        std::string sheet = SheetOf(session, c.acts);
        const auto editor = sheet.find("Edited by : §$&");
        ASSERT_NE(editor, std::string::npos);
        const auto value = editor + std::string("Edited by : §$&").size();
        sheet.replace(value, sheet.find("\r\n", value) - value, "Kalt");
        EXPECT_EQ(sheet, c.expected) << c.name;
    }
}

// The style that is chosen in the setup holds for the header and for the sheet below it.
TEST(SelectionSheet, HasTheDateOfItsHeader) {
    for (const auto& [chosen, date] :
         {std::pair{"", "03-09-2026"},
          {"set DruckEInstell.Date_Combo 09.03.2026\n", "09.03.2026"}}) {
        SelectionSession session;
        session.folder.Write("I600.DAT", "");
        session.RunOnce(std::string(kPoint) + "share KatalogArt 600\nopen\nclick druckbutt\n" +
                        chosen + "click DruckEInstell.Okbutt\ndump PrintOwner\n");
        const std::string sheet = DecodeText(session.folder.Read("BT_calc.DAT"));
        EXPECT_NE(sheet.find(std::string("Date : §$&") + date), std::string::npos) << sheet;
    }
}

TEST(SelectionSheet, FitsOnItsPage) {
    SelectionSession session;
    const std::string text = SheetOf(session, "share KatalogArt 600\nshare R_Label A+\n");
    SharedValues shared;
    Captions captions;
    for (const int orientation : {1, 2}) {
        shared.PaperOrientation = orientation;
        const Sheet sheet = DataSheetPage({text, "600.bmp", ""}, shared, captions);
        std::vector<std::string> texts;
        for (const auto& item : sheet.Items()) {
            EXPECT_LE(item.y1, 0.98 * item.scale.bottom) << item.text;
            EXPECT_EQ(item.text.find("§"), std::string::npos) << item.text;
            if (item.kind == SheetItem::Kind::Text) texts.push_back(item.text);
        }
        for (const char* word : {"tL1 =  0°C", "dtM =  8K", "to = -10°C", "A++", ".066", ".234",
                                 "R22 / GWP =  1810"}) {
            EXPECT_EQ(std::count(texts.begin(), texts.end(), word), 1) << word;
        }
        const auto picture = [](const SheetItem& item) {
            return item.kind == SheetItem::Kind::Picture && item.text == "600.bmp";
        };
        EXPECT_EQ(std::count_if(sheet.Items().begin(), sheet.Items().end(), picture), 1);
    }
}

}  // namespace
}  // namespace zandrell
