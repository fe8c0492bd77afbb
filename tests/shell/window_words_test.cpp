// Every word that the windows show, as dumps of both languages tell it, against a table of what
// must stand there. A label that got its neighbour's word is wrong in no other way.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "base/text_helpers.h"
#include "forms/grid.h"
#include "selection/planner_form.h"
#include "shell/control_dump.h"
#include "shell/script_session.h"
#include "shell/selection_desk.h"

namespace zandrell {
namespace {

using Words = std::map<std::string, std::string>;  // control and what of it shows -> words

// The cell at the front of a line of the table, which it takes off.
std::string TakeCell(std::string& line) {
    std::string cell = line.substr(0, line.find('\t'));
    line.erase(0, std::min(line.size(), cell.size() + 1));
    return cell;
}

Words ExpectedWords(const std::string& tag) {
    std::ifstream table(std::string(ZANDRELL_SOURCE) + "/tests/shell/window_words.tsv");
    std::string line;
    std::getline(table, line);
    EXPECT_EQ(line, "control\tshows\tENG\tDEU");
    Words words;
    while (std::getline(table, line)) {
        std::string place = TakeCell(line);
        place.append(" ").append(TakeCell(line));
        const std::string english = TakeCell(line);
        EXPECT_TRUE(words.emplace(place, tag == "ENG" ? english : line).second)
            << place << " stands twice";
    }
    return words;
}

// Figures and what a user typed are no words.
bool IsWord(const Json& control, const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    const std::string kind = control.at("kind");
    if (first == std::string::npos || kind == "text" || kind == "combo" || kind == "list") {
        return false;
    }
    // Lines of addresses do not fit a table.
    if (text.find('\n') != std::string::npos) return false;
    return std::string("0123456789-.").find(text[first]) == std::string::npos;
}

void AddWords(const Json& dump, const std::string& window, Words& words) {
    for (const auto& [name, control] : dump.items()) {
        if (!name.starts_with(window) || !control.is_object()) continue;
        for (const char* shows : {"text", "tool_tip"}) {
            const std::string text = control.value(shows, "");
            if (IsWord(control, text)) words[name + " " + shows] = text;
        }
    }
}

// The words of a form under the name of its window; those of grids are their heads.
void AddFormWords(const Form& form, const std::string& window, Words& words) {
    Json dump = Json::object();
    for (Control* control : form.Controls()) {
        std::string name = window + "." + std::string(control->name);
        // Their words come from the catalogue.
        const bool of_catalogue = IsOneOf(control->name, {"ventlabel", "SerienPN", "R_Label"});
        if (!control->visible || of_catalogue) continue;
        dump[name] = DumpControl(*control);
        const Grid* grid = AsGrid(control);
        for (int column = 0; grid != nullptr && column < grid->ColumnCount(); ++column) {
            if (grid->Width(column) == 0) continue;
            dump[name + " " + std::to_string(column)] = {{"kind", "head"},
                                                         {"text", grid->Text(0, column)}};
        }
    }
    AddWords(dump, window, words);
}

// A kind of the selection with a unit taken and its series open again. What is the same for all
// kinds stands in the table for the first one only.
void AddKindWords(SelectionDesk& desk, PlannerForm& planner, int kind, Words& words) {
    for (std::size_t i = 0; i < kKatalogArten.size(); ++i) {
        if (kKatalogArten[i] == kind) planner.UserSelect("KindBox", static_cast<int>(i));
    }
    const auto follow = [&planner](bool done) {
        EXPECT_TRUE(done);
        planner.Follow();
    };
    follow(desk.window.UserPickCell("KatalogSpread", 3, 3));
    follow(desk.window.UserPickCell("Venttab", 2, 1));
    follow(desk.window.UserClick("Command3D2"));
    follow(desk.window.UserPickCell("KatalogSpread", 3, 3));
    Words found;
    AddFormWords(desk.window.form, "VentZeig", found);
    AddFormWords(planner.form, "Planner", found);
    for (const auto& [place, text] : found) {
        const auto first = words.find(place);
        if (first == words.end()) {
            words[place] = text;
        } else if (first->second != text) {
            words[std::to_string(kind) + " " + place] = text;
        }
    }
}

// The words that every kind of component needs, and the entries of the kinds.
void AddSelectionWords(const ScriptSession& session, const std::string& tag, Words& words) {
    std::istringstream no_script;
    std::ostringstream no_dumps;
    ScriptedUser user(no_script, no_dumps);
    DataFiles files(session.folder.Path());
    SelectionDesk desk(user, files, NamedFolder(session.folder.Path()));
    desk.Load();
    EXPECT_EQ(desk.shared.LanguageTag, tag);
    SelectionContext context{files, desk.shared, desk.captions, user, desk.selection};
    SelectionOpener opener(context, desk.window);
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    planner.NoteAirFlow(4000);
    planner.Start({});
    for (const int kind : {600, 650, 550, 250}) AddKindWords(desk, planner, kind, words);
    for (const std::string& kind : planner.KindBox.items) {
        words["KindBox " + kind.substr(0, kind.find(' '))] = kind;
    }
    words["Planner title"] = planner.title;
    words["VentZeig title"] = desk.window.title;
}

class WindowWords : public ::testing::TestWithParam<const char*> {};

// The sample plant is open, so that its marks bear their words too; the options come after it.
TEST_P(WindowWords, StandWhereTheyBelong) {
    const std::string tag = GetParam();
    ScriptSession session;
    session.folder.CopyStaged("QV_ACT.dat");
    std::string parameters = session.folder.Read("kparam.dat");
    parameters.replace(parameters.find("\"ENG\""), 5, "\"" + tag + "\"");
    session.folder.Write("kparam.dat", parameters);
    const auto dumps = session.Run(
        "click AnlageButt\ndump\nclick optButt\ndump\nclick qvopt.Command3D5\n"
        "click StateList\ndump\nclick StateTable.CloseStates\n"
        "click druckbutt\nclick DruckEInstell.prevButt\ndump\nkey DruckEInstell.Text1 F1\ndump\n");
    ASSERT_EQ(dumps.size(), 5U);
    Words shown = {{"title text", dumps[0].at("title").get<std::string>()}};
    AddWords(dumps[0], "", shown);
    AddWords(dumps[1], "qvopt.", shown);
    AddWords(dumps[2], "StateTable.", shown);
    AddWords(dumps[3], "DruckEInstell.", shown);
    AddWords(dumps[4], "Hilfebox.", shown);

    AddSelectionWords(session, tag, shown);

    const Words expected = ExpectedWords(tag);
    for (const auto& [place, words] : expected) {
        const auto found = shown.find(place);
        EXPECT_EQ(found == shown.end() ? "nothing" : found->second, words) << place;
    }
    for (const auto& [place, words] : shown)
        EXPECT_TRUE(expected.contains(place)) << place << " is not in the table: " << words;
}

// A caption file that another module of the suite brought knows nothing of the word.
TEST(HeatRecovery, HasItsFixedWordWhereTheCaptionsLackIt) {
    ScriptSession session;
    session.folder.Write("Caption.ENG", "\"short\"");
    const Json dump = session.RunOnce("dump wrgEinst wrgButt");
    EXPECT_EQ(TextOf(dump, "wrgEinst"), "&Wärmerückgewinnung");
    EXPECT_EQ(dump.at("wrgButt").at("tool_tip"), "Wärmerückgewinnung");
}

INSTANTIATE_TEST_SUITE_P(Languages, WindowWords, ::testing::Values("ENG", "DEU"));

}  // namespace
}  // namespace zandrell
