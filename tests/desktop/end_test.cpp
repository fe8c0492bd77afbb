// The real program, ended by the system.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
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
