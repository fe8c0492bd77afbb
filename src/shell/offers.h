#pragma once

#include "base/captions.h"
#include "processes/process_panels.h"
#include "shell/main_controls.h"
#include "shell/panel_keeper.h"

namespace zandrell {

// Shows what can be started and what is running: buttons and menu entries that would be refused are
// off and say why, those of the running calculation are checked, and its panel is named by it.
void ShowOffers(MainControls& controls, ProcessPanels& processes, const PanelKeeper& panels,
                const Captions& captions);

}  // namespace zandrell
