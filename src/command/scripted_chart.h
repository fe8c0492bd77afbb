#pragma once

#include <iosfwd>
#include <sstream>
#include <string>

#include "command/command_line.h"
#include "command/sibling_printer.h"
#include "shell/form_script.h"

namespace zandrell {

// The verbs `chart` and `print` up to the drawing: a main form that starts at the wanted size and
// kind, and goes through the script and the zoom.
class ScriptedChart {
  public:
    // `script` is its text, empty for none; its dumps go to `dumps`, which outlives the chart.
    ScriptedChart(const CommandLine& line, const std::string& script, std::ostream& dumps);

    // False, with one line in `error`, when the script cannot be carried out, the zoom is refused
    // or there are no coefficients to draw curves with.
    bool Run(std::string& error);

    // Its picture and overlay are what is to be drawn.
    const MainForm& Form() const { return form_; }

    // The page of the verb `print`, with what the request says in place of the settings.
    Sheet ComposeSheet(const PrintRequest& request);

  private:
    bool RunScript(std::string& error);
    bool Zoom(const ZoomFrame& zoom, std::string& error);

    const ChartRequest request_;
    std::istringstream script_;
    ScriptedUser user_;
    DataFiles files_;
    SiblingPrinter printer_;
    MainForm form_;
};

}  // namespace zandrell
