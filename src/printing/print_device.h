#pragma once

#include <string>
#include <vector>

#include "canvas/sheet.h"

namespace zandrell {

// Sizes that the printer information shows.
struct DeviceSize {
    int width = 0, height = 0;  // pixels
};

// What takes pages, and what the system says of it. The windows answer with the toolkit, the
// command with a PDF, tests with what they were given.
class PrintDevice {
  public:
    virtual ~PrintDevice() = default;

    // The names of all fonts that can be printed, sorted.
    virtual std::vector<std::string> FontNames() = 0;
    // Of a page of that kind: what can be printed on.
    virtual DeviceSize PrintableSize(const std::string& paper, bool landscape) = 0;
    virtual DeviceSize ScreenSize() = 0;
    // From here on pages go to this PDF instead of a printer.
    virtual void PrintToFile(const std::string& path) = 0;
    // False, with one clear line in `error`, when the page could not be printed.
    virtual bool Print(const Sheet& sheet, std::string& error) = 0;
    // Shows the page as it would print, and returns when that is closed.
    virtual void Preview(const Sheet& sheet) = 0;
};

}  // namespace zandrell
