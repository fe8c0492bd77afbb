#pragma once

#include <QObject>
#include <deque>
#include <string>

#include "desktop/main_window.h"
#include "shell/form_script.h"

namespace zandrell {

// Performs the acts of a script in the windows, one in each turn of the event loop, so that what
// they lead to is seen. Beside the acts of a form there are `shot FILE`, which keeps the windows as
// they stand as a PNG, and `window WIDTH HEIGHT`, which sizes the real window. A script with a shot
// in it ends the program behind its last line.
class ScriptRunner {
  public:
    // All of it outlives the runner.
    ScriptRunner(MainForm& form, MainWindow& window, QtUser& user);

    // False when the file can not be read.
    bool Start(const std::string& path);
    // Whether a line could not be carried out; it has been reported, and the program ends.
    bool Failed() const { return failed_; }

  private:
    void Schedule();
    void RunNextLine();
    bool RunLine(const std::string& line, std::string& error);
    bool TakeShot(const std::string& path, std::string& error);
    void RefreshWindows();
    void Fail(const std::string& line, const std::string& error);

    MainWindow& window_;
    FormScript script_;
    QObject context_;                                // calls that are still to come die with it
    std::deque<std::pair<int, std::string>> lines_;  // with their numbers
    bool shot_taken_ = false;
    bool failed_ = false;
};

}  // namespace zandrell
