#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "base/number_text.h"
#include "base/unit_texts.h"
#include "canvas/palette.h"
#include "chart/chart_painting.h"
#include "kernel/inverse_state.h"

namespace zandrell {
namespace {

constexpr double kPrinterLastPoint = 3000;
constexpr double kPrinterLastLabel = 2000;

// Temperatures in degC at which the search of each density line starts. The last stays without a
// line.
constexpr std::array<double, 10> kDensityStarts = {-15, -7, 4, 14, 22, 29, 39, 56, 71, 81};

bool CurvePointAt(const ChartPainting& painting, double humidity, int t, CurvePoint& point) {
    if (painting.cache_is_good) return painting.cache.Read(point);
    if (!painting.solver.Evaluate(humidity, t, painting.settings.pressure_bar)) return false;
    point = {static_cast<double>(t), painting.solver.ZustandX, painting.solver.ZustandH};
    painting.cache.Write(point);
    return true;
}

void LabelHumidityCurve(const ChartPainting& painting, int i, double previous_x) {
    const std::string text = NumberText(i * 10) + "%";
    if (painting.Mollier()) {
        if (painting.on_printer && previous_x >= kPrinterLastLabel) return;
        painting.canvas.Text(previous_x - 40 + 2 * i, 2, text);
        return;
    }
    painting.canvas.Text(0.92 * painting.width,
                         560 - previous_x / painting.scale.CarrierFaktor - 10 + 2 * i, text);
}

bool CarrierLabelFits(const ChartPainting& painting, CanvasPoint previous) {
    return painting.Mollier() || !painting.on_printer ||
           painting.scale.Turned(previous).x > 0.8 * painting.width;
}

void PaintHumidityCurve(const ChartPainting& painting, int i, CurvePoint& point) {
    const int step = painting.steps.curve_step;
    const auto range =
        WholeDegrees(painting.settings.ChartTMin, painting.settings.ChartTMax + step, step);
    const int colour = i == 10 ? kDarkRed : kLightBlue;
    if (painting.on_printer) painting.canvas.SetLineWidth(i == 10 ? 6 : 2);
    bool label_pending = true;
    std::optional<CanvasPoint> previous;
    for (int t = range.first; t <= range.last; t += step) {
        if (!CurvePointAt(painting, i / 10.0, t, point)) continue;
        const CanvasPoint here{painting.scale.Xm(point.x), painting.scale.Ym(point.t)};
        if (previous) {
            if (here.y < 0 && label_pending && CarrierLabelFits(painting, *previous)) {
                LabelHumidityCurve(painting, i, previous->x);
                label_pending = false;
            }
            const bool on_paper = previous->x < kPrinterLastPoint && here.x < kPrinterLastPoint;
            if (!painting.on_printer || on_paper) painting.Line(*previous, here, colour);
        }
        previous = here;
    }
    painting.canvas.SetLineWidth(1);
}

// Cuts the line from a to b at the upper edge of the chart when a lies above it.
CanvasPoint ClippedAtTop(CanvasPoint a, CanvasPoint b, double top) {
    if (a.y >= top) return a;
    const double slope = (b.y - a.y) / (b.x - a.x);
    const double intercept = a.y - slope * a.x;
    const double x = (top - intercept) / slope;
    return std::isfinite(x) ? CanvasPoint{x, top} : a;
}

int EnthalpyStep(const ChartSettings& settings) {
    if (settings.ChartXMax < 10) return 2;
    return settings.ChartXMax < 35 ? 5 : 10;
}

struct EnthalpyLine {
    CanvasPoint dry, saturated;
};

// Empty when the line does not meet the saturation line within the chart's range.
std::optional<EnthalpyLine> FindEnthalpyLine(const ChartPainting& painting, int h, int h_step) {
    const auto& settings = painting.settings;
    double reach = (settings.ChartTMax + 10 * h_step) - (settings.ChartTMin + h_step);
    const SearchResult dry =
        TempAusEnthalpie(painting.solver, h, h, EnthalpySearch::DryAirEstimate, reach, 100, 10);
    const SearchResult saturated = TempAusEnthalpie(
        painting.solver, settings.ChartTMin, h, EnthalpySearch::RelativeHumidity, reach, 100, 10);
    if (!saturated.Found() || saturated.value < settings.ChartTMin ||
        saturated.value > settings.ChartTMax + painting.steps.temperature_step) {
        return std::nullopt;
    }
    const auto& scale = painting.scale;
    EnthalpyLine line{{scale.Xm(0), scale.Ym(dry.value)},
                      {scale.Xm(painting.solver.ZustandX), scale.Ym(saturated.value)}};
    line.dry = ClippedAtTop(line.dry, line.saturated, painting.top_edge);
    return line;
}

bool EnthalpyLineFits(const ChartPainting& painting, const EnthalpyLine& line,
                      CanvasPoint extension) {
    if (!painting.on_printer) return true;
    if (painting.Mollier()) {
        return line.saturated.x >= 0 && line.saturated.x <= painting.width &&
               extension.x < 0.93 * painting.width;
    }
    const double x = painting.scale.Turned(line.dry).x;
    return x >= 0 && x <= 2 * painting.width;
}

void PaintEnthalpyLine(const ChartPainting& painting, int h, const EnthalpyLine& line) {
    const CanvasPoint extension = EnthalpyExtensionEnd(painting, line.saturated);
    if (line.saturated.x < painting.left_edge || !EnthalpyLineFits(painting, line, extension))
        return;
    painting.Line(line.dry, line.saturated, kGrey);
    painting.Line(line.saturated, extension, kGrey);
    PaintEnthalpyNumber(painting, h, extension);
}

void PaintDensityLine(const ChartPainting& painting, int i) {
    const double density = kFirstDensity - kDensityStep * i;
    const double start = kDensityStarts[static_cast<std::size_t>(i)];
    const auto& scale = painting.scale;
    // The line ends where the searches stopped, found or not.
    const double dry_t =
        TempAusDichte(painting.solver, start, density, DensitySearch::DryEdge).value;
    const double saturated_t =
        TempAusDichte(painting.solver, start - 2, density, DensitySearch::Saturation).value;
    const CanvasPoint saturated{scale.Xm(painting.solver.ZustandX), scale.Ym(saturated_t)};
    const CanvasPoint dry =
        ClippedAtTop({scale.Xm(0), scale.Ym(dry_t)}, saturated, painting.top_edge);
    const bool fits = saturated.y >= 0 && saturated.y <= 270;
    if (painting.on_printer && !fits) return;
    painting.Line(dry, saturated, kGrey);
    const CanvasPoint label = scale.Turned(saturated);
    const std::string text = NumberText(density) + " kg/m³";
    if (painting.Mollier()) {
        painting.canvas.Text(label.x, label.y, text);
    } else {
        painting.canvas.Text(label.x - 120, label.y - 10, text);
    }
}

}  // namespace

void PaintHumidityCurves(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::CurveLabel);
    CurvePoint point;
    for (int i = 1; i <= 10; ++i) {
        if (painting.progress != nullptr) {
            painting.progress->text =
                std::string(painting.progress_word) + " " + TrimmedNumberText(i * 10) + "%";
        }
        PaintHumidityCurve(painting, i, point);
    }
}

