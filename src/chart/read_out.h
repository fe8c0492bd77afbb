#pragma once

#include <optional>

#include "chart/chart_scale.h"
#include "forms/control.h"
#include "forms/form.h"
#include "kernel/state_solver.h"

namespace zandrell {

// The panel that shows the state under the pointer.
struct ReadOutPanel {
    Panel Pn1{"Pn1"};
    Label Temp{"Temp"}, relF{"relF"}, absF{"absF"}, EnthL{"EnthL"}, DichtL{"DichtL"},
        DampfDS{"DampfDS"}, AbsDruck{"AbsDruck"};

    void ListControls(Form& form);
};

// Shows the state at a point of the chart. Below humidity 0 and from saturation on only t and x are
// numbers: there is no state in the fog. A point outside the limits of the state function shows
// "-".
void ShowStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel);

}  // namespace zandrell
