#include "chart/read_out.h"

#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "kernel/exact_air.h"
#include "kernel/real_air.h"

namespace zandrell {
namespace {

constexpr std::string_view kNoState = "-";
constexpr double kPascalPerHectopascal = 100;

// NumberText of a cut figure; a value that is not finite leaves the text.
void ShowCut(Label& label, double value, double factor) {
    const double shown = Cut(value, factor);
    if (std::isfinite(shown)) label.text = NumberText(shown);
}

void ShowNoState(std::initializer_list<Label*> labels) {
    for (Label* label : labels) label->text = kNoState;
}

bool IsAir(std::optional<double> fraction) { return fraction && *fraction >= 0 && *fraction < 1; }

// What there is to say of a point that is no air; ShowAir says the rest of one that is.
void ShowPoint(const ChartState& point, std::optional<double> fraction, ReadOutPanel& panel) {
    ShowCut(panel.Temp, point.t, 10);
    ShowCut(panel.absF, point.x, 10);
    panel.relF.background = fraction && !IsAir(fraction) ? kLightRed : kWhite;
    if (IsAir(fraction)) return;
    ShowNoState({&panel.relF, &panel.EnthL, &panel.DichtL, &panel.DampfDS});
    if (fraction) panel.relF.text = *fraction < 0 ? "< 0" : "> 100";
}

void ShowFraction(double fraction, ReadOutPanel& panel) {
    panel.relF.text = NumberText(std::floor(fraction * 1000) / 10);
}

void ShowAir(double fraction, const AirState& air, ReadOutPanel& panel) {
    ShowFraction(fraction, panel);
    ShowCut(panel.DampfDS, air.ZustandPDampf / kPascalPerHectopascal, 10);
    ShowCut(panel.EnthL, air.ZustandH, 10);
    ShowCut(panel.DichtL, air.ZustandDichte, 1000);
}

// The rows that the suite does not have.
void ShowMoreOf(const ExactAirState& state, const ExactAir& air, ReadOutPanel& panel) {
    const auto dew_point = air.DewPoint(state), wet_bulb = air.WetBulb(state);
    panel.CallIce(panel.DewPoint, dew_point.value_or(state.t) <= kIceUpTo);
    panel.CallIce(panel.CondensedWater, state.t <= kIceUpTo);
    if (dew_point) ShowCut(panel.DewPoint, *dew_point, 10);
    if (wet_bulb) ShowCut(panel.WetBulb, *wet_bulb, 10);
    ShowCut(panel.SpecificVolume, state.volume, 1000);
    if (state.IsFog()) ShowCut(panel.CondensedWater, state.liquid + state.ice, 100);
}

}  // namespace

void ReadOutPanel::ListControls(Form& form) {
    form.Add({&Pn1});
    for (Row& row : rows) form.Add({row.figure, &row.word});
}

std::optional<double> HumidityAt(const ChartState& point, StateSolver& solver) {
    if (!solver.Evaluate(1, point.t)) return std::nullopt;
    const double estimate_percent = std::abs(100 * point.x / solver.ZustandX);
    if (!solver.Evaluate(estimate_percent / 100, point.t)) return std::nullopt;
    const double x_there = solver.ZustandX;
    // Without humidity there is nothing to correct.
    if (point.x == 0 || x_there == 0) return 0.0;
    const double fraction = point.x / x_there * estimate_percent / 100;
    if (!std::isfinite(fraction)) return std::nullopt;
    if (fraction > 0) solver.Evaluate(fraction, point.t);
    return fraction;
}

void ReadOutPanel::TakeWords(const Captions& captions) {
    const auto words_of = [&](std::string_view sign, const Row& row, Caption caption) {
        std::string text(sign);
        text.append(" /[").append(row.unit).append("]:");
        return Row::Words{std::move(text), captions[caption]};
    };
    for (Row& row : rows) {
        row.words = words_of(row.sign, row, row.caption);
        row.ice_words = words_of(row.ice_sign, row, row.ice_caption);
        CallIce(*row.figure, row.of_ice);
    }
}

void ReadOutPanel::ShowRowsOf(Convention convention) {
    for (Row& row : rows) {
        if (!row.exact_alone) continue;
        row.figure->visible = row.word.visible = convention == Convention::Exact;
    }
}

void ReadOutPanel::CallIce(const Label& figure, bool ice) {
    for (Row& row : rows) {
        if (row.figure != &figure) continue;
        row.of_ice = ice;
        const Row::Words& words = ice ? row.ice_words : row.words;
        row.word.text = words.text;
        row.word.tool_tip = words.tool_tip;
    }
}

void ShowStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel) {
    const auto fraction = HumidityAt(point, solver);
    ShowPoint(point, fraction, panel);
    if (!IsAir(fraction)) return;
    ShowAir(*fraction, solver, panel);
}

void ShowExactStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel) {
    const ExactAir air(solver);
    const auto state = air.FromX(point.t, std::abs(point.x));
    std::optional<double> fraction;
    if (state) fraction = point.x < 0 ? -state->fraction : state->fraction;
    ShowPoint(point, fraction, panel);
    ShowNoState({&panel.DewPoint, &panel.WetBulb, &panel.SpecificVolume, &panel.CondensedWater});
    if (!fraction || *fraction < 0) return;
    if (IsAir(fraction)) ShowFraction(*fraction, panel);
    ShowCut(panel.EnthL, state->enthalpy, 10);
    ShowCut(panel.DichtL, state->density, 1000);
    ShowCut(panel.DampfDS, state->vapour_pressure / kPascalPerHectopascal, 10);
    ShowMoreOf(*state, air, panel);
}

}  // namespace zandrell
