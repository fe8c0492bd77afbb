// qv_par.dat and qv_wert.dat of any bytes: settings are numbers, and a cache ends.
#include <cmath>

#include "chart/chart_settings.h"
#include "chart/curve_cache.h"
#include "fuzz/fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    static fuzz::Folder folder;
    for (const char* name : {"qv_par.dat", "qv_wert.dat"})
        folder.Write(name, fuzz::Bytes(data, size));
    ChartSettings settings;
    ReadChartSettings(folder.Files(), settings);
    for (const double number : {settings.pressure_bar, settings.ChartTMin, settings.ChartTMax,
                                settings.ChartXMin, settings.ChartXMax, settings.site_height_m}) {
        fuzz::Require(std::isfinite(number));
    }
    CurveCache cache(folder.Files());
    if (!cache.Begin(settings)) return 0;
    CurvePoint point;
    for (std::size_t i = 0; i <= size && cache.Read(point); ++i) {
        fuzz::Require(std::isfinite(point.t) && std::isfinite(point.x) && std::isfinite(point.h));
    }
    return 0;
}
