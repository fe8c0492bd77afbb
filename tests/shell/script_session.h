#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "shell/form_dump.h"
#include "shell/form_script.h"
#include "support/test_folder.h"

namespace zandrell {

// Runs a script on a main form over a data folder of its own and keeps what it dumped.
class ScriptSession {
  public:
    // Without the sample working state, so that a script starts from empty fields.
    ScriptSession() {
        folder.CopyWholeSet();
        std::filesystem::remove(folder / "QV_ACT.dat");
    }

    // The dumps of the script, one object each. A script that cannot be carried out fails the test.
    std::vector<Json> Run(const std::string& script) {
        std::istringstream input(script);
        std::ostringstream output;
        ScriptedUser user(input, output);
        DataFiles files(folder.Path());
        MainForm form(user, files, NamedFolder(folder.Path()));
        error.clear();
        const bool ran = user.Run(form, error);
        EXPECT_TRUE(ran || expects_error) << error;
        std::vector<Json> dumps;
        std::istringstream lines(output.str());
        for (std::string line; std::getline(lines, line);) dumps.push_back(Json::parse(line));
        return dumps;
    }
    // The only dump of a script.
    Json RunOnce(const std::string& script) {
        const auto dumps = Run(script);
        EXPECT_EQ(dumps.size(), 1U);
        return dumps.empty() ? Json::object() : dumps.front();
    }

    TestFolder folder;
    std::string error;
    bool expects_error = false;
};

// What a dump says of one control, for comparisons in one line.
inline std::string TextOf(const Json& dump, const char* name) {
    return dump.at(name).at("text").get<std::string>();
}
inline bool Shown(const Json& dump, const char* name) {
    return dump.at(name).at("visible").get<bool>();
}

}  // namespace zandrell
