#pragma once

#include <string>

#include "canvas/sheet.h"

namespace zandrell {

// A page as text, by which the program without the toolkit hands it to the one that draws with it.
std::string SheetAsText(const Sheet& sheet);

// False when the text is no page.
bool SheetFromText(const std::string& text, Sheet& sheet);

}  // namespace zandrell
