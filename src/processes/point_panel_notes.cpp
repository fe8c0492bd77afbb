#include "base/number_text.h"
#include "kernel/humid_air_state.h"
#include "kernel/state_solver.h"
#include "processes/point_panel.h"

namespace zandrell {

// What the figures rest on besides the fields.
std::string PointPanel::Basis(Calculation mode) const {
    return NumberText(static_cast<int>(mode))
        .append(IsExact() ? " exact" : "")
        .append(NumberText(context_.solver.ChartDruckBar));
}

void PointPanel::NoteFields() {
    const FieldNotes notes(context_.captions);
    const std::string basis = Basis(context_.Rechenmodus);
    const bool first_typed = entry1.IsTyped(), second_typed = entry2.IsTyped();
    const bool other_states = !states_of_.Hold(basis);
    notes.MarkFigures({&absF1, &enth1}, other_states || first_typed);
    notes.MarkFigures({&absF2, &enth2}, other_states || second_typed);
    const bool other_outcome = !outcome_of_.Hold(basis) || first_typed || second_typed;
    notes.MarkFigures({&Kleist, &TempM, &relFM, &absFM}, other_outcome);
    notes.MarkFigures({&KLatent, &Ksensibel, &KondW}, other_outcome || !taken_.Holds(Kleist));
    for (TextField* field : {&Temp1, &relF1, &Temp2, &relF2, &LuftM1, &LuftM2, &Kleist}) {
        if (!taken_.Holds(*field)) {
            notes.MarkPending(*field);
        } else if (const auto refusal = RefusalOf(*field)) {
            notes.MarkRefused(*field, *refusal);
        } else if (!field->stale) {
            notes.MarkUsed(*field);
        }
    }
    entry1.NoteFields(notes);
    entry2.NoteFields(notes);
}

std::optional<Refusal> PointPanel::RefusalOf(const TextField& field) const {
    if (&field == &Kleist) {
        if (capacity_refused_) return Refusal{Caption::FlowNotPositive};
        return std::nullopt;
    }
    if (&field == &LuftM1 || &field == &LuftM2) {
        return field.visible ? AgainstFlow(field.text) : std::nullopt;
    }
    const bool is_temperature = &field == &Temp1 || &field == &Temp2;
    auto refusal = is_temperature ? AgainstTemperature(field.text, context_.settings)
                                  : AgainstHumidity(field.text);
    if (refusal) return refusal;
    const bool first = &field == &Temp1 || &field == &relF1;
    // The temperature alone is at fault.
    if (AgainstTemperature((first ? Temp1 : Temp2).text, context_.settings)) return std::nullopt;
    return HasState(first ? relF1 : relF2, first ? Temp1 : Temp2)
               ? std::nullopt
               : std::optional(Refusal{Caption::NoSuchState});
}

// Answered by the pure function: the solver keeps the state that it shows.
bool PointPanel::HasState(const TextField& humidity, const TextField& temperature) const {
    if (states_of_.Hold(Basis(context_.Rechenmodus))) return true;
    StateSolver& solver = context_.solver;
    return EvaluateState(solver.Tables(), ParsedNumber(humidity.text) / 100,
                         ParsedNumber(temperature.text), solver.ChartDruckBar)
        .has_value();
}

}  // namespace zandrell
