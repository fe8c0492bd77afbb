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
    // Of Exact alone.
    Label DewPoint{"DewPoint"}, WetBulb{"WetBulb"}, SpecificVolume{"SpecificVolume"},
        CondensedWater{"CondensedWater"};

    // The figures from the top, each with its sign and unit on the panel and its word in a tool
    // tip: the signs of the chart's own axes leave the column narrow.
    struct Row {
        Label* figure;
        Label word;
        std::string_view sign, unit;
        Caption caption;
        bool exact_alone = false;
        // Where it is ice that counts.
        std::string_view ice_sign = sign;
        Caption ice_caption = caption;
        struct Words {
            std::string text, tool_tip;
        };
        Words words{}, ice_words{};
        bool of_ice = false;  // what the figure in force is
    };
    std::array<Row, 11> rows{{
        {&Temp, Label("TempLabel"), "t", UnitDegC, Caption::Temperature},
        {&relF, Label("relFLabel"), "φ", "%", Caption::RelativeHumidity},
        {&absF, Label("absFLabel"), "x", "g/kg", Caption::HumidityRatio},
        {&EnthL, Label("EnthLLabel"), "h", UnitKJkg, Caption::Enthalpy},
        {&DichtL, Label("DichtLLabel"), "ρ", "kg/m³", Caption::Density},
        {&DampfDS, Label("DampfDSLabel"), "pD", "hPa", Caption::VapourPressure},
        {&AbsDruck, Label("AbsDruckLabel"), "p", UnitBar, Caption::Pressure},
        {&DewPoint, Label("DewPointLabel"), "td", UnitDegC, Caption::DewPoint, true, "tf",
         Caption::FrostPoint},
        {&WetBulb, Label("WetBulbLabel"), "tw", UnitDegC, Caption::WetBulb, true},
        {&SpecificVolume, Label("SpecificVolumeLabel"), "v", "m³/kg", Caption::SpecificVolume,
         true},
        {&CondensedWater, Label("CondensedWaterLabel"), "xw", "g/kg", Caption::Water, true, "xi",
         Caption::Ice},
    }};

    void ListControls(Form& form);
    void TakeWords(const Captions& captions);
    // Shows and hides the rows that are of Exact alone.
    void ShowRowsOf(Convention convention);
    // Whether the row of a figure is called by what it is of ice.
    void CallIce(const Label& figure, bool ice);
};

// Shows the state at a point of the chart. Below humidity 0 and from saturation on only t and x are
// numbers: there is no state in the fog. A point outside the limits of the state function shows
// "-".
void ShowStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel);
// The same under Exact, of the state with exactly this x. Air in the fog is a state too: saturated,
// with water or ice.
void ShowExactStateAt(const ChartState& point, StateSolver& solver, ReadOutPanel& panel);

// The humidity fraction of the suite's air at t and x, with one correction step for the slight bend
// of x over it. The solver is left at that state. Empty when the point is outside the limits.
std::optional<double> HumidityAt(const ChartState& point, StateSolver& solver);

}  // namespace zandrell
