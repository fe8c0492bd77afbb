#pragma once

#include <filesystem>
#include <optional>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"

namespace zandrell {

// Where the suite keeps its data: the folder of all users' documents, then "Zandrell". On Unix that
// is $XDG_DATA_HOME, else ~/.local/share; the process's current directory when neither is known. A
// folder that the user named stands for what the system would answer. Mode 2 makes the folder; an
// existing one is no failure.
using NamedFolder = std::optional<std::filesystem::path>;
std::filesystem::path FindDataFolder(int mode, const NamedFolder& named);

// Makes and fills the folder with the delivered data set, if there is no such folder yet. What a
// user has is never overwritten: a folder that exists is left alone. The set is copied beside it
// and renamed, so that a start that is cut off leaves no half set. Returns whether a folder was
// made.
bool DeliverDataSet(const std::filesystem::path& delivered, const std::filesystem::path& folder);

// The folder to start with. A folder that is not there yet is made and filled with the delivered
// set: the default one always, one that the user named only if `deliver_into_named`.
std::filesystem::path PrepareDataFolder(const NamedFolder& named, bool deliver_into_named);

// The delivered data set beside the running program: share/zandrell next to its bin folder.
std::filesystem::path DeliveredDataSet();

// Reads kparam.dat into the shared values, with their defaults. Its second field moves the data
// folder; while that is empty the folder is the one of FindDataFolder. The folder is absolute then,
// without a separator at its end. Answers a folder that the file names and that is not there; the
// one of the start then stays.
std::optional<std::filesystem::path> ReadSuiteParameters(const NamedFolder& named, DataFiles& files,
                                                         SharedValues& shared);

// The title of a re-branded installation out of rechOpt.dat, else "Zandrell".
void LoadBranding(const DataFiles& files, SharedValues& shared);

}  // namespace zandrell
