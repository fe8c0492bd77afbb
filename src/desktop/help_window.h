#pragma once

#include "desktop/modal_window.h"
#include "help/help_form.h"

namespace zandrell {

// The window with the text of a topic, which can be rewritten and saved.
class HelpWindow : public ModalWindow {
  public:
    // Both outlive the window.
    HelpWindow(HelpForm& form, Pictures& pictures, QWidget* parent);
};

}  // namespace zandrell
