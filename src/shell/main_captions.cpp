#include "shell/main_captions.h"

#include <string>

#include "base/number_text.h"
#include "base/text_helpers.h"
#include "base/unit_texts.h"
#include "canvas/palette.h"
#include "shell/main_form.h"

namespace zandrell {
namespace {

// The entry that loads a project, in the word order of the language.
std::string LoadProjectEntry(const Captions& words, const std::string& tag) {
    if (IsOneOf(tag, {"NDL", "ENG"})) return words[Caption::Load] + " " + words[Caption::Project];
    if (IsOneOf(tag, {"FRA", "POR", "ITA"}))
        return words[Caption::Load] + " un " + words[Caption::Project];
    return words[Caption::Project] + " &" + words[Caption::Load];
}

// Caption files of a data folder that other modules of the suite set up lack the word; those
// modules show the fixed one.
const std::string& HeatRecoveryWord(const Captions& words) {
    const std::string& word = words[Caption::HeatRecovery];
    return word.empty() ? words.heat_recovery_words[0] : word;
}

std::string WithUnit(const std::string& word, std::string_view unit) {
    return word + " /[" + std::string(unit) + "]:";
}

// Such files lack the words that are this program's own.
std::string OrEnglish(const std::string& word, std::string_view english) {
    return word.empty() ? std::string(english) : word;
}

void SetMenuCaptions(MainControls& c, const Captions& words, const std::string& tag) {
    const std::string calculate = words[Caption::Calculate] + " ";
    // The access key of an entry is its first letter unless its text marks another one.
    const auto entry = [](MenuEntry& target, const std::string& text) {
        target.text = text.find('&') == std::string::npos ? "&" + text : text;
    };
    entry(c.proj, words[Caption::Project]);
    entry(c.NeuPro, words[Caption::New] + " " + words[Caption::Project]);
    entry(c.ProLad, LoadProjectEntry(words, tag));
    entry(c.ProSpeich, words[Caption::Save]);
    entry(c.ProSpeichU, words[Caption::Save] + " &" + words[Caption::SaveAsSecond]);
    entry(c.Recent, OrEnglish(words[Caption::RecentProjects], "Recent Projects"));
    entry(c.PrevState, OrEnglish(words[Caption::RestorePreviousState], "Restore Previous State"));
    entry(c.Undo, OrEnglish(words[Caption::Undo], "Undo"));
    entry(c.Redo, OrEnglish(words[Caption::Redo], "Redo"));
    entry(c.PrinterSetup, words[Caption::Printer]);
    entry(c.PrintPreview, words[Caption::PrintPreview]);
    entry(c.Ende, words[Caption::Exit]);
    entry(c.Opt, words[Caption::Settings]);
    entry(c.qveinst, words[Caption::ModuleName]);
    entry(c.wrgEinst, HeatRecoveryWord(words));
    entry(c.KompAusw, words[Caption::ComponentSelection]);
    entry(c.Bearb, words[Caption::Edit]);
    entry(c.ZustAe, words[Caption::StateChange]);
    entry(c.Misch, words[Caption::Mixing]);
    entry(c.Kleis, words[Caption::Capacity]);
    entry(c.AnlageS, words[Caption::AirHandlingUnit]);
    entry(c.Leist_Ber, calculate + words[Caption::Capacity]);
    entry(c.Heiz_start, calculate + words[Caption::Heater]);
    entry(c.Kuehl_start, calculate + words[Caption::Cooler]);
    entry(c.Humid_W_Start,
          calculate + words[Caption::WaterHumidifier] + " " + words[Caption::HumidifierSecond]);
    entry(c.Humid_D_Start,
          calculate + words[Caption::SteamHumidifier] + " " + words[Caption::HumidifierSecond]);
    entry(c.StateList, words[Caption::StateTable]);
    entry(c.kopieren, words[Caption::ModuleName] + " &" + words[Caption::CopyToClipboard]);
    entry(c.Hsich, words[Caption::SaveButton]);
    entry(c.Hlad, words[Caption::Load]);
}

void SetHelpCaptions(MainControls& c, const SharedValues& shared, const Captions& words) {
    c.HelpMenu.text = c.HelpHere.text = "&" + words[Caption::Help];
    for (const auto& [entry, topic] : {std::pair{&c.HelpSoftware, HelpTopic::Software},
                                       {&c.HelpChart, HelpTopic::ChartAndReadOut},
                                       {&c.HelpAirTreatment, HelpTopic::AirTreatment},
                                       {&c.HelpProject, HelpTopic::ProjectData},
                                       {&c.HelpValues, HelpTopic::SetOfValues},
                                       {&c.HelpSettings, HelpTopic::Settings}}) {
        entry->text = "&" + TopicText(topic, shared, words);
    }
}

void SetToolCaptions(MainControls& c, const Captions& words) {
    // Leading blanks keep the text clear of the picture that it lies on.
    const auto caption = [](ToolButton& button, const std::string& blanks,
                            const std::string& text) { button.caption.text = blanks + text; };
    const std::string four(4, ' '), five(5, ' ');
    caption(c.optButt, four, words[Caption::Settings]);
    caption(c.ZAButt, five, words[Caption::StateChange]);
    caption(c.MischButt, four, words[Caption::Mixing]);
    caption(c.BearButt, five, words[Caption::Capacity]);
    caption(c.AnlageButt, four, words[Caption::AirHandlingUnit]);
    caption(c.druckbutt, four, words[Caption::Print]);
    caption(c.PSButt, four, words[Caption::SaveButton]);
    caption(c.PLbutt, four, words[Caption::Load]);

    const auto tip = [](ToolButton& button, const std::string& own, const std::string& text) {
        button.picture.tool_tip = button.caption.tool_tip = own + " : " + text;
    };
    tip(c.optButt, words[Caption::Settings],
        words[Caption::Temperature] + ", " + words[Caption::HumidityRatio] + ", " +
            words[Caption::Pressure] + ", " + words[Caption::Altitude]);
    tip(c.ZAButt, words[Caption::StateChange],
        words[Caption::HumidityRatio] + "/" + words[Caption::RelativeHumidity] + ", " +
            words[Caption::Enthalpy]);
    tip(c.MischButt, words[Caption::Mixing],
        words[Caption::HumidityRatio] + "/" + words[Caption::RelativeHumidity]);
    tip(c.BearButt, words[Caption::Capacity],
        words[Caption::Capacity] + "  " + words[Caption::Latent] + "/" + words[Caption::Sensible] +
            ", " + words[Caption::Water]);
    tip(c.AnlageButt, words[Caption::AirHandlingUnit],
        words[Caption::MixingSection] + ", " + words[Caption::HumidifierSecond] + ", " +
            words[Caption::Cooler] + ", " + words[Caption::Heater]);
    tip(c.druckbutt, words[Caption::Print], words[Caption::ModuleName]);
    c.mPributt.tool_tip = c.mPributt_2.tool_tip = words[Caption::Print];
    c.ZOOMMIN.text = words[Caption::ZoomOut];
    c.Command3D7.text = words[Caption::SaveAndExit];
    c.Command3D2.text = words[Caption::ExitWithoutSaving];
}

void SetReadOutCaptions(MainControls& c, ReadOutPanel& read_out, const Captions& words) {
    read_out.TakeWords(words);
    c.Label24.text = words[Caption::Project] + " :";
    c.Label25.text = words[Caption::Remark] + " :";
}

void SetPointPanelCaptions(PointPanel& p, const Captions& words) {
    p.Label33.text = words[Caption::AirFlow] + " " + words[Caption::AirFlowSecond] + " /[m³/h]:";
    p.second_flow_label.text = p.Label33.text;
    p.Label35.text = WithUnit(words[Caption::Temperature], UnitDegC);
    p.Label36.text = WithUnit(words[Caption::RelativeHumidity], "%");
    p.label37.text = WithUnit(words[Caption::HumidityRatio], "g/kg");
    p.enthPN.text = WithUnit(words[Caption::Enthalpy], UnitKJkg);
    p.mixture_label.text = words[Caption::Mixing];
    p.capacity_label.text =
        WithUnit(words[Caption::Capacity] + " " + words[Caption::Total], UnitKW);
    p.latent_label.text = WithUnit(words[Caption::Capacity] + " " + words[Caption::Latent], UnitKW);
    p.sensible_label.text =
        WithUnit(words[Caption::Capacity] + " " + words[Caption::Sensible], UnitKW);
    p.water_label.text = WithUnit(words[Caption::Water], "kg/h");
    p.VolBer_l.text = words[Caption::AirFlow];
    p.VolBer.tool_tip = p.VolBer_l.tool_tip = words[Caption::Calculate] + " " +
                                              words[Caption::AirFlow] + " " +
                                              words[Caption::AirFlowSecond];
    p.entry1.SetWords();
    p.entry2.SetWords();
    p.Command3D4.text = "O.K.";
    p.abbcom.text = words[Caption::Cancel];
    p.wrgButt.tool_tip = HeatRecoveryWord(words);
}

void SetPlantPanelCaptions(PlantPanel& p, const Captions& words, const std::string& tag) {
    for (Label* label : {&p.Label34, &p.Label38, &p.Label39, &p.coil_temperature_label}) {
        label->text = "t  /[" + std::string(UnitDegC) + "]";
    }
    const bool latin = IsOneOf(tag, {"FRA", "ITA", "ESP", "POR"});
    for (Label* label : {&p.Label57, &p.Label43, &p.Label56}) {
        label->text = latin ? "HR /[%]:" : "φ /[%]:";
    }
    p.Label11.text = latin ? "HR:" : "φ:";
    p.Option3D3.text = words[Caption::SteamHumidifier];
    p.Option3D4.text = words[Caption::WaterHumidifier];
    p.flow_label.text = words[Caption::AirFlow] + " " + words[Caption::AirFlowSecond] + " " +
                        words[Caption::AirFlowTotal] + " /[m³/h]:";
    p.ratio_label.text = words[Caption::RecirculatedToOutdoorAir] + ":";
    p.inner_flow_label.text = WithUnit(words[Caption::RecirculatedAir], UnitM3h);
    p.outer_flow_label.text = WithUnit(words[Caption::OutdoorAir], UnitM3h);
    p.exhaust_label.text = words[Caption::ExtractAir];
    p.outside_label.text = words[Caption::OutdoorAir];
    p.supply_label.text = words[Caption::SupplyAir];
    p.coil_label.text = words[Caption::Leaving] + " " + words[Caption::Cooler];
    p.supply_fan_label.text = WithUnit(words[Caption::SupplyFanRise], UnitK);
    p.return_fan_label.text = WithUnit(words[Caption::ExtractFanRise], UnitK);
    p.room_label.text = words[Caption::Room];
    p.room_total_label.text = words[Caption::Capacity] + " " + words[Caption::Total] + ":";
    p.room_sensible_label.text = words[Caption::Capacity] + " " + words[Caption::Sensible] + ":";
    p.room_latent_label.text = words[Caption::Capacity] + " " + words[Caption::Latent] + ":";
    p.room_water_label.text = words[Caption::Water] + ":";
    p.cooler_label.text = words[Caption::Capacity] + " " + words[Caption::Cooler] + ":";
    p.heater_label.text = words[Caption::Capacity] + " " + words[Caption::Heater] + ":";
    p.humidifier_label.text = words[Caption::Humidifier] + ":";
    p.Command3D6.text = p.Command3D6_l.text = "O.K.";
    p.AnlageAbButt.text = p.AnlageAbButt_l.text = words[Caption::Cancel];
}

bool IsCaption(const Control& control) {
    return control.kind == ControlKind::Label || control.kind == ControlKind::OptionButton ||
           control.kind == ControlKind::CheckBox ||
           (control.kind == ControlKind::Button && control.name.ends_with("_l"));
}

// Fonts and colours of the captions. False where the window stays as designed.
bool DressWindow(const SharedValues& shared, WindowForm& window) {
    window.label_font_size = 10;
    if (shared.LanguageTag == "TWA") {
        window.label_font_size =
            RoundToInteger(ParsedNumber(shared.LabelFontSize)).value_or(window.label_font_size);
        if (window.label_font_size < 6 || window.label_font_size > 40) window.label_font_size = 12;
    }
    const int skin = shared.SkinNumber;
    if (skin < 1 || skin > 5) return false;
    const bool dark_text = skin == 1 || skin == 4 || skin == 5;
    window.bold_labels = dark_text;
    for (Control* control : window.form.Controls()) {
        if (IsCaption(*control)) control->foreground = dark_text ? kBlack : kWhite;
    }
    return true;
}

}  // namespace

void SetCaptions(MainForm& main) {
    const Captions& captions = main.captions;
    const std::string& tag = main.shared.LanguageTag;
    SetMenuCaptions(main.controls, captions, tag);
    SetHelpCaptions(main.controls, main.shared, captions);
    SetToolCaptions(main.controls, captions);
    SetReadOutCaptions(main.controls, main.read_out, captions);
    SetPointPanelCaptions(main.processes.point, captions);
    SetPlantPanelCaptions(main.processes.plant, captions, tag);
    main.controls.Label7.text = captions[Caption::ModuleName];
    main.controls.Label19.text = main.shared.AppTitle;
}

void ApplySkin(MainForm& main) {
    MainControls& controls = main.controls;
    const bool skinned = DressWindow(main.shared, main);
    controls.Label7.foreground = kWhite;
    if (!skinned) return;
    controls.FunktButtPn.picture = "ZD_Bk00.jpg";
    main.read_out.Pn1.picture = "ZD_Bk031.jpg";
    PointPanel& point = main.processes.point;
    PlantPanel& plant = main.processes.plant;
    for (Panel* panel : {&point.Anlage1PN, &plant.Panel3D10, &plant.Frame1}) {
        panel->picture = "ZD_Back01.jpg";
    }
    for (Panel* panel : {&plant.Panel3D2, &point.Panel3D9}) panel->picture = "ZD_Back02.jpg";
}

void ApplySkin(const SharedValues& shared, ModalForm& window) {
    if (DressWindow(shared, window)) window.ground_picture = "ZD_Back01.jpg";
}

}  // namespace zandrell
