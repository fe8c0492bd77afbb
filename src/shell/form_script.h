#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/main_form.h"
#include "shell/script_stage.h"

namespace zandrell {

// What is longer is no act.
inline constexpr std::size_t kLongestScriptLine = 1U << 20U;

// The next line of a script without its end; false behind the last. Of a line that is too long only
// its beginning is read, a byte more than the longest act.
bool ReadScriptLine(std::istream& script, std::string& line);

// The acts of one line of a script: `print FILE` stands for the three of a print-out, any other
// line for itself.
std::vector<std::string> ActsOf(std::string line);

// Carries out one act a line on a window, or on the one that is open over it, as a user would.
class FormScript {
  public:
    // Dumps go to `dumps`. All of it outlives the script.
    FormScript(MainForm& form, std::ostream& dumps);
    FormScript(ScriptStage& stage, std::ostream& dumps);

    // False when the line cannot be understood, with the reason. Blank lines and comments do
    // nothing.
    bool RunLine(std::string_view written, std::string& error);

    // What opened since the last dump.
    void NoteMessage(const Message& message) { opened_.push_back(message); }
    // A window is open until WindowClosed; meanwhile the main form takes no input.
    void WindowOpened(ModalForm& window);
    void WindowClosed();

    // Answers that are waiting for the next dialog or message; empty when there is none.
    std::string TakeAnswer();

  private:
    struct Target {
        WindowForm* window = nullptr;
        std::string control;
    };
    using Words = std::vector<std::string>;

    bool RunControlAct(const std::string& act, const std::string& name, const std::string& value,
                       std::string& error);
    bool RunClock(const Words& words, std::string& error);
    bool RunPrinter(const std::string& file, std::string& error);
    bool RunKey(const Target& target, const std::string& key, std::string& error);
    bool Find(const std::string& name, Target& target, std::string& error);
    bool Dump(const Words& words, std::string& error);

    std::unique_ptr<ScriptStage> own_stage_;
    ScriptStage& stage_;
    std::ostream& dumps_;
    ModalForm* window_ = nullptr;
    std::vector<ModalForm*> below_;  // windows that opened others
    std::vector<Message> opened_;
    std::vector<std::string> answers_;
};

// Of the main window, in device-independent pixels.
struct WindowSize {
    int width = 1280;
    int height = 800;
};

// Runs a whole script and answers for the user on the way: a window that opens takes the following
// lines until it closes.
class ScriptedUser : public UserInterface {
  public:
    ScriptedUser(std::istream& script, std::ostream& dumps) : script_(script), dumps_(dumps) {}

    // Starts the form like the program (load, resize, activate) and runs the script. False on the
    // first line that cannot be carried out; `error` says which and why.
    bool Run(MainForm& form, std::string& error, WindowSize size = {});
    // The same with another stage, which `start` makes ready.
    bool Run(ScriptStage& stage, std::string& error, const std::function<void()>& start);

    void ShowMessage(const Message& message) override;
    void ShowModal(ModalForm& window) override;
    void WaitMilliseconds(int /*milliseconds*/) override {}
    bool Confirm(const Message& question) override;
    void CopyChart() override {}
    bool ChoosePrinter(const std::string& title) override;

  private:
    bool ReadAct(std::string& act);
    bool RunNextLine();

    std::istream& script_;
    std::ostream& dumps_;
    FormScript* acts_ = nullptr;
    std::deque<std::string> acts_ahead_;  // of the line that was read last
    int line_number_ = 0;
    std::string error_;
};

}  // namespace zandrell
