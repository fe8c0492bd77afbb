#include "processes/process_panels.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

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

// Also of a panel that is closed: its process stays on the chart.
void ProcessPanels::NotePanelInForce() {
    if (Rechenmodus == Calculation::Plant) plant.NoteFields();
    if (IsPointMode(Rechenmodus)) point.NoteFields();
}

// A run takes all fields, so what was typed in the later ones is put back before their turn: a
// calculation may have written them.
void ProcessPanels::TakeTyped(const ActTable& acts) {
    NotePanelInForce();
    Form panel("");
    if (Rechenmodus == Calculation::Plant) plant.ListControls(panel);
    if (IsPointMode(Rechenmodus)) point.ListControls(panel);
    std::vector<std::pair<Control*, std::string>> typed;
    for (Control* control : panel.Controls()) {
        if (control->pending) typed.emplace_back(control, control->text);
    }
    for (const auto& [control, text] : typed) {
        control->text = text;
        acts.Perform(control->name, ActKind::Return);
    }
    NotePanelInForce();
    if (!HasStaleLoads() && !HasStaleMarks()) return;
    Calculate();
    NotePanelInForce();
}

bool ProcessPanels::HasStaleLoads() const {
    return Rechenmodus == Calculation::Plant ? plant.Kuehl.stale : point.KondW.stale;
}

bool ProcessPanels::HasStaleMarks() const {
    const Overlay& overlay = around_.overlay;
    if (Rechenmodus == Calculation::None || !overlay.PP1.visible) return false;
    if (Rechenmodus == Calculation::Plant) return plant.Kuehl.stale;
    const bool mixed = Rechenmodus == Calculation::Mixing && overlay.PP3.visible;
    return point.absF1.stale || (mixed && point.TempM.stale);
}

void ProcessPanels::Calculate() {
    if (Rechenmodus == Calculation::Plant) {
        plant.AnlageBerechnen();
    } else if (IsPointMode(Rechenmodus)) {
        point.ZustandRechnen(Rechenmodus, MarkPlacing::FromFields);
    }
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
