// The glossary explains every name that a dump can show.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

#include "script_session.h"
#include "selection_session.h"

namespace zandrell {
namespace {

// What stands in backticks.
std::set<std::string> ExplainedNames() {
    std::ifstream file(std::string(ZANDRELL_SOURCE) + "/docs/names.md");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::set<std::string> names;
    for (std::size_t open = text.find('`'); open != std::string::npos;) {
        const std::size_t close = text.find('`', open + 1);
        if (close == std::string::npos) break;
        names.insert(text.substr(open + 1, close - open - 1));
        open = text.find('`', close + 1);
    }
    return names;
}

TEST(Names, EveryNameOfADumpIsExplained) {
    const std::set<std::string> explained = ExplainedNames();
    ASSERT_GT(explained.size(), 100U);
    std::ostringstream sink;
    std::istringstream nothing;
    ScriptedUser user(nothing, sink);
    TestFolder folder;
    folder.CopyWholeSet();
    DataFiles files(folder.Path());
    MainForm form(user, files, NamedFolder(folder.Path()));
    form.Load();
    const Json dump = DumpForm(form);
    for (const auto& [name, value] : dump.items()) {
        if (name.find('.') == std::string::npos) {
            EXPECT_TRUE(explained.contains(name)) << name;
        }
    }
    for (const ModalForm* window : WindowsOf(form)) {
        EXPECT_TRUE(explained.contains(window->form.Name())) << window->form.Name();
        for (const Control* control : window->form.Controls()) {
            EXPECT_TRUE(explained.contains(std::string(control->name)))
                << window->form.Name() << '.' << control->name;
        }
    }
}

TEST(Names, EveryNameOfTheSelectionIsExplained) {
    const std::set<std::string> explained = ExplainedNames();
    SelectionSession session;
    const Json dump = session.RunOnce("dump\n");
    ASSERT_GT(dump.size(), 100U);
    for (const auto& [name, value] : dump.items()) {
        EXPECT_TRUE(name == "dialogs" || explained.contains(name)) << name;
    }
}

}  // namespace
}  // namespace zandrell
