#include "canvas/label_placer.h"

#include <gtest/gtest.h>

namespace zandrell {
namespace {

// Ten pixels to the em, six to a letter, on a surface of 600 by 300.
LabelPlacer Placer() {
    return LabelPlacer([](std::string_view text) { return 6.0 * static_cast<double>(text.size()); },
                       10, {0, 0, 600, 300});
}

WantedLabel At(double left, double middle, TextRole role, const std::string& text = "label") {
    return {left, middle, text, role, left, middle};
}

TEST(LabelPlacer, AFreePlaceIsTakenAsItIs) {
    auto placer = Placer();
    const auto placed = placer.Place({At(100, 50, TextRole::CurveLabel)});
    EXPECT_TRUE(placed[0].shown);
    EXPECT_FALSE(placed[0].far);
    EXPECT_EQ(placed[0].box.left, 100);
    EXPECT_EQ(placed[0].box.right, 130);
    EXPECT_EQ((placed[0].box.top + placed[0].box.bottom) / 2, 50);
}

TEST(LabelPlacer, EachRoleYieldsInItsOwnWay) {
    const struct {
        const char* name;
        TextRole role;
        bool shown, moved;
    } cases[] = {{"number", TextRole::AxisNumber, false, false},
                 {"title", TextRole::AxisTitle, true, true},
                 {"curve", TextRole::CurveLabel, true, true},
                 {"extension", TextRole::ExtensionLabel, true, true},
                 {"mark", TextRole::MarkLabel, true, true}};
    for (const auto& c : cases) {
        auto placer = Placer();
        placer.KeepClear(LabelBox{90, 40, 140, 60});
        const auto placed = placer.Place({At(100, 50, c.role)});
        EXPECT_EQ(placed[0].shown, c.shown) << c.name;
        EXPECT_EQ(placed[0].box.left != 100 || placed[0].box.top != 44.5, c.moved) << c.name;
        EXPECT_EQ(placed[0].shown && placed[0].box.Overlaps({90, 40, 140, 60}), false) << c.name;
    }
}

TEST(LabelPlacer, WhereThereIsNoRoomOnlyMarksAndTitlesKeepTheirLabels) {
    for (const auto role : {TextRole::AxisNumber, TextRole::AxisTitle, TextRole::CurveLabel,
                            TextRole::ExtensionLabel, TextRole::MarkLabel}) {
        auto placer = Placer();
        placer.KeepClear(LabelBox{-1000, -1000, 1600, 1300});
        const bool kept = role == TextRole::MarkLabel || role == TextRole::AxisTitle;
        EXPECT_EQ(placer.Place({At(100, 50, role)})[0].shown, kept) << static_cast<int>(role);
    }
}

TEST(LabelPlacer, AnExtensionsLabelMovesAlongIt) {
    for (const bool level : {true, false}) {
        auto placer = Placer();
        placer.KeepClear(LabelBox{95, 40, 125, 60});
        WantedLabel label = At(100, 50, TextRole::ExtensionLabel);
        (level ? label.along_x : label.along_y) = 1;
        const auto placed = placer.Place({label});
        EXPECT_EQ(placed[0].box.top == 44.5, level);
        EXPECT_EQ(placed[0].box.left == 100, !level);
    }
}

TEST(LabelPlacer, ALineIsNeitherCoveredNorPassed) {
    // A steep line left of which there is all the room, and right of which a wall.
    auto placer = Placer();
    placer.KeepClear(ClearLine{95, 0, 96, 300});
    placer.KeepClear(LabelBox{98, 0, 600, 45});
    placer.KeepClear(LabelBox{98, 55.5, 600, 300});
    const auto placed = placer.Place(
        {At(90, 50, TextRole::CurveLabel), At(105, 50, TextRole::CurveLabel, "longer label")});
    EXPECT_LT(placed[0].box.right, 96) << "on the side it belongs to";
    EXPECT_FALSE(placed[1].shown) << "its own side is full";
    const ClearLine line{0, 0, 100, 100};
    EXPECT_TRUE(line.Crosses({40, 45, 60, 55}));
    EXPECT_FALSE(line.Crosses({40, 65, 60, 75}));
    EXPECT_FALSE(line.Crosses({110, 105, 130, 115}));
    EXPECT_FALSE((ClearLine{0, 50, 30, 50}).Crosses({40, 45, 60, 55}));
}

TEST(LabelPlacer, ALineToAvoidIsCrossedOnlyWhereNothingElseIsNear) {
    const ClearLine line{0, 50, 600, 50};
    auto free_around = Placer();
    free_around.Avoid(line);
    EXPECT_FALSE(line.Crosses(free_around.Place({At(100, 50, TextRole::MarkLabel)})[0].box));
    auto narrow = Placer();
    narrow.Avoid(line);
    narrow.KeepClear(LabelBox{0, 0, 600, 44});
    narrow.KeepClear(LabelBox{0, 56, 600, 300});
    EXPECT_TRUE(line.Crosses(narrow.Place({At(100, 50, TextRole::MarkLabel)})[0].box));
}

TEST(LabelPlacer, NumbersOfADenseAxisAreThinnedEvenly) {
    std::vector<WantedLabel> numbers;
    numbers.reserve(30);
    for (int i = 0; i < 30; ++i) {
        numbers.push_back(At(10 + 8 * i, 280, TextRole::AxisNumber, "10"));
    }
    const auto placed = Placer().Place(numbers);
    for (std::size_t i = 0; i < placed.size(); ++i) EXPECT_EQ(placed[i].shown, i % 2 == 0) << i;
}

TEST(LabelPlacer, ANumberStepsAHairAsideAndAMarksLabelToTheOtherSide) {
    auto placer = Placer();
    placer.KeepClear(LabelBox{90, 30, 140, 46});
    const auto number = placer.Place({At(100, 50, TextRole::AxisNumber)});
    EXPECT_TRUE(number[0].shown);
    EXPECT_NEAR(number[0].box.top, 46, 2.5);

    auto around = Placer();
    around.KeepClear(LabelBox{105, 0, 600, 300});
    WantedLabel label = At(105, 50, TextRole::MarkLabel);
    label.anchor_x = 100;
    const auto marked = around.Place({label});
    EXPECT_LE(marked[0].box.right, 100);
    EXPECT_GE(marked[0].box.right, 85);
    EXPECT_FALSE(marked[0].far);
}

// A pile of labels: whatever is shown stands alone and inside, and what moved far says so.
TEST(LabelPlacer, APileComesApart) {
    std::vector<WantedLabel> pile;
    pile.reserve(40);
    for (int i = 0; i < 40; ++i) {
        pile.push_back(At(200 + 7 * i, 100 + 3 * i, static_cast<TextRole>(i % 5), "label text"));
    }
    const auto placed = Placer().Place(pile);
    int shown = 0;
    for (std::size_t i = 0; i < placed.size(); ++i) {
        if (!placed[i].shown) continue;
        ++shown;
        EXPECT_TRUE((LabelBox{0, 0, 600, 300}).Holds(placed[i].box)) << i;
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(placed[k].shown && placed[k].box.Overlaps(placed[i].box)) << i << ' ' << k;
        }
        const double moved = std::max(std::abs(placed[i].box.left - pile[i].left),
                                      std::abs(placed[i].box.top + 5.5 - pile[i].middle));
        EXPECT_FALSE(placed[i].far && moved < 5) << i;
        EXPECT_FALSE(!placed[i].far && moved > 80) << i;
    }
    EXPECT_GE(shown, 32);
}

}  // namespace
}  // namespace zandrell
