#include "chart/chart_settings.h"

#include "base/delimited_text.h"
#include "base/file_names.h"

namespace zandrell {
namespace {

constexpr int kExactItem = 1, kFogLinesItem = 1;

}  // namespace

FileStatus ReadChartSettings(const DataFiles& files, ChartSettings& settings) {
    const FileText file = files.OpenForInput(kChartSettingsFile);
    if (file.status != FileStatus::Ok) return file.status;
    DelimitedReader reader(file.text);
    settings.convention = Convention::Suite;
    settings.fog_lines = false;
    const bool whole =
        reader.ReadNumber(settings.pressure_bar) && reader.ReadNumber(settings.ChartTMin) &&
        reader.ReadNumber(settings.ChartTMax) && reader.ReadNumber(settings.ChartXMin) &&
        reader.ReadNumber(settings.ChartXMax) && reader.ReadNumber(settings.site_height_m) &&
        reader.ReadInteger(settings.DiagrammArt) && reader.ReadInteger(settings.Helligkeit);
    int convention = 0;
    if (whole && reader.ReadInteger(convention) && convention == kExactItem) {
        settings.convention = Convention::Exact;
        int fog_lines = 0;
        settings.fog_lines = reader.ReadInteger(fog_lines) && fog_lines == kFogLinesItem;
    }
    return whole ? FileStatus::Ok : FileStatus::Malformed;
}

FileStatus WriteChartSettings(const DataFiles& files, const ChartSettings& settings,
                              std::string* reason) {
    DelimitedWriter writer;
    writer.Number(settings.pressure_bar).EndLine();
    writer.Number(settings.ChartTMin).EndLine();
    writer.Number(settings.ChartTMax).EndLine();
    writer.Number(settings.ChartXMin).EndLine();
    writer.Number(settings.ChartXMax).EndLine();
    writer.Number(settings.site_height_m).EndLine();
    writer.Number(settings.DiagrammArt).EndLine();
    writer.Number(settings.Helligkeit).EndLine();
    if (settings.convention == Convention::Exact) {
        writer.Number(kExactItem).EndLine();
        if (settings.fog_lines) writer.Number(kFogLinesItem).EndLine();
    }
    return files.OpenForOutput(kChartSettingsFile, writer.Result(), Durability::Flushed, reason);
}

}  // namespace zandrell
