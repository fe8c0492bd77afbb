#pragma once

#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "forms/window_form.h"

namespace zandrell {

using Json = nlohmann::ordered_json;

// What there is to say of a control: its kind, and what applies of its texts, places and colours.
Json DumpControl(const Control& control);

// Adds the title and the controls of each open window as "WINDOW.NAME".
void DumpOpenWindows(const std::vector<ModalForm*>& windows, Json& json);

// One control, or the title, of one of the windows as "WINDOW.NAME"; null when there is none.
Json DumpOfWindows(const std::vector<ModalForm*>& windows, std::string_view name);

}  // namespace zandrell
