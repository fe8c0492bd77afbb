#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "support/test_folder.h"

namespace {

struct Ending {
    int status = -1;
    std::string output;
};

// What goes to the standard error is part of the output.
Ending RunShell(const std::string& command) {
    const zandrell::TestFolder folder;
    folder.Write("command.sh", command);
    Ending ending;
    FILE* program = ::popen(("bash '" + (folder / "command.sh").string() + "' 2>&1").c_str(), "r");
    if (program == nullptr) return ending;
    std::array<char, 4096> block{};
    for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), program)) > 0;) {
        ending.output.append(block.data(), count);
    }
    const int result = ::pclose(program);
    if (WIFEXITED(result)) ending.status = WEXITSTATUS(result);
    return ending;
}

// The built program, which reads `input`.
Ending RunProgram(const std::string& arguments, const std::string& input = "") {
    return RunShell("printf '" + input + "' | '" + ZANDRELL_CALC + "' " + arguments);
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

// What stands in the place of a script, of an output or of the folder that a program works in.
TEST(Program, HostileEndsGetOneShortLine) {
    const zandrell::TestFolder folder;
    folder.CopyWholeSet();
    const std::string path = folder.Path().string();
    const std::string data = " --data '" + path + "'";
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    const struct {
        std::string arguments;
        int status;
        const char* says;
    } cases[] = {
        {"form -" + data + " </", 1, "standard input: is a folder"},
        {"form -" + data + " <&-", 1, "standard input: Bad file descriptor"},
        {"form /dev/zero" + data, 1, "/dev/zero: line 1: too long for an act"},
        {"form -" + data + " </dev/zero", 1, "line 1: too long for an act"},
        {"form '" + path + "/pipe'" + data + " & echo dump ended >'" + path + "/pipe'; wait $!", 0,
         "{\"ended\":false"},
        {"--help >/dev/full", 1, "the output cannot be written"},
        {"form -" + data + " <<<dump >/dev/full", 1, "the output cannot be written"},
        {"state --t 20 --rh 50 --data \"\"", 2, "--data: the name of the folder is empty"},
    };
    // A sanitizer takes terabytes of addresses for its own books.
#ifdef __SANITIZE_ADDRESS__
    const std::string bound;
#else
    const std::string bound = "ulimit -v 3000000; ";
#endif
    for (const auto& c : cases) {
        const Ending ending = RunShell(bound + "'" ZANDRELL_CALC "' " + c.arguments);
        EXPECT_EQ(ending.status, c.status) << c.arguments;
        EXPECT_NE(ending.output.find(c.says), std::string::npos) << c.arguments << ending.output;
        EXPECT_LT(ending.output.size(), 300U) << c.arguments;
    }
    // Relative to a folder that is gone meanwhile.
    const Ending gone =
        RunShell("mkdir '" + path + "/gone'; cd '" + path +
                 "/gone'; rmdir ../gone; '" ZANDRELL_CALC "' --data x form - <<<'dump ended'");
    EXPECT_LT(gone.status, 2) << gone.output;
    const Ending act =
        RunShell("head -c 900000 /dev/zero | tr '\\0' a | '" ZANDRELL_CALC "' form -" + data);
    EXPECT_EQ(act.output.find("zandrell-calc: line 1: unknown act or missing name: aaaa"), 0U);
    EXPECT_LT(act.output.size(), 120U);
}

// A file limit is an error of the write; a folder may have a name of any bytes.
TEST(Program, SavesOrSaysWhyInFoldersOfAnyNameAndUnderLimits) {
    const zandrell::TestFolder folder;
    folder.CopyWholeSet();
    const std::string odd = (folder / "caf\xE9").string();
    std::filesystem::create_directory(odd);
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        if (entry.is_regular_file()) std::filesystem::copy(entry.path(), odd);
    }
    const std::string program = "'" ZANDRELL_CALC "' form - --data '" + odd + "'";
    const std::string script = "printf 'set Taus 31\\nclick PSButt\\ndump Taus\\n' | ";
    const Ending limited = RunShell("ulimit -f 0; " + script + program + " | cat");
    EXPECT_EQ(limited.status, 0);
    EXPECT_NE(limited.output.find("cannot be saved: File too large"), std::string::npos)
        << limited.output;
    EXPECT_EQ(RunShell("grep -c 31 '" + odd + "/QV_ACT.dat'").output, "0\n");
    EXPECT_EQ(RunShell(script + program).status, 0);
    EXPECT_EQ(RunShell("grep -c 31 '" + odd + "/QV_ACT.dat'").output, "1\n");
}

TEST(Program, StartsWithoutTheToolkit) {
    const Ending libraries = RunProgram("--version > /dev/null && LD_TRACE_LOADED_OBJECTS=1 '" +
                                        std::string(ZANDRELL_CALC) + "'");
    EXPECT_NE(libraries.output.find("libc.so"), std::string::npos) << libraries.output;
    EXPECT_EQ(libraries.output.find("libQt"), std::string::npos) << libraries.output;
}

}  // namespace
