#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/data_files.h"
#include "base/file_names.h"
#include "forms/control.h"

namespace zandrell {

// The inputs as they were before the last load.
inline constexpr std::string_view kPreviousStateFile = "QV_ACT.bak";

// The inputs of the main window that outlive a run, in the order in which their file holds them: 17
// fields, the two humidifier options, and the humidity behind the cooler.
struct WorkingStateFields {
    std::array<TextField*, 17> fields;
    OptionButton* steam;
    OptionButton* water;
    TextField* coil_humidity;
};

// Sets the controls from the text of a working-state file; runs no calculation. An item that the
// text lacks empties its field, the options stay, and a coil humidity that is missing or 0 becomes
// "95".
void SetWorkingState(std::string_view text, const WorkingStateFields& state);

// Whether the controls hold what that text would set them to.
bool HoldsWorkingState(std::string_view text, const WorkingStateFields& state);

inline constexpr int kWorkingStateItems = 20;

// How many items of a file are missing or hold something else than a number. Blank ones are inputs
// that nobody has made yet, and older files lack the last one.
int UnreadableItems(const std::vector<std::string>& items);

// The text of the file, one item a line.
std::string WorkingStateText(const WorkingStateFields& state);

// Sets the controls from a file; a missing one reads as empty. Unless the file could be read, or
// there is none, nothing is touched.
FileStatus ArbeitsfelderLaden(const DataFiles& files, std::string_view name,
                              const WorkingStateFields& state);

// With NotWritten `reason` has the words of the system.
FileStatus ArbeitsfelderSpeichern(const DataFiles& files, std::string_view name,
                                  const WorkingStateFields& state, std::string* reason = nullptr);

}  // namespace zandrell
