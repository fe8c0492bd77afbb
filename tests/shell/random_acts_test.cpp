// An impatient hand: acts at random on the main form and on whatever window is open. Usually a
// thousand; ZANDRELL_RANDOM_ACTS asks for more, as the run under sanitizers does. What must hold:
// no act hangs or fails, every figure in the dump is a number, and the end comes when it is asked
// for.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>
#include <sstream>

#include "forms/choice_list.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr int kUsualActs = 1000;
constexpr int kActsOfARun = 400;  // a fresh program now and then

const char* const kTexts[] = {"",          "0",    "-5",    "12",   "20",    "18,5",
                              "55",        "100",  "101",   "abc",  "1e308", "-1e-9",
                              "1e-306",    "\"",   "> 100", "1000", "10000", "K\xC3\xBChlhaus",
                              "Halle.prj", "../x", "\xE9"};
// The window's own end comes last; what leaves the data folder is no act here.
const std::string_view kPassedOver[] = {"Ende",   "Command3D2", "Dir1",
                                        "Drive1", "Command1",   "Ok_butt"};

template <class List>
const auto& OneOf(const List& list, std::mt19937& random) {
    return list[random() % std::size(list)];
}

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

    void Act(MainForm& main) {
        const double x = static_cast<double>(random_() % 2100) - 50;
        const double y = static_cast<double>(random_() % 640) - 20;
        const auto button = random_() % 8 == 0 ? PointerButton::Right : PointerButton::Left;
        switch (random_() % 12) {
            case 0:
                return main.PointerMove({x, y});
            case 1:
                return main.PointerPress(button, {x, y});
            case 2:
                return main.PointerRelease(button);
            case 3: {
                const auto marks = main.Pointer().MarksToPickUp();
                if (!marks.empty())
                    main.PointerPress(PointerButton::Left, OneOf(marks, random_)->state);
                return;
            }
            case 4:
                main.Pointer().ZoomAround({x, y}, random_() % 2 == 0 ? 1.4 : 0.7);
                return;
            case 5:
                return main.Resize(static_cast<int>(400 + random_() % 3000),
                                   static_cast<int>(300 + random_() % 1800));
            case 6:
                return main.Activate();
            default:
                return ActOn(main);
        }
    }

  private:
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

int WantedActs() {
    const char* wanted = std::getenv("ZANDRELL_RANDOM_ACTS");
    return wanted != nullptr ? std::atoi(wanted) : kUsualActs;
}

// No figure is no number, and the pointer is always owned by somebody.
void ExpectSound(MainForm& main, const std::string& when) {
    static const std::set<int> owners = {0, 1, 2, 4, 5, 33, 44, 77};
    EXPECT_TRUE(owners.contains(static_cast<int>(main.Pointer().PanelZustand()))) << when;
    const std::string dump = DumpForm(main).dump(-1, ' ', false, Json::error_handler_t::replace);
    EXPECT_EQ(dump.find("null"), std::string::npos) << when;
    for (const Control* control : main.form.Controls()) {
        if (control->kind != ControlKind::Label) continue;
        EXPECT_EQ(control->text.find("nan"), std::string::npos) << control->name << when;
        EXPECT_EQ(control->text.find("inf"), std::string::npos) << control->name << when;
    }
}

TEST(RandomActs, LeaveAProgramThatCounts) {
    const int acts = WantedActs();
    for (int done = 0, seed = 1; done < acts; done += kActsOfARun, ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestFolder folder;
        folder.CopyWholeSet();
        if (seed % 2 == 0) {  // under the convention of a new installation
            std::filesystem::copy(std::filesystem::path(ZANDRELL_SOURCE_DATA) / "qv_par.dat",
                                  folder / "qv_par.dat",
                                  std::filesystem::copy_options::overwrite_existing);
        }
        RandomHand hand(static_cast<unsigned>(seed));
        DataFiles files(folder.Path());
        MainForm main(hand, files, NamedFolder(folder.Path()));
        main.Load();
        main.shared.ProjectFolder = folder.Path().string();
        main.Resize(1280, 800);
        main.Activate();
        for (int i = 0; i < kActsOfARun && !main.ended && !HasFailure(); ++i) {
            hand.Act(main);
            if (i % 20 == 0) {
                ExpectSound(main, "act " + std::to_string(i));
            }
        }
        main.ende_qv();
        if (!main.ended) main.ende_qv();
        EXPECT_TRUE(main.ended);
    }
}

}  // namespace
}  // namespace zandrell
