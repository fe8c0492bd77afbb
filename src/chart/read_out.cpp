#include "chart/read_out.h"

#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "canvas/palette.h"
#include "kernel/exact_air.h"

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

struct ShownAir {
    double fraction = 0, enthalpy = 0;        // kJ/kg
    double density = 0, vapour_pressure = 0;  // kg/m3, Pa
};

void ShowAir(const ShownAir& air, ReadOutPanel& panel) {
    ShowCut(panel.DampfDS, air.vapour_pressure / kPascalPerHectopascal, 10);
    ShowCut(panel.EnthL, air.enthalpy, 10);
    panel.relF.text = NumberText(std::floor(air.fraction * 1000) / 10);
    ShowCut(panel.DichtL, air.density, 1000);
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

void ShowStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel) {
    const auto fraction = HumidityAt(point, solver);
    ShowPoint(point, fraction, panel);
    if (!IsAir(fraction)) return;
    ShowAir({*fraction, solver.ZustandH, solver.ZustandDichte, solver.ZustandPDampf}, panel);
}

void ShowExactStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel) {
    const auto state = ExactAir(solver).FromX(point.t, std::abs(point.x));
    std::optional<double> fraction;
    if (state) fraction = point.x < 0 ? -state->fraction : state->fraction;
    ShowPoint(point, fraction, panel);
    if (!IsAir(fraction)) return;
    ShowAir({*fraction, state->enthalpy, state->density, state->vapour_pressure}, panel);
}

}  // namespace zandrell
