#pragma once

#include <string>

#include "base/captions.h"
#include "base/shared_values.h"
#include "canvas/sheet.h"
#include "chart/chart_settings.h"
#include "chart/overlay.h"
#include "processes/process_panels.h"

namespace zandrell {

// The page in canvas units of the chart, so that the chart's own places apply unchanged.
inline constexpr PageScale kChartPage{-75, -200, 2000, 800};
// Under Exact with room for the labels at the right edge of the chart, which the page of the suite
// cuts off.
inline constexpr PageScale kExactChartPage{-75, -200, 2150, 800};

// What the page of the chart and its process is made of. All of it outlives the print-out.
struct PrintOutSource {
    const Captions& captions;
    const ChartSettings& settings;
    const Overlay& overlay;
    const ProcessPanels& processes;
};

const PageScale& ChartPageOf(const ChartSettings& settings);

// The line under the header: program, kind of chart and pressure.
std::string PageHeading(const PrintOutSource& source, const SharedValues& shared);

// The visible marks, lines and labels of the overlay, in black.
void PrintMarks(const Overlay& overlay, Sheet& sheet);

// The block of figures under the chart, in canvas units of the chart. In modes that set only some
// of the figures the others print what they held last, and this is meant; under Exact only figures
// of the process in force print.
void PrintFigures(const PrintOutSource& source, Sheet& sheet);

}  // namespace zandrell
