// The table of states open beside the main window: it follows what is computed there.
#include <gtest/gtest.h>

#include <sstream>

#include "base/text_encoding.h"
#include "script_session.h"

namespace zandrell {
namespace {

// A process that a script leaves, and the table open beside its window.
struct TableBeside {
    explicit TableBeside(const std::string& acts) : script(acts), user(script, output) {
        std::string error;
        EXPECT_TRUE(user.Run(form, error)) << error;
        table.show_beside = [this] { ++shown; };
        EXPECT_TRUE(form.UserClick("StateList"));
    }
    // Picks a mark up and takes it along.
    void Carry(const Mark& mark, double right, double down) {
        const CanvasPoint ring{mark.left + mark.width / 2, mark.top + mark.height / 2};
        place = {ring.x + right, ring.y + down};
        form.PointerPress(PointerButton::Left, ring);
        form.PointerMove(place);
    }
    void Drop() { form.PointerPress(PointerButton::Left, place); }

    struct WholeSet : TestFolder {
        WholeSet() { CopyWholeSet(); }
    } folder;
    std::istringstream script;
    std::ostringstream output;
    ScriptedUser user;
    DataFiles files{folder.Path()};
    MainForm form{user, files, NamedFolder(folder.Path())};
    StateTableForm& table = form.state_table;
    CanvasPoint place;
    int shown = 0;
};

// The figures follow what is computed, the order asked for stays.
TEST(StateTableBeside, FollowsTheProcess) {
    TableBeside beside(
        "set Temp1 30\nset relF1 40\nset Temp2 5\nset relF2 90\nclick ZAButt\nreturn Temp1\n");
    MainForm& form = beside.form;
    StateTableForm& table = beside.table;
    EXPECT_EQ(beside.shown, 1);
    EXPECT_EQ(table.title, "State Table - State Change - 1.013 bar");
    table.UserSort("States", 1);
    const auto temperatures = [&table] {
        return table.States.Text(1, 1) + " " + table.States.Text(2, 1);
    };
    EXPECT_EQ(temperatures(), "5 30");
    table.States.row = 2;  // the first state
    form.UserSetText("Temp1", "3");
    EXPECT_EQ(temperatures(), "5 30");
    EXPECT_EQ(table.Message.text, form.captions[Caption::OfEarlierInputs]);
    EXPECT_FALSE(table.Copy.enabled);
    form.UserReturn("Temp1");
    EXPECT_EQ(temperatures(), "3 5");
    EXPECT_EQ(table.States.row, 1) << "the first state is still the chosen one";
    EXPECT_EQ(table.Message.text, "");
    EXPECT_TRUE(table.Copy.enabled);
    const std::string x = table.States.Text(1, 3);
    beside.Carry(form.overlay.PP1, 50, -150);
    EXPECT_EQ(temperatures(), "3 5");
    EXPECT_EQ(table.States.Text(1, 3), x) << "no state has this x and the former temperature";
    beside.Drop();
    EXPECT_EQ(table.States.row, 2) << "the first state is the warmer one now";
    EXPECT_EQ(table.States.Text(2, 1), Trimmed(form.processes.point.Temp1.text));
    form.UserSetText("Temp1", "3");
    form.UserReturn("Temp1");
    form.UserClick("abbcom");
    EXPECT_EQ(temperatures(), "3 5") << "the chart still shows it";
    EXPECT_EQ(table.title, "State Table - 1.013 bar");
    form.UserSetText("LuftM1", "1000");
    form.UserClick("BearButt");
    EXPECT_TRUE(table.title.starts_with("State Table - Capacity - ")) << table.title;
    table.UserClick("CloseStates");
    form.UserSetText("Temp1", "8");
    form.UserReturn("Temp1");
    EXPECT_EQ(table.States.Text(1, 1), "3") << "nobody looks at it";
    beside.Carry(form.overlay.PP1, 50, -150);
    form.UserClick("StateList");
    EXPECT_EQ(table.States.Text(1, 1), "8") << "the mark went back";
    EXPECT_EQ(table.States.Text(1, 3), Trimmed(form.processes.point.absF1.text));
}

TEST(StateTableBeside, FollowsAMarkOfThePlantOnItsWay) {
    TableBeside beside(
        "set vhAnlage 10000\nset aussenAnt 3\nset tabLuft 26\nset PHIAbluft 50\nset Taus 32\n"
        "set PhiAussen 40\nset TZuluft 18\nset PHIZuluft 80\nset tKA 12\nset phiKanal 95\n"
        "set dtVent1 1\nset dtVent2 .5\nclick AnlageButt\n");
    const auto outdoors = [&beside] { return beside.table.States.Text(4, 1); };
    EXPECT_EQ(outdoors(), "32");
    beside.Carry(beside.form.overlay.PP2, 10, 30);
    EXPECT_NE(outdoors(), "32");
    EXPECT_EQ(outdoors(), Trimmed(beside.form.processes.plant.Taus.text));
    beside.Drop();
    EXPECT_EQ(outdoors(), Trimmed(beside.form.processes.plant.Taus.text));
}

}  // namespace
}  // namespace zandrell
