#include "forms/scroll_bar.h"

#include <gtest/gtest.h>

#include <vector>

namespace zandrell {
namespace {

TEST(ScrollBar, FiresOnlyWhenItsPositionReallyChanges) {
    ScrollBar bar("bar");
    std::vector<int> seen;
    bar.on_change = [&] { seen.push_back(bar.Position()); };
    const struct {
        std::optional<int> position;
        bool taken;
    } moves[] = {{0, true},   {250, true}, {250, true},  {1001, false},
                 {-1, false}, {{}, false}, {1000, true}, {0, true}};
    for (const auto& move : moves) EXPECT_EQ(bar.SetPosition(move.position), move.taken);
    EXPECT_EQ(seen, (std::vector<int>{250, 1000, 0}));
}

TEST(ScrollBar, ARangeMovesWhatNoLongerFitsToTheNearerEnd) {
    ScrollBar bar("bar");
    int fired = 0;
    bar.on_change = [&] { ++fired; };
    bar.SetRange(-200, 400);
    EXPECT_EQ(fired, 0);
    bar.SetLowEnd(130);
    EXPECT_EQ(bar.Position(), 130);
    bar.SetPosition(300);
    bar.SetHighEnd(200);
    EXPECT_EQ(bar.Position(), 200);
    EXPECT_EQ(fired, 3);
    // The low end above the high end spans the numbers between them.
    bar.SetRange(500, 180);
    EXPECT_EQ(bar.Position(), 200);
    EXPECT_TRUE(bar.SetPosition(480));
    EXPECT_FALSE(bar.SetPosition(501));
}

TEST(ScrollBar, AHandlerMayMoveItsOwnBar) {
    ScrollBar bar("bar");
    int runs = 0;
    bar.on_change = [&] {
        ++runs;
        bar.SetPosition(77);
    };
    bar.SetPosition(5);
    EXPECT_EQ(bar.Position(), 77);
    EXPECT_EQ(runs, 2);
}

}  // namespace
}  // namespace zandrell
