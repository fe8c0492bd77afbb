#include "chart/chart_scale.h"

#include <cmath>

#include "base/number_text.h"

namespace zandrell {
namespace {

// The span of the axis as a multiple of the range of temperatures: room for the labels.
constexpr double kMollierSpan = 1.07, kCarrierSpan = 1.2;
constexpr double kChartWidth = 1800, kChartHeight = 580;  // canvas units that the ranges fill
constexpr int kLeftEdge = 35;
constexpr int kBottomEdgeMollier = 560, kBottomEdgeCarrier = 500;
constexpr double kCarrierRight = 1800, kCarrierBottom = 560;

void AssignRounded(int& target, double value) {
    if (const auto rounded = RoundToInteger(value)) target = *rounded;
}

}  // namespace

bool IsUsable(double span) {
    return span > 0 && std::isfinite(span) && std::isfinite(kChartWidth / span);
}

CanvasPoint ChartScale::Turned(CanvasPoint mollier) const {
    if (DiagrammArt == kMollier) return mollier;
    return {kCarrierRight - mollier.y * CarrierFaktor, kCarrierBottom - mollier.x / CarrierFaktor};
}

CanvasPoint ChartScale::Unturned(CanvasPoint point) const {
    if (DiagrammArt == kMollier) return point;
    return {(kCarrierBottom - point.y) * CarrierFaktor, (kCarrierRight - point.x) / CarrierFaktor};
}

ChartState ChartScale::SuiteState(CanvasPoint mollier) const {
    return {(NullpunktY + VersatzT - mollier.y) / MassstabT,
            (mollier.x - NullpunktX + VersatzX) / MassstabX};
}

void ApplyBaseScale(const ChartSettings& settings, ChartScale& scale) {
    scale.DiagrammArt = settings.DiagrammArt;
    scale.convention = settings.convention;
    scale.zoomed = false;
    (settings.convention == Convention::Exact ? ExactScale : SuiteScale)(settings, scale);
}

void ApplyZoom(const ZoomFrame& frame, double factor_x, double factor_y, ChartScale& scale) {
    scale.zoomed = true;
    if (scale.convention == Convention::Exact) {
        ExactZoom(frame, scale);
    } else {
        SuiteZoom(frame, factor_x, factor_y, scale);
    }
}

void SuiteScale(const ChartSettings& settings, ChartScale& scale) {
    const bool mollier = settings.DiagrammArt == kMollier;
    const double spanT =
        (mollier ? kMollierSpan : kCarrierSpan) * (settings.ChartTMax - settings.ChartTMin);
    const double spanX = settings.ChartXMax - settings.ChartXMin;
    scale.NullpunktX = kLeftEdge;
    scale.NullpunktY = mollier ? kBottomEdgeMollier : kBottomEdgeCarrier;
    if (IsUsable(spanT)) {
        scale.spanT = spanT;
        scale.MassstabT = kChartHeight / spanT;
        AssignRounded(scale.VersatzT, std::floor(settings.ChartTMin * scale.MassstabT));
    }
    if (IsUsable(spanX)) {
        scale.spanX = spanX;
        scale.MassstabX = kChartWidth / spanX;
        AssignRounded(scale.VersatzX, std::floor(settings.ChartXMin * scale.MassstabX));
    }
}

void SuiteZoom(const ZoomFrame& frame, double factor_x, double factor_y, ChartScale& scale) {
    if (!(factor_x > 0) || !(factor_y > 0)) return;
    AssignFinite(scale.MassstabX, scale.MassstabX / factor_x);
    AssignFinite(scale.MassstabT, scale.MassstabT / factor_y);
    AssignRounded(
        scale.NullpunktY,
        kBottomEdgeMollier + (kBottomEdgeMollier - (frame.top + frame.height)) / factor_y);
    AssignRounded(scale.NullpunktX, kLeftEdge - std::floor(frame.left / factor_x));
    AssignRounded(scale.VersatzT, scale.VersatzT / factor_y);
    AssignRounded(scale.VersatzX, scale.VersatzX / factor_x);
    scale.spanT *= factor_y;
    scale.spanX *= factor_x;
}

GridSteps StepsFor(const ChartSettings& settings, const ChartScale& scale) {
    const double range = settings.ChartTMax - settings.ChartTMin;
    GridSteps steps;
    // Ranges under 20 K never pass the options; a file that holds one still gets its curves.
    if (range < 40) {
        steps.temperature_step = range < 20 ? 1 : 2;
        steps.curve_step = 1;
    }
    if (scale.spanX < 30) steps.humidity_step = scale.spanX < 10 ? 1 : 2;
    return steps;
}

}  // namespace zandrell
