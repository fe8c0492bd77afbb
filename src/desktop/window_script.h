#pragma once

#include <QObject>
#include <deque>
#include <string>
#include <string_view>
#include <utility>

#include "desktop/qt_user.h"
#include "shell/form_script.h"

namespace zandrell {

// Performs the acts of a script in the windows of a program, one in each turn of the event loop, so
// that what they lead to is seen. The first line that cannot be carried out ends the program, with
// a message that says which.
class WindowScript {
  public:
    virtual ~WindowScript() = default;
    WindowScript(const WindowScript&) = delete;
    WindowScript& operator=(const WindowScript&) = delete;

    // False when the file cannot be read.
    bool Start(const std::string& path);
    // Whether a line could not be carried out; it has been reported, and the program ends.
    bool Failed() const { return failed_; }

  protected:
    // `user` outlives the script; messages of the program begin with `program`.
    WindowScript(std::string_view program, FormScript script, QtUser& user);

    virtual bool RunLine(const std::string& line, std::string& error) = 0;
    // Brings the windows up to date behind a line.
    virtual void RefreshWindows() = 0;
    // While that holds, no line is performed.
    virtual bool IsBusy() const { return false; }
    // Whether the last line ends the program.
    virtual bool EndsProgram() const = 0;

    FormScript script_;

  private:
    void Schedule();
    void RunNextLine();
    void Fail(int number, const std::string& error);

    std::string program_;
    QObject context_;                                // calls that are still to come die with it
    std::deque<std::pair<int, std::string>> lines_;  // with their numbers
    bool failed_ = false;
};

}  // namespace zandrell
