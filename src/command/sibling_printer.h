#pragma once

#include "printing/print_device.h"

namespace zandrell {

// Prints to a PDF by the program that draws with the toolkit, so that a script that prints nothing
// starts without it.
class SiblingPrinter : public PrintDevice {
  public:
    std::vector<std::string> FontNames() override;
    // Of a file the whole sheet can be printed on.
    DeviceSize PrintableSize(const std::string& paper, bool landscape) override;
    // That of the window with which a script starts.
    DeviceSize ScreenSize() override { return {1280, 800}; }
    void PrintToFile(const std::string& path) override { path_ = path; }
    bool Print(const Sheet& sheet, std::string& error) override;
    void Preview(const Sheet& /*sheet*/) override {}

  private:
    std::string path_;
};

// What the other program does for this one: `--fonts`, or `--page FILE` with a page as text on the
// standard input.
inline constexpr std::string_view kFontsOption = "--fonts", kPageOption = "--page";
inline constexpr std::string_view kDrawingProgram = "zandrell-calc-chart";

}  // namespace zandrell
