#pragma once

#include <string>

namespace zandrell {

class ModalForm;
class MainForm;

enum class MessageIcon { Stop, Information };

struct Message {
    std::string title;
    std::string text;
    MessageIcon icon = MessageIcon::Information;
};

// Everything for which the program waits for somebody else. Each call blocks until it is answered.
// The windows answer with the toolkit, scripts and tests from what they were given.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    virtual void ShowMessage(const Message& message) = 0;
    // Shows a window and returns when its `closed` is set.
    virtual void ShowModal(ModalForm& window) = 0;
    virtual void WaitMilliseconds(int milliseconds) = 0;
    // The chart with its process goes to the clipboard.
    virtual void CopyChart(MainForm& form) = 0;
    // The system's own printer dialog. Returns whether it was not cancelled.
    virtual bool ChoosePrinter(const std::string& title) = 0;
};

}  // namespace zandrell
