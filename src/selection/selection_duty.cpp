#include "selection/selection_duty.h"

#include <cmath>

#include "base/number_text.h"
#include "selection/economizer.h"

namespace zandrell {
namespace {

constexpr double kZeroCelsius = 273.15;  // K
constexpr double kShareOfIdeal = 0.55;
constexpr double kSecondsPerHour = 3600;
constexpr int kRegulatorsInSuctionLine = 50;

struct CycleStates {
    SaturationState evaporating, condensing;
    double intermediate_liquid = 0;  // kJ/kg
};

std::string OutsideTable(double t, const Refrigerant& table, const Captions& words) {
    return FilledIn(
        words[Caption::OutsideRefrigerantTable],
        {TrimmedNumberText(t), table.Name(), TrimmedNumberText(table.LowestTemperature()),
         TrimmedNumberText(table.HighestTemperature())});
}

std::optional<std::string> ReadStates(const SelectionDuty& duty, const RefrigerantTables& tables,
                                      const Captions& words, CycleStates& states) {
    const Refrigerant* table = tables.Find(duty.refrigerant);
    if (table == nullptr) {
        return FilledIn(words[Caption::CatalogueUnreadable], {kRefrigerantFile});
    }
    const auto evaporating = table->At(duty.evaporating), condensing = table->At(duty.condensing);
    if (!evaporating) return OutsideTable(duty.evaporating, *table, words);
    if (!condensing) return OutsideTable(duty.condensing, *table, words);
    if (!(duty.condensing > duty.evaporating)) return words[Caption::CondensingNotAbove];
    states.evaporating = *evaporating;
    states.condensing = *condensing;
    const auto between =
        table->BubbleTemperature(std::sqrt(evaporating->p_dew * condensing->p_bubble));
    const auto liquid = between ? table->At(*between) : std::nullopt;
    states.intermediate_liquid = liquid ? liquid->h_liquid : condensing->h_liquid;
    return std::nullopt;
}

void ShareRefrigerant(const SelectionDuty& duty, const CycleStates& states,
                      SelectionShared& selection) {
    EconomizerState& eco = selection.eco;
    SelectionInputs& inputs = selection.inputs;
    eco.HDampf = states.evaporating.h_vapour;
    eco.CpDampf = states.evaporating.cp_vapour;
    eco.HFluessig = states.condensing.h_liquid;
    eco.CpFluessig = states.condensing.cp_liquid;
    eco.HZwischen = states.intermediate_liquid;
    eco.Ueberhitzung = duty.superheat;
    eco.Unterkuehlung = duty.subcooling;
    eco.DruckMitte1 = inputs.DruckPo = states.evaporating.p_dew;
    eco.DruckMitte2 = inputs.DruckPc = states.condensing.p_bubble;
    selection.T0 = duty.evaporating + kZeroCelsius;
    selection.Tc = duty.condensing + kZeroCelsius;
    selection.tSL = duty.evaporating + duty.superheat;
    selection.dtM = duty.mean_difference;
    const double liquid = eco.HFluessig - eco.CpFluessig * duty.subcooling;
    const double boiling = states.evaporating.h_liquid;
    AssignFinite(selection.xd, (liquid - boiling) / (eco.HDampf - boiling));
}

double ReferenceValue(const SelectionDuty& duty, const CycleStates& states) {
    switch (FamilyOf(duty.KatalogArt)) {
        case KatalogFamilie::Condensers:
            if (duty.heat_rejection > 0) return duty.heat_rejection;
            return duty.capacity + EstimatedPower(duty.capacity, duty.evaporating, duty.condensing);
        case KatalogFamilie::RegulatingComponents:
        case KatalogFamilie::LineComponents:
            return duty.KatalogArt == kRegulatorsInSuctionLine ? states.evaporating.rho_vapour
                                                               : states.condensing.rho_liquid;
        default:
            return 0;
    }
}

void SweepMassFlow(const SelectionDuty& duty, const SaturationState& evaporating,
                   SelectionShared& selection) {
    const double suction_density =
        evaporating.rho_vapour * selection.T0 / (selection.T0 + duty.superheat);
    SelectionInputs& inputs = selection.inputs;
    AssignFinite(inputs.Label26,
                 inputs.MassenStrom / suction_density / duty.efficiency * kSecondsPerHour);
}

}  // namespace

double EstimatedPower(double capacity, double evaporating, double condensing) {
    const double lift = condensing - evaporating;
    const double power = capacity * lift / (evaporating + kZeroCelsius) / kShareOfIdeal;
    return std::isfinite(power) && power > 0 ? power : 0;
}

std::optional<std::string> ApplyDuty(const SelectionDuty& duty, const RefrigerantTables& tables,
                                     const Captions& words, SelectionShared& selection) {
    if (!(duty.capacity > 0)) {
        return FilledIn(words[Caption::DutyNotPositive], {words[Caption::RefrigeratingCapacity]});
    }
    CycleStates states;
    if (auto message = ReadStates(duty, tables, words, states)) return message;
    SelectionInputs& inputs = selection.inputs;
    inputs.KatalogArt = duty.KatalogArt;
    inputs.QoSoll = duty.capacity;
    inputs.QoZusatz = duty.added_load;
    inputs.KaelteMittel = tables.Find(duty.refrigerant)->Name();
    selection.GWP = tables.Find(duty.refrigerant)->Gwp();
    inputs.KatBezug = ReferenceValue(duty, states);
    inputs.LeistFaktor = duty.correction;
    inputs.LiefergradBezug = duty.efficiency;
    inputs.OeffnungMax = duty.opening;
    inputs.KuehlerBasis = RoundToInteger(duty.rating_basis).value_or(0);
    inputs.VerlustPo = duty.loss_suction;
    inputs.VerlustPc = duty.loss_discharge;
    inputs.InverterNetzFreq = duty.mains_frequency;
    ShareRefrigerant(duty, states, selection);
    inputs.MassenStrom = MassenStromRechnen(0, duty.capacity, inputs, selection.eco);
    SweepMassFlow(duty, states.evaporating, selection);
    inputs.Label27 = EstimatedPower(duty.capacity, duty.evaporating, duty.condensing);
    return std::nullopt;
}

void FollowMassFlow(const SelectionDuty& duty, const RefrigerantTables& tables,
                    SelectionShared& selection) {
    const Refrigerant* table = tables.Find(duty.refrigerant);
    const auto evaporating = table != nullptr ? table->At(duty.evaporating) : std::nullopt;
    if (evaporating) SweepMassFlow(duty, *evaporating, selection);
}

}  // namespace zandrell
