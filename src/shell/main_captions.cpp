#include "shell/main_captions.h"

#include <array>
#include <string>

#include "base/number_text.h"
#include "base/unit_texts.h"
#include "canvas/palette.h"
#include "shell/main_form.h"

namespace zandrell {
namespace {

using Words = std::array<std::string, Captions::kCaptionFields + 1>;
using AirWords = std::array<std::string, Captions::kQvFields + 1>;

bool IsOneOf(const std::string& tag, std::initializer_list<const char*> tags) {
    for (const char* candidate : tags) {
        if (tag == candidate) return true;
    }
    return false;
}

// The entry that loads a project, in the word order of the language.
std::string LoadProjectEntry(const Words& words, const std::string& tag) {
    if (IsOneOf(tag, {"NDL", "ENG"})) return words[29] + " " + words[25];
    if (IsOneOf(tag, {"FRA", "POR", "ITA"})) return words[29] + " un " + words[25];
    return words[25] + " &" + words[29];
}

std::string WithUnit(const std::string& word, std::string_view unit) {
    return word + " /[" + std::string(unit) + "]:";
}

void SetMenuCaptions(MainControls& c, const Words& words, const AirWords& air,
                     const std::string& tag) {
    const std::string calculate = words[81] + " ";
    // The access key of an entry is its first letter unless its text marks another one.
    const auto entry = [](MenuEntry& target, const std::string& text) {
        target.text = text.find('&') == std::string::npos ? "&" + text : text;
    };
    entry(c.proj, words[25]);
    entry(c.NeuPro, words[28] + " " + words[25]);
    entry(c.ProLad, LoadProjectEntry(words, tag));
    entry(c.ProSpeich, words[32]);
    entry(c.ProSpeichU, words[32] + " &" + words[34]);
    entry(c.PrinterSetup, words[166]);
    entry(c.Ende, words[75]);
    entry(c.Opt, words[63]);
    entry(c.qveinst, words[180]);
    entry(c.wrgEinst, "Wärmerückgewinnung");
    entry(c.Bearb, words[62]);
    entry(c.ZustAe, air[5]);
    entry(c.Misch, air[6]);
    entry(c.Kleis, words[177]);
    entry(c.AnlageS, words[59]);
    entry(c.Leist_Ber, calculate + words[177]);
    entry(c.Heiz_start, calculate + air[16]);
    entry(c.Kuehl_start, calculate + words[13]);
    entry(c.Humid_W_Start, calculate + air[17] + " " + air[15]);
    entry(c.Humid_D_Start, calculate + air[18] + " " + air[15]);
    entry(c.kopieren, words[180] + " &" + words[96]);
    entry(c.Hsich, words[30]);
    entry(c.Hlad, words[29]);
}

void SetToolCaptions(MainControls& c, const Words& words, const AirWords& air) {
    // Leading blanks keep the text clear of the picture that it lies on.
    const auto caption = [](ToolButton& button, const std::string& blanks,
                            const std::string& text) { button.caption.text = blanks + text; };
    const std::string four(4, ' '), five(5, ' ');
    caption(c.optButt, four, words[63]);
    caption(c.ZAButt, five, air[5]);
    caption(c.MischButt, four, air[6]);
    caption(c.BearButt, five, words[177]);
    caption(c.AnlageButt, four, words[59]);
    caption(c.druckbutt, four, words[76]);
    caption(c.PSButt, four, words[30]);
    caption(c.PLbutt, four, words[29]);

    const auto tip = [](ToolButton& button, const std::string& own, const std::string& text) {
        button.picture.tool_tip = button.caption.tool_tip = own + " : " + text;
    };
    tip(c.optButt, words[63], words[171] + ", " + air[1] + ", " + words[172] + ", " + air[8]);
    tip(c.ZAButt, air[5], air[1] + "/" + air[2] + ", " + words[173]);
    tip(c.MischButt, air[6], air[1] + "/" + air[2]);
    tip(c.BearButt, words[177], words[177] + "  " + air[9] + "/" + air[10] + ", " + air[7]);
    tip(c.AnlageButt, words[59], air[20] + ", " + air[15] + ", " + words[13] + ", " + air[16]);
    tip(c.druckbutt, words[76], words[180]);
    c.mPributt.tool_tip = c.mPributt_2.tool_tip = words[76];
    c.ZOOMMIN.text = words[126];
    c.Command3D7.text = words[75];
    c.Command3D2.text = words[35];
}

void SetReadOutCaptions(MainControls& c, const Words& words, const AirWords& air) {
    // The symbols of the chart's own axes leave the column narrow; the words stand in the tool
    // tips.
    const auto symbol = [](Label& label, const std::string& sign, std::string_view unit,
                           const std::string& word) {
        label.text = WithUnit(sign, unit);
        label.tool_tip = word;
    };
    symbol(c.temperature_word, "t", UnitDegC, words[171]);
    symbol(c.humidity_word, "φ", "%", air[2]);
    symbol(c.ratio_word, "x", "g/kg", air[1]);
    symbol(c.enthalpy_word, "h", UnitKJkg, words[173]);
    symbol(c.density_word, "ρ", "kg/m³", words[104]);
    symbol(c.vapour_word, "pD", "hPa", words[105]);
    symbol(c.pressure_word, "p", UnitBar, words[172]);
    c.Label24.text = words[25] + " :";
    c.Label25.text = words[26] + " :";
}

void SetPointPanelCaptions(PointPanel& p, const Words& words, const AirWords& air) {
    p.Label33.text = air[4] + " " + air[3] + " /[m³/h]:";
    p.second_flow_label.text = p.Label33.text;
    p.Label35.text = WithUnit(words[171], UnitDegC);
    p.Label36.text = WithUnit(air[2], "%");
    p.label37.text = WithUnit(air[1], "g/kg");
    p.enthPN.text = WithUnit(words[173], UnitKJkg);
    p.mixture_label.text = air[6];
    p.capacity_label.text = WithUnit(words[177] + " " + air[14], UnitKW);
    p.latent_label.text = WithUnit(words[177] + " " + air[9], UnitKW);
    p.sensible_label.text = WithUnit(words[177] + " " + air[10], UnitKW);
    p.water_label.text = WithUnit(air[7], "kg/h");
    p.VolBer_l.text = air[4];
    p.VolBer.tool_tip = p.VolBer_l.tool_tip = words[81] + " " + air[4] + " " + air[3];
    p.Command3D4.text = "O.K.";
    p.abbcom.text = words[35];
    p.wrgButt.tool_tip = "Wärmerückgewinnung";
}

void SetPlantPanelCaptions(PlantPanel& p, const Words& words, const AirWords& air,
                           const std::string& tag) {
    for (Label* label : {&p.Label34, &p.Label38, &p.Label39, &p.coil_temperature_label}) {
        label->text = "t  /[" + std::string(UnitDegC) + "]";
    }
    const bool latin = IsOneOf(tag, {"FRA", "ITA", "ESP", "POR"});
    for (Label* label : {&p.Label57, &p.Label43, &p.Label56}) {
        label->text = latin ? "HR /[%]:" : "φ /[%]:";
    }
    p.Label11.text = latin ? "HR:" : "φ:";
    p.Option3D3.text = air[18];
    p.Option3D4.text = air[17];
    p.flow_label.text = air[4] + " " + air[3] + " " + words[212] + " /[m³/h]:";
    p.ratio_label.text = words[99] + ":";
    p.inner_flow_label.text = WithUnit(air[12], UnitM3h);
    p.outer_flow_label.text = WithUnit(air[13], UnitM3h);
    p.exhaust_label.text = words[98];
    p.outside_label.text = air[13];
    p.supply_label.text = words[97];
    p.coil_label.text = air[11] + " " + words[13];
    p.supply_fan_label.text = WithUnit(words[100], UnitK);
    p.return_fan_label.text = WithUnit(words[101], UnitK);
    p.room_label.text = words[102];
    p.room_total_label.text = words[177] + " " + air[14] + ":";
    p.room_sensible_label.text = words[177] + " " + air[10] + ":";
    p.room_latent_label.text = words[177] + " " + air[9] + ":";
    p.room_water_label.text = air[7] + ":";
    p.cooler_label.text = words[177] + " " + words[13] + ":";
    p.heater_label.text = words[177] + " " + air[16] + ":";
    p.humidifier_label.text = words[103] + ":";
    p.Command3D6.text = p.Command3D6_l.text = "O.K.";
    p.AnlageAbButt.text = p.AnlageAbButt_l.text = words[35];
}

bool IsCaption(const Control& control) {
    return control.kind == ControlKind::Label || control.kind == ControlKind::OptionButton ||
           (control.kind == ControlKind::Button && control.name.ends_with("_l"));
}

}  // namespace

void SetCaptions(MainForm& main) {
    const auto& words = main.captions.CaptionList;
    const auto& air = main.captions.QVCaptList;
    const std::string& tag = main.shared.LanguageTag;
    SetMenuCaptions(main.controls, words, air, tag);
    SetToolCaptions(main.controls, words, air);
    SetReadOutCaptions(main.controls, words, air);
    SetPointPanelCaptions(main.processes.point, words, air);
    SetPlantPanelCaptions(main.processes.plant, words, air, tag);
    main.controls.Label7.text = words[180];
    main.controls.Label19.text = main.shared.AppTitle;
}

void ApplySkin(MainForm& main) {
    const SharedValues& shared = main.shared;
    MainControls& controls = main.controls;
    PointPanel& point = main.processes.point;
    PlantPanel& plant = main.processes.plant;
    main.label_font_size = 10;
    if (shared.LanguageTag == "TWA") {
        main.label_font_size =
            RoundToInteger(ParsedNumber(shared.LabelFontSize)).value_or(main.label_font_size);
        if (main.label_font_size < 6 || main.label_font_size > 40) main.label_font_size = 12;
    }
    main.controls.Label7.foreground = kWhite;
    const int skin = shared.SkinNumber;
    if (skin < 1 || skin > 5) return;
    controls.FunktButtPn.picture = "ZD_Bk00.jpg";
    main.read_out.Pn1.picture = "ZD_Bk031.jpg";
    for (Panel* panel : {&point.Anlage1PN, &plant.Panel3D10, &plant.Frame1}) {
        panel->picture = "ZD_Back01.jpg";
    }
    for (Panel* panel : {&plant.Panel3D2, &point.Panel3D9}) panel->picture = "ZD_Back02.jpg";
    const bool dark_text = skin == 1 || skin == 4 || skin == 5;
    main.bold_labels = dark_text;
    for (Control* control : main.form.Controls()) {
        if (IsCaption(*control) && control != &controls.Label7) {
            control->foreground = dark_text ? kBlack : kWhite;
        }
    }
}

}  // namespace zandrell
