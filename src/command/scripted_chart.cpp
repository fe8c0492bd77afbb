#include "command/scripted_chart.h"

#include "base/file_names.h"
#include "kernel/state_solver.h"

namespace zandrell {

namespace {

// A page is printed from the window with which a script starts.
ChartRequest RequestOf(const CommandLine& line) {
    if (line.verb != Verb::Print) return line.chart;
    ChartRequest request;
    request.script = line.print.script;
    const WindowSize window;
    request.width = window.width;
    request.height = window.height;
    return request;
}

}  // namespace

ScriptedChart::ScriptedChart(const CommandLine& line, const std::string& script,
                             std::ostream& dumps)
    : request_(RequestOf(line)),
      script_(script),
      user_(script_, dumps),
      files_(PrepareDataFolder(line.data, false)),
      form_(user_, files_, line.data) {
    form_.chart.kind_override = request_.kind;
    form_.chart.convention_override = line.convention;
    form_.printing.SetDevice(&printer_);
}

bool ScriptedChart::Run(std::string& error) {
    if (!RunScript(error)) return false;
    if (!form_.solver.HasCoefficients()) {
        error = files_.Resolve(kCoefficientFile).string() + ": " +
                std::string(StatusWord(form_.solver.CoefficientStatus()));
        return false;
    }
    return !request_.zoom || Zoom(*request_.zoom, error);
}

bool ScriptedChart::RunScript(std::string& error) {
    if (user_.Run(form_, error, {request_.width, request_.height})) return true;
    error.insert(0, request_.script + ": ");
    return false;
}

bool ScriptedChart::Zoom(const ZoomFrame& zoom, std::string& error) {
    if (form_.Pointer().ZoomInto({zoom.left, zoom.top}, zoom.width, zoom.height)) return true;
    error = "no zoom while the script leaves a mark hanging on the pointer";
    return false;
}

Sheet ScriptedChart::ComposeSheet(const PrintRequest& request) {
    if (!request.paper.empty()) form_.shared.PaperSize = request.paper;
    if (request.landscape) form_.shared.PaperOrientation = 2;
    if (request.states) form_.shared.prints_states = true;
    if (request.header_style) form_.shared.HeaderStyle = *request.header_style;
    form_.printing.setup.LoadLogo();
    return form_.printing.ComposeSheet();
}

}  // namespace zandrell
