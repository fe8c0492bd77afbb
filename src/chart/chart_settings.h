#pragma once

#include "base/data_files.h"

namespace zandrell {

inline constexpr int kMollier = 0, kCarrier = 1;
inline constexpr int kBlackGround = 0, kWhiteGround = 1;

// What the chart keeps to: the rules that the suite's modules share, to the letter, or what an
// engineer can read off. Each has functions of its own.
enum class Convention { Suite, Exact };

// The chart's settings as qv_par.dat keeps them.
struct ChartSettings {
    double pressure_bar = 1.013;
    double ChartTMin = -20, ChartTMax = 40;  // degC
    double ChartXMin = 0, ChartXMax = 40;    // g/kg
    double site_height_m = 0;
    int DiagrammArt = kMollier;  // any other value than 0 is the Carrier chart
    int Helligkeit = kWhiteGround;
    Convention convention = Convention::Suite;
    bool fog_lines = false;  // of Exact: the enthalpy lines go on behind saturation
};

// Items that the file lacks keep their value in `settings`; a file without the item of the
// convention keeps to that of the suite, which writes no such item, nor one of the fog lines.
FileStatus ReadChartSettings(const DataFiles& files, ChartSettings& settings);
// With NotWritten `reason` has the words of the system.
FileStatus WriteChartSettings(const DataFiles& files, const ChartSettings& settings,
                              std::string* reason = nullptr);

}  // namespace zandrell
