#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/captions.h"
#include "base/unit_texts.h"
#include "chart/chart_scale.h"
#include "forms/control.h"
#include "forms/form.h"

namespace zandrell {

class StateSolver;

// The panel that shows the state under the pointer.
struct ReadOutPanel {
    ReadOutPanel() = default;
    ReadOutPanel(const ReadOutPanel&) = delete;
    ReadOutPanel& operator=(const ReadOutPanel&) = delete;

    Panel Pn1{"Pn1"};
    Label Temp{"Temp"}, relF{"relF"}, absF{"absF"}, EnthL{"EnthL"}, DichtL{"DichtL"},
        DampfDS{"DampfDS"}, AbsDruck{"AbsDruck"};

    // The figures from the top, each with its sign and unit on the panel and its word in a tool
    // tip: the signs of the chart's own axes leave the column narrow.
    struct Row {
        Label* figure;
        Label word;
        std::string_view sign, unit;
        Caption caption;
    };
    std::array<Row, 7> rows{{
        {&Temp, Label("TempLabel"), "t", UnitDegC, Caption::Temperature},
        {&relF, Label("relFLabel"), "φ", "%", Caption::RelativeHumidity},
        {&absF, Label("absFLabel"), "x", "g/kg", Caption::HumidityRatio},
        {&EnthL, Label("EnthLLabel"), "h", UnitKJkg, Caption::Enthalpy},
        {&DichtL, Label("DichtLLabel"), "ρ", "kg/m³", Caption::Density},
        {&DampfDS, Label("DampfDSLabel"), "pD", "hPa", Caption::VapourPressure},
        {&AbsDruck, Label("AbsDruckLabel"), "p", UnitBar, Caption::Pressure},
    }};

    void ListControls(Form& form);
};

// Shows the state at a point of the chart. Below humidity 0 and from saturation on only t and x are
// numbers: there is no state in the fog. A point outside the limits of the state function shows
// "-".
void ShowStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel);
// The same under Exact, of the state with exactly this x.
void ShowExactStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel);

// The humidity fraction of the suite's air at t and x, with one correction step for the slight bend
// of x over it. The solver is left at that state. Empty when the point is outside the limits.
std::optional<double> HumidityAt(const ChartState& point, StateSolver& solver);

}  // namespace zandrell
