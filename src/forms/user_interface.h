#pragma once

#include <string>

namespace zandrell {

class ModalForm;

enum class MessageIcon { Stop, Information, Question };

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
    // A yes/no question; closing the box by its frame is a no.
    virtual bool Confirm(const Message& question) = 0;
    // Shows a window and returns when its `closed` is set.
    virtual void ShowModal(ModalForm& window) = 0;
    virtual void WaitMilliseconds(int milliseconds) = 0;
    // The chart with its process goes to the clipboard.
    virtual void CopyChart() = 0;
    // The system's own printer dialog. Returns whether it was not cancelled.
    virtual bool ChoosePrinter(const std::string& title) = 0;
};

}  // namespace zandrell
