#pragma once

#include "forms/act_table.h"
#include "forms/form.h"
#include "processes/plant_panel.h"
#include "processes/point_panel.h"

namespace zandrell {

// Both floating panels with what they share: the calculation in force and the figures that it
// leaves. One of them, or neither, is in force at a time.
class ProcessPanels {
  public:
    explicit ProcessPanels(const ProcessSurroundings& around);
    ProcessPanels(const ProcessPanels&) = delete;
    ProcessPanels& operator=(const ProcessPanels&) = delete;

    Calculation Rechenmodus = Calculation::None;
    ProcessFigures figures;
    PointPanel point;
    PlantPanel plant;

    void ListControls(Form& form);
    void BindActs(ActTable& acts);

    // Marks fields and figures of the open panel; after whatever may have changed them.
    void NoteFields();

    // Of the calculation in force.
    ProcessStates States() const;

    // Draws the process in force again, after the scale of the chart has changed.
    void Repeat();

    const ProcessSurroundings& Around() const { return around_; }

  private:
    ProcessSurroundings around_;
};

}  // namespace zandrell
