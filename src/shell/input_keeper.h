#pragma once

#include <functional>

#include "base/shared_values.h"
#include "processes/process_panels.h"
#include "projects/working_state.h"
#include "shell/main_controls.h"

namespace zandrell {

// The inputs of the main window, and what follows when they are replaced as a whole.
class InputKeeper {
  public:
    // `title_changed` writes the title of the window. All of it outlives the keeper.
    InputKeeper(SharedValues& shared, ProcessPanels& processes, MainControls& controls,
                std::function<void()> title_changed)
        : shared_(shared),
          processes_(processes),
          controls_(controls),
          title_changed_(std::move(title_changed)) {}

    // Those that outlive a run.
    WorkingStateFields Fields();

    // After a load, the same behind which nothing is left of what was derived from other inputs.
    void FollowLoad();

    // Brings ranges and positions of all bars in line with the fields. The bars run nothing
    // meanwhile, so that no field is rewritten and nothing is computed.
    void AlignBars();

    // After the inputs were replaced: bars and steps are brought in line, the process in force is
    // computed once, and the project's texts are shown. The bars run nothing meanwhile, so that the
    // inputs stay as they are.
    void Follow();

    // Title and remark are one value with their fields, both ways.
    void ShowProjectTexts();
    void TakeProjectTexts();

  private:
    SharedValues& shared_;
    ProcessPanels& processes_;
    MainControls& controls_;
    std::function<void()> title_changed_;
};

}  // namespace zandrell
