#pragma once

#include <string>
#include <string_view>

#include "base/captions.h"
#include "base/shared_values.h"
#include "canvas/sheet.h"

namespace zandrell {

// What every printed page starts with: its set-up, the header and the project's texts.
class PagePrinter {
  public:
    // All of it outlives the printer. `logo_file` is the picture that the print setup left; empty:
    // none.
    PagePrinter(Sheet& sheet, SharedValues& shared, const Captions& captions,
                std::string_view logo_file)
        : sheet_(sheet), shared_(shared), captions_(captions), logo_file_(logo_file) {}

    // Makes the page W by H units (0: as many as it has millimetres), landscape when `orientation`
    // is above 1, and prints the header in the style of HeaderStyle: 1 is the short one.
    void PrintPageHeader(const std::string& title, const std::string& pageText, double width,
                         double height, int orientation);

    // Prints what stands behind the separator "§$&" at x + columnOffset; a second separator belongs
    // to the right column. Both columns end in front of `room_right`.
    void PrintTwoColumns(double x, double y, const std::string& text, double columnOffset,
                         double room_right);

  private:
    void PrintShortHeader(const std::string& title, const std::string& pageText);
    void PrintFramedHeader(const std::string& title, const std::string& pageText);
    void PrintLogo();
    std::string Worded(Caption word) const;

    Sheet& sheet_;
    SharedValues& shared_;
    const Captions& captions_;
    std::string_view logo_file_;
    double W_ = 1, H_ = 1;
};

}  // namespace zandrell
