#include "shell/options_form.h"

#include <array>
#include <cmath>

#include "base/file_names.h"
#include "base/number_text.h"
#include "base/unit_texts.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

// The standard atmosphere (ISO 2533) with its surface at 15 degC, rounded as the suite has it.
constexpr double kSurfacePressure = 1.013;     // bar
constexpr double kSurfaceTemperature = 288;    // K
constexpr double kLapseRate = 0.0065;          // K/m
constexpr double kPressureExponent = 5.255;    // g M / (R lapse rate)
constexpr double kHalfOfLastDecimal = 0.0005;  // bar; what is shown is cut after it

// Air pressure in bar at a height in m above sea level, ready to be cut to three decimals.
double PressureAtHeight(double height_m) {
    return kHalfOfLastDecimal +
           kSurfacePressure *
               std::pow(1 - kLapseRate * height_m / kSurfaceTemperature, kPressureExponent);
}

std::array<TextField*, 6> TypedFields(OptionsForm& form) {
    return {&form.absD, &form.geoH, &form.qvTmind, &form.qvtmaxi, &form.Xmini, &form.Xmaxi};
}

}  // namespace

OptionsForm::OptionsForm(const DataFiles& files, SharedValues& shared, const Captions& captions,
                         StateSolver& solver, UserInterface& user)
    : ModalForm("qvopt"),
      files_(files),
      shared_(shared),
      captions_(captions),
      solver_(solver),
      user_(user) {
    cancel_control = Command3D5.name;
    default_control = Command3D1.name;
    ListControls();
    BindActs();
}

void OptionsForm::ListControls() {
    form.Add({&OptPNUeb, &absD, &geoH, &qvTmind, &qvtmaxi, &Xmini, &Xmaxi});
    form.Add({&pressure_label, &height_label, &tmin_label, &tmax_label, &xmin_label, &xmax_label});
    form.Add(
        {&Option3d1, &Option3d2, &Black, &white, &Panel3D12, &Panel3D13, &ExactBox, &FogLinesBox});
    form.Add({&Command3D1, &Command3D1_l, &Command3D5, &Command3D5_l});
}

void OptionsForm::BindActs() {
    acts.Add(geoH.name, ActKind::Return, [this] { TakeHeight(); });
    for (TextField* field : TypedFields(*this)) {
        acts.Add(field->name, ActKind::Change, [this, field] {
            field->hint.clear();
            if (field == &geoH || field == &absD) height_typed_ = field == &geoH;
        });
    }
    acts.Add(qvtmaxi.name, ActKind::Return, [this] { FeuchteGrenze(true); });
    acts.Add(Option3d1.name, ActKind::Choose, [this] { Choose(Option3d1, Option3d2); });
    acts.Add(Option3d2.name, ActKind::Choose, [this] { Choose(Option3d2, Option3d1); });
    acts.Add(Black.name, ActKind::Choose, [this] { Choose(Black, white); });
    acts.Add(white.name, ActKind::Choose, [this] { Choose(white, Black); });
    acts.Add(ExactBox.name, ActKind::Check, [this] { FogLinesBox.enabled = ExactBox.on; });
    acts.Add(Panel3D12.name, ActKind::Click, [this] { Choose(Black, white); });
    acts.Add(Panel3D13.name, ActKind::Click, [this] { Choose(white, Black); });
    for (const auto* button : {&Command3D1, &Command3D1_l}) {
        acts.Add(button->name, ActKind::Click, [this] { Opt_speich(); });
    }
    for (const auto* button : {&Command3D5, &Command3D5_l}) {
        acts.Add(button->name, ActKind::Click, [this] {
            shared_.OptionenSignal = OptionsSignal::Cancelled;
            closed = true;
        });
    }
}

void OptionsForm::SetCaptions() {
    const Captions& words = captions_;
    const std::string& temperature = words[Caption::Temperature];
    const std::string& humidity = words[Caption::HumidityRatio];
    title = words[Caption::Settings] + " " + shared_.AppTitle + " " + shared_.VersionText + " " +
            words[Caption::ModuleName];
    OptPNUeb.text = title + " :";
    Option3d1.text = "Mollier ";
    Option3d2.text = "Carrier ";
    Black.text = words[Caption::DarkGround];
    white.text = words[Caption::LightGround];
    ExactBox.text = words[Caption::ExactBox];
    ExactBox.tool_tip = words[Caption::ExactBoxTip];
    FogLinesBox.text = words[Caption::FogLinesBox];
    FogLinesBox.tool_tip = words[Caption::FogLinesBoxTip];
    pressure_label.text = words[Caption::Pressure] + " /[" + std::string(UnitBar) + "]:";
    height_label.text = words[Caption::Altitude] + " /[" + std::string(UnitM) + "]:";
    tmin_label.text = temperature + " min. :";
    tmax_label.text = temperature + " max. :";
    xmin_label.text = humidity + " min. :";
    xmax_label.text = humidity + " max. :";
    Command3D1_l.text = "O.K.";
    Command3D5_l.text = words[Caption::Cancel];
    for (auto* panel : {&Panel3D12, &Panel3D13}) panel->tool_tip = words[Caption::Colours];
}

