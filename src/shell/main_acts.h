#pragma once

namespace zandrell {

class MainForm;

// Binds what every control of the main window starts.
void BindActs(MainForm& main);

}  // namespace zandrell
