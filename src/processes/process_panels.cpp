#include "processes/process_panels.h"

namespace zandrell {
namespace {

ProcessContext ContextOf(const ProcessPanels::Surroundings& around, ProcessFigures& figures,
                         const Calculation& mode) {
    return {around.shared,   around.captions, around.solver,
            around.settings, around.scale,    around.overlay,
            around.read_out, figures,         mode};
}

}  // namespace

ProcessPanels::ProcessPanels(const Surroundings& around)
    : point(ContextOf(around, figures, Rechenmodus)),
      plant(ContextOf(around, figures, Rechenmodus)),
      overlay_(around.overlay) {
    point.Anlage1PN.visible = false;
    plant.Frame1.visible = false;
}

void ProcessPanels::ListControls(Form& form) {
    point.ListControls(form);
    plant.ListControls(form);
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
    const bool mixed = Rechenmodus == Calculation::Mixing && overlay_.PP3.visible;
    point.MarkenSetzen(Rechenmodus, mixed ? MarkPlacing::WithMixture : MarkPlacing::FromFields);
}

}  // namespace zandrell
