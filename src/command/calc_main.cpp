#include <unistd.h>

#include <iostream>

#include "base/process_signals.h"
#include "command/command_line.h"
#include "command/process_ends.h"
#include "command/sibling_printer.h"
#include "command/verbs.h"

namespace {

using namespace zandrell;

RowStreams StreamsOf(int input) {
    return {SourceOf(input), SinkOf(STDOUT_FILENO), SinkOf(STDERR_FILENO)};
}

// An error in a line says of which file.
bool NamingTheFile(bool done, const CommandLine& line, std::string& error) {
    if (line.input != "-" && error.starts_with("line ")) error.insert(0, line.input + ": ");
    return done;
}

bool RunTable(const CommandLine& line, std::string& error) {
    const int file = OpenInput(line.input, error);
    if (file < 0) return false;
    const auto run = line.verb == Verb::State ? RunState : RunInvert;
    return NamingTheFile(run(line, StreamsOf(file), error), line, error);
}

bool RunSelection(const CommandLine& line, std::string& error) {
    const auto format = line.json ? RowFormat::Json : RowFormat::Csv;
    if (line.verb == Verb::Catalogue) {
        return RunCatalogue(line.data, line.catalogue, format, StreamsOf(STDIN_FILENO), error);
    }
    const int file = OpenInput(line.input, error);
    if (file < 0) return false;
    const bool done = RunCapacity(line.data, line.capacity, format, StreamsOf(file), error);
    return NamingTheFile(done, line, error);
}

bool RunScript(const CommandLine& line, std::string& error) {
    const auto run = line.verb == Verb::Selection ? RunSelectionScript : RunForm;
    const int file = OpenInput(line.input, error);
    if (file < 0) return false;
    SourceBuffer source(SourceOf(file));
    std::istream script(&source);
    if (!NamingTheFile(run(line, script, std::cout, error), line, error)) return false;
    if (source.Failed()) error = NameOfInput(line.input) + ": cannot be read";
    return !source.Failed();
}

bool Run(const CommandLine& line, std::string& error) {
    switch (line.verb) {
        case Verb::Form:
        case Verb::Selection:
            return RunScript(line, error);
        case Verb::Catalogue:
        case Verb::Capacity:
            return RunSelection(line, error);
        default:
            return RunTable(line, error);
    }
}

}  // namespace

int main(int count, char** arguments) {
    TakeFileLimitAsError();
    CommandLine line;
    std::string error;
    if (const auto status = ReadCommandLine(count, arguments, line, std::cout, error)) {
        if (!error.empty()) ReportFailure(error);
        if (!std::cout.flush()) return ReportFailure("the output cannot be written");
        return *status;
    }
    if (line.verb == Verb::Chart || line.verb == Verb::Print) {
        // The toolkit would slow down every start, so the program that draws with it stands apart.
        BecomeSibling(std::string(kDrawingProgram), arguments, error);
        return ReportFailure(error);
    }
    return Run(line, error) ? 0 : ReportFailure(error);
}
