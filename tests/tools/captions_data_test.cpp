// The delivered caption files, read the way the program reads them: a slot shifted by one, a slot
// left empty or a file in the wrong encoding shows in a label that a user would see.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
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

std::string Text(const Captions& captions, char list, std::size_t number) {
    if (list == 'A') return captions.AirCoCapList.at(number);
    return list == 'Q' ? captions.QVCaptList.at(number) : captions.CaptionList.at(number);
}

// Replaces {C13}, {A6}, {Q4} by the texts of the three lists.
std::string Compose(const Captions& captions, std::string_view pattern) {
    std::string label;
    for (std::size_t open = 0; (open = pattern.find('{')) != std::string_view::npos;) {
        const std::size_t close = pattern.find('}', open);
        label += pattern.substr(0, open);
        const std::string number(pattern.substr(open + 2, close - open - 2));
        label += Text(captions, pattern[open + 1], std::stoul(number));
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

TEST(CaptionsData, EverySlotInUseIsFilledInEveryLanguageAndNoOther) {
    std::ifstream table(std::string(ZANDRELL_SOURCE_DATA) + "/captions/slots.tsv");
    std::string line;
    std::getline(table, line);  // the head line
    std::vector<std::pair<char, std::size_t>> slots;
    while (std::getline(table, line)) {
        std::istringstream columns(line);
        std::string list;
        std::size_t number = 0;
        ASSERT_TRUE(columns >> list >> number) << line;
        slots.emplace_back(list[0], number);
    }
    ASSERT_GT(slots.size(), 80U);
    for (const std::string& tag : kTags) {
        const Captions captions = Load(tag);
        for (const auto& [list, number] : slots)
            EXPECT_NE(Text(captions, list, number), "") << tag << ' ' << list << number;
        // Two slots of the long list have the same fixed words in all languages.
        std::size_t filled = 0;
        for (const std::string& text : captions.CaptionList) filled += text.empty() ? 0U : 1U;
        for (const std::string& text : captions.AirCoCapList) filled += text.empty() ? 0U : 1U;
        for (const std::string& text : captions.QVCaptList) filled += text.empty() ? 0U : 1U;
        EXPECT_EQ(filled, slots.size() + 2) << tag;
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
     "{Q4} {Q3} /[m³/h]:",
     {{"ENG", "Air Flow Rate /[m³/h]:"},
      {"DEU", "Volumenstrom Luft /[m³/h]:"},
      {"NDL", "Debiet lucht /[m³/h]:"},
      {"FRA", "Débit d'air /[m³/h]:"},
      {"ESP", "Caudal de aire /[m³/h]:"},
      {"ITA", "Portata d'aria /[m³/h]:"},
      {"POR", "Caudal de ar /[m³/h]:"},
      {"TWA", "風量 (空氣) /[m³/h]:"}}},
    {"cooling capacity on paper",
     "{C177} {C13} /[kW] :",
     {{"ENG", "Capacity Cooler /[kW] :"},
      {"DEU", "Leistung Kühler /[kW] :"},
      {"NDL", "Vermogen koeler /[kW] :"},
      {"FRA", "Puissance de refroidissement /[kW] :"},
      {"ESP", "Potencia de refrigeración /[kW] :"},
      {"ITA", "Potenza di raffreddamento /[kW] :"},
      {"POR", "Potência de arrefecimento /[kW] :"},
      {"TWA", "能力 冷卻器 /[kW] :"}}},
    {"water humidifier in the menu",
     "{C81} {Q17} {Q15}",
     {{"ENG", "Calculate Water Humidifier"},
      {"DEU", "Berechnung Wasser Befeuchter"},
      {"FRA", "Calcul Eau d'humidification"}}},
    {"heater in the menu",
     "{C81} {Q16}",
     {{"ENG", "Calculate Heater"},
      {"DEU", "Berechnung Erhitzer"},
      {"ITA", "Calcolo di riscaldamento"}}},
    {"tip of the options button",
     "{C63} : {C171}, {Q1}, {C172}, {Q8}",
     {{"ENG", "Settings : Temperature, Abs. Humidity, Pressure, Altitude"},
      {"DEU", "Einstellungen : Temperatur, Abs. Feuchte, Druck, Höhe ü. NN"}}},
    {"tip of the capacity button",
     "{C177} : {C177}  {Q9}/{Q10}, {Q7}",
     {{"ENG", "Capacity : Capacity  Latent/Sensible, Water"},
      {"DEU", "Leistung : Leistung  latent/sensibel, Wasser"}}},
    {"tip of the plant button",
     "{C59} : {Q20}, {Q15}, {C13}, {Q16}",
     {{"ENG", "Air Handler : Mixing Box, Humidifier, Cooler, Heater"},
      {"DEU", "Klimaanlage : Mischkammer, Befeuchter, Kühler, Erhitzer"},
      {"FRA", "CTA : Fonctions de mélange, d'humidification, de refroidissement, de chauffage"}}},
    {"print-out, shares of the air",
     "{Q4} {Q12}/{Q13} /[m³/h]: ",
     {{"ENG", "Air Flow Indoor Air/Outdoor Air /[m³/h]: "},
      {"DEU", "Volumenstrom Innenluft/Außenluft /[m³/h]: "}}},
    {"chart label and tools",
     "{Q11} {C13}, {Q5}, {Q6}",
     {{"ENG", "Outlet Cooler, State Change, Mixing"},
      {"DEU", "Austritt Kühler, Zustände, Mischung"}}},
    {"print-out, room water",
     "{Q7} {Q14}    /[kg/h] :",
     {{"ENG", "Water Total/Room    /[kg/h] :"}, {"DEU", "Wasser gesamt/Raum    /[kg/h] :"}}},
    {"printer dialog",
     "{C166} {C63}",
     {{"ENG", "Printer Settings"}, {"DEU", "Drucker Einstellungen"}}},
    {"page heading",
     "Mollier {C180}, {C172} :",
     {{"ENG", "Mollier h,x Chart, Pressure :"}, {"DEU", "Mollier h,x-Diagramm, Druck :"}}},
    {"save and load",
     "{C28} {C25}, {C32} &{C34}, {C30}, {C29}",
     {{"ENG", "New Project, Save &As, Save, Load"},
      {"DEU", "Neues Projekt, Speichern &unter, Speichern, Laden"},
      {"NDL", "Nieuw Project, Bewaar &als, Bewaar, Laad"},
      {"ESP", "Nuevo Proyecto, Guardar &como, Guardar, Cargar"},
      {"POR", "Novo Projeto, Guardar &como, Guardar, Carregar"},
      {"TWA", "新增 專案, 儲存 &為新檔, 儲存, 載入"}}},
    {"page header",
     "{C27} {C38} {C61} {C26} - {C146}",
     {{"ENG", "Company Date Page Remark - Calculation Report"},
      {"DEU", "Firma Datum Seite Bemerkung - Berechnungsprotokoll"}}},
    {"failure message",
     "{C269} : x {C270}!",
     {{"ENG", "System failure in folder : x - access denied!"},
      {"DEU", "Systemfehler im Ordner : x - Zugriff verweigert!"}}},
    {"data sheet",
     "{C171} {A6} : {C172} {C41} / {C40}, {C302}, {C25}{C58}",
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
