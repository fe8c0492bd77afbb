// The real program, ended by the system.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/test_folder.h"

namespace zandrell {
namespace {

TEST(EndBySystem, SavesTheInputsAlsoFromWithinADialog) {
    for (const char* signal : {"TERM", "HUP"}) {
        for (const char* dialog : {"", "click optButt\n", "click ProLad\n"}) {
            const TestFolder folder;
            folder.CopyWholeSet();
            // What the script writes last tells that the program has come so far.
            folder.Write("script.txt", std::string("set Taus 31\n") + dialog + "dump Taus\n");
            const std::string path = "'" + folder.Path().string() + "'";
            std::string run = "cd ";
            run.append(path).append("\n'" ZANDRELL_WINDOW "' --data ").append(path);
            run.append(
                " --script script.txt >said 2>errors & program=$!\n"
                "for i in $(seq 200); do\n"
                "  grep -q Taus said && break; sleep 0.05\n"
                "done\nkill -");
            run.append(signal).append(" $program; wait $program\n");
            folder.Write("run.sh", run);
            const int status = std::system(("bash '" + (folder / "run.sh").string() + "'").c_str());
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
                << signal << dialog << status;
            EXPECT_NE(folder.Read("QV_ACT.dat").find("31"), std::string::npos) << signal << dialog;
        }
    }
}

// The duty is kept when it is taken, so that nothing is left to save.
TEST(EndBySystem, EndsTheSelectionAndKeepsItsDuty) {
    for (const char* signal : {"TERM", "HUP"}) {
        const TestFolder folder;
        folder.CopyWholeSet();
        std::string run = "cd '" + folder.Path().string() + "'\n";
        run.append(
            "'" ZANDRELL_SELECTION_WINDOW
            "' --data . --duty 17.5 & program=$!\n"
            "for i in $(seq 200); do\n  grep -qs 17.5 selection.dat && break; sleep 0.05\ndone\n"
            "sleep 0.3; kill -");
        run.append(signal).append(" $program; wait $program\n");
        folder.Write("run.sh", run);
        const int status = std::system(("bash '" + (folder / "run.sh").string() + "'").c_str());
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << signal << status;
        EXPECT_NE(folder.Read("selection.dat").find("\"17.5\""), std::string::npos) << signal;
    }
}

struct Ending {
    int status = 0;
    std::string said, errors;
};

Ending RunIn(const TestFolder& folder, const std::string& command) {
    folder.Write("run.sh", "cd '" + folder.Path().string() + "'\ntimeout 20 " + command +
                               " >said 2>errors\n");
    const int status = std::system(("bash '" + (folder / "run.sh").string() + "'").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.Read("said"),
            folder.Read("errors")};
}

TEST(EndBySystem, ASelectionThatIsLeftSaysWhatWasTaken) {
    const TestFolder folder;
    folder.CopyWholeSet();
    const std::string program = "'" ZANDRELL_SELECTION_WINDOW "' --data . --duty 12 --script ";
    folder.Write("close.txt", "close\n");
    const Ending closed = RunIn(folder, program + "close.txt");
    EXPECT_EQ(closed.status, 0);
    EXPECT_EQ(closed.said, "");
    EXPECT_FALSE(std::filesystem::exists(folder / "BT_calc.DAT"));
    folder.Write("take.txt",
                 "pick KatalogSpread 3 3\npick Venttab 21 1\nclick Command3D2\n"
                 "click UeberNehm\n");
    const Ending taken = RunIn(folder, program + "take.txt");
    EXPECT_EQ(taken.status, 0);
    EXPECT_EQ(taken.said, "AW 21 7 mm\n");
    EXPECT_NE(folder.Read("BT_calc.DAT").find("AW 21 7 mm"), std::string::npos);
}

TEST(Start, WhatASelectionCannotDoIsSaid) {
    const TestFolder folder;
    folder.CopyWholeSet();
    folder.Write("bad.txt", "dump QoSoll\nduty Capacity 9\nbogus act\n");
    folder.Write("none.txt", "duty Nothing 9\n");
    const struct {
        const char* options;
        int status;  // 0: it must not be 0
        const char* says;
    } cases[] = {
        {"--data .  --script .", 1, "zandrell-selection: .: can not be read"},
        {"--data . --script gone.txt", 1, "zandrell-selection: gone.txt: can not be read"},
        {"--data . --script /dev/zero", 1, "zandrell-selection: /dev/zero: can not be read"},
        {"--data . --script bad.txt", 1, "zandrell-selection: line 3: unknown act: bogus"},
        {"--data . --script none.txt", 1, "line 1: duty does not fit Nothing"},
        {"--data ''", 0, "the name of the folder is empty"},
        {"--data . --duty abc", 0, "--duty"},
        {"--data . --duty 0", 0, "--duty"},
        {"--data . --duty -4", 0, "--duty"},
        {"--data . --flow -4", 0, "--flow"},
        {"--data . --size 10x", 1, "--size takes a width and a height"},
    };
    for (const auto& c : cases) {
        const Ending ending =
            RunIn(folder, std::string("'" ZANDRELL_SELECTION_WINDOW "' ") + c.options);
        EXPECT_TRUE(c.status > 0 ? ending.status == c.status : ending.status != 0)
            << c.options << ending.status;
        EXPECT_NE(ending.errors.find(c.says), std::string::npos)
            << c.options << ": " << ending.errors;
    }
}

TEST(Start, AScriptThatCannotBeReadIsSaid) {
    const TestFolder folder;
    folder.CopyWholeSet();
    const std::string path = "'" + folder.Path().string() + "'";
    for (const char* script : {".", "missing.txt", "/dev/zero"}) {
        std::string run = "cd ";
        run.append(path).append("\ntimeout 20 '" ZANDRELL_WINDOW "' --data ").append(path);
        run.append(" --script ").append(script).append(" 2>errors\n");
        folder.Write("run.sh", run);
        const int status = std::system(("bash '" + (folder / "run.sh").string() + "'").c_str());
        EXPECT_EQ(WEXITSTATUS(status), 1) << script;
        const std::string said = std::string("zandrell: ") + script + ": can not be read";
        EXPECT_NE(folder.Read("errors").find(said), std::string::npos) << folder.Read("errors");
    }
}

}  // namespace
}  // namespace zandrell
