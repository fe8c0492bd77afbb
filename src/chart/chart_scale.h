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

// Whether an axis can show a span: it is positive, and neither it nor what it makes of a canvas
// unit is beyond all numbers. Other spans leave the scale as it is.
bool IsUsable(double span);

// The transform between states and canvas units. There is no skew: x runs along one axis, t along
// the other; the Carrier chart has the two exchanged.
struct ChartScale {
    double MassstabX = 45;                 // canvas units per g/kg
    double MassstabT = 580 / (1.07 * 60);  // canvas units per kelvin
    // The suite's origin; under Exact these are told, rounded, and nothing reads them.
    int NullpunktX = 35;
    int NullpunktY = 560;
    int VersatzX = 0;
    int VersatzT = -181;
    double CarrierFaktor = 1;  // aspect of the Carrier mapping
    int DiagrammArt = kMollier;
    double spanT = 1.07 * 60, spanX = 40;
    Convention convention = Convention::Suite;
    bool zoomed = false;

    // The origin under Exact: x (g/kg) lies at x_units, t (degC) at t_units.
    struct Origin {
        double x = 0, x_units = 35, t = -20, t_units = 560;
    };
    Origin exact;

    // On the Mollier chart, before any turning.
    double Xm(double x) const { return IsExact() ? ExactXm(x) : SuiteXm(x); }
    double Ym(double t) const { return IsExact() ? ExactYm(t) : SuiteYm(t); }

    // A point of the Mollier chart on the chart in force, and back.
    CanvasPoint Turned(CanvasPoint mollier) const;
    CanvasPoint Unturned(CanvasPoint point) const;
    CanvasPoint PointOf(double x, double t) const { return Turned({Xm(x), Ym(t)}); }

    // The state that the read-out has for a point of the canvas.
    ChartState StateAt(CanvasPoint point) const {
        return IsExact() ? ExactState(Unturned(point)) : SuiteState(Unturned(point));
    }
    // How much more x (g/kg) the read-out has for a point than is drawn there.
    double ReadOutShift() const { return IsExact() ? 0 : SuiteShift(); }

  private:
    bool IsExact() const { return convention == Convention::Exact; }

    // The suite adds VersatzX where it draws and adds it again where it reads: with a range that
    // does not start at 0 the curves shift to the right and the read-out has twice the minimum more
    // than they say. The other modules rely on where the curves lie.
    double SuiteXm(double x) const { return NullpunktX + VersatzX + x * MassstabX; }
    double SuiteYm(double t) const { return NullpunktY + VersatzT - t * MassstabT; }
    ChartState SuiteState(CanvasPoint mollier) const;
    double SuiteShift() const { return 2.0 * VersatzX / MassstabX; }

    double ExactXm(double x) const;
    double ExactYm(double t) const;
    ChartState ExactState(CanvasPoint mollier) const;
};

// The whole range on the canvas, by the convention of the settings. A span that is not positive
// leaves the former scale.
void ApplyBaseScale(const ChartSettings& settings, ChartScale& scale);
void SuiteScale(const ChartSettings& settings, ChartScale& scale);
// The axes start at the least x and t of the range; on the Carrier chart too all of it lies on the
// canvas.
void ExactScale(const ChartSettings& settings, ChartScale& scale);

// The section under the frame, by the convention in force; a second zoom on a zoomed chart
// compounds.
void ApplyZoom(const ZoomFrame& frame, double factor_x, double factor_y, ChartScale& scale);
// The frame is taken as one of the Mollier chart on the Carrier chart too, which so shows another
// section than the one in the frame.
void SuiteZoom(const ZoomFrame& frame, double factor_x, double factor_y, ChartScale& scale);
// What the frame holds, in the middle of the canvas. A frame without width or height, or of less
// than a millionth of a unit, leaves the scale.
void ExactZoom(const ZoomFrame& frame, ChartScale& scale);
// Writes the rounded numbers of the origin, by which dumps and print-outs know an exact scale.
void TellOrigin(ChartScale& scale);

// Steps of the grids and along the humidity curves.
struct GridSteps {
    int temperature_step = 5;  // K
    int humidity_step = 5;     // g/kg
    int curve_step = 2;        // K
};

GridSteps StepsFor(const ChartSettings& settings, const ChartScale& scale);

}  // namespace zandrell
