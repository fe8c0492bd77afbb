#pragma once

#include "chart/chart_settings.h"

namespace zandrell {

struct CanvasPoint {
    double x = 0, y = 0;
};

struct ChartState {
    double t = 0;  // degC
    double x = 0;  // g/kg
};

// The rubber frame of a zoom in canvas units.
struct ZoomFrame {
    double left = 0, top = 0, width = 0, height = 0;
};

// The transform between states and canvas units. There is no skew: x runs along one axis, t along
// the other; the Carrier chart has the two exchanged.
struct ChartScale {
    double MassstabX = 45;                 // canvas units per g/kg
    double MassstabT = 580 / (1.07 * 60);  // canvas units per kelvin
    int NullpunktX = 35;
    int NullpunktY = 560;
    int VersatzX = 0;
    int VersatzT = -181;
    double CarrierFaktor = 1;  // aspect of the Carrier mapping
    int DiagrammArt = kMollier;
    double spanT = 1.07 * 60, spanX = 40;

    // On the Mollier chart, before any turning. VersatzX is added, not taken away: with a range
    // that does not start at 0 the curves shift to the right, and this is meant.
    double Xm(double x) const { return NullpunktX + VersatzX + x * MassstabX; }
    double Ym(double t) const { return NullpunktY + VersatzT - t * MassstabT; }

    // A point of the Mollier chart on the chart in force.
    CanvasPoint Turned(CanvasPoint mollier) const;
    CanvasPoint PointOf(double x, double t) const { return Turned({Xm(x), Ym(t)}); }

    // The state under a point of the canvas. The sign of VersatzX is opposite to that of Xm, and
    // this asymmetry is meant.
    ChartState StateAt(CanvasPoint point) const;
};

// The whole range on the canvas. A span that is not positive leaves the former scale.
void ApplyBaseScale(const ChartSettings& settings, ChartScale& scale);

// The section under the frame; a second zoom on a zoomed chart compounds. The frame is taken as one
// of the Mollier chart on the Carrier chart too, which so shows another section: this is meant.
void ApplyZoom(const ZoomFrame& frame, double factor_x, double factor_y, ChartScale& scale);

// Steps of the grids and along the humidity curves.
struct GridSteps {
    int temperature_step = 5;  // K
    int humidity_step = 5;     // g/kg
    int curve_step = 2;        // K
};

GridSteps StepsFor(const ChartSettings& settings, const ChartScale& scale);

}  // namespace zandrell
