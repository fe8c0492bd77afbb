// The delivered caption files, read the way the program reads them: a slot shifted by one, a slot
// left empty or a file in the wrong encoding shows in a label that a user would see.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/delimited_text.h"

namespace zandrell {
namespace {

const std::vector<std::string> kTags = {"ENG", "DEU", "NDL", "FRA", "ESP", "ITA", "POR", "TWA"};

DataFiles StagedFiles() { return DataFiles(ZANDRELL_STAGED_DATA); }

Captions Load(const std::string& tag) {
    Captions captions;
    LoadCaptions(StagedFiles(), tag, captions);
    LoadAirCoCaptions(StagedFiles(), tag, captions);
    LoadQVCaptions(StagedFiles(), tag, captions);
    return captions;
}

std::string Bytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Caption Named(std::string_view name) {
    for (const auto& [known, word] : kCaptionNames) {
        if (known == name) return word;
    }
    ADD_FAILURE() << "no caption is named " << name;
    return {};
}

// Replaces {Cooler} and the like by the word of that name.
std::string Compose(const Captions& captions, std::string_view pattern) {
    std::string label;
    for (std::size_t open = 0; (open = pattern.find('{')) != std::string_view::npos;) {
        const std::size_t close = pattern.find('}', open);
        label += pattern.substr(0, open);
        label += captions[Named(pattern.substr(open + 1, close - open - 1))];
        pattern.remove_prefix(close + 1);
    }
    return label.append(pattern);
}

TEST(CaptionsData, EveryFileHasAllItsFieldsInQuotesOnLinesOfTheirOwn) {
    const std::vector<std::pair<std::string, std::ptrdiff_t>> lists = {
        {"Caption.", 316}, {"AirCoCap.", 118}, {"QVCapt.", 20}};
    for (const std::string& tag : kTags) {
        for (const auto& [prefix, fields] : lists) {
            SCOPED_TRACE(prefix + tag);
            const FileText file = StagedFiles().OpenForInput(prefix + tag);
            ASSERT_EQ(file.status, FileStatus::Ok);
            DelimitedReader reader(file.text);
            std::string item;
            std::ptrdiff_t items = 0;
            while (reader.ReadText(item)) ++items;
            EXPECT_EQ(items, fields);
            EXPECT_EQ(std::count(file.text.begin(), file.text.end(), '"'), 2 * fields);
            EXPECT_EQ(std::count(file.text.begin(), file.text.end(), '\n'), fields);
            EXPECT_EQ(std::count(file.text.begin(), file.text.end(), '\r'), fields);
            EXPECT_TRUE(file.text.ends_with("\"\r\n"));
        }
    }
}

// A text in a slot without a name would be one that nobody can show.
TEST(CaptionsData, EveryNamedSlotIsFilledInEveryLanguageAndNoOther) {
    ASSERT_GT(kCaptionNames.size(), 110U);
    for (const std::string& tag : kTags) {
        const Captions captions = Load(tag);
        for (const auto& [name, word] : kCaptionNames)
            EXPECT_NE(captions[word], "") << tag << ' ' << name;
        std::size_t filled = 0;
        for (const char* prefix : {"Caption.", "AirCoCap.", "QVCapt."}) {
            const FileText file = StagedFiles().OpenForInput(prefix + tag);
            DelimitedReader reader(file.text);
            for (std::string item; reader.ReadText(item);) filled += item.empty() ? 0U : 1U;
        }
        EXPECT_EQ(filled, kCaptionNames.size()) << tag;
    }
}

// Windows-1252 wherever it can hold the words, UTF-8 for Chinese: one letter of each as bytes.
TEST(CaptionsData, FilesHaveTheEncodingOfTheSuite) {
    const std::vector<std::pair<std::string, std::string>> words = {
        {"Caption.DEU", "\"K\xFChler\""},
        {"QVCapt.DEU", "\"Au\xDF\x65nluft\""},
        {"Caption.FRA", "\"Temp\xE9rature\""},
        {"QVCapt.FRA", "\"M\xE9lange\""},
        {"Caption.ESP", "\"P\xE1gina\""},
        {"Caption.ITA", "\"Densit\xE0\""},
        {"Caption.POR", "\"Press\xE3o\""},
        {"Caption.NDL", "\"kopi\xEBren\""},
        {"Caption.TWA", "\"\xE5\xA3\x93\xE5\x8A\x9B\""}};
    for (const auto& [file, word] : words) {
        const std::string bytes = Bytes(std::string(ZANDRELL_STAGED_DATA) + "/" + file);
        EXPECT_NE(bytes.find(word), std::string::npos) << file;
    }
}

struct Label {
    std::string where;
    std::string pattern;
    std::vector<std::pair<std::string, std::string>> texts;  // language tag, label
};

const std::vector<Label> kLabels = {
    {"air flow field",
     "{AirFlow} {AirFlowSecond} /[m³/h]:",
     {{"ENG", "Air Flow Rate /[m³/h]:"},
      {"DEU", "Volumenstrom Luft /[m³/h]:"},
      {"NDL", "Debiet lucht /[m³/h]:"},
      {"FRA", "Débit d'air /[m³/h]:"},
      {"ESP", "Caudal de aire /[m³/h]:"},
      {"ITA", "Portata d'aria /[m³/h]:"},
      {"POR", "Caudal de ar /[m³/h]:"},
      {"TWA", "風量 (空氣) /[m³/h]:"}}},
    {"cooling capacity on paper",
     "{Capacity} {Cooler} /[kW] :",
     {{"ENG", "Capacity Cooler /[kW] :"},
      {"DEU", "Leistung Kühler /[kW] :"},
      {"NDL", "Vermogen koeler /[kW] :"},
      {"FRA", "Puissance de refroidissement /[kW] :"},
      {"ESP", "Potencia de refrigeración /[kW] :"},
      {"ITA", "Potenza di raffreddamento /[kW] :"},
      {"POR", "Potência de arrefecimento /[kW] :"},
      {"TWA", "能力 冷卻器 /[kW] :"}}},
    {"water humidifier in the menu",
     "{Calculate} {WaterHumidifier} {HumidifierSecond}",
     {{"ENG", "Calculate Water Humidifier"},
      {"DEU", "Berechnung Wasser Befeuchter"},
      {"FRA", "Calcul Eau d'humidification"}}},
    {"heater in the menu",
     "{Calculate} {Heater}",
     {{"ENG", "Calculate Heater"},
      {"DEU", "Berechnung Erhitzer"},
      {"ITA", "Calcolo di riscaldamento"}}},
    {"tip of the options button",
     "{Settings} : {Temperature}, {HumidityRatio}, {Pressure}, {Altitude}",
     {{"ENG", "Settings : Temperature, Abs. Humidity, Pressure, Altitude"},
      {"DEU", "Einstellungen : Temperatur, Abs. Feuchte, Druck, Höhe ü. NN"}}},
    {"tip of the capacity button",
     "{Capacity} : {Capacity}  {Latent}/{Sensible}, {Water}",
     {{"ENG", "Capacity : Capacity  Latent/Sensible, Water"},
      {"DEU", "Leistung : Leistung  latent/sensibel, Wasser"}}},
    {"tip of the plant button",
     "{AirHandlingUnit} : {MixingSection}, {HumidifierSecond}, {Cooler}, {Heater}",
     {{"ENG", "Air Handler : Mixing Box, Humidifier, Cooler, Heater"},
      {"DEU", "Klimaanlage : Mischkammer, Befeuchter, Kühler, Erhitzer"},
      {"FRA", "CTA : Fonctions de mélange, d'humidification, de refroidissement, de chauffage"}}},
    {"print-out, shares of the air",
     "{AirFlow} {RecirculatedAir}/{OutdoorAir} /[m³/h]: ",
     {{"ENG", "Air Flow Indoor Air/Outdoor Air /[m³/h]: "},
      {"DEU", "Volumenstrom Innenluft/Außenluft /[m³/h]: "}}},
    {"chart label and tools",
     "{Leaving} {Cooler}, {StateChange}, {Mixing}",
     {{"ENG", "Outlet Cooler, State Change, Mixing"},
      {"DEU", "Austritt Kühler, Zustände, Mischung"}}},
    {"print-out, room water",
     "{Water} {Total}    /[kg/h] :",
     {{"ENG", "Water Total/Room    /[kg/h] :"}, {"DEU", "Wasser gesamt/Raum    /[kg/h] :"}}},
    {"printer dialog",
     "{Printer} {Settings}",
     {{"ENG", "Printer Settings"}, {"DEU", "Drucker Einstellungen"}}},
    {"page heading",
     "Mollier {ModuleName}, {Pressure} :",
     {{"ENG", "Mollier h,x Chart, Pressure :"}, {"DEU", "Mollier h,x-Diagramm, Druck :"}}},
    {"save and load",
     "{New} {Project}, {Save} &{SaveAsSecond}, {SaveButton}, {Load}",
     {{"ENG", "New Project, Save &As, Save, Load"},
      {"DEU", "Neues Projekt, Speichern &unter, Speichern, Laden"},
      {"NDL", "Nieuw Project, Bewaar &als, Bewaar, Laad"},
      {"ESP", "Nuevo Proyecto, Guardar &como, Guardar, Cargar"},
      {"POR", "Novo Projeto, Guardar &como, Guardar, Carregar"},
      {"TWA", "新增 專案, 儲存 &為新檔, 儲存, 載入"}}},
    {"page header",
     "{Company} {Date} {Page} {Remark} - {SheetKind}",
     {{"ENG", "Company Date Page Remark - Calculation Report"},
      {"DEU", "Firma Datum Seite Bemerkung - Berechnungsprotokoll"}}},
    {"failure message",
     "{DeleteFailureFolder} : x {DeleteFailureAccess}!",
     {{"ENG", "System failure in folder : x - access denied!"},
      {"DEU", "Systemfehler im Ordner : x - Zugriff verweigert!"}}},
    {"data sheet",
     "{Temperature} {OfTheRoom} : {Pressure} {Condensation} / {Evaporation}, {EfficiencyClass}, "
     "{Project}{ProjectDataSecond}",
     {{"ENG",
       "Temperature Room : Pressure Condensation / Evaporation, Efficiency Class, Project Data"},
      {"DEU",
       "Temperatur Raum : Druck Verflüssigung / Verdampfung, Effizienzklasse, Projektdaten"}}},
};

TEST(CaptionsData, ComposedLabelsRead) {
    for (const Label& label : kLabels) {
        for (const auto& [tag, text] : label.texts)
            EXPECT_EQ(Compose(Load(tag), label.pattern), text) << label.where << ", " << tag;
    }
}

}  // namespace
}  // namespace zandrell
