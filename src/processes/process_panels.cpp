#include "processes/process_panels.h"

namespace zandrell {

ProcessPanels::ProcessPanels(const ProcessSurroundings& around)
    : point({around, figures, Rechenmodus}),
      plant({around, figures, Rechenmodus}),
      around_(around) {
    point.Anlage1PN.visible = false;
    plant.Frame1.visible = false;
}

void ProcessPanels::ListControls(Form& form) {
    point.ListControls(form);
    plant.ListControls(form);
}

void ProcessPanels::NoteFields() {
    if (point.Anlage1PN.visible) point.NoteFields();
    if (plant.Frame1.visible) plant.NoteFields();
}

ProcessStates ProcessPanels::States() const {
    return Rechenmodus == Calculation::Plant ? plant.States() : point.States();
}

void ProcessPanels::BindActs(ActTable& acts) {
    point.BindActs(acts);
    plant.BindActs(acts);
}

void ProcessPanels::Repeat() {
    if (Rechenmodus == Calculation::Plant) {
        plant.AnlageBerechnen();
        return;
    }
    const bool mixed = Rechenmodus == Calculation::Mixing && around_.overlay.PP3.visible;
    point.MarkenSetzen(Rechenmodus, mixed ? MarkPlacing::WithMixture : MarkPlacing::FromFields);
}

}  // namespace zandrell
