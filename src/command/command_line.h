#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "chart/chart_scale.h"
#include "command/real_air_figures.h"
#include "command/selection_verbs.h"
#include "shell/start_up.h"

namespace zandrell {

// What to draw, and where to.
struct ChartRequest {
    std::string output;
    std::string script;       // a file, "-" for the standard input, empty for none
    std::optional<int> kind;  // kMollier or kCarrier; empty as in the settings
    std::optional<ZoomFrame> zoom;
    int width = 1600, height = 900;  // pixels
};

// One state that is asked for on the command line, by two of its figures in the order of
// kPairFigureNames; without p the pressure of the settings.
struct StateOptions {
    GivenFigures given;
    std::optional<double> p;
};

// Whose air the verb state works with.
enum class AirChoice {
    Convention,  // as the settings say for t and rh, real air for any other pair
    Suite,
    Real
};

// The page to print, and where to.
struct PrintRequest {
    std::string output;
    std::string script;               // as of a ChartRequest
    std::string paper;                // A4, A3 or A2; empty as in the settings
    bool landscape = false;           // else as in the settings
    bool states = false;              // a second page with the table of states
    std::optional<int> header_style;  // 0 or 1; empty as in the settings
};

enum class Verb { State, Invert, Form, Selection, Chart, Print, Catalogue, Capacity };

struct CommandLine {
    Verb verb = Verb::State;
    NamedFolder data;
    bool json = false;
    std::string input = "-";  // the table or script; "-" is the standard input
    std::string search;       // of the verb invert
    std::optional<StateOptions> state;
    AirChoice air = AirChoice::Convention;
    ChartRequest chart;
    std::optional<Convention> convention;  // of form, chart and print; empty as in the settings
    CatalogueRequest catalogue;
    CapacityRequest capacity;
    PrintRequest print;
};

// Reads the arguments of the program. An exit status means that there is nothing left to do: help
// was written to `out`, or `error` says in one line what is wrong.
std::optional<int> ReadCommandLine(int count, const char* const* arguments, CommandLine& line,
                                   std::ostream& out, std::string& error);

}  // namespace zandrell
