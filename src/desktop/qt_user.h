#pragma once

#include <QPointer>
#include <QPrinter>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "desktop/modal_window.h"
#include "desktop/pictures.h"
#include "forms/user_interface.h"
#include "shell/main_form.h"

namespace zandrell {

// Answers the program's questions by windows of the toolkit.
class QtUser : public UserInterface {
  public:
    // The main window, once there is one: dialogs stand over it, and what its form shows is brought
    // up to date before anybody waits.
    struct Opener {
        QWidget* window = nullptr;
        MainForm* form = nullptr;
        Pictures* pictures = nullptr;
        std::function<void()> refresh;
        // Of a window without a main form: the help to what is open, and its own form.
        std::function<void()> open_help = {};
        ModalForm* help = nullptr;
    };
    void Attach(Opener opener) { opener_ = std::move(opener); }

    // Who follows what is shown: a window that opens (null when it has closed), a message.
    std::function<void(ModalForm*)> on_window;
    std::function<void(const Message&)> on_message;

    void ShowMessage(const Message& message) override;
    // A form without a window of its own here counts as cancelled: nobody could close it.
    void ShowModal(ModalForm& window) override;
    // The table of states stands beside the main window, which stays in use.
    void ShowBeside(StateTableForm& table);
    // Brings it up to date, or closes it with its form.
    void FollowBeside() const;
    void WaitMilliseconds(int milliseconds) override;
    bool Confirm(const Message& question) override;
    void CopyChart() override;
    bool ChoosePrinter(const std::string& title) override;

    // While the system ends the program: messages go to the standard error, questions are declined.
    bool nobody_answers = false;

    // A PDF that takes the pages in place of a printer; empty: none. No printer is asked for then.
    std::string print_file;

    // The printer chosen last, the system's own before that.
    QPrinter& Printer();

  private:
    void Refresh() const;
    void Run(ModalWindow& dialog, ModalForm& window) const;
    void OfferHelp(ModalWindow& dialog, const ModalForm& window) const;
    static void Refuse(ModalForm& window);

    Opener opener_;
    QPointer<ModalWindow> beside_;  // its parent owns it
    std::unique_ptr<QPrinter> printer_;
};

}  // namespace zandrell
