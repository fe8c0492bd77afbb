#include "processes/plant_panel.h"

#include <cmath>

#include "base/number_text.h"
#include "base/unit_factors.h"
#include "base/unit_texts.h"
#include "processes/figure_text.h"

namespace zandrell {
namespace {

constexpr double kMarkSize = 14;  // canvas units
constexpr std::string_view kPowerUnit = " kW";
static_assert(kPowerUnit.substr(1) == UnitKW);

}  // namespace

double PlantPanel::ReadHumidity(const TextField& field) {
    return field.text == kInTheFog ? 100 : ParsedNumber(field.text);
}

void PlantPanel::ListControls(Form& form) {
    form.Add({&Frame1, &Panel3D10, &Panel3D2, &Label16, &tool_name});
    form.Add({&vhAnlage, &aussenAnt, &vhinnen, &vhaussen});
    form.Add({&tabLuft, &PHIAbluft, &Taus, &PhiAussen, &TZuluft, &PHIZuluft, &tKA, &phiKanal});
    form.Add({&dtVent1, &dtVent2, &Option3D3, &Option3D4});
    form.Add({&taScroll, &tzuScroll, &tabScroll, &Phiaussenscroll, &PHIAbscroll, &PhiZuscroll});
    form.Add({&RaumLeist, &RaumSensLeist, &RaumLatLeist, &RaumWasserLeist, &Kuehl, &Heiz2, &Bef});
    form.Add({&Label34, &Label38, &Label39, &Label57, &Label43, &Label56, &Label11});
    form.Add({&coil_temperature_label, &flow_label, &ratio_label, &inner_flow_label,
              &outer_flow_label, &exhaust_label, &outside_label, &supply_label, &coil_label,
              &supply_fan_label, &return_fan_label, &room_label, &room_total_label,
              &room_sensible_label, &room_latent_label, &room_water_label, &cooler_label,
              &heater_label, &humidifier_label});
    form.Add({&AnlageAbButt, &AnlageAbButt_l, &Command3D6, &Command3D6_l, &Picture12});
}

void PlantPanel::TakeBarsFromFields() {
    const auto least = RoundToInteger(kBarUnitsPerField * context_.settings.ChartTMin);
    const auto most = RoundToInteger(kBarUnitsPerField * context_.settings.ChartTMax);
    if (least && most) {
        for (ScrollBar* bar : {&taScroll, &tzuScroll, &tabScroll}) bar->SetRange(*least, *most);
    }
    taScroll.ShowTenths(ParsedNumber(Taus.text));
    tzuScroll.ShowTenths(ParsedNumber(TZuluft.text));
    // Under the suite converted plainly, so that a decimal comma ends the number here, as in every
    // plant that the suite has opened; Return in the field reads the comma.
    tabScroll.ShowTenths(IsExact() ? ParsedNumber(tabLuft.text) : ToDouble(tabLuft.text));
    Phiaussenscroll.ShowTenths(ParsedNumber(PhiAussen.text));
    PHIAbscroll.ShowTenths(ParsedNumber(PHIAbluft.text));
    PhiZuscroll.ShowTenths(ParsedNumber(PHIZuluft.text));
}

void PlantPanel::VolumenTeilen() {
    const double V = ParsedNumber(vhAnlage.text), r = ParsedNumber(aussenAnt.text);
    if (!(V > 0)) return;
    double inner_share = 0;
    AssignFinite(inner_share, r / (1 + r));
    ShowNumber(vhinnen, std::floor(inner_share * V));
    ShowNumber(vhaussen, std::floor(V - inner_share * V));
}

bool PlantPanel::TakeFlowFromShares() {
    const double Vi = ParsedNumber(vhinnen.text), Va = ParsedNumber(vhaussen.text);
    if (!(Vi > 0 && Va > 0)) return false;
    ShowNumber(vhAnlage, Vi + Va);
    ShowNumber(aussenAnt, std::floor(1000 * Vi / Va) / 1000);
    return true;
}

void PlantPanel::AnlageBerechnen() {
    if (settling_) {  // by a bar that an exact run moves: it reads the fields again itself
        asked_again_ = true;
        return;
    }
    // A run that a bar asks for reads what this one has put in place of a refused rise.
    if (running_ == 0) refused_rise_ = nullptr;
    ++running_;
    figures_of_.Forget();
    if (Compute()) figures_of_.Take(Basis());
    taken_.Take();
    --running_;
}

bool PlantPanel::Compute() {
    for (Mark* mark : context_.overlay.Marks()) mark->width = mark->height = kMarkSize;
    return IsExact() ? RunBySettledInputs() : RunByTheSuite();
}

bool PlantPanel::RunByTheSuite() {
    PlantRun run;
    if (!ReadInputs(run.inputs)) return false;
    const std::string given = PHIAbluft.text, given_supply = PHIZuluft.text;
    const double given_phiAb = run.inputs.phiAb, given_phiZu = run.inputs.phiZu;
    if (!CorrectHumidities(run)) return false;
    MoveHumidityBars(run.inputs);
    if (run.inputs.phiAb > given_phiAb && PHIAbluft.text != given) exhaust_raised = true;
    if (run.inputs.phiZu > given_phiZu && PHIZuluft.text != given_supply) supply_raised = true;
    if (!MixExhaustAndOutside(run)) return false;
    if (!SupplyTheRoom(run)) return false;
    if (!ChooseTheWay(run)) return false;
    return run.OhneKuehler ? HeatOnly(run) : CoolAndHeat(run);
}

// False when the run is to stop without a word: a negative ratio, a humidity that is not positive.
bool PlantPanel::ReadInputs(PlantInputs& inputs) {
    inputs.V = ParsedNumber(vhAnlage.text);
    inputs.r = ParsedNumber(aussenAnt.text);
    if (!(ParsedNumber(vhinnen.text) > 0 && ParsedNumber(vhaussen.text) > 0)) VolumenTeilen();
    if (inputs.r < 0) return false;
    inputs.tAb = ParsedNumber(tabLuft.text);
    inputs.phiAb = ParsedNumber(PHIAbluft.text);
    inputs.dt1 = ReadFanRise(dtVent1);
    inputs.dt2 = ReadFanRise(dtVent2);
    inputs.phiAus = ReadHumidity(PhiAussen);
    inputs.tAus = ParsedNumber(Taus.text);
    inputs.tZu = ParsedNumber(TZuluft.text);
    inputs.phiZu = ParsedNumber(PHIZuluft.text);
    inputs.tKA = ParsedNumber(tKA.text);
    inputs.phiKa = ReadHumidity(phiKanal);
    inputs.steam = Option3D3.on;
    // The coil's humidity has no such test.
    return inputs.phiAb > 0 && inputs.phiAus > 0 && inputs.phiZu > 0;
}

double PlantPanel::ReadFanRise(TextField& field) {
    const double rise = ParsedNumber(field.text);
    if (!(rise > kHighestFanRise)) return rise;
    field.text = TrimmedNumberText(kFallbackFanRise);
    refused_rise_ = &field;
    return kFallbackFanRise;
}

bool PlantPanel::CorrectHumidities(PlantRun& run) {
    const auto room = HumiditiesOfRoom(context_.solver, run.inputs);
    if (!room) return false;
    HoldSupplyAboveCoil(run.inputs);
    const auto nothing_to_cool = RaiseHumidities(context_.solver, *room, run.inputs);
    if (!nothing_to_cool) return false;
    run.OhneKuehler = *nothing_to_cool;
    return true;
}

// A bar that must move runs its handler, and so a whole run of its own, before this one goes on
// with the values that it holds.
void PlantPanel::HoldSupplyAboveCoil(const PlantInputs& inputs) {
    const auto low_end = RoundToInteger(kBarUnitsPerField * std::floor(inputs.tKA + inputs.dt1));
    if (low_end) tzuScroll.SetLowEnd(*low_end);
}

// As above: nested runs end first, and what this run then shows is what stays.
void PlantPanel::MoveHumidityBars(const PlantInputs& inputs) {
    if (inputs.phiAus <= 100) Phiaussenscroll.ShowTenths(inputs.phiAus);
    if (inputs.phiZu <= 100) PhiZuscroll.ShowTenths(inputs.phiZu);
    if (inputs.phiAb <= 100) PHIAbscroll.ShowTenths(inputs.phiAb);
}

bool PlantPanel::MixExhaustAndOutside(PlantRun& run) {
    const auto mixing = MixingOf(context_.solver, run.inputs);
    if (!mixing) return false;
    run.mixing = *mixing;
    AssignFinite(context_.figures.MischTemp, mixing->mixed.t);
    Drawing().DrawMixing(*mixing);
    return true;
}

bool PlantPanel::SupplyTheRoom(PlantRun& run) {
    const auto supply = SupplyOf(context_.solver, run.inputs);
    if (!supply) return false;
    run.supply = *supply;
    const auto loads = RoomLoadsOf(context_.solver, run.mixing, *supply);
    if (!loads) return false;
    run.Anzeigefaktor = AnzeigefaktorOf(loads->total_kw);
    ShowRoomLoads(*loads, run.Anzeigefaktor);
    return true;
}

void PlantPanel::ShowRoomLoads(const RoomLoads& loads, double factor) {
    const double total = Cut(loads.total_kw, factor), sensible = Cut(loads.sensible_kw, factor);
    const double latent = Cut(loads.latent_kw, factor), water = Cut(loads.water_kg_per_h, factor);
    ShowNumber(RaumLeist, total, kPowerUnit);
    ShowNumber(RaumWasserLeist, water, kWaterUnit);
    ShowNumber(RaumSensLeist, sensible, kPowerUnit);
    ShowNumber(RaumLatLeist, latent, kPowerUnit);
    ProcessFigures& figures = context_.figures;
    AssignFinite(figures.GesamtLeist, total);
    AssignFinite(figures.RaumWasser, water);
    AssignFinite(figures.SensibelLeist, sensible);
    AssignFinite(figures.LatentLeist, latent);
}

bool PlantPanel::ChooseTheWay(PlantRun& run) {
    const auto inlet = FanInletOf(context_.solver, run.supply, run.inputs.dt1);
    if (!inlet) return false;
    run.fan_inlet = *inlet;
    const AirPoint& mixed = run.mixing.mixed;
    if (mixed.x < run.supply.x && mixed.t < inlet->air.t) {
        run.OhneKuehler = true;  // too dry and too cold for a cooler; the coil state stays 0
        return true;
    }
    const auto coil = CoilOf(context_.solver, run.inputs, inlet->air.t);
    if (!coil) return false;
    run.coil = *coil;
    return true;
}

void PlantPanel::StartWay(bool without_cooler) {
    const int way = without_cooler ? 1 : 0;
    Drawing().StartWay(AnlageZweig != way);
    AnlageZweig = way;
}

bool PlantPanel::CoolAndHeat(const PlantRun& run) {
    const auto way = CoolerWayOf(context_.solver, run.inputs.steam, run.coil, run.fan_inlet.air);
    if (!way) return false;
    StartWay(false);
    KeepWay(run, way->heated);
    Drawing().DrawCoolerWay(run, way->heated);
    Heiz2.text = "0";
    ShowCoolerFigures(run, *way);
    return true;
}

bool PlantPanel::HeatOnly(const PlantRun& run) {
    const auto heated = HeaterWayOf(context_.solver, run.inputs.steam, run.mixing.mixed,
                                    run.fan_inlet.air, run.coil.air.h);
    if (!heated) return false;
    StartWay(true);
    KeepWay(run, *heated);
    Drawing().DrawHeaterWay(run, *heated);
    Heiz2.text = "0";
    ShowHeaterFigures(run, *heated);
    humidifier_shown_ = true;
    return true;
}

// Without need of a humidifier its text keeps what it showed last. The suite's plant has no
// condensate: its page prints that of whatever ran before, and this is meant.
void PlantPanel::ShowCoolerFigures(const PlantRun& run, const CoolerWay& way) {
    const AirPoint &mixed = run.mixing.mixed, &coil = run.coil.air;
    const double mL = run.mixing.mL, factor = run.Anzeigefaktor;
    ShowCooler(Cut(CapacityKw(mL, way.hKaus, coil.x, mixed.h, mixed.x), factor));
    humidifier_shown_ = way.BefeuchterNoetig;
    if (!way.BefeuchterNoetig) {
        // Counted with the saturation humidity in front of the fan, not with that of the supply:
        // the suite's way of counting per kg of moist air.
        const FanInlet& inlet = run.fan_inlet;
        ShowHeaterBehindCooler(CapacityKw(mL, way.hKaus, coil.x, inlet.air.h, inlet.xs1), factor);
        return;
    }
    ShowHeaterBehindCooler(mL * way.hDiff / kSecondsPerHour, factor);
    ShowHumidifier(Cut(HumidifierWater(mL, coil.x, run.supply.x), 100), kWaterUnit);
}

void PlantPanel::ShowHeaterBehindCooler(double capacity_kw, double factor) {
    ShowHeater(Cut(capacity_kw, factor), kUnitBehindCooler);
}

void PlantPanel::ShowCooler(double shown_kw) {
    ShowTrimmedNumber(Kuehl, shown_kw, kPowerUnit);
    if (std::isfinite(shown_kw)) context_.figures.KuehlLeistText = NumberText(shown_kw);
}

void PlantPanel::ShowNoCooler() {
    Kuehl.text = std::string(" - ").append(UnitKW);
    context_.figures.KuehlLeistText.clear();
}

void PlantPanel::ShowHeater(double shown_kw, std::string_view unit) {
    ShowTrimmedNumber(Heiz2, shown_kw, unit);
    AssignFinite(context_.figures.HeizLeist, shown_kw);
}

void PlantPanel::ShowHumidifier(double shown_kg_per_h, std::string_view unit) {
    ShowTrimmedNumber(Bef, shown_kg_per_h, unit);
    AssignFinite(context_.figures.BefeuchterLeist, shown_kg_per_h);
}

// The units follow without a blank: wide figures have to fit the labels.
void PlantPanel::ShowHeaterFigures(const PlantRun& run, const AirPoint& heated) {
    const AirPoint& mixed = run.mixing.mixed;
    const double mL = run.mixing.mL, factor = run.Anzeigefaktor;
    ShowNoCooler();
    ShowHeater(Cut(CapacityKw(mL, mixed.h, mixed.x, heated.h, mixed.x), factor), UnitKW);
    ShowHumidifier(Cut(HumidifierWater(mL, mixed.x, run.supply.x), factor), kNarrowWaterUnit);
}

PlantDrawing PlantPanel::Drawing() const {
    return {context_.overlay, context_.scale, context_.captions};
}

}  // namespace zandrell
