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

    // Brings the process in force in line with its fields: what is typed is confirmed as Return
    // would, by the handlers of `acts`, and a process that was not computed is. Values that cannot
    // be used leave what belongs to earlier inputs.
    void TakeTyped(const ActTable& acts);
    // Whether loads of the process in force, as noted last, belong to earlier inputs; the same of
    // what is drawn.
    bool HasStaleLoads() const;
    bool HasStaleMarks() const;

    // Computes the process in force from its fields, and draws it.
    void Calculate();

    // Of the calculation in force.
    ProcessStates States() const;

    // Draws the process in force again, after the scale of the chart has changed.
    void Repeat();

    const ProcessSurroundings& Around() const { return around_; }

  private:
    void NotePanelInForce();

    ProcessSurroundings around_;
};

}  // namespace zandrell