void OptionsForm::Open() {
    closed = height_typed_ = false;
    for (TextField* field : TypedFields(*this)) field->hint.clear();
    SetCaptions();
    ChartSettings settings;
    ReadChartSettings(files_, settings);
    absD.text = NumberText(settings.pressure_bar);
    geoH.text = NumberText(settings.site_height_m);
    qvTmind.text = NumberText(settings.ChartTMin);
    qvtmaxi.text = NumberText(settings.ChartTMax);
    Xmini.text = NumberText(settings.ChartXMin);
    Xmaxi.text = NumberText(settings.ChartXMax);
    if (settings.DiagrammArt == kMollier) {
        Choose(Option3d1, Option3d2);
    } else {
        Choose(Option3d2, Option3d1);
    }
    ExactBox.on = FogLinesBox.enabled = settings.convention == Convention::Exact;
    FogLinesBox.on = settings.fog_lines;
    if (settings.Helligkeit == kWhiteGround) {
        Choose(white, Black);
    } else {
        Choose(Black, white);
    }
}

void OptionsForm::TakeHeight() {
    const double height = ParsedNumber(geoH.text);
    if (!(height > kLowestHeight && height < kHighestHeight)) return;
    height_typed_ = false;
    absD.text = NumberText(Cut(PressureAtHeight(height), 1000));
}

int OptionsForm::FeuchteGrenze(bool write_field) {
    const double t = ParsedNumber(qvtmaxi.text);
    if (!solver_.Evaluate(1, t) || !(solver_.ZustandX > 0)) return 0;
    const double limit = 1.1 * solver_.ZustandX;
    const double digit_factor = limit < 10 ? 10 : 1;
    if (const double shown = Cut(limit, digit_factor); write_field && std::isfinite(shown)) {
        Xmaxi.text = NumberText(shown);
    }
    const double whole = std::floor(limit);
    return whole < 1e9 ? static_cast<int>(whole) : 0;
}

bool OptionsForm::PassesTests(const ChartSettings& typed) {
    const std::string& temperature = captions_[Caption::Temperature];
    const std::string& humidity = captions_[Caption::HumidityRatio];
    const auto complain = [this](TextField& field, const std::string& text) {
        if (ExactBox.on) field.hint = text;
        user_.ShowMessage({shared_.AppTitle, text, MessageIcon::Stop});
    };
    if (typed.ChartTMin < -50) complain(qvTmind, temperature + " minimal  < -50°C !");
    if (typed.ChartTMin > 0) complain(qvTmind, temperature + " minimal  > 0°C !");
    if (typed.ChartTMax < 25) complain(qvtmaxi, temperature + " maximal  < 25°C !");
    if (typed.ChartTMax > 100) complain(qvtmaxi, temperature + " maximal  > 100°C !");
    if (typed.ChartXMin < 0) complain(Xmini, humidity + " minimal < 0 g/kg !");
    // Up to 120 degC the values are taken in spite of the message at 100: the limits differ on
    // purpose.
    return typed.ChartTMin >= -50 && typed.ChartTMin <= 0 && typed.ChartTMax >= 25 &&
           typed.ChartTMax <= 120 && typed.ChartXMin >= 0;
}

void OptionsForm::Opt_speich() {
    if (ExactBox.on && !PassesExactTests()) return;
    if (HeightCounts()) TakeHeight();
    ChartSettings typed;
    typed.pressure_bar = ParsedNumber(absD.text);
    typed.ChartTMin = ParsedNumber(qvTmind.text);
    typed.ChartTMax = ParsedNumber(qvtmaxi.text);
    typed.ChartXMin = ParsedNumber(Xmini.text);
    typed.ChartXMax = ParsedNumber(Xmaxi.text);
    typed.site_height_m = ParsedNumber(geoH.text);
    // The range spans at least a tenth of the humidity that tmax can hold; the field is not
    // rewritten.
    const double least = FeuchteGrenze(false) / 10.0;
    if (typed.ChartXMax < least) typed.ChartXMax = least;
    typed.DiagrammArt = Option3d2.on ? kCarrier : kMollier;
    if (!PassesTests(typed)) return;
    typed.Helligkeit = white.on ? kWhiteGround : kBlackGround;
    typed.convention = ExactBox.on ? Convention::Exact : Convention::Suite;
    typed.fog_lines = ExactBox.on && FogLinesBox.on;
    std::string reason;
    if (WriteChartSettings(files_, typed, &reason) != FileStatus::Ok) {
        const std::string path = files_.Resolve(kChartSettingsFile).string();
        user_.ShowMessage({shared_.AppTitle, "Can not write file:   - " + path + " - : " + reason,
                           MessageIcon::Stop});
        return;
    }
    closed = true;
    shared_.OptionenSignal = OptionsSignal::Taken;
}

}  // namespace zandrell
