#include "selection/selection_inputs.h"

#include <algorithm>

#include "base/number_text.h"

namespace zandrell {

constexpr std::array<NumberInput, 24> kNumberInputs = {{
    {"KatalogArt", nullptr, &SelectionInputs::KatalogArt},
    {"QoSoll", &SelectionInputs::QoSoll},
    {"QoZusatz", &SelectionInputs::QoZusatz},
    {"KatBezug", &SelectionInputs::KatBezug},
    {"LeistFaktor", &SelectionInputs::LeistFaktor},
    {"LiefergradBezug", &SelectionInputs::LiefergradBezug},
    {"MassenStrom", &SelectionInputs::MassenStrom},
    {"OeffnungMax", &SelectionInputs::OeffnungMax},
    {"KuehlerBasis", nullptr, &SelectionInputs::KuehlerBasis},
    {"DruckPo", &SelectionInputs::DruckPo},
    {"DruckPc", &SelectionInputs::DruckPc},
    {"VerlustPo", &SelectionInputs::VerlustPo},
    {"VerlustPc", &SelectionInputs::VerlustPc},
    {"VolumenNenn", &SelectionInputs::VolumenNenn},
    {"LeistungNenn", &SelectionInputs::LeistungNenn},
    {"VolumenRef", &SelectionInputs::VolumenRef},
    {"InverterNetzFreq", &SelectionInputs::InverterNetzFreq},
    {"Label25", &SelectionInputs::Label25},
    {"Label26", &SelectionInputs::Label26},
    {"Label27", &SelectionInputs::Label27},
    {"VerdichterArt", nullptr, &SelectionInputs::VerdichterArt},
    {"VerdichterStufe", nullptr, &SelectionInputs::VerdichterStufe},
    {"BetriebsFreq", &SelectionInputs::BetriebsFreq},
    {"QoFreq", &SelectionInputs::QoFreq},
}};

const NumberInput* NumberInputNamed(std::string_view name) {
    const auto found = std::find_if(kNumberInputs.begin(), kNumberInputs.end(),
                                    [&](const NumberInput& input) { return input.name == name; });
    return found == kNumberInputs.end() ? nullptr : &*found;
}

void SetInput(SelectionInputs& shared, const NumberInput& input, double value) {
    if (input.number != nullptr) {
        AssignFinite(shared.*input.number, value);
    } else if (const auto rounded = RoundToInteger(value)) {
        shared.*input.whole = *rounded;
    }
}

double InputOf(const SelectionInputs& shared, const NumberInput& input) {
    return input.number != nullptr ? shared.*input.number : shared.*input.whole;
}

}  // namespace zandrell
