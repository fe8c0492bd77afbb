#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

// What both programs of the command need of the process around them.

// Writes "zandrell-calc: " and the line to the standard error. Returns the status of a failure.
int ReportFailure(const std::string& line);

// How messages call an input: "-" is the standard input.
std::string NameOfInput(const std::string& name);

// Opens a file to read, "-" is the standard input. Negative, with one line in `error`, when it
// cannot be opened or is a folder.
int OpenInput(const std::string& name, std::string& error);

// The whole of a script: a file, "-" for the standard input, no text for an empty name.
bool ReadScript(const std::string& name, std::string& script, std::string& error);

// Replaces the process by the program of that name in the same folder, with the same arguments.
// Returns only on failure, with one line in `error`.
void BecomeSibling(const std::string& program, char** arguments, std::string& error);

// Runs the program of that name in the same folder and waits for it. `input` is what it reads,
// `output` what it writes to its standard output. False, with one line in `error`, when it cannot
// be run or ends with another status than 0; it then says why on its standard output.
bool RunSibling(std::string_view program, const std::vector<std::string>& arguments,
                const std::string& input, std::string& output, std::string& error);

}  // namespace zandrell
