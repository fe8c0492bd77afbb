// Lists and combo boxes as a user and a routine handle them.
#include "forms/choice_list.h"

#include <gtest/gtest.h>

#include "forms/window_form.h"

namespace zandrell {
namespace {

struct ChoiceWindow : WindowForm {
    ChoiceWindow() : WindowForm("window") {
        form.Add({&list, &combo, &tree});
        combo.takes_any_text = tree.takes_any_text = true;
        for (ChoiceList* choices :
             {static_cast<ChoiceList*>(&list), static_cast<ChoiceList*>(&combo),
              static_cast<ChoiceList*>(&tree)}) {
            choices->Fill({"A4", "A3", "A2"});
            for (const ActKind kind :
                 {ActKind::Select, ActKind::Change, ActKind::DoubleClick, ActKind::Return}) {
                acts.Add(choices->name, kind, [this] { ++performed; });
            }
        }
    }
    ListBox list{"list"}, tree{"tree"};
    ComboBox combo{"combo"};
    int performed = 0;
};

TEST(ChoiceList, TakesWhatAUserChooses) {
    struct Case {
        const char* what;
        bool (*act)(ChoiceWindow&);
        const char* control;
        bool taken;
        int index;
        const char* text;
        int performed;
    };
    const Case cases[] = {
        {"an item", [](auto& w) { return w.UserPick("list", "A3"); }, "list", true, 1, "A3", 1},
        {"no item", [](auto& w) { return w.UserPick("list", "A5"); }, "list", false, -1, "", 0},
        {"a folder out of sight", [](auto& w) { return w.UserPick("tree", "A5"); }, "tree", true,
         -1, "A5", 1},
        {"a row", [](auto& w) { return w.UserSelect("combo", 2); }, "combo", true, 2, "A2", 1},
        {"a row behind the end", [](auto& w) { return w.UserSelect("combo", 3); }, "combo", false,
         -1, "", 0},
        {"typed text that is an item", [](auto& w) { return w.UserSetText("combo", "A2"); },
         "combo", true, 2, "A2", 1},
        {"typed text of its own", [](auto& w) { return w.UserSetText("combo", "A9"); }, "combo",
         true, -1, "A9", 1},
        {"typing into a list", [](auto& w) { return w.UserSetText("list", "A2"); }, "list", false,
         -1, "", 0},
        {"Return in a list", [](auto& w) { return w.UserReturn("list"); }, "list", true, -1, "", 1},
    };
    for (const Case& c : cases) {
        ChoiceWindow window;
        EXPECT_EQ(c.act(window), c.taken) << c.what;
        const auto* choices = AsChoiceList(window.form.Find(c.control));
        EXPECT_EQ(choices->index, c.index) << c.what;
        EXPECT_EQ(choices->text, c.text) << c.what;
        EXPECT_EQ(window.performed, c.performed) << c.what;
    }
}

TEST(ChoiceList, TakesNothingWhileItIsOffOrHidden) {
    ChoiceWindow window;
    window.list.enabled = false;
    window.combo.visible = false;
    EXPECT_TRUE(window.UserPick("list", "A3"));
    EXPECT_TRUE(window.UserDoubleClick("list"));
    EXPECT_TRUE(window.UserSetText("combo", "A3"));
    EXPECT_EQ(window.list.index, -1);
    EXPECT_EQ(window.combo.text, "");
    EXPECT_EQ(window.performed, 0);
}

}  // namespace
}  // namespace zandrell
