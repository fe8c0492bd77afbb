#include "faults/faulty_run.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace zandrell::faults {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFaultNames[] = {"none", "fails", "cut short", "killed before",
                                       "killed after"};

// What the process of an act tells the test, through memory that both share.
struct Told {
    int messages, calls;
    char call[16];
    bool whole;
};

Told& SharedMemory() {
    static Told* const told = static_cast<Told*>(
        ::mmap(nullptr, sizeof(Told), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    return *told;
}

[[noreturn]] void BeTheProcess(const ProgramAct& act, Fault fault, int call, Told& told) {
    told.messages = act([fault, call] { Arm(fault, call); });
    told.calls = Disarm();
    std::snprintf(told.call, sizeof told.call, "%s", CallHit());
    told.whole = true;
    ::_exit(0);
}

std::string Held(const FolderContent& content, const std::string& name) {
    const auto found = content.find(name);
    return found == content.end() ? std::string("(no file)") : found->second;
}

// The file that has neither its old nor its new content, with what it holds; empty: none.
std::string TornFile(const FolderContent& now, const FolderContent& before,
                     const FolderContent& after) {
    FolderContent all = before;
    all.insert(after.begin(), after.end());
    all.insert(now.begin(), now.end());
    for (const auto& [name, ignored] : all) {
        const std::string content = Held(now, name);
        if (content != Held(before, name) && content != Held(after, name)) {
            return name + ": " + content.substr(0, 200);
        }
    }
    return {};
}

FolderContent Without(FolderContent content, const std::vector<std::string>& names) {
    for (const std::string& name : names) content.erase(name);
    return content;
}

}  // namespace

FolderContent ContentOf(const fs::path& folder) {
    FolderContent content;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.path().extension() == ".part") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        content[fs::relative(entry.path(), folder).string()] =
            (std::ostringstream() << file.rdbuf()).str();
    }
    return content;
}

void Restore(const fs::path& folder, const FolderContent& content) {
    for (const auto& entry : fs::directory_iterator(folder)) fs::remove_all(entry.path());
    for (const auto& [name, text] : content) {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << text;
    }
}

ActResult RunAct(const ProgramAct& act, Fault fault, int call) {
    Told& told = SharedMemory();
    told = {};
    const pid_t child = ::fork();
    if (child == 0) BeTheProcess(act, fault, call, told);
    int status = 0;
    ::waitpid(child, &status, 0);
    ActResult result{WIFEXITED(status) && WEXITSTATUS(status) == kKilled, told.messages, told.calls,
                     told.call};
    EXPECT_TRUE(result.killed || told.whole) << "the process crashed with status " << status;
    return result;
}

FaultCounts TryAllFaults(const fs::path& folder, const FaultyAct& faulty) {
    Restore(folder, faulty.before);
    const ActResult undisturbed = RunAct(faulty.act, Fault::None, 0);
    const FolderContent after = ContentOf(folder);
    EXPECT_EQ(undisturbed.messages, 0) << faulty.name;
    EXPECT_NE(after, faulty.before) << faulty.name << " writes nothing";
    FaultCounts counts;
    for (const Fault fault : {Fault::Fails, Fault::CutShort, Fault::KillBefore, Fault::KillAfter}) {
        for (int call = 1; call <= undisturbed.calls; ++call) {
            Restore(folder, faulty.before);
            const ActResult result = RunAct(faulty.act, fault, call);
            const FolderContent now = ContentOf(folder);
            const std::string hint = faulty.name + ", " + kFaultNames[static_cast<int>(fault)] +
                                     " at call " + std::to_string(call) + " " + result.call;
            ++counts.points;
            EXPECT_EQ(TornFile(now, faulty.before, after), "") << hint;
            const bool complete = now == after;
            ++(complete ? counts.new_content : counts.old_content);
            counts.killed += result.killed;
            counts.told += result.messages > 0;
            const bool told_or_silent =
                result.killed || result.messages > 0 ||
                Without(now, faulty.silent_files) == Without(after, faulty.silent_files);
            EXPECT_TRUE(told_or_silent) << hint << " was not told";
            const bool replaced = Held(now, "QV_ACT.dat") != Held(faulty.before, "QV_ACT.dat");
            if (faulty.keeps_previous && replaced) {
                EXPECT_EQ(Held(now, "QV_ACT.bak"), Held(after, "QV_ACT.bak")) << hint;
            }
            RunAct(faulty.act, Fault::None, 0);
            EXPECT_EQ(Without(ContentOf(folder), {"QV_ACT.bak"}), Without(after, {"QV_ACT.bak"}))
                << hint << " is in the way of the next try";
        }
    }
    return counts;
}

}  // namespace zandrell::faults
