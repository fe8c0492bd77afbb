#include "chart/scale_moves.h"

#include <algorithm>
#include <functional>

#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr CanvasPoint kMiddle{995, 290};  // of the canvas

using Change = std::function<double(double)>;

// Puts the origin of both axes, in units of the Mollier chart, where the changes say.
void MoveOrigin(ChartScale& scale, double factor, const Change& across, const Change& along) {
    const auto assign = [](int& target, double value) {
        if (const auto rounded = RoundToInteger(value)) target = *rounded;
    };
    scale.zoomed = true;
    if (scale.convention == Convention::Exact) {
        scale.exact.x_units = across(scale.exact.x_units);
        scale.exact.t_units = along(scale.exact.t_units);
        TellOrigin(scale);
        return;
    }
    // Of the two parts of an origin one takes up what the rounding of the other leaves.
    const double x = across(scale.NullpunktX + scale.VersatzX);
    const double y = along(scale.NullpunktY + scale.VersatzT);
    assign(scale.VersatzX, scale.VersatzX * factor);
    assign(scale.VersatzT, scale.VersatzT * factor);
    assign(scale.NullpunktX, x - scale.VersatzX);
    assign(scale.NullpunktY, y - scale.VersatzT);
}

}  // namespace

ChartScale Magnified(ChartScale scale, CanvasPoint place, double factor) {
    const CanvasPoint fixed = scale.Unturned(place);
    scale.MassstabX *= factor;
    scale.MassstabT *= factor;
    scale.spanX /= factor;
    scale.spanT /= factor;
    MoveOrigin(
        scale, factor, [&](double x) { return fixed.x + (x - fixed.x) * factor; },
        [&](double y) { return fixed.y + (y - fixed.y) * factor; });
    return scale;
}

ChartScale Shifted(ChartScale scale, CanvasPoint from, CanvasPoint to) {
    const CanvasPoint old_place = scale.Unturned(from), place = scale.Unturned(to);
    MoveOrigin(
        scale, 1, [&](double x) { return x + place.x - old_place.x; },
        [&](double y) { return y + place.y - old_place.y; });
    return scale;
}

double Magnification(const ChartScale& scale, const ChartSettings& settings) {
    ChartScale whole = scale;
    ApplyBaseScale(settings, whole);
    return std::max(scale.MassstabX / whole.MassstabX, scale.MassstabT / whole.MassstabT);
}

bool ShowsTheRange(const ChartScale& scale, const ChartSettings& settings) {
    const CanvasPoint middle = scale.Unturned(kMiddle);
    const double x = (middle.x - scale.Xm(0)) / scale.MassstabX;
    const double t = (scale.Ym(0) - middle.y) / scale.MassstabT;
    return x >= settings.ChartXMin && x <= settings.ChartXMax && t >= settings.ChartTMin &&
           t <= settings.ChartTMax;
}

}  // namespace zandrell
