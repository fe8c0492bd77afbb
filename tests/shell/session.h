#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "shell/form_script.h"
#include "support/test_folder.h"

namespace zandrell {

// Runs scripts over a data folder of its own and keeps what they dumped.
class Session {
  public:
    virtual ~Session() = default;

    // The dumps of the script, one object each. A script that cannot be carried out fails the test.
    std::vector<Json> Run(const std::string& script) {
        std::istringstream input(script);
        std::ostringstream output;
        ScriptedUser user(input, output);
        DataFiles files(folder.Path());
        error.clear();
        const bool ran = Perform(user, files);
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

  protected:
    // Runs the script of `user` on a window of its own.
    virtual bool Perform(ScriptedUser& user, DataFiles& files) = 0;
};

}  // namespace zandrell
