#pragma once

#include <string>

#include "desktop/main_window.h"
#include "desktop/window_script.h"

namespace zandrell {

// Beside the acts of a form there are `shot FILE`, which keeps the windows as they stand as a PNG,
// and `window WIDTH HEIGHT`, which sizes the real window. A script with a shot in it ends the
// program behind its last line.
class ScriptRunner : public WindowScript {
  public:
    // All of it outlives the runner.
    ScriptRunner(MainForm& form, MainWindow& window, QtUser& user);

  private:
    bool RunLine(const std::string& line, std::string& error) override;
    void RefreshWindows() override;
    bool EndsProgram() const override { return shot_taken_; }
    bool TakeShot(const std::string& path, std::string& error);

    MainWindow& window_;
    bool shot_taken_ = false;
};

}  // namespace zandrell
