#include "processes/point_panel.h"

#include <cmath>

#include "base/number_text.h"
#include "base/unit_factors.h"
#include "canvas/palette.h"
#include "kernel/exact_air.h"
#include "processes/figure_text.h"
#include "processes/state_change.h"
#include "processes/tools.h"

namespace zandrell {
namespace {

constexpr double kMarkCorner = 6;  // canvas units from a state up and left to its mark's corner
constexpr int kFlowBarEnd = 200, kFlowBarMiddle = 100;
constexpr double kKgPerHourOfGramPerSecond = 3.6;
constexpr double kTrialFlow = 1000;  // m3/h
constexpr double kHalf = 0.5;        // m3/h; flows are rounded to whole ones

bool HasCapacity(Calculation mode) { return mode == Calculation::Capacity || IsTool(mode); }
bool IsHumidityInput(double percent) { return percent > 0 && percent <= 100; }

void SetShown(Control& control, bool shown) {
    control.visible = shown;
    control.enabled = shown;
}

// The step is known before the bar moves, since the bar's handler multiplies by it.
void CentreFlowBar(ScrollBar& bar, double& step, double flow) {
    step = flow / kFlowBarMiddle;
    bar.SetHighEnd(kFlowBarEnd);
    bar.SetPosition(kFlowBarMiddle);
}

void ShowStateTexts(double x, double h, Label& absolute, Label& enthalpy) {
    ShowNumber(absolute, Cut(x, 100));
    ShowEnthalpy(enthalpy, h);
}

}  // namespace

void PointPanel::ListControls(Form& form) {
    form.Add({&Anlage1PN, &Panel3D9, &Label15, &tool_name});
    form.Add({&Label33, &Label35, &Label36, &label37, &enthPN, &second_flow_label, &mixture_label});
    form.Add({&Temp1, &relF1, &Temp2, &relF2, &LuftM1, &LuftM2, &Kleist});
    form.Add({&absF1, &enth1, &absF2, &enth2, &KLatent, &Ksensibel, &KondW});
    form.Add({&capacity_label, &latent_label, &sensible_label, &water_label});
    form.Add({&TempM, &relFM, &absFM});
    form.Add({&Tscroll1, &FScroll1, &Tscroll2, &FScroll2, &VScroll1, &Vscroll2});
    form.Add({&VolBer, &VolBer_l, &wrgButt, &Command3D4, &abbcom, &Picture3});
    entry1.ListControls(form);
    entry2.ListControls(form);
}

void PointPanel::ShowForMode(Calculation mode) {
    Overlay& overlay = context_.overlay;
    overlay.AnlageMarkenLoeschen();
    overlay.t1Lab.text = "1";
    overlay.t2lab.text = "2";
    SetShown(FScroll2, mode != Calculation::Heater && mode != Calculation::WaterHumidifier);
    if (mode == Calculation::SteamHumidifier) SetShown(Tscroll2, false);

    Panel3D9.visible = HasCapacity(mode);
    Label33.visible = LuftM1.visible = mode != Calculation::StateChange;
    SetShown(VScroll1, true);  // also with its flow field hidden in mode 1
    ShowSecondFlow(mode == Calculation::Mixing);

    relF2.background
        .reset();  // the red of an impossible humidity belongs to the tool that was left
    TakeBarRanges();
    taken_.Take();
    entry2.worked_out = IsTool(mode);
    FollowStates();
    Anlage1PN.visible = true;
}

void PointPanel::TakeBarRanges() {
    const ChartSettings& settings = context_.settings;
    const auto least = RoundToInteger(kBarUnitsPerField * settings.ChartTMin);
    const auto most = RoundToInteger(kBarUnitsPerField * settings.ChartTMax);
    if (!least || !most) return;
    Tscroll1.SetRange(*least, *most);
    Tscroll2.SetRange(*least, *most);
}

void PointPanel::ShowSecondFlow(bool shown) {
    for (Control* control : std::initializer_list<Control*>{
             &LuftM2, &second_flow_label, &mixture_label, &TempM, &relFM, &absFM}) {
        control->visible = shown;
    }
    SetShown(Vscroll2, shown);
}

PointPanel::Inputs PointPanel::ReadInputs() const {
    return {ParsedNumber(Temp1.text), ParsedNumber(Temp2.text),  ParsedNumber(relF1.text),
            ParsedNumber(relF2.text), ParsedNumber(LuftM1.text), ParsedNumber(LuftM2.text)};
}

bool PointPanel::InRange(double t) const {
    return t >= context_.settings.ChartTMin && t <= context_.settings.ChartTMax;
}

bool PointPanel::WithinChart(const Inputs& inputs) const {
    return IsHumidityInput(inputs.relF1) && IsHumidityInput(inputs.relF2) && InRange(inputs.t1) &&
           InRange(inputs.t2);
}

void PointPanel::ZustandRechnen(Calculation mode, MarkPlacing marke) {
    context_.shared.ZurueckVomDialog = DialogEcho::Expected;
    capacity_refused_ = false;
    states_of_.Forget();
    outcome_of_.Forget();
    Compute(mode, marke);
    taken_.Take();
    FollowStates();
}

void PointPanel::Compute(Calculation mode, MarkPlacing marke) {
    Inputs inputs = ReadInputs();
    bool states_known = IsTool(mode) ? EvaluateGivenState(mode, inputs) : EvaluateStates(inputs);
    if (IsTool(mode)) {
        states_known =
            (IsExact() ? FillInExactly(mode, inputs) : FillInByTexts(mode, inputs)) && states_known;
        inputs = ReadInputs();
    }
    if (!(ParsedNumber(absF1.text) > 0 && ParsedNumber(absF2.text) > 0)) return;
    MarkenSetzen(mode, marke);
    ShowBothMarks();
    if (!states_known) return;
    states_of_.Take(Basis(mode));
    if (mode == Calculation::Mixing) ShowMixture(mode, inputs);
    if (HasCapacity(mode)) ShowCapacity(mode, inputs);
}

bool PointPanel::FillInByTexts(Calculation mode, const Inputs& inputs) {
    FillInSecondState(mode, inputs);
    return EvaluateFilledInState(mode, ReadInputs());
}

// False, with everything as it was, when an input is outside the limits.
bool PointPanel::EvaluateStates(const Inputs& inputs) {
    if (!WithinChart(inputs)) return false;
    const auto first = AirOf(inputs.relF1, inputs.t1);
    const auto second = first ? AirOf(inputs.relF2, inputs.t2) : std::nullopt;
    if (!second) return false;
    ZustandX1 = first->x;
    enthalpy1_ = first->h;
    density1_ = first->flow_density;
    ZustandX2 = second->x;
    enthalpy2_ = second->h;
    density2_ = second->flow_density;
    ShowStateTexts(first->x, first->h, absF1, enth1);
    ShowStateTexts(second->x, second->h, absF2, enth2);
    return true;
}

// The suite takes the humid air of a flow for dry.
std::optional<PointPanel::GivenAir> PointPanel::AirOfTheSuite(double relF_percent, double t) {
    const StateSolver& solver = context_.solver;
    if (!context_.solver.Evaluate(relF_percent / 100, t)) return std::nullopt;
    return GivenAir{solver.ZustandX, solver.ZustandH, solver.ZustandDichte};
}

// State 1 of a tool. Only what the user gives is tested: the figure of state 2 that the tool wrote
// in the run before must not lock it.
bool PointPanel::EvaluateGivenState(Calculation mode, const Inputs& inputs) {
    const bool gives_humidity = mode == Calculation::SteamHumidifier;
    const bool second_given = gives_humidity ? IsHumidityInput(inputs.relF2) : InRange(inputs.t2);
    if (!IsHumidityInput(inputs.relF1) || !InRange(inputs.t1) || !second_given) return false;
    const auto air = AirOf(inputs.relF1, inputs.t1);
    if (!air) return false;
    ZustandX1 = air->x;
    enthalpy1_ = air->h;
    density1_ = air->flow_density;
    ShowStateTexts(air->x, air->h, absF1, enth1);
    return true;
}

// State 2 anew from the texts that the tool wrote, so that the first capacity shown is the right
// one. absF2 keeps what the tool wrote, and enth2 too behind the water humidifier.
bool PointPanel::EvaluateFilledInState(Calculation mode, const Inputs& inputs) {
    StateSolver& solver = context_.solver;
    if (!WithinChart(inputs)) return false;
    if (!solver.Evaluate(inputs.relF2 / 100, inputs.t2)) return false;
    ZustandX2 = solver.ZustandX;
    enthalpy2_ = solver.ZustandH;
    if (mode != Calculation::WaterHumidifier) ShowEnthalpy(enth2, enthalpy2_);
    return true;
}

void PointPanel::FillInSecondState(Calculation mode, const Inputs& inputs) {
    StateSolver& solver = context_.solver;
    switch (mode) {
        case Calculation::Cooler:
            return KeepHumidity(HumidityBehindCooler(solver, ZustandX1, inputs.t2));
        case Calculation::Heater:
            return KeepHumidity(HumidityBehindHeater(solver, ZustandX1, inputs.t2));
        case Calculation::WaterHumidifier:
            return HumidifyWithWater(inputs);
        case Calculation::SteamHumidifier:
            return HumidifyWithSteam(inputs);
        case Calculation::None:
        case Calculation::StateChange:
        case Calculation::Capacity:
        case Calculation::Mixing:
        case Calculation::Plant:
            return;
    }
}

void PointPanel::KeepHumidity(std::optional<double> fraction) {
    if (!fraction) return;
    ShowNumber(relF2, std::floor(1000 * *fraction) / 10);
    // Also at the cooler's cap, where less is left in the air: what came in is what planners look
    // for behind a dry coil, and the load below counts the condensate.
    ShowNumber(absF2, Cut(ZustandX1, 100));
}

void PointPanel::HumidifyWithWater(const Inputs& inputs) {
    const auto air = BehindWaterHumidifier(context_.solver, enthalpy1_, inputs.t2);
    if (!air) return;
    relF2.background = air->impossible ? kLightRed : kWhite;
    ShowNumber(relF2, Cut(air->rel_percent, 10));
    ShowNumber(absF2, Cut(air->x, 100));
    ShowEnthalpy(enth2, enthalpy1_);
}

void PointPanel::HumidifyWithSteam(const Inputs& inputs) {
    const auto x = HumidityBehindSteamHumidifier(context_.solver, inputs.t1, inputs.relF2);
    if (!x) return;
    ShowNumber(absF2, Cut(*x, 100));
    Temp2.text = Temp1.text;
}

std::optional<Mixture> PointPanel::MixByVolume(const Inputs& inputs) {
    return MixtureOf(context_.solver, FirstState(inputs.t1), inputs.LuftM1, SecondState(inputs.t2),
                     inputs.LuftM2);
}

void PointPanel::ShowMixture(Calculation mode, const Inputs& inputs) {
    if (!(inputs.LuftM1 > 0 && inputs.LuftM2 > 0)) return;
    const auto mixture = IsExact() ? MixExactly(inputs) : MixByVolume(inputs);
    if (!mixture) return;
    AssignFinite(context_.figures.MischTemp, mixture->MischTemp);
    AssignFinite(context_.figures.MischX, mixture->MischX);
    ShowNumber(TempM, Cut(mixture->MischTemp, 100));
    ShowNumber(relFM, Cut(mixture->rel_percent, 100));
    ShowNumber(absFM, Cut(mixture->MischX, 100));
    MarkenSetzen(mode, MarkPlacing::WithMixture);
    outcome_of_.Take(Basis(mode));
}

void PointPanel::ShowCapacity(Calculation mode, const Inputs& inputs) {
    if (!(inputs.LuftM1 > 0)) return;
    // The density of state 1 holds for the whole change.
    const double air_kg_per_s = inputs.LuftM1 * density1_ / kSecondsPerHour;
    const auto signed_loads =
        IsExact() ? ExactLoadsBetween(ExactAir(context_.solver), FirstState(inputs.t1),
                                      SecondState(inputs.t2), air_kg_per_s)
                  : LoadsBetween(context_.solver, FirstState(inputs.t1), SecondState(inputs.t2),
                                 air_kg_per_s);
    if (!signed_loads) return;
    const Decimals decimals = DecimalsOf(*signed_loads);  // of the signed load also for the tools
    const Loads loads = LoadsOfTool(mode, *signed_loads);
    const double total = Cut(loads.total_kw, decimals.capacity);
    const double latent = Cut(loads.latent_kw, decimals.capacity);
    const double sensible = Cut(loads.sensible_kw, decimals.capacity);
    const double water_kg_per_h = kKgPerHourOfGramPerSecond * loads.water_g_per_s;

    ShowNumber(Kleist, total);
    ShowNumber(KLatent, latent);
    ShowNumber(Ksensibel, sensible);
    ShowNumber(KondW, Cut(water_kg_per_h, decimals.water));

    ProcessFigures& figures = context_.figures;
    AssignFinite(figures.GesamtLeist, total);
    AssignFinite(figures.LatentLeist, latent);
    AssignFinite(figures.SensibelLeist, sensible);
    // Cut with the decimals of the capacity, as the print-outs of the suite show it; the text KondW
    // has its own.
    AssignFinite(figures.KondensatWasser, Cut(water_kg_per_h, decimals.capacity));
    figures.KuehlLeistText = Kleist.text;
    outcome_of_.Take(Basis(mode));
}

void PointPanel::ShowBothMarks() {
    Overlay& overlay = context_.overlay;
    for (Control* control : std::initializer_list<Control*>{
             &overlay.ZAeLine, &overlay.PP1, &overlay.PP2, &overlay.t1Lab, &overlay.t2lab}) {
        control->visible = true;
    }
}

void PointPanel::MarkenSetzen(Calculation mode, MarkPlacing marke) {
    const bool carried = marke == MarkPlacing::FirstCarried || marke == MarkPlacing::SecondCarried;
    const std::string& pointer_t = context_.read_out.Temp.text;
    if (carried && pointer_t == "-") return;  // to where there is no air
    const std::string& t1 = marke == MarkPlacing::FirstCarried ? pointer_t : Temp1.text;
    const std::string& t2 = marke == MarkPlacing::SecondCarried ? pointer_t : Temp2.text;

    const CanvasPoint point1 = context_.scale.PointOf(ZustandX1, ParsedNumber(t1));
    CanvasPoint point2 = context_.scale.PointOf(ZustandX2, ParsedNumber(t2));
    // Heating keeps x, which on the Mollier chart is a vertical line; the Carrier chart of the
    // suite draws it vertically too.
    if (mode == Calculation::Heater && !IsExact()) point2.x = point1.x;

    Overlay& overlay = context_.overlay;
    overlay.ZAeLine.Run(point1, point2);
    overlay.PP1.PlaceAt(point1, kMarkCorner);
    overlay.PP2.PlaceAt(point2, kMarkCorner);
    overlay.t1Lab.PlaceAt(point1);
    overlay.t2lab.PlaceAt(point2);
    if (marke == MarkPlacing::WithMixture) PlaceMixture();
}

void PointPanel::PlaceMixture() {
    Overlay& overlay = context_.overlay;
    const ProcessFigures& figures = context_.figures;
    const CanvasPoint point = context_.scale.PointOf(figures.MischX, figures.MischTemp);
    overlay.tmLab.text = context_.captions[Caption::Mixing];
    // Exactly at the point, unlike the other labels: the label alone marks a mixture whose ring
    // lies under that of a state.
    overlay.tmLab.PlaceCornerAt(point);
    overlay.PP3.PlaceAt(point, kMarkCorner);
    overlay.tmLab.visible = overlay.PP3.visible = true;
}

void PointPanel::SchieberAbgleich() {
    const ChartSettings& settings = context_.settings;
    // Each text is read when its turn comes: a bar that moves runs its handler, which may write it.
    const auto follow_temperature = [&](ScrollBar& bar, const TextField& field) {
        const double t = ParsedNumber(field.text);
        if (t > settings.ChartTMin && t < settings.ChartTMax) bar.ShowTenths(t);
    };
    const auto follow_humidity = [](ScrollBar& bar, const TextField& field) {
        const double percent = ParsedNumber(field.text);
        if (IsHumidityInput(percent)) bar.ShowTenths(percent);
    };
    follow_temperature(Tscroll1, Temp1);
    follow_temperature(Tscroll2, Temp2);
    follow_humidity(FScroll1, relF1);
    follow_humidity(FScroll2, relF2);
    if (LuftSchritt1 == 0) TakeFlowStep(FirstFlow());
    if (LuftSchritt2 == 0) TakeFlowStep(SecondFlow());
}

void PointPanel::TakeFlowStep(const FlowInput& flow) {
    const double typed = ParsedNumber(flow.field.text);
    if (typed > 0) CentreFlowBar(flow.bar, flow.step, typed);
}

// The load is proportional to the flow, so one trial tells the flow. False where no positive flow
// gives the capacity: as with heat asked of a change that takes it away, where the former flow
// stays.
bool PointPanel::VolStrm_rech(Calculation mode) {
    const double wanted_kw = ParsedNumber(Kleist.text);
    const std::string former_flow = LuftM1.text;
    LuftM1.text = TrimmedNumberText(kTrialFlow);
    ZustandRechnen(mode, MarkPlacing::FromFields);
    SchieberAbgleich();
    const double trial_kw = ParsedNumber(Kleist.text);
    const double flow = std::floor(kTrialFlow * wanted_kw / trial_kw + kHalf);
    const bool possible = std::isfinite(flow) && flow > 0;
    if (possible) {
        ShowNumber(LuftM1, flow);
    } else if (std::isfinite(flow)) {
        LuftM1.text = former_flow;
    }  // a trial without load fails and leaves its flow
    Kleist.text = TrimmedNumberText(wanted_kw);
    TakeFlowStep(FirstFlow());
    return possible;
}

void PointPanel::VolumeFromCapacity(Calculation mode) {
    const double wanted_kw = ParsedNumber(Kleist.text);
    const bool possible = VolStrm_rech(mode);
    ZustandRechnen(mode, MarkPlacing::FromFields);
    capacity_refused_ = !possible;
    if (!possible) return;  // the figures are those of the flow that stays
    double scale = 0;
    AssignFinite(scale, ParsedNumber(Kleist.text) / wanted_kw);
    Kleist.text = TrimmedNumberText(wanted_kw);
    taken_.Take();
    ShowNumber(KLatent, std::floor(100 * ParsedNumber(KLatent.text) / scale) / 100);
    ShowNumber(Ksensibel, std::floor(100 * ParsedNumber(Ksensibel.text) / scale) / 100);
}

}  // namespace zandrell
