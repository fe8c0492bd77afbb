#include <iostream>
#include <iterator>

#include "base/process_signals.h"
#include "command/process_ends.h"
#include "command/scripted_chart.h"
#include "command/sheet_text.h"
#include "painter/chart_file.h"
#include "painter/fonts.h"
#include "painter/offscreen_toolkit.h"
#include "painter/sheet_file.h"

namespace {

using namespace zandrell;

// For the program that started this one: faults go to the standard output.
int PrintPage(const std::string& path) {
    const std::string text(std::istreambuf_iterator<char>(std::cin), {});
    Sheet sheet;
    std::string error = "this is no page";
    if (SheetFromText(text, sheet) && WriteSheetPdf(sheet, path, error)) return 0;
    std::cout << error << '\n';
    return 1;
}

int ListFonts() {
    for (const std::string& name : FontNames()) std::cout << name << '\n';
    return 0;
}

int Draw(const CommandLine& line, const std::string& script) {
    std::string error;
    ScriptedChart chart(line, script, std::cout);
    if (!chart.Run(error)) return ReportFailure(error);
    std::cout.flush();
    const MainForm& form = chart.Form();
    const bool written =
        line.verb == Verb::Print
            ? WriteSheetPdf(chart.ComposeSheet(line.print), line.print.output, error)
            : WriteChartFile(form.chart.picture, form.overlay, line.chart.output, line.chart.width,
                             line.chart.height, error);
    return written ? 0 : ReportFailure(error);
}

}  // namespace

// The verbs `chart` and `print` of zandrell-calc, which starts this program with its own arguments;
// and what scripts of the other verbs print.
int main(int count, char** arguments) {
    TakeFileLimitAsError();
    const std::string_view option = count > 1 ? arguments[1] : "";
    if (option == kFontsOption || (option == kPageOption && count == 3)) {
        const OffscreenToolkit toolkit(arguments);
        return option == kFontsOption ? ListFonts() : PrintPage(arguments[2]);
    }
    CommandLine line;
    std::string script, error;
    if (const auto status = ReadCommandLine(count, arguments, line, std::cout, error)) {
        if (!error.empty()) ReportFailure(error);
        return *status;
    }
    if (line.verb != Verb::Chart && line.verb != Verb::Print) {
        return ReportFailure("this program has the verbs chart and print alone");
    }
    const auto& name = line.verb == Verb::Print ? line.print.script : line.chart.script;
    if (!ReadScript(name, script, error)) return ReportFailure(error);
    const OffscreenToolkit toolkit(arguments);
    return Draw(line, script);
}
