#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "chart/chart_scale.h"

namespace zandrell {
namespace {

// The canvas that a zoomed section fills, in canvas units.
constexpr double kLeft = -10, kTop = 0, kRight = 2000, kBottom = 580;
// Room on each side of a zoomed section, as a share of the section: the numbers at the axes stand
// there.
constexpr double kZoomMargin = 0.045;
// Narrower sections would be drawn with the last digits of their numbers.
constexpr double kNarrowestX = 1e-6, kNarrowestT = 1e-6;  // g/kg, K

constexpr double kLeftEdge = 35;  // canvas units from the left to the axis of t
constexpr double kMollierBottom = 560, kCarrierBottom = 500;
constexpr double kChartWidth = 1800, kChartHeight = 580;
constexpr double kMollierSpan = 1.07, kLeastCarrierSpan = 1.2;  // of the range of temperatures
// What is left of the length 1800 of the Carrier chart's axis with room at both ends, or at one.
constexpr double kCarrierLength = 1750, kCarrierReach = 1765;

}  // namespace

void TellOrigin(ChartScale& scale) {
    const auto tell = [](int& target, double value) {
        if (const auto rounded = RoundToInteger(value)) target = *rounded;
    };
    tell(scale.NullpunktX, scale.exact.x_units);
    tell(scale.NullpunktY, scale.exact.t_units);
    tell(scale.VersatzX, -scale.exact.x * scale.MassstabX);
    tell(scale.VersatzT, scale.exact.t * scale.MassstabT);
}

double ChartScale::ExactXm(double x) const { return exact.x_units + (x - exact.x) * MassstabX; }
double ChartScale::ExactYm(double t) const { return exact.t_units - (t - exact.t) * MassstabT; }

ChartState ChartScale::ExactState(CanvasPoint mollier) const {
    return {exact.t + (exact.t_units - mollier.y) / MassstabT,
            exact.x + (mollier.x - exact.x_units) / MassstabX};
}

void ExactScale(const ChartSettings& settings, ChartScale& scale) {
    const bool mollier = settings.DiagrammArt == kMollier;
    const double k = scale.CarrierFaktor;
    const double share =
        mollier ? kMollierSpan : std::max(kLeastCarrierSpan, kChartHeight * k / kCarrierLength);
    const double spanT = share * (settings.ChartTMax - settings.ChartTMin);
    const double spanX = settings.ChartXMax - settings.ChartXMin;
    if (IsUsable(spanT)) {
        scale.spanT = spanT;
        scale.MassstabT = kChartHeight / spanT;
        scale.exact.t = settings.ChartTMin;
        scale.exact.t_units =
            mollier ? kMollierBottom : std::min(kCarrierBottom, std::floor(kCarrierReach / k));
    }
    if (IsUsable(spanX)) {
        scale.spanX = spanX;
        scale.MassstabX = kChartWidth / spanX;
        scale.exact.x = settings.ChartXMin;
        scale.exact.x_units = kLeftEdge;
    }
    TellOrigin(scale);
}

void ExactZoom(const ZoomFrame& frame, ChartScale& scale) {
    const ChartState one = scale.StateAt({frame.left, frame.top});
    const ChartState other = scale.StateAt({frame.left + frame.width, frame.top + frame.height});
    const double x = std::min(one.x, other.x), x_span = std::abs(one.x - other.x);
    const double t = std::min(one.t, other.t), t_span = std::abs(one.t - other.t);
    if (!(x_span >= kNarrowestX && t_span >= kNarrowestT) || !std::isfinite(x_span + t_span))
        return;
    const double wide = (kRight - kLeft) / (1 + 2 * kZoomMargin);
    const double high = (kBottom - kTop) / (1 + 2 * kZoomMargin);
    const CanvasPoint corner{kLeft + kZoomMargin * wide, kBottom - kZoomMargin * high};
    // On the Carrier chart t runs to the right and x upward.
    const CanvasPoint mollier = scale.Unturned(corner);
    const bool is_mollier = scale.DiagrammArt == kMollier;
    const double k = scale.CarrierFaktor;
    scale.MassstabX = (is_mollier ? wide : high * k) / x_span;
    scale.MassstabT = (is_mollier ? high : wide / k) / t_span;
    scale.exact = {x, mollier.x, t, mollier.y};
    scale.spanX = x_span;
    scale.spanT = t_span;
    TellOrigin(scale);
}

}  // namespace zandrell
