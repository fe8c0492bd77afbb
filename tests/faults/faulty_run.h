#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "faults/faulty_system.h"

namespace zandrell::faults {

// The files of a folder, also those below it, by their names; what a cut-off write has left beside
// its target is not among them.
using FolderContent = std::map<std::string, std::string>;
FolderContent ContentOf(const std::filesystem::path& folder);
void Restore(const std::filesystem::path& folder, const FolderContent& content);

// An act of the program on a folder, in a process of its own. It calls `ready` when the faults may
// begin, and returns how many messages the user saw.
using Ready = std::function<void()>;
using ProgramAct = std::function<int(const Ready& ready)>;

struct ActResult {
    bool killed = false;
    int messages = 0;
    int calls = 0;
    std::string call;  // that met the fault
};
// Runs the act and meets the fault at a call. A process that crashes fails the test.
ActResult RunAct(const ProgramAct& act, Fault fault, int call);

// What came of all the faults at all the calls of one act.
struct FaultCounts {
    int points = 0, old_content = 0, new_content = 0, killed = 0, told = 0;
};

struct FaultyAct {
    std::string name;
    FolderContent before;
    ProgramAct act;
    // Failures of these files are passed over without a message.
    std::vector<std::string> silent_files = {};
    bool keeps_previous = false;  // QV_ACT.bak is written before QV_ACT.dat is replaced
};

// Every fault at every call: each file must hold its old or its new content, whole; a failure must
// be told; the act without faults must succeed afterwards.
FaultCounts TryAllFaults(const std::filesystem::path& folder, const FaultyAct& faulty);

}  // namespace zandrell::faults
