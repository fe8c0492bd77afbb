// An impatient hand on the selection window, on the panel of the duty beside it, and on whatever
// they open. What must hold: no act hangs or fails, every figure is a number, the lists hold
// together, and the window can be left.
#include <gtest/gtest.h>

#include "forms/grid.h"
#include "random_hand.h"
#include "selection/planner_form.h"
#include "shell/control_dump.h"
#include "shell/selection_desk.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

constexpr int kActsOfARun = 500;

struct Program {
    Program(RandomHand& hand, const TestFolder& folder)
        : files(folder.Path()), desk(hand, files, NamedFolder(folder.Path())) {
        desk.Load();
        planner.SetCaptions();
        planner.ask_file = [&folder](const std::string&) { return (folder / "list.csv").string(); };
        planner.Start({});
    }

    DataFiles files;
    SelectionDesk desk;
    SelectionContext context{files, desk.shared, desk.captions, desk.User(), desk.selection};
    SelectionOpener opener{context, desk.window};
    PlannerForm planner{context, desk.window, opener};
};

class SelectionHand : public RandomHand {
  public:
    using RandomHand::RandomHand;

    void Act(Program& program) {
        static const int callers[] = {0, 1, 44, 55, 88, 444};
        VentZeigForm& window = program.desk.window;
        switch (random_() % 8) {
            case 0:
                ActOn(program.planner);
                break;
            case 1:
            case 2:
            case 3:
                ActOnGrid(window, random_() % 2 == 0 ? "KatalogSpread" : "Venttab");
                break;
            case 4:
                if (random_() % 10 == 0) {
                    program.desk.selection.VentAufruf = OneOf(callers, random_);
                    break;
                }
                [[fallthrough]];
            default:
                ActOn(window);
        }
        if (program.planner.Follow() == SelectionEnd::None) return;
        ++times_left;
        program.planner.Start(program.opener.duty);
    }

    int times_left = 0;

  private:
    void ActOnGrid(VentZeigForm& window, std::string_view grid) {
        const int row = static_cast<int>(random_() % 52) - 1;
        const int column = static_cast<int>(random_() % 16) - 1;
        static const ActKind kinds[] = {ActKind::RowsUp, ActKind::RowsDown, ActKind::Tell};
        switch (random_() % 6) {
            case 0:
                window.UserHover(grid, row);
                return;
            case 1:
                window.UserSort(grid, column);
                return;
            case 2:
                window.UserReturn(grid);
                return;
            case 3:
                window.UserGridAct(grid, OneOf(kinds, random_));
                return;
            default:
                window.UserPickCell(grid, row % 12, column);
        }
    }
};

// No figure is no number, and each list stands where it has rows.
void ExpectSound(Program& program, const std::string& when) {
    for (WindowForm* window : {static_cast<WindowForm*>(&program.desk.window),
                               static_cast<WindowForm*>(&program.planner)}) {
        for (const Control* control : window->form.Controls()) {
            if (control->kind == ControlKind::TextField) continue;  // what was typed
            const std::string text =
                DumpControl(*control).dump(-1, ' ', false, Json::error_handler_t::replace);
            EXPECT_EQ(text.find("nan\""), std::string::npos) << control->name << when << text;
            EXPECT_EQ(text.find("inf\""), std::string::npos) << control->name << when;
        }
    }
    VentZeigControls& c = program.desk.window.controls;
    for (const Grid* grid : {&c.KatalogSpread, &c.Venttab}) {
        EXPECT_GE(grid->TopRow(), 1) << when;
        EXPECT_LT(grid->row, std::max(grid->RowCount(), 2)) << when;
        EXPECT_GE(grid->row, 0) << when;
    }
    EXPECT_LE(program.planner.lists.Comparison.ColumnCount(), 1 + PlannerLists::kMostCompared);
    const bool open = program.desk.selection.OffeneSerie == kSeriesIsOpen;
    EXPECT_TRUE(open || !c.pn77.visible) << when << ": units of no series";
}

TEST(RandomActs, LeaveASelectionThatCounts) {
    const int acts = WantedActs();
    int times_left = 0;
    for (int done = 0, seed = 1; done < acts; done += kActsOfARun, ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestFolder folder;
        folder.CopyWholeSet();
        SelectionHand hand(static_cast<unsigned>(seed));
        Program program(hand, folder);
        for (int i = 0; i < kActsOfARun && !HasFailure(); ++i) {
            hand.Act(program);
            if (i % 10 == 0) ExpectSound(program, " act " + std::to_string(i));
        }
        program.desk.window.UserClick(program.desk.window.cancel_control);
        EXPECT_EQ(program.planner.Follow(), SelectionEnd::WithoutResult);
        times_left += hand.times_left;
    }
    EXPECT_GT(times_left, 0) << "the end is among the acts";
}

}  // namespace
}  // namespace zandrell
