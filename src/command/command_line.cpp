#include "command/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>
#include <stdexcept>

#include "base/shared_values.h"
#include "command/typed_options.h"

namespace zandrell {
namespace {

constexpr int kWrongUse = 2;

constexpr const char* kTableHelp =
    "The table has comma-separated values and a header line that names the columns, in any order;\n"
    "other columns are passed through. A row stands on one line, blank lines are skipped. Without "
    "a\n"
    "column p the pressure of the settings holds. A row without a result is reported with its "
    "line\n"
    "number, has empty result cells, and does not stop the rest.";

constexpr const char* kStateHelp =
    "Columns in:    t (degC), rh (per cent), p (bar)\n"
    "Columns added: x_g_per_kg, h_kj_per_kg, h_dry_air_kj_per_kg, p_dry_air_pa, p_vapour_pa,\n"
    "               density_kg_per_m3, density_dry_air_kg_per_m3, t_boiling_k\n"
    "Under the Exact convention of the settings, and with --air real, also: t_degc, rh_percent,\n"
    "               t_dew_degc, t_wet_degc, t_wet_liquid_degc, v_m3_per_kg, enhancement\n"
    "Any two of the columns t, rh, x (g/kg), h (kJ/kg), t_dew, t_wet (degC), p_vapour (Pa) and\n"
    "density (kg/m3) give a state of real air, over ice up to 0.01 degC, from -60 to 100 degC and\n"
    "0.5 to 2 bar; one state takes two of the options of the same names. With --air real they may\n"
    "change from row to row. Without --air t and rh give the air of the settings' convention, "
    "which\n"
    "goes on beyond these limits, and other figures are passed through where both are there.\n";

constexpr const char* kInvertHelp =
    "rh-from-x       in: t, x (g/kg), p                             added: rh (per cent)\n"
    "t-from-h        in: t_start, h (kJ/kg), kind, step (K), rh, x, p\n"
    "                                                               added: t, step_after, x_last\n"
    "                kind 1: one-step estimate, at rh\n"
    "                kind 2: along constant rh\n"
    "                kind 3: along constant x\n"
    "t-from-density  in: t_start, density (kg/m3), kind, p          added: t, x_last\n"
    "                kind 1: dry edge (1 %), kind 2: saturation line\n";

constexpr const char* kSelectionHelp =
    "Acts beside those of the verb form:\n"
    "  share NAME VALUE          a shared input, or the text of a label; \\n is a line end\n"
    "  show NAME on|off          whether a control is seen, where the opener decides that\n"
    "  open                      shows the window, first and after each time that it hid itself\n"
    "  pick GRID ROW COLUMN      a click into a cell\n"
    "  key GRID Return|Up|Down|i, wheel GRID up|down, move GRID ROW, leave GRID\n"
    "  edit TEXT                 types into the box over the chosen cell\n"
    "Example:\n"
    "  printf 'share KatalogArt 600\\nshare QoSoll 12\\nshare LeistFaktor 1\\nopen\\n"
    "dump title\\n' | zandrell-calc selection -\n";

constexpr const char* kFormHelp =
    "One act a line; # begins a comment, a value runs to the end of the line.\n"
    "  window WIDTH HEIGHT   set NAME TEXT   return NAME   click NAME   choose NAME\n"
    "  check NAME on|off   select NAME INDEX   scroll NAME POSITION   key NAME KEY\n"
    "  pointer move|press|release X Y [left|right]   answer VALUE   activate   close\n"
    "  clock YYYY-MM-DD   open Hilfebox TOPIC   printer FILE.pdf   print FILE.pdf\n"
    "  dump [NAME ...]       writes one line of JSON\n"
    "The controls of another window are WINDOW.NAME once it is open.";

constexpr const char* kCapacityHelp =
    "Inputs, each as NAME=VALUE or as a column of the table of duties:\n"
    "  coolers       LeistFaktor (1 without it); for duties QoSoll, QoZusatz (kW)\n"
    "  condensers    LeistFaktor (1 without it); for duties KatBezug (kW)\n"
    "  compressors   QoSoll (kW), DruckPo, DruckPc (bar), VerlustPo, VerlustPc (mbar),\n"
    "                KaelteMittel, LiefergradBezug, Label26 (wanted swept volume, m3/h)\n"
    "  kind 100      LeistFaktor (1.037 without it); for duties QoSoll (kW)\n"
    "  line kinds    MassenStrom (kg/s), KatBezug (density, kg/m3); for duties OeffnungMax (per\n"
    "                cent) of kinds 50 and 250, dp_max_mbar of the others\n"
    "With --duties each row gets, for each maker, the unit that meets its duty most closely.";

constexpr const char* kExamples =
    "Examples:\n"
    "  zandrell-calc state --t 25 --rh 50 --p 1.013\n"
    "  zandrell-calc state < measured.csv > states.csv\n"
    "  zandrell-calc invert rh-from-x --json < table.csv\n"
    "  zandrell-calc chart -o chart.svg --kind carrier --size 1920x1080\n"
    "  zandrell-calc print -o sheet.pdf --form plant.txt --paper A3 --landscape --states\n"
    "  zandrell-calc catalogue 600 --units --json\n"
    "  zandrell-calc capacity 600 LeistFaktor=0.92\n"
    "  zandrell-calc capacity 650 --duties rooms.csv";

void AddState(CLI::App& app, TypedOptions& typed, CommandLine& line) {
    auto* verb = app.add_subcommand("state", "States of humid air, for a table or for one state");
    verb->add_option("FILE", line.input, "the table; without it the standard input");
    verb->add_option("--t", typed.figures[0], "one state instead of a table: temperature in degC");
    verb->add_option("--rh", typed.figures[1], "its relative humidity in per cent");
    verb->add_option("--p", typed.p, "its total pressure in bar; without it that of the settings");
    verb->add_option(
            "--air", typed.air,
            "suite or real; without it by the settings' convention, and real for figures other "
            "than t and rh")
        ->check(CLI::IsMember({"suite", "real"}));
    for (std::size_t i = 2; i < kPairFigures; ++i) {
        // Also with the underscore of the column.
        const std::string_view column = kPairFigureNames[i].name;
        std::string options = OptionOf(column);
        if (column.find('_') != std::string_view::npos) options.append(",--").append(column);
        verb->add_option(options, typed.figures[i],
                         "of one state, in " + std::string(kPairFigureNames[i].unit));
    }
    verb->add_flag("--json", line.json, "one JSON object a line");
    verb->footer(std::string(kStateHelp) + kTableHelp);
    verb->callback([&] {
        line.verb = Verb::State;
        TakeAir(typed, line);
        if (line.state && line.input != "-") {
            Refuse("either one state or a table, not both");
        }
    });
}

void AddInvert(CLI::App& app, CommandLine& line) {
    auto* verb =
        app.add_subcommand("invert", "Searches: humidity or temperature from other figures");
    verb->add_option("SEARCH", line.search, "rh-from-x, t-from-h or t-from-density")
        ->required()
        ->check(CLI::IsMember({"rh-from-x", "t-from-h", "t-from-density"}));
    verb->add_option("FILE", line.input, "the table; without it the standard input");
    verb->add_flag("--json", line.json, "one JSON object a line");
    verb->footer(std::string(kInvertHelp) + kTableHelp);
    verb->callback([&] { line.verb = Verb::Invert; });
}

void AddConvention(CLI::App& verb, TypedOptions& typed) {
    verb.add_option("--convention", typed.convention,
                    "suite or exact; without it as in the settings")
        ->check(CLI::IsMember({"suite", "exact"}));
}

void AddSelection(CLI::App& app, CommandLine& line) {
    auto* verb = app.add_subcommand("selection",
                                    "Drives the selection window as a user and its opener would");
    verb->add_option("SCRIPT", line.input, "the script; - is the standard input")->required();
    verb->footer(kSelectionHelp);
    verb->callback([&line] { line.verb = Verb::Selection; });
}

void AddForm(CLI::App& app, TypedOptions& typed, CommandLine& line) {
    auto* verb = app.add_subcommand("form", "Drives the main form as a user would");
    verb->add_option("SCRIPT", line.input, "the script; - is the standard input")->required();
    AddConvention(*verb, typed);
    verb->footer(kFormHelp);
    verb->callback([&] {
        line.verb = Verb::Form;
        TakeConvention(typed, line);
    });
}

void AddChart(CLI::App& app, TypedOptions& typed, CommandLine& line) {
    auto* verb = app.add_subcommand("chart", "Writes the chart as it stands to a file");
    verb->add_option("-o,--output", line.chart.output, "the file: .svg, .png or .pdf")->required();
    verb->add_option("--kind", typed.kind, "mollier or carrier; without it as in the settings")
        ->check(CLI::IsMember({"mollier", "carrier"}));
    verb->add_option("--size", typed.size, "WIDTHxHEIGHT in pixels; 1600x900 without it");
    verb->add_option("--zoom", typed.zoom, "LEFT,TOP,WIDTH,HEIGHT of a frame in canvas units");
    verb->add_option("--form", line.chart.script,
                     "a script as of the verb form, whose process is drawn; - is the standard "
                     "input");
    AddConvention(*verb, typed);
    verb->callback([&] {
        line.verb = Verb::Chart;
        TakeConvention(typed, line);
        TakeChart(typed, line.chart);
    });
}

void AddCatalogue(CLI::App& app, CommandLine& line) {
    auto* verb = app.add_subcommand("catalogue", "Lists the catalogues of components");
    auto& request = line.catalogue;
    auto* kind = verb->add_option("KIND", request.KatalogArt,
                                  "lists its series; without it the kinds are listed");
    verb->add_flag("--units", request.units, "the units of the kind")->needs(kind);
    verb->add_flag("--hidden", request.hidden, "hidden series too");
    verb->add_option("--module", request.ModuleTag, "the module whose catalogues are read, QV");
    verb->add_flag("--json", line.json, "one JSON object a line");
    verb->callback([&] { line.verb = Verb::Catalogue; });
}

void AddCapacity(CLI::App& app, TypedOptions& typed, CommandLine& line) {
    auto* verb = app.add_subcommand("capacity", "Figures of catalogue units at an operating point");
    auto& request = line.capacity;
    verb->add_option("KIND", request.shared.KatalogArt, "the kind, as 600 for air coolers")
        ->required();
    verb->add_option("INPUT", typed.inputs, "NAME=VALUE");
    verb->add_option("--duties", typed.duties, "a table of duties; - is the standard input");
    verb->add_flag("--hidden", request.hidden, "hidden series too");
    verb->add_option("--module", request.shared.ModuleTag,
                     "the module whose catalogues are read, QV");
    verb->add_flag("--json", line.json, "one JSON object a line");
    verb->footer(kCapacityHelp);
    verb->callback([&] {
        line.verb = Verb::Capacity;
        TakeCapacity(typed, request);
        line.input = request.duties.value_or("-");
    });
}

void AddPrint(CLI::App& app, TypedOptions& typed, CommandLine& line) {
    auto* verb = app.add_subcommand("print", "Writes the printed page of a process to a PDF");
    verb->add_option("-o,--output", line.print.output, "the file, .pdf")->required();
    verb->add_option("--form", line.print.script,
                     "a script as of the verb form, whose process is printed; - is the standard "
                     "input");
    verb->add_option("--paper", line.print.paper, "A4, A3 or A2; without it as in the settings")
        ->check(CLI::IsMember({"A4", "A3", "A2"}));
    verb->add_flag("--landscape", line.print.landscape, "without it as in the settings");
    verb->add_flag("--states", line.print.states, "the table of states as a second page");
    verb->add_option("--style", line.print.header_style, "of the page header: 0 framed, 1 short")
        ->check(CLI::IsMember({0, 1}));
    AddConvention(*verb, typed);
    verb->callback([&] {
        line.verb = Verb::Print;
        TakeConvention(typed, line);
        if (!HasEnding(line.print.output, ".pdf")) {
            Refuse(line.print.output + ": a printed page ends in .pdf");
        }
    });
}

std::string OneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

}  // namespace

std::optional<int> ReadCommandLine(int count, const char* const* arguments, CommandLine& line,
                                   std::ostream& out, std::string& error) {
    CLI::App app(
        "Zandrell without a window: states of humid air, searches, charts, forms, catalogues.",
        "zandrell-calc");
    TypedOptions typed;
    app.add_option("--data", typed.data, "the data folder; without it the one of the program")
        ->check([](const std::string& name) {
            return name.empty() ? std::string("the name of the folder is empty") : std::string();
        });
    app.set_version_flag("--version", std::string(kVersion));
    app.footer(kExamples);
    app.require_subcommand(0, 1);  // the library would not name a word that is no verb
    app.fallthrough();
    AddState(app, typed, line);
    AddInvert(app, line);
    AddForm(app, typed, line);
    AddSelection(app, line);
    AddChart(app, typed, line);
    AddCatalogue(app, line);
    AddCapacity(app, typed, line);
    AddPrint(app, typed, line);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& stop) {
        if (stop.get_exit_code() == 0) return app.exit(stop, out, out);
        error = OneLine(stop.what());
        return kWrongUse;
    } catch (const std::invalid_argument& wrong) {
        error = OneLine(wrong.what());
        return kWrongUse;
    }
    if (app.get_subcommands().empty()) {
        error =
            "a verb is needed: state, invert, form, selection, chart, print, catalogue or "
            "capacity; --help says more";
        return kWrongUse;
    }
    if (!typed.data.empty()) line.data = typed.data;
    return std::nullopt;
}

}  // namespace zandrell
