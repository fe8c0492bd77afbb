#include "base/number_text.h"
#include "base/unit_texts.h"
#include "kernel/exact_air.h"
#include "processes/exact_plant.h"
#include "processes/figure_text.h"
#include "processes/plant_panel.h"

// What the plant's panel does under Exact in place of its way by the suite.
namespace zandrell {

// Bars that move write their fields and ask for a run. It is not nested here: the fields are read
// again until nothing moves, so that the figures are those of what the fields show at the end.
bool PlantPanel::SettleInputs(PlantInputs& inputs, ExactHumidities& humidities) {
    constexpr int kMostRounds = 10;
    for (int round = 0; round < kMostRounds; ++round) {
        asked_again_ = false;
        settling_ = true;
        const bool possible = CorrectExactly(inputs, humidities);
        settling_ = false;
        if (!possible) return false;
        if (!asked_again_) break;
    }
    return true;
}

bool PlantPanel::CorrectExactly(PlantInputs& inputs, ExactHumidities& humidities) {
    if (!ReadInputs(inputs)) return false;
    HoldSupplyAboveCoil(inputs);
    if (asked_again_) return true;
    const double phiAb = inputs.phiAb, phiZu = inputs.phiZu;
    const auto found = RaiseExactly(ExactAir(context_.solver), inputs);
    if (!found) return false;
    humidities = *found;
    // A raised humidity is shown cut: read again it lies a little lower, and is raised to the same.
    const auto show_raised = [](TextField& field, double percent, bool& raised) {
        const std::string given = field.text;
        ShowNumber(field, Cut(percent, kBarUnitsPerField));
        raised = raised || field.text != given;
    };
    if (inputs.phiZu != phiZu) show_raised(PHIZuluft, inputs.phiZu, supply_raised);
    if (inputs.phiAb != phiAb) show_raised(PHIAbluft, inputs.phiAb, exhaust_raised);
    Phiaussenscroll.ShowTenths(ReadHumidity(PhiAussen));
    PhiZuscroll.ShowTenths(ParsedNumber(PHIZuluft.text));
    PHIAbscroll.ShowTenths(ParsedNumber(PHIAbluft.text));
    return true;
}

bool PlantPanel::RunBySettledInputs() {
    PlantInputs inputs;
    ExactHumidities humidities;
    if (!SettleInputs(inputs, humidities)) return false;
    const auto run = RunExactly(ExactAir(context_.solver), inputs, humidities);
    if (!run) return false;
    ShowExactly(*run);
    return true;
}

void PlantPanel::ShowExactly(const ExactPlantRun& run) {
    const double factor = run.Anzeigefaktor;
    AssignFinite(context_.figures.MischTemp, run.mixing.mixed.t);
    Drawing().DrawMixing(run.mixing);
    ShowRoomLoads(run.room, factor);
    KeepWay(run, run.heated);
    StartWay(run.OhneKuehler);
    humidifier_shown_ = true;
    const double heater_kw = Cut(run.heater_kw, factor);
    if (run.OhneKuehler) {
        Drawing().DrawHeaterWay(run, run.heated);
        ShowNoCooler();
        context_.figures.KondensatWasser = 0;
        ShowHeater(heater_kw, UnitKW);
        ShowHumidifier(Cut(run.humidifier_kg_per_h, factor), kNarrowWaterUnit);
    } else {
        Drawing().DrawCoolerWay(run, run.heated);
        ShowCooler(Cut(run.cooler_kw, factor));
        AssignFinite(context_.figures.KondensatWasser, Cut(run.condensate_kg_per_h, factor));
        ShowHeater(heater_kw, kUnitBehindCooler);
        ShowHumidifier(Cut(run.humidifier_kg_per_h, 100), kWaterUnit);
    }
}

}  // namespace zandrell
