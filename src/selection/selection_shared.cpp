#include "selection/selection_shared.h"

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr bool kFromOpener = true;

void AddInputs(SelectionInputs& inputs, std::vector<NamedValue>& values) {
    for (const NumberInput& input : kNumberInputs) {
        // These three are what labels show.
        if (input.name.starts_with("Label")) continue;
        NamedValue value{input.name};
        value.from_opener = input.name != "QoFreq";
        if (input.number != nullptr) value.number = &(inputs.*input.number);
        if (input.whole != nullptr) value.whole = &(inputs.*input.whole);
        values.push_back(value);
    }
    values.push_back({"KaelteMittel", nullptr, nullptr, nullptr, &inputs.KaelteMittel, true});
}

void AddEconomizer(EconomizerState& eco, std::vector<NamedValue>& values) {
    const auto number = [&](std::string_view name, double& target, bool from_opener) {
        values.push_back({name, &target, nullptr, nullptr, nullptr, from_opener});
    };
    number("HDampf", eco.HDampf, kFromOpener);
    number("HFluessig", eco.HFluessig, kFromOpener);
    number("HZwischen", eco.HZwischen, kFromOpener);
    number("CpDampf", eco.CpDampf, kFromOpener);
    number("CpFluessig", eco.CpFluessig, kFromOpener);
    number("Ueberhitzung", eco.Ueberhitzung, kFromOpener);
    number("Unterkuehlung", eco.Unterkuehlung, kFromOpener);
    number("DruckMitte1", eco.DruckMitte1, kFromOpener);
    number("DruckMitte2", eco.DruckMitte2, kFromOpener);
    values.push_back({"EcoStufe", nullptr, &eco.EcoStufe, nullptr, nullptr, kFromOpener});
    number("EcoLeistung", eco.EcoLeistung, false);
    number("EcoMassenStrom", eco.EcoMassenStrom, false);
    number("EcoDruck", eco.EcoDruck, false);
    number("EcoAnteil", eco.EcoAnteil, false);
    number("EcoUnterkuehlung", eco.EcoUnterkuehlung, false);
}

}  // namespace

std::vector<NamedValue> NamedValuesOf(SelectionShared& selection, SharedValues& shared) {
    std::vector<NamedValue> values;
    values.reserve(80);
    AddInputs(selection.inputs, values);
    AddEconomizer(selection.eco, values);
    const auto number = [&](std::string_view name, double& target, bool from_opener) {
        values.push_back({name, &target, nullptr, nullptr, nullptr, from_opener});
    };
    const auto whole = [&](std::string_view name, int& target, bool from_opener) {
        values.push_back({name, nullptr, &target, nullptr, nullptr, from_opener});
    };
    const auto text = [&](std::string_view name, std::string& target, bool from_opener) {
        values.push_back({name, nullptr, nullptr, nullptr, &target, from_opener});
    };
    for (auto& [name, target] : {std::pair<std::string_view, double*>{"T0", &selection.T0},
                                 {"Tc", &selection.Tc},
                                 {"dtM", &selection.dtM},
                                 {"tSL", &selection.tSL},
                                 {"xd", &selection.xd},
                                 {"GWP", &selection.GWP},
                                 {"MainsFrequency", &shared.MainsFrequency}}) {
        number(name, *target, kFromOpener);
    }
    whole("VentAufruf", selection.VentAufruf, kFromOpener);
    whole("TiefSuche", selection.TiefSuche, kFromOpener);
    for (auto& [name, target] :
         {std::pair<std::string_view, std::string*>{"FreqTitel", &selection.FreqTitel},
          {"ViewDatei1", &selection.ViewDatei1},
          {"ViewDatei2", &selection.ViewDatei2},
          {"ModuleTag", &shared.ModuleTag},
          {"ProjectTitle", &shared.ProjectTitle},
          {"ProjectRemark", &shared.ProjectRemark},
          {"ProjectFileName", &shared.ProjectFileName}}) {
        text(name, *target, kFromOpener);
    }
    for (auto& [name, target] :
         {std::pair<std::string_view, int*>{"DialogMode", &shared.DialogMode},
          {"ErgebnisDa", &selection.ErgebnisDa},
          {"AnlagePending", &selection.AnlagePending},
          {"Rueckkehr", &selection.Rueckkehr},
          {"FensterZu", &selection.FensterZu},
          {"OffeneSerie", &selection.OffeneSerie},
          {"VentAufruf2", &selection.VentAufruf2},
          {"AuswahlZeile", &selection.AuswahlZeile},
          {"PrintOwner", &selection.PrintOwner}}) {
        whole(name, *target, false);
    }
    values.push_back({"SerieStart", nullptr, nullptr, &selection.SerieStart, nullptr, false});
    text("KatalogDatei", selection.KatalogDatei, false);
    text("BildDatei", selection.BildDatei, false);
    text("ResultText", shared.ResultText, false);
    text("ResultLeer", selection.ResultLeer, false);
    number("QErster", selection.QErster, false);
    number("QLetzter", selection.QLetzter, false);
    number("LeistungFreq", selection.LeistungFreq, false);
    return values;
}

bool TakeValue(const NamedValue& value, std::string_view text) {
    if (value.text != nullptr) {
        *value.text = text;
        return true;
    }
    std::string word(text);
    if (word.find_first_of("0123456789") == std::string::npos ||
        word.find_first_not_of("0123456789.,+-eE ") != std::string::npos) {
        return false;
    }
    const double number = ParseNumber(word);
    if (value.number != nullptr) return AssignFinite(*value.number, number);
    const auto rounded = RoundToInteger(number);
    if (!rounded) return false;
    if (value.whole != nullptr) *value.whole = *rounded;
    if (value.position != nullptr) *value.position = *rounded;
    return true;
}

}  // namespace zandrell