std::vector<int> EnthalpiesWithLine(const ChartSettings& settings) {
    const int step = EnthalpyStep(settings);
    const auto range =
        WholeDegrees(settings.ChartTMin + step,
                     settings.ChartTMax + std::floor(settings.ChartXMax / 4) * step, step);
    std::vector<int> enthalpies;
    for (int h = range.first; h <= range.last; h += step) {
        if (settings.ChartXMax <= 100 || h % 20 == 0) enthalpies.push_back(h);
    }
    return enthalpies;
}

CanvasPoint EnthalpyExtensionEnd(const ChartPainting& painting, CanvasPoint saturated) {
    return {saturated.x + 0.1 * painting.width, saturated.y};
}

void PaintEnthalpyNumber(const ChartPainting& painting, int h, CanvasPoint extension_end) {
    const CanvasPoint end = painting.scale.Turned(extension_end);
    const std::string unit(UnitKJkg);
    if (painting.Mollier()) {
        painting.canvas.Text(end.x, end.y - 5, NumberText(h) + " " + unit);
    } else {
        painting.canvas.Text(end.x - 8, end.y - 8, NumberText(h) + unit);
    }
}

void PaintEnthalpyLines(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::ExtensionLabel);
    const int step = EnthalpyStep(painting.settings);
    for (const int h : EnthalpiesWithLine(painting.settings)) {
        if (const auto line = FindEnthalpyLine(painting, h, step))
            PaintEnthalpyLine(painting, h, *line);
    }
}

void PaintDensityLines(const ChartPainting& painting) {
    painting.canvas.SetTextRole(TextRole::CurveLabel);
    for (int i = 0; i < kDensityLines; ++i) PaintDensityLine(painting, i);
}

}  // namespace zandrell
