#pragma once

#include "desktop/modal_window.h"
#include "printing/print_setup_form.h"

namespace zandrell {

// The window that comes before every print-out.
class PrintSetupWindow : public ModalWindow {
  public:
    // All of it outlives the window.
    PrintSetupWindow(PrintSetupForm& form, Pictures& pictures, QWidget* parent);

  protected:
    void Refreshed() override;

  private:
    QWidget* MakePaper();
    QWidget* MakeLogo();
    QWidget* MakeFonts();
    QWidget* MakeInformation();
    QWidget* MakeButtons();

    PrintSetupForm& setup_;
    Pictures& pictures_;
    QLabel* sample_ = nullptr;
    QLabel* logo_ = nullptr;
    std::string shown_logo_;
};

}  // namespace zandrell
