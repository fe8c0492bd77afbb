#pragma once

#include <QPushButton>
#include <QWidget>

#include "base/captions.h"
#include "desktop/form_mirror.h"
#include "selection/planner_form.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The columns beside the lists of the selection window, made and tied to their controls.

struct DutyColumn {
    QWidget* panel = nullptr;
    QWidget* first_field = nullptr;  // where the work starts
};

// What a planner fixes before he selects.
DutyColumn MakeDutyColumn(PlannerForm& planner, FormMirror& mirror);

// The unit in hand: name, picture, class, figures, frequency and what it costs a year. The class
// says its name to a screen reader with the word in `captions`.
QWidget* MakeUnitColumn(VentZeigControls& controls, FormMirror& mirror, const Captions& captions);

// What a planner wishes of the lists: only what fits, a comparison, a plot, a file.
QWidget* MakeWishes(PlannerForm& planner, FormMirror& mirror);

QPushButton* TextButton(const Button& control, FormMirror& mirror, QWidget* parent);

// The picture that a panel of the form names, not larger than `side` pixels at scale 1.
void BindPicture(QLabel* label, const Panel& picture, int side, FormMirror& mirror);

}  // namespace zandrell
