#pragma once

#include <functional>

#include "chart/chart_engine.h"
#include "forms/user_interface.h"
#include "printing/chart_print_out.h"
#include "printing/print_device.h"
#include "printing/print_setup_form.h"

namespace zandrell {

// What the print-out works on. All of it outlives the print-out.
struct PrintingContext {
    UserInterface& user;
    const DataFiles& files;
    SharedValues& shared;
    const Captions& captions;
    ChartEngine& chart;
    const Overlay& overlay;
    const ProcessPanels& processes;
    const TextField& Proj_T;
    const TextField& Schr_T;
};

// One page with the chart as it stands, the process over it and the figures below it.
class ChartPrinting {
  public:
    explicit ChartPrinting(const PrintingContext& context);

    PrintSetupForm setup;
    // Asked before a page is made: brings the process in line with its fields, and refuses with
    // words of its own where it cannot. Empty: nothing is in the way.
    std::function<bool()> may_print;
    std::function<void()> after_printing;  // draws the screen and repeats the process

    // Where pages go to; null: nowhere, and a print-out says so. It outlives the print-out.
    void SetDevice(PrintDevice* device);
    // From here on pages go to that PDF. False where there is no device.
    bool PrintToFile(const std::string& path);

    // The print setup, then the page. A cancelled setup leaves everything as it was.
    void Druck_start();
    // The printer dialog alone, from the menu.
    void OpenPrinterDialog();
    void ShowPreview();

    // The page as it prints with the shared values as they are.
    Sheet ComposeSheet();

  private:
    void TakeProjectTexts();
    void AddStates(Sheet& sheet);
    void Print();
    bool MayPrint() const { return !may_print || may_print(); }

    PrintingContext context_;
    PrintDevice* device_ = nullptr;
};

}  // namespace zandrell
