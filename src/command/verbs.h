#pragma once

#include <iosfwd>
#include <string>

#include "command/command_line.h"
#include "command/row_run.h"

namespace zandrell {

// The verbs `state` and `invert` with the streams of the process, or a test's own. False, with one
// line in `error`, when there is no result at all; bad rows are no failure.
bool RunState(const CommandLine& line, const RowStreams& streams, std::string& error);
bool RunInvert(const CommandLine& line, const RowStreams& streams, std::string& error);

// The verb `form`: dumps go to `dumps`.
bool RunForm(const CommandLine& line, std::istream& script, std::ostream& dumps,
             std::string& error);

// The verb `selection`: the same for the selection window, whose opener the script plays.
bool RunSelectionScript(const CommandLine& line, std::istream& script, std::ostream& dumps,
                        std::string& error);

}  // namespace zandrell
