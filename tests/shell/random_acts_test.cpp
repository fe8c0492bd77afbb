// An impatient hand: acts at random on the main form and on whatever window is open. Usually a
// thousand; ZANDRELL_RANDOM_ACTS asks for more, as the run under sanitizers does. What must hold:
// no act hangs or fails, every figure in the dump is a number, and the end comes when it is asked
// for.
#include <gtest/gtest.h>

#include <set>

#include "random_hand.h"
#include "script_session.h"

namespace zandrell {
namespace {

constexpr int kActsOfARun = 400;  // a fresh program now and then

class MainHand : public RandomHand {
  public:
    using RandomHand::RandomHand;

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
};

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
        MainHand hand(static_cast<unsigned>(seed));
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
