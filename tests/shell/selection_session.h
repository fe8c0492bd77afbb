#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "shell/form_script.h"
#include "shell/selection_stage.h"
#include "support/catalogue_files.h"
#include "support/test_folder.h"

namespace zandrell {

// Runs a script on a selection window over a data folder of its own and keeps what it dumped. The
// folder has settings and words, and no catalogues but those that a test writes.
class SelectionSession {
  public:
    SelectionSession() {
        for (const char* name : {"kparam.dat", "Caption.ENG", "AirCoCap.ENG", "QVCapt.ENG"}) {
            folder.CopyStaged(name);
        }
    }

    std::vector<Json> Run(const std::string& script) {
        std::istringstream input(script);
        std::ostringstream output;
        ScriptedUser user(input, output);
        DataFiles files(folder.Path());
        SelectionDesk desk(user, files, NamedFolder(folder.Path()));
        SelectionStage stage(desk);
        error.clear();
        const bool ran = user.Run(stage, error, [&] { desk.Load(); });
        EXPECT_TRUE(ran || expects_error) << error;
        std::vector<Json> dumps;
        std::istringstream lines(output.str());
        for (std::string line; std::getline(lines, line);) dumps.push_back(Json::parse(line));
        return dumps;
    }
    Json RunOnce(const std::string& script) {
        const auto dumps = Run(script);
        EXPECT_EQ(dumps.size(), 1U);
        return dumps.empty() ? Json::object() : dumps.front();
    }

    TestFolder folder;
    std::string error;
    bool expects_error = false;
};

}  // namespace zandrell
