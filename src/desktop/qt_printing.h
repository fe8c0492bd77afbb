#pragma once

#include <QPrinter>

#include "desktop/qt_user.h"
#include "printing/print_device.h"

namespace zandrell {

// Prints by the system's printers, or to a PDF where the user has chosen that.
class QtPrinting : public PrintDevice {
  public:
    // All of it outlives the printing; `captions` name the preview.
    QtPrinting(QtUser& user, const Captions& captions) : user_(user), captions_(captions) {}

    std::vector<std::string> FontNames() override;
    DeviceSize PrintableSize(const std::string& paper, bool landscape) override;
    DeviceSize ScreenSize() override;
    void PrintToFile(const std::string& path) override { user_.print_file = path; }
    bool Print(const Sheet& sheet, std::string& error) override;
    void Preview(const Sheet& sheet) override;

  private:
    QtUser& user_;
    const Captions& captions_;
};

}  // namespace zandrell
