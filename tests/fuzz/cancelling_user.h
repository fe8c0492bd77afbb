#pragma once

#include "forms/user_interface.h"
#include "forms/window_form.h"

namespace zandrell::fuzz {

// Cancels every window and declines every question.
class CancellingUser : public UserInterface {
  public:
    void ShowMessage(const Message&) override {}
    bool Confirm(const Message&) override { return false; }
    void ShowModal(ModalForm& window) override { window.UserClick(window.cancel_control); }
    void WaitMilliseconds(int) override {}
    void CopyChart() override {}
    bool ChoosePrinter(const std::string&) override { return false; }
};

}  // namespace zandrell::fuzz
