#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

#include "support/test_folder.h"

namespace {

struct Ending {
    int status = -1;
    std::string output;
};

// Runs the built program by the shell; what goes to the standard error is part of the output.
Ending RunProgram(const std::string& arguments, const std::string& input = "") {
    const std::string command =
        "printf '" + input + "' | '" + ZANDRELL_CALC + "' " + arguments + " 2>&1";
    Ending ending;
    FILE* program = ::popen(command.c_str(), "r");
    if (program == nullptr) return ending;
    std::array<char, 4096> block{};
    for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), program)) > 0;) {
        ending.output.append(block.data(), count);
    }
    const int result = ::pclose(program);
    if (WIFEXITED(result)) ending.status = WEXITSTATUS(result);
    return ending;
}

TEST(Program, AnswersAndSaysByItsStatusHowItWent) {
    const zandrell::TestFolder folder;
    folder.CopyWholeSet();
    const std::string data = " --data '" + folder.Path().string() + "'";
    const Ending table = RunProgram("state" + data, "t,rh,p\\n20,0,1.013\\n,,\\n");
    EXPECT_EQ(table.status, 0);  // bad rows do not stop the rest
    EXPECT_NE(table.output.find("\n20,0,1.013,0,20.0"), std::string::npos) << table.output;
    EXPECT_NE(table.output.find("line 3: t is empty\n"), std::string::npos) << table.output;

    const Ending form = RunProgram("form -" + data, "dump Rechenmodus\\n");
    EXPECT_EQ(form.status, 0);
    EXPECT_EQ(form.output, "{\"Rechenmodus\":0,\"dialogs\":[]}\n");

    const Ending outside = RunProgram("state --t 801 --rh 50 --p 1" + data);
    EXPECT_EQ(outside.status, 1);
    EXPECT_EQ(outside.output, "zandrell-calc: t = 801 is outside -50..800 degC\n");

    const Ending header = RunProgram("invert rh-from-x" + data);
    EXPECT_EQ(header.status, 1);
    EXPECT_EQ(header.output,
              "zandrell-calc: the input is empty: its first line must name the columns\n");

    EXPECT_EQ(RunProgram("chart -o a.txt").status, 2);
    EXPECT_EQ(RunProgram("state nowhere.csv" + data).output,
              "zandrell-calc: nowhere.csv: No such file or directory\n");
    EXPECT_EQ(RunProgram("form ." + data).output, "zandrell-calc: .: is a folder\n");
}

TEST(Program, StartsWithoutTheToolkit) {
    const Ending libraries = RunProgram("--version > /dev/null && LD_TRACE_LOADED_OBJECTS=1 '" +
                                        std::string(ZANDRELL_CALC) + "'");
    EXPECT_NE(libraries.output.find("libc.so"), std::string::npos) << libraries.output;
    EXPECT_EQ(libraries.output.find("libQt"), std::string::npos) << libraries.output;
}

}  // namespace
