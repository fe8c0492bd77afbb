#pragma once

#include "selection/inverter.h"
#include "selection/selection_context.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The slider and the field of the frequency at which a compressor runs, and what follows from it.
class FrequencyPanel {
  public:
    FrequencyPanel(const SelectionContext& context, VentZeigControls& controls)
        : context_(context), controls_(controls) {}

    // Shows the frequency in force; the mains gives it when none was chosen yet.
    void Activate();
    // The slider has moved.
    void inverter_rech();
    // A frequency was typed; anything but a number between 0 and 100 is refused.
    void TakeTyped();

  private:
    void ReadLabels();
    void Show(const InverterFigures& figures);

    SelectionContext context_;
    VentZeigControls& controls_;
};

}  // namespace zandrell
