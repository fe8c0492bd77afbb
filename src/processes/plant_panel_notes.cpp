#include <algorithm>
#include <initializer_list>
#include <utility>

#include "base/number_text.h"
#include "base/unit_texts.h"
#include "kernel/exact_air.h"
#include "kernel/humid_air_state.h"
#include "kernel/state_solver.h"
#include "processes/plant_panel.h"

namespace zandrell {

// What the figures rest on besides the fields.
std::string PlantPanel::Basis() const {
    return std::string(Option3D3.on ? "steam" : "water")
        .append(IsExact() ? " exact" : "")
        .append(NumberText(context_.solver.ChartDruckBar));
}

void PlantPanel::NoteFields() {
    const FieldNotes notes(context_.captions);
    const bool stale = !figures_of_.Hold(Basis());
    notes.MarkFigures({&RaumLeist, &RaumSensLeist, &RaumLatLeist, &RaumWasserLeist, &Kuehl, &Heiz2},
                      stale);
    notes.MarkFigures({&Bef}, stale || !humidifier_shown_);
    for (TextField* field :
         {&vhAnlage, &aussenAnt, &vhinnen, &vhaussen, &tabLuft, &PHIAbluft, &Taus, &PhiAussen,
          &TZuluft, &PHIZuluft, &tKA, &phiKanal, &dtVent1, &dtVent2}) {
        if (!taken_.Holds(*field)) {
            notes.MarkPending(*field);
        } else if (const auto refusal = RefusalOf(*field)) {
            notes.MarkRefused(*field, *refusal);
        } else {
            notes.MarkUsed(*field);
        }
    }
}

std::optional<Refusal> PlantPanel::RefusalOf(const TextField& field) const {
    if (refused_rise_ == &field) {
        return Refusal{Caption::OutsideLimits, "0",
                       TrimmedNumberText(kHighestFanRise).append(" ").append(UnitK)};
    }
    const auto is_one_of = [&field](std::initializer_list<const TextField*> fields) {
        return std::find(fields.begin(), fields.end(), &field) != fields.end();
    };
    if (is_one_of({&PHIAbluft, &PhiAussen, &PHIZuluft, &phiKanal})) return HumidityNote(field);
    if (is_one_of({&vhAnlage, &vhinnen, &vhaussen})) {
        return AgainstFlow(field.text);
    }
    if (auto refusal = AgainstNumber(field.text)) return refusal;
    for (const auto& [temperature, humidity] : {std::pair(&tabLuft, &PHIAbluft),
                                                {&Taus, &PhiAussen},
                                                {&TZuluft, &PHIZuluft},
                                                {&tKA, &phiKanal}}) {
        if (temperature != &field) continue;
        if (auto refusal = AgainstAir(*temperature, *humidity)) return refusal;
    }
    // The bar does not go there; the cooler cannot cool below its own coil.
    if (&field == &TZuluft && kBarUnitsPerField * ParsedNumber(TZuluft.text) < tzuScroll.LowEnd()) {
        return Refusal{Caption::BelowCoilAndFanRise};
    }
    if (&field != &aussenAnt || ParsedNumber(field.text) >= 0) return std::nullopt;
    return Refusal{Caption::AboveZero};
}

// A run takes other humidities than there are as the state function does.
std::optional<Refusal> PlantPanel::HumidityNote(const TextField& field) const {
    if (field.text == kInTheFog) return std::nullopt;
    if (auto refusal = AgainstNumber(field.text)) return refusal;
    const double percent = ParsedNumber(field.text);
    if (percent > 100) return CountsAs("100");
    if (percent < 0) return CountsAs("1");
    return std::nullopt;
}

// Asked where a run has ended without figures.
std::optional<Refusal> PlantPanel::AgainstAir(const TextField& temperature,
                                              const TextField& humidity) const {
    if (figures_of_.Hold(Basis())) return std::nullopt;
    const double t = ParsedNumber(temperature.text);
    if (!(t >= kLowestTemperature && t <= kHighestTemperature)) {
        return Refusal{Caption::OutsideLimits, TrimmedNumberText(kLowestTemperature),
                       TrimmedNumberText(kHighestTemperature).append(" ").append(UnitDegC)};
    }
    double fraction = ReadHumidity(humidity) / 100, any_pressure = 1;
    ClampArguments(fraction, any_pressure);
    StateSolver& solver = context_.solver;
    const bool air =
        IsExact() ? ExactAir(solver).XFromHumidity(fraction, t).has_value()
                  : EvaluateState(solver.Tables(), fraction, t, solver.ChartDruckBar).has_value();
    return air ? std::nullopt : std::optional(Refusal{Caption::NoSuchState});
}

}  // namespace zandrell
