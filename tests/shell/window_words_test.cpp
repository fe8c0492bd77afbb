// Every word that the windows show, as dumps of both languages tell it, against a table of what
// must stand there. A label that got its neighbour's word is wrong in no other way.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>

#include "shell/script_session.h"

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
