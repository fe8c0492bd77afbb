#pragma once

#include <cstdlib>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "forms/choice_list.h"
#include "forms/grid.h"
#include "forms/scroll_bar.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"

namespace zandrell {

inline const char* const kTexts[] = {
    "",          "0",     "-5",    "12",     "20", "18,5",  "55",   "100",   "101",
    "abc",       "1e308", "-1e-9", "1e-306", "\"", "> 100", "1000", "10000", "K\xC3\xBChlhaus",
    "Halle.prj", "../x",  "\xE9"};
// The window's own end comes last; what leaves the data folder is no act here.
inline const std::string_view kPassedOver[] = {"Ende",   "Command3D2", "Dir1",
                                               "Drive1", "Command1",   "Ok_butt"};

template <class List>
const auto& OneOf(const List& list, std::mt19937& random) {
    return list[random() % std::size(list)];
}

// How many acts a run shall have; ZANDRELL_RANDOM_ACTS asks for more than the usual thousand.
inline int WantedActs() {
    const char* wanted = std::getenv("ZANDRELL_RANDOM_ACTS");
    return wanted != nullptr ? std::atoi(wanted) : 1000;
}

// A user who does anything to whatever window is open.
class RandomHand : public UserInterface {
  public:
    explicit RandomHand(unsigned seed) : random_(seed) {}

    void ShowMessage(const Message&) override {}
    bool Confirm(const Message&) override { return random_() % 2 == 0; }
    void WaitMilliseconds(int) override {}
    void CopyChart() override {}
    bool ChoosePrinter(const std::string&) override { return false; }
    void ShowModal(ModalForm& window) override {
        for (int i = 0; i < 12 && !window.closed; ++i) ActOn(window);
        if (!window.closed) window.UserClick(window.cancel_control);
    }

  protected:
    void ActOn(WindowForm& window) {
        const auto& controls = window.form.Controls();
        Control& control = *OneOf(controls, random_);
        const std::string_view name = control.name;
        for (const std::string_view passed : kPassedOver) {
            if (name == passed) return;
        }
        switch (control.kind) {
            case ControlKind::TextField:
                window.UserSetText(name, OneOf(kTexts, random_));
                if (random_() % 3 != 0) window.UserReturn(name);
                return;
            case ControlKind::ScrollBar:
                window.UserScroll(name, static_cast<int>(random_() % 1400) - 400);
                return;
            case ControlKind::OptionButton:
                window.UserChoose(name);
                return;
            case ControlKind::CheckBox:
                window.UserCheck(name, random_() % 2 == 0);
                return;
            case ControlKind::List:
            case ControlKind::ComboBox:
                window.UserSelect(name, static_cast<int>(random_() % 5));
                return;
            default:
                window.UserClick(name);
        }
    }

    std::mt19937 random_;
};

}  // namespace zandrell
