#include "chart/read_out.h"

#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "canvas/palette.h"

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

// The humidity fraction at t and x, with one correction step for the slight bend of x over it. The
// solver is left at that state. Empty when the point is outside the limits.
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

}  // namespace

void ReadOutPanel::ListControls(Form& form) {
    form.Add({&Pn1});
    for (Row& row : rows) form.Add({row.figure, &row.word});
}

void ShowStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel) {
    const auto fraction = HumidityAt(point, solver);
    ShowCut(panel.Temp, point.t, 10);
    ShowCut(panel.absF, point.x, 10);
    if (!fraction) {
        ShowNoState({&panel.relF, &panel.EnthL, &panel.DichtL, &panel.DampfDS});
        panel.relF.background = kWhite;
        return;
    }
    const double f = *fraction;
    if (f >= 0 && f < 1) {
        ShowCut(panel.DampfDS, solver.ZustandPDampf / kPascalPerHectopascal, 10);
        ShowCut(panel.EnthL, solver.ZustandH, 10);
        panel.relF.text = NumberText(std::floor(f * 1000) / 10);
        ShowCut(panel.DichtL, solver.ZustandDichte, 1000);
        panel.relF.background = kWhite;
        return;
    }
    ShowNoState({&panel.EnthL, &panel.DichtL, &panel.DampfDS});
    panel.relF.text = f < 0 ? "< 0" : "> 100";
    panel.relF.background = kLightRed;
}

}  // namespace zandrell
