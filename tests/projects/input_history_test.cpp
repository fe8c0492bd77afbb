#include "projects/input_history.h"

#include <gtest/gtest.h>

namespace zandrell {
namespace {

InputSnapshot Taus(const std::string& text) { return {{"Taus", text}}; }

TEST(InputHistory, WalksBackAndForth) {
    InputHistory history;
    history.Reset(Taus("1"));
    EXPECT_FALSE(history.CanUndo());
    history.Note(Taus("2"));
    history.Note(Taus("2"));
    history.Note(Taus("3"));
    EXPECT_EQ(history.Undo(), Taus("2"));
    EXPECT_EQ(history.Undo(), Taus("1")) << "an act that changed nothing is no step";
    EXPECT_FALSE(history.CanUndo());
    EXPECT_EQ(history.Redo(), Taus("2"));
    history.Note(Taus("4"));
    EXPECT_FALSE(history.CanRedo()) << "a new step ends the old way";
    EXPECT_EQ(history.Undo(), Taus("2"));
}

TEST(InputHistory, AGestureIsOneStep) {
    InputHistory history;
    history.Reset(Taus("1"));
    for (const char* text : {"2", "3", "4"}) history.Note(Taus(text), "drag 1");
    for (const char* text : {"5", "6"}) history.Note(Taus(text), "drag 2");
    EXPECT_EQ(history.Undo(), Taus("4"));
    EXPECT_EQ(history.Undo(), Taus("1"));
    history.Redo();
    history.Note(Taus("7"), "drag 1");
    EXPECT_EQ(history.Undo(), Taus("4")) << "the gesture of before an undo is over";
    history.Note(Taus("8"), "typing");
    history.EndGesture();
    history.Note(Taus("9"), "typing");
    EXPECT_EQ(history.Undo(), Taus("8"));
}

TEST(InputHistory, KeepsAtLeastAHundredSteps) {
    InputHistory history;
    history.Reset(Taus("0"));
    for (std::size_t i = 1; i <= InputHistory::kMostSteps + 50; ++i) {
        history.Note(Taus(std::to_string(i)));
    }
    std::size_t steps = 0;
    while (history.CanUndo()) {
        history.Undo();
        ++steps;
    }
    EXPECT_EQ(steps, InputHistory::kMostSteps);
    EXPECT_GE(steps, 100U);
    EXPECT_EQ(history.Redo(), Taus("51")) << "the oldest steps go";
}

}  // namespace
}  // namespace zandrell
