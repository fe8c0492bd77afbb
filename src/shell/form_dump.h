#pragma once

#include <string_view>
#include <vector>

#include "shell/control_dump.h"
#include "shell/main_form.h"

namespace zandrell {

// Every control of the main form, of the windows behind it and every value of the program, by name.
Json DumpForm(MainForm& main);

// One of them; null when there is no such name. A control of a window of its own is "WINDOW.NAME".
Json DumpOne(MainForm& main, std::string_view name);

// The windows that the main form can open.
std::vector<ModalForm*> WindowsOf(MainForm& main);

}  // namespace zandrell
