#include <iostream>

#include "command/process_ends.h"
#include "command/scripted_chart.h"
#include "painter/chart_file.h"
#include "painter/offscreen_toolkit.h"

// The verb `chart` of zandrell-calc, which starts this program with its own arguments.
int main(int count, char** arguments) {
    using namespace zandrell;
    CommandLine line;
    std::string script, error;
    if (const auto status = ReadCommandLine(count, arguments, line, std::cout, error)) {
        if (!error.empty()) ReportFailure(error);
        return *status;
    }
    if (line.verb != Verb::Chart) return ReportFailure("this program has the verb chart alone");
    if (!ReadScript(line.chart.script, script, error)) return ReportFailure(error);

    const OffscreenToolkit toolkit(arguments);
    ScriptedChart chart(line, script, std::cout);
    if (!chart.Run(error)) return ReportFailure(error);
    std::cout.flush();
    const MainForm& form = chart.Form();
    const bool written = WriteChartFile(form.chart.picture, form.overlay, line.chart.output,
                                        line.chart.width, line.chart.height, error);
    return written ? 0 : ReportFailure(error);
}
