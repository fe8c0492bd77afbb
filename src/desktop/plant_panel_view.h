#pragma once

#include "desktop/floating_panel.h"

namespace zandrell {

// The panel of the air-handling plant, with all its controls.
FloatingPanel* MakePlantPanelView(MainForm& form, FormMirror& mirror, ChartWidget& chart);

}  // namespace zandrell
