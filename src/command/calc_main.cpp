#include <unistd.h>

#include <fstream>
#include <iostream>

#include "command/command_line.h"
#include "command/process_ends.h"
#include "command/verbs.h"

namespace {

using namespace zandrell;

// An error in a line says of which file.
bool NamingTheFile(bool done, const CommandLine& line, std::string& error) {
    if (line.input != "-" && error.starts_with("line ")) error.insert(0, line.input + ": ");
    return done;
}

bool RunTable(const CommandLine& line, std::string& error) {
    const int file = OpenInput(line.input, error);
    if (file < 0) return false;
    const RowStreams streams{SourceOf(file), SinkOf(STDOUT_FILENO), SinkOf(STDERR_FILENO)};
    const auto run = line.verb == Verb::State ? RunState : RunInvert;
    return NamingTheFile(run(line, streams, error), line, error);
}

bool RunScript(const CommandLine& line, std::string& error) {
    if (line.input == "-") return RunForm(line, std::cin, std::cout, error);
    const int file = OpenInput(line.input, error);
    if (file < 0) return false;
    ::close(file);
    std::ifstream script(line.input);
    return NamingTheFile(RunForm(line, script, std::cout, error), line, error);
}

}  // namespace

int main(int count, char** arguments) {
    CommandLine line;
    std::string error;
    if (const auto status = ReadCommandLine(count, arguments, line, std::cout, error)) {
        if (!error.empty()) ReportFailure(error);
        return *status;
    }
    if (line.verb == Verb::Chart) {
        // The toolkit would slow down every start, so the program that draws with it stands apart.
        BecomeSibling("zandrell-calc-chart", arguments, error);
        return ReportFailure(error);
    }
    const bool done = line.verb == Verb::Form ? RunScript(line, error) : RunTable(line, error);
    return done ? 0 : ReportFailure(error);
}
