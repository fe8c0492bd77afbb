#pragma once

#include "desktop/floating_panel.h"

namespace zandrell {

// The panel of two air states, with all its controls.
FloatingPanel* MakePointPanelView(MainForm& form, FormMirror& mirror, ChartWidget& chart);

}  // namespace zandrell
