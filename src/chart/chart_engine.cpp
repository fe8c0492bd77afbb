#include "chart/chart_engine.h"

#include <algorithm>
#include <cmath>

#include "base/file_names.h"
#include "base/number_text.h"
#include "canvas/palette.h"
#include "chart/chart_painting.h"
#include "chart/exact_painting.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

constexpr int kProjectWithPressure = 111;
constexpr double kToolColumnTwips = 2600;  // as designed

void PaintSuiteChart(ChartPainting& painting) {
    const bool has_curves = painting.solver.HasCoefficients();
    if (has_curves) painting.cache_is_good = painting.cache.Begin(painting.settings);
    PaintComfortField(painting);
    PaintIsotherms(painting);
    PaintHumidityGrid(painting);
    if (!has_curves) return;
    PaintHumidityCurves(painting);
    PaintEnthalpyLines(painting);
    PaintDensityLines(painting);
    painting.cache.End();
}

// The points of the cache lie too far apart for a zoom, so they are left to the suite.
void PaintExactChart(ChartPainting& painting) {
    painting.left_edge = painting.scale.Xm(painting.settings.ChartXMin);
    if (painting.scale.zoomed) {
        painting.level_end = painting.width;
        painting.top_edge = std::min(0.0, painting.scale.Unturned({painting.width, 0}).y);
    }
    PaintComfortField(painting);
    PaintExactIsotherms(painting);
    PaintExactHumidityGrid(painting);
    if (!painting.solver.HasCoefficients()) return;
    PaintExactHumidityCurves(painting);
    PaintExactEnthalpyLines(painting);
    PaintExactDensityLines(painting);
}

}  // namespace

ChartControls::ChartControls() {
    ConsPN1.visible = false;
    ConsPN1.width = 500;
    ConsPN1.height = 60;
    ZoomShape.visible = false;
    Picture1.picture = "pic2.bmp";
    Picture1.width = 260;
    Picture1.height = 46;
    Picture_p.visible = false;
    Label27.visible = true;
}

void ChartControls::ListControls(Form& form) {
    form.Add({&ConsPN1, &ConsPN2, &Picture1, &Picture_p, &Label27, &ZoomShape});
}

ChartEngine::ChartEngine(const DataFiles& files, SharedValues& shared, const Captions& captions,
                         StateSolver& solver, Overlay& overlay, ReadOutPanel& read_out)
    : files_(files),
      shared_(shared),
      captions_(captions),
      solver_(solver),
      overlay_(overlay),
      read_out_(read_out),
      cache_(files) {}

void ChartEngine::DiagrammZeichnen(ChartTask modus, double a, double b, double& druck) {
    if (printing && modus != ChartTask::PaintPrinter) return;
    const bool reading = modus == ChartTask::ReadOutWhole || modus == ChartTask::ReadOutAsScaled;
    ReadSettings(druck);
    // A read-out leaves the colours alone: a mark that is carried has its own.
    if (!reading) ApplyColours();
    if (modus == ChartTask::PaintWhole || modus == ChartTask::ReadOutWhole) {
        if (settings.convention == Convention::Exact) TakeAspect(followed_width_);
        ApplyBaseScale(settings, scale);
    }
    if (modus == ChartTask::PaintZoomed) {
        const auto& frame = controls.ZoomShape;
        ApplyZoom({frame.left, frame.top, frame.width, frame.height}, a, b, scale);
    }
    if (const std::string pressure = NumberText(druck); !pressure.empty()) {
        read_out_.AbsDruck.text = pressure;
    }
    read_out_.ShowRowsOf(settings.convention);
    if (reading) {
        const bool exact = settings.convention == Convention::Exact;
        (exact ? ShowExactStateAt : ShowStateAt)(scale.StateAt({a, b}), solver_, read_out_);
        return;
    }
    PlaceLogo();
    if (modus != ChartTask::PaintPrinter) {
        const bool light = settings.Helligkeit == kWhiteGround;
        const bool grey = shared_.SkinNumber >= 2 && shared_.SkinNumber <= 5;
        picture.Clear(light ? (grey ? kLightGreyValue : kWhite) : kBlack, light ? kBlack : kWhite);
        Paint(picture, false);
    } else if (printer != nullptr) {
        Paint(*printer, true);
    }
}

double ToolColumnShare(int width_twips) { return (width_twips + kToolColumnTwips) / width_twips; }

void ChartEngine::TakeAspect(int width_twips) {
    if (width_twips <= 0) return;
    AssignFinite(scale.CarrierFaktor,
                 (ToolColumnShare(width_twips) * BreiteLogisch + 10) / HoeheLogisch);
}

bool ChartEngine::FollowWidth(int width_twips) {
    followed_width_ = width_twips;
    if (settings.convention != Convention::Exact || settings.DiagrammArt == kMollier) return false;
    if (scale.zoomed || picture.Revision() == 0) return false;
    const double before = scale.CarrierFaktor;
    TakeAspect(width_twips);
    return scale.CarrierFaktor != before;
}

void ChartEngine::ReadSettings(double& druck) {
    const auto stamp = files_.Stamp(kChartSettingsFile);
    if (stamp != settings_stamp_) {
        ReadChartSettings(files_, file_settings_);
        settings_stamp_ = stamp;
    }
    settings = file_settings_;
    if (kind_override) settings.DiagrammArt = *kind_override;
    if (convention_override) settings.convention = *convention_override;
    // A stored project brings its own pressure; the options' pressure is passed over while it is
    // open.
    const double handed_over = shared_.project_pressure_bar;
    const bool possible = handed_over > kLowestPressureBar && handed_over <= kHighestPressureBar;
    if (shared_.ProjektArt == kProjectWithPressure && possible) settings.pressure_bar = handed_over;
    druck = settings.pressure_bar;
    solver_.ChartDruckBar = druck;
}

void ChartEngine::ApplyColours() {
    overlay_.SetColour(settings.Helligkeit == kWhiteGround ? kBlack : kYellow);
}

void ChartEngine::PlaceLogo() {
    const bool mollier = settings.DiagrammArt == kMollier;
    auto& logo = controls.Picture1;
    logo.left = mollier ? 0.82 * BreiteLogisch : 100;
    logo.top = mollier ? 0.76 * HoeheLogisch : 20;
    controls.Picture_p.left = logo.left;
    controls.Picture_p.top = logo.top + logo.height + 5;
    controls.Label27.left = logo.left;
    controls.Label27.top = controls.Picture_p.top + controls.Picture_p.height + 5;
    controls.ConsPN1.left = (BreiteLogisch - controls.ConsPN1.width) / 2;
    controls.ConsPN1.top = (HoeheLogisch - controls.ConsPN1.height) / 2;
}

void ChartEngine::Paint(Canvas& canvas, bool on_printer) {
    controls.ConsPN1.visible = true;
    ChartPainting painting{canvas,
                           solver_,
                           cache_,
                           settings,
                           scale,
                           StepsFor(settings, scale),
                           static_cast<double>(BreiteLogisch),
                           static_cast<double>(HoeheLogisch),
                           on_printer};
    if (!on_printer) {
        painting.progress = &controls.ConsPN2;
        painting.progress_word = captions_[Caption::RelativeHumidity];
    }
    (settings.convention == Convention::Exact ? PaintExactChart : PaintSuiteChart)(painting);
    if (additions && solver_.HasCoefficients()) additions(canvas);
    controls.ConsPN1.visible = false;
}

}  // namespace zandrell
