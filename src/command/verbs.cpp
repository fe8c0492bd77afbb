#include "command/verbs.h"

#include <istream>
#include <ostream>

#include "base/file_names.h"
#include "chart/chart_settings.h"
#include "command/air_choice.h"
#include "command/row_calculations.h"
#include "command/sibling_printer.h"
#include "command/single_state.h"
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

bool AskOneState(const CalculationData& data, const CommandLine& line, std::string& text,
                 std::string& error) {
    const double usual_bar = data.settings.pressure_bar;
    if (line.real_state) {
        const auto show = line.json ? RealStateAsJson : RealStateAsTable;
        return show(line.real_state->given, line.real_state->p.value_or(usual_bar), text, error);
    }
    const StateQuestion question{line.state->t, line.state->rh, line.state->p.value_or(usual_bar)};
    return (line.json ? StateAsJson : StateAsTable)(data.tables, question, text, error);
}

bool ShowOneState(const CalculationData& data, const CommandLine& line, const ByteSink& output,
                  std::string& error) {
    std::string text;
    if (!AskOneState(data, line, text, error)) return false;
    if (output(text)) return true;
    error = "the output cannot be written";
    return false;
}

RowFormat FormatOf(const CommandLine& line) { return line.json ? RowFormat::Json : RowFormat::Csv; }

}  // namespace

bool RunState(const CommandLine& line, const RowStreams& streams, std::string& error) {
    CalculationData data(line.data);
    RowStreams table = streams;
    const bool real_air = line.real_air || (line.air_by_columns && TableIsOfRealAir(table.input));
    if (!real_air && !data.ReadTables(error)) return false;
    if (line.state || line.real_state) return ShowOneState(data, line, streams.output, error);
    const auto calculation = real_air
                                 ? MakeRealAirCalculation(data.settings.pressure_bar)
                                 : MakeStateCalculation(data.tables, data.settings.pressure_bar);
    return RunRows(*calculation, FormatOf(line), table, error);
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
