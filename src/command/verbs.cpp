#include "command/verbs.h"

#include <istream>
#include <ostream>

#include "base/file_names.h"
#include "chart/chart_settings.h"
#include "command/air_choice.h"
#include "command/row_calculations.h"
#include "command/sibling_printer.h"
#include "command/single_state.h"
#include "kernel/state_solver.h"
#include "kernel/water_air_tables.h"
#include "shell/form_script.h"
#include "shell/selection_stage.h"

namespace zandrell {
namespace {

// What the tables need of the data folder.
struct CalculationData {
    DataFiles files;
    ChartSettings settings;
    WaterAirTables tables;

    explicit CalculationData(const NamedFolder& named) : files(PrepareDataFolder(named, false)) {
        SharedValues shared;
        ReadSuiteParameters(named, files, shared);
        ReadChartSettings(files, settings);  // without the file its defaults hold
    }

    bool ReadTables(std::string& error) {
        const FileText file = files.OpenForInput(kCoefficientFile);
        error = files.Resolve(kCoefficientFile).string() + ": ";
        if (file.status != FileStatus::Ok) {
            error += StatusWord(file.status);
            if (!file.reason.empty()) error += ", " + file.reason;
            return false;
        }
        tables = ReadWaterAirTables(file.text);
        if (!tables.Complete()) {
            error += "malformed, " + std::to_string(tables.numbers_read) + " numbers of " +
                     std::to_string(kCoefficientCount) + " can be read";
            return false;
        }
        error.clear();
        return true;
    }
};

// The air that is worked with; Suite and Exact know it by t and rh alone.
enum class Air { Suite, Exact, Real };

Air AirFor(AirChoice choice, bool by_other_figures, const CalculationData& data) {
    if (choice == AirChoice::Suite) return Air::Suite;
    if (choice == AirChoice::Real || by_other_figures) return Air::Real;
    return data.settings.convention == Convention::Exact ? Air::Exact : Air::Suite;
}

std::optional<StateSheet> SheetFor(Air air, const StateOptions& asked, const CalculationData& data,
                                   std::string& error) {
    const double p_bar = asked.p.value_or(data.settings.pressure_bar);
    if (air == Air::Real) return RealSheet(asked.given, p_bar, error);
    const StateQuestion question{asked.given[0].value_or(0), asked.given[1].value_or(0), p_bar};
    if (air == Air::Suite) return SuiteSheet(data.tables, question, error);
    StateSolver solver(data.files);
    return ExactSheet(solver, question, error);
}

bool ShowOneState(const CommandLine& line, const RowStreams& streams, std::string& error) {
    CalculationData data(line.data);
    const auto& given = line.state->given;
    const Air air = AirFor(line.air, !(given[0] && given[1]), data);
    if (air != Air::Real && !data.ReadTables(error)) return false;
    const auto sheet = SheetFor(air, *line.state, data, error);
    if (!sheet) return false;
    if (!sheet->remark.empty()) streams.reports("note: " + sheet->remark + '\n');
    if (streams.output(line.json ? SheetAsJson(*sheet) : SheetAsTable(*sheet))) return true;
    error = "the output cannot be written";
    return false;
}

std::unique_ptr<RowCalculation> CalculationFor(Air air, const CalculationData& data) {
    const double p_bar = data.settings.pressure_bar;
    if (air == Air::Real) return MakeRealAirCalculation(p_bar);
    if (air == Air::Exact) return MakeExactAirCalculation(data.files, p_bar);
    return MakeStateCalculation(data.tables, p_bar);
}

RowFormat FormatOf(const CommandLine& line) { return line.json ? RowFormat::Json : RowFormat::Csv; }

}  // namespace

bool RunState(const CommandLine& line, const RowStreams& streams, std::string& error) {
    if (line.state) return ShowOneState(line, streams, error);
    CalculationData data(line.data);
    RowStreams table = streams;
    const bool asked = line.air != AirChoice::Convention;
    const Air air = AirFor(line.air, !asked && TableIsOfRealAir(table.input), data);
    if (air != Air::Real && !data.ReadTables(error)) return false;
    return RunRows(*CalculationFor(air, data), FormatOf(line), table, error);
}

bool RunInvert(const CommandLine& line, const RowStreams& streams, std::string& error) {
    CalculationData data(line.data);
    if (!data.ReadTables(error)) return false;
    const auto calculation =
        MakeInverseCalculation(line.search, data.files, data.settings.pressure_bar);
    if (calculation) return RunRows(*calculation, FormatOf(line), streams, error);
    error = "there is no search " + line.search;
    return false;
}

bool RunForm(const CommandLine& line, std::istream& script, std::ostream& dumps,
             std::string& error) {
    DataFiles files(PrepareDataFolder(line.data, false));
    ScriptedUser user(script, dumps);
    MainForm form(user, files, line.data);
    form.chart.convention_override = line.convention;
    SiblingPrinter printer;
    form.printing.SetDevice(&printer);
    if (!user.Run(form, error)) return false;
    if (dumps.flush()) return true;
    error = "the output cannot be written";
    return false;
}

bool RunSelectionScript(const CommandLine& line, std::istream& script, std::ostream& dumps,
                        std::string& error) {
    DataFiles files(PrepareDataFolder(line.data, false));
    ScriptedUser user(script, dumps);
    SelectionDesk desk(user, files, line.data);
    SiblingPrinter printer;
    desk.SetDevice(&printer);
    SelectionStage stage(desk);
    if (!user.Run(stage, error, [&] { desk.Load(); })) return false;
    if (dumps.flush()) return true;
    error = "the output cannot be written";
    return false;
}

}  // namespace zandrell
