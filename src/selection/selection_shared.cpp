#include "selection/selection_shared.h"

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr bool kFromOpener = true, kFromWindow = false;

NamedValue Number(std::string_view name, double& target, bool from_opener) {
    return {name, &target, nullptr, nullptr, nullptr, from_opener};
}

NamedValue Whole(std::string_view name, int& target, bool from_opener) {
    return {name, nullptr, &target, nullptr, nullptr, from_opener};
}

NamedValue Text(std::string_view name, std::string& target, bool from_opener) {
    return {name, nullptr, nullptr, nullptr, &target, from_opener};
}

void AddInputs(SelectionInputs& inputs, std::vector<NamedValue>& values) {
    for (const NumberInput& input : kNumberInputs) {
        // These three are what labels show.
        if (input.name.starts_with("Label")) continue;
        const bool from_opener = input.name != "QoFreq";
        values.push_back(input.number != nullptr
                             ? Number(input.name, inputs.*input.number, from_opener)
                             : Whole(input.name, inputs.*input.whole, from_opener));
    }
    values.push_back(Text("KaelteMittel", inputs.KaelteMittel, kFromOpener));
}

void AddEconomizer(EconomizerState& eco, std::vector<NamedValue>& values) {
    for (const NamedValue& value :
         {Number("HDampf", eco.HDampf, kFromOpener),
          Number("HFluessig", eco.HFluessig, kFromOpener),
          Number("HZwischen", eco.HZwischen, kFromOpener),
          Number("CpDampf", eco.CpDampf, kFromOpener),
          Number("CpFluessig", eco.CpFluessig, kFromOpener),
          Number("Ueberhitzung", eco.Ueberhitzung, kFromOpener),
          Number("Unterkuehlung", eco.Unterkuehlung, kFromOpener),
          Number("DruckMitte1", eco.DruckMitte1, kFromOpener),
          Number("DruckMitte2", eco.DruckMitte2, kFromOpener),
          Whole("EcoStufe", eco.EcoStufe, kFromOpener),
          Number("EcoLeistung", eco.EcoLeistung, kFromWindow),
          Number("EcoMassenStrom", eco.EcoMassenStrom, kFromWindow),
          Number("EcoDruck", eco.EcoDruck, kFromWindow),
          Number("EcoAnteil", eco.EcoAnteil, kFromWindow),
          Number("EcoUnterkuehlung", eco.EcoUnterkuehlung, kFromWindow)}) {
        values.push_back(value);
    }
}

void AddOpener(SelectionShared& selection, SharedValues& shared, std::vector<NamedValue>& values) {
    for (const NamedValue& value :
         {Number("T0", selection.T0, kFromOpener), Number("Tc", selection.Tc, kFromOpener),
          Number("dtM", selection.dtM, kFromOpener), Number("tSL", selection.tSL, kFromOpener),
          Number("xd", selection.xd, kFromOpener), Number("GWP", selection.GWP, kFromOpener),
          Number("MainsFrequency", shared.MainsFrequency, kFromOpener),
          Whole("VentAufruf", selection.VentAufruf, kFromOpener),
          Whole("TiefSuche", selection.TiefSuche, kFromOpener),
          Text("FreqTitel", selection.FreqTitel, kFromOpener),
          Text("ViewDatei1", selection.ViewDatei1, kFromOpener),
          Text("ViewDatei2", selection.ViewDatei2, kFromOpener),
          Text("ModuleTag", shared.ModuleTag, kFromOpener),
          Text("ProjectTitle", shared.ProjectTitle, kFromOpener),
          Text("ProjectRemark", shared.ProjectRemark, kFromOpener),
          Text("ProjectFileName", shared.ProjectFileName, kFromOpener)}) {
        values.push_back(value);
    }
}

void AddWindow(SelectionShared& selection, SharedValues& shared, std::vector<NamedValue>& values) {
    for (const NamedValue& value : {Whole("DialogMode", shared.DialogMode, kFromWindow),
                                    Whole("ErgebnisDa", selection.ErgebnisDa, kFromWindow),
                                    Whole("AnlagePending", selection.AnlagePending, kFromWindow),
                                    Whole("Rueckkehr", selection.Rueckkehr, kFromWindow),
                                    Whole("FensterZu", selection.FensterZu, kFromWindow),
                                    Whole("OffeneSerie", selection.OffeneSerie, kFromWindow),
                                    Whole("VentAufruf2", selection.VentAufruf2, kFromWindow),
                                    Whole("AuswahlZeile", selection.AuswahlZeile, kFromWindow),
                                    Whole("PrintOwner", selection.PrintOwner, kFromWindow),
                                    Text("KatalogDatei", selection.KatalogDatei, kFromWindow),
                                    Text("BildDatei", selection.BildDatei, kFromWindow),
                                    Text("ResultText", shared.ResultText, kFromWindow),
                                    Text("ResultLeer", selection.ResultLeer, kFromWindow),
                                    Number("QErster", selection.QErster, kFromWindow),
                                    Number("QLetzter", selection.QLetzter, kFromWindow),
                                    Number("LeistungFreq", selection.LeistungFreq, kFromWindow)}) {
        values.push_back(value);
    }
    values.push_back({"SerieStart", nullptr, nullptr, &selection.SerieStart, nullptr, kFromWindow});
}

}  // namespace

std::vector<NamedValue> NamedValuesOf(SelectionShared& selection, SharedValues& shared) {
    std::vector<NamedValue> values;
    values.reserve(80);
    AddInputs(selection.inputs, values);
    AddEconomizer(selection.eco, values);
    AddOpener(selection, shared, values);
    AddWindow(selection, shared, values);
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
