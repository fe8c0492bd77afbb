#include "processes/process_states.h"

#include <cmath>

#include "base/number_text.h"
#include "base/unit_factors.h"
#include "base/unit_texts.h"
#include "processes/plant_panel.h"
#include "processes/point_panel.h"

namespace zandrell {
namespace {

constexpr double kGramsPerKg = 1000;
constexpr double kNoWater = 1e-6;  // g/kg, what a search for a state leaves

std::optional<double> Positive(double figure) {
    return figure > 0 ? std::optional(figure) : std::nullopt;
}

// With the sign of `change`, whichever the panel shows it with.
std::string SignedBy(double change, const std::string& figure) {
    if (figure.empty() || ParsedNumber(figure) == 0) return figure;
    return TrimmedNumberText(std::copysign(ParsedNumber(figure), change));
}

// What an apparatus is shown to take from the air.
std::string TakenFromAir(const std::string& figure) {
    return figure.empty() ? "" : TrimmedNumberText(-ParsedNumber(figure));
}

// A gain below 0 is cut as the loss that it is.
std::string GainText(double gain, double factor) {
    return TrimmedNumberText(std::copysign(Cut(std::abs(gain), factor), gain));
}

ProcessState& Add(ProcessStates& states, const std::string& name, const AirPoint& air,
                  double dry_air) {
    ProcessState& state = states.emplace_back();
    state = {name, air.t, air.x, air.h};
    state.dry_air = Positive(dry_air);
    return state;
}

}  // namespace

std::string FigureAlone(const std::string& text) {
    const auto start = text.find_first_not_of(' ');
    if (start == std::string::npos) return {};
    const bool number = text.find_first_of("0123456789", start) <= start + 2;
    return number ? TrimmedNumberText(ParsedNumber(text)) : "";
}

ProcessStates PointPanel::States() const {
    const Calculation mode = context_.Rechenmodus;
    const std::string basis = Basis(mode);
    if (!IsPointMode(mode) || !states_of_.Hold(basis)) return {};
    const Inputs inputs = ReadInputs();
    ProcessStates states = {{"1", inputs.t1, ZustandX1, enthalpy1_, inputs.relF1},
                            {"2", inputs.t2, ZustandX2, enthalpy2_, inputs.relF2}};
    // Behind a tool the suite shows another x, and another enthalpy, than it counts with.
    if (!IsExact()) {
        states[1].x = ParsedNumber(absF2.text);
        states[1].h = ParsedNumber(enth2.text);
    }
    if (mode == Calculation::StateChange || !outcome_of_.Hold(basis)) return states;
    const double dry_air = inputs.LuftM1 * density1_;
    states[0].flow = Positive(inputs.LuftM1);
    states[0].dry_air = states[1].dry_air = Positive(dry_air);
    if (mode == Calculation::Mixing) {
        const double second = inputs.LuftM2 * density2_;
        states[1].flow = Positive(inputs.LuftM2);
        states[1].dry_air = Positive(second);
        const ProcessFigures& figures = context_.figures;
        ProcessState& mixture = states.emplace_back();
        mixture = {context_.captions[Caption::Mixing], figures.MischTemp, figures.MischX};
        mixture.percent = ParsedNumber(relFM.text);
        if (!IsExact())
            mixture.t = ParsedNumber(TempM.text);  // cut a rounding below its last digit
        mixture.dry_air = Positive(dry_air + second);
    } else {
        // The water humidifier is shown with what its water takes up.
        const double x_gain = ZustandX2 - ZustandX1, h_gain = enthalpy2_ - enthalpy1_;
        const bool latent = mode == Calculation::WaterHumidifier;
        states[1].capacity = SignedBy(latent ? x_gain : h_gain, FigureAlone(Kleist.text));
        states[1].water = SignedBy(x_gain, FigureAlone(KondW.text));
    }
    return states;
}

ProcessStates PlantPanel::States() const {
    if (context_.Rechenmodus != Calculation::Plant || !figures_of_.Hold(Basis())) return {};
    const Captions& words = context_.captions;
    const std::string leaving = words[Caption::Leaving] + " ";
    const double total = way_.mixing.mL, share = 1 / (1 + ParsedNumber(aussenAnt.text));
    ProcessStates states;
    const auto add = [&states](const std::string& name, const AirPoint& air, double dry_air) {
        return &Add(states, name, air, dry_air);
    };
    // The suite has no figures of fans and condensate, and balances in which they do not fit.
    const auto heat = [&](const AirPoint& from, const AirPoint& to) {
        return IsExact() ? GainText(total * (to.h - from.h) / kSecondsPerHour, way_.Anzeigefaktor)
                         : "";
    };
    const auto water = [&](const AirPoint& from, const AirPoint& to) {
        return IsExact() ? GainText(total * (to.x - from.x) / kGramsPerKg, way_.Anzeigefaktor) : "";
    };
    ProcessState* extract = add(words[Caption::ExtractAir], way_.mixing.exhaust, total);
    extract->percent = ParsedNumber(PHIAbluft.text);
    extract->flow = Positive(ParsedNumber(vhAnlage.text));
    extract->capacity = FigureAlone(RaumLeist.text);
    extract->water = FigureAlone(RaumWasserLeist.text);
    if (way_.mixing.behind_fan.t != way_.mixing.exhaust.t) {
        const std::string rise = " + " + FigureAlone(dtVent2.text) + " " + std::string(UnitK);
        add(words[Caption::ExtractAir] + rise, way_.mixing.behind_fan, total)->capacity =
            heat(way_.mixing.exhaust, way_.mixing.behind_fan);
    }
    if (share < 1) {
        add(words[Caption::RecirculatedAir], way_.mixing.behind_fan, total * (1 - share));
    }
    add(words[Caption::OutdoorAir], way_.mixing.outside, total * share)->percent =
        ParsedNumber(PhiAussen.text);
    add(words[Caption::Mixing], way_.mixing.mixed, total);
    if (way_.coil) {
        ProcessState* cooled = add(leaving + words[Caption::Cooler], *way_.coil, total);
        cooled->capacity = TakenFromAir(FigureAlone(Kuehl.text));
        cooled->water = water(way_.mixing.mixed, *way_.coil);
    }
    ProcessState* heated = add(leaving + words[Caption::Heater], way_.heated, total);
    heated->capacity = FigureAlone(Heiz2.text);
    if (!IsExact()) heated->h.reset();  // the suite's way has none there
    const bool warmed = way_.supply.t != way_.before_fan.t;
    // Where the suite needs no humidifier its way from the coil to the supply air may still lose a
    // little water: no apparatus stands there.
    const bool humidified =
        humidifier_shown_ && std::abs(way_.before_fan.x - way_.heated.x) > kNoWater;
    if (humidified || !warmed) {
        ProcessState* humid =
            add(warmed ? leaving + words[Caption::HumidifierSecond] : words[Caption::SupplyAir],
                way_.before_fan, total);
        if (humidified) humid->water = FigureAlone(Bef.text);
    }
    if (warmed) {
        add(words[Caption::SupplyAir], way_.supply, total)->capacity =
            heat(way_.before_fan, way_.supply);
    }
    states.back().percent = ParsedNumber(PHIZuluft.text);
    return states;
}

void PlantPanel::KeepWay(const PlantRun& run, const AirPoint& heated) {
    way_ = {run.mixing, run.supply, run.fan_inlet.air, heated, {}, run.Anzeigefaktor};
    if (!run.OhneKuehler) way_.coil = run.coil.air;
}

}  // namespace zandrell
