#include "processes/state_list.h"

#include <cmath>
#include <functional>
#include <optional>

#include "base/number_text.h"
#include "base/unit_texts.h"
#include "kernel/exact_air.h"

namespace zandrell {
namespace {

struct StateFigures {
    double percent = 0, h = 0, density = 0;
    // Of ExactAir alone.
    std::optional<double> dew_point{}, wet_bulb{}, volume{};
};

std::optional<StateFigures> ExactFigures(const ProcessState& state, StateSolver& solver) {
    const ExactAir exact(solver);
    const auto air = exact.FromX(state.t, state.x);
    if (!air) return std::nullopt;
    return StateFigures{state.percent.value_or(100 * air->fraction),
                        state.h.value_or(air->enthalpy),
                        air->density,
                        exact.DewPoint(*air),
                        exact.WetBulb(*air),
                        air->volume};
}

std::optional<StateFigures> SuiteFigures(const ProcessState& state, StateSolver& solver) {
    const auto fraction = HumidityAt({state.t, state.x}, solver);
    if (!fraction) return std::nullopt;
    return StateFigures{state.percent.value_or(100 * *fraction), state.h.value_or(solver.ZustandH),
                        solver.ZustandDichte};
}

// A figure that its way here left a rounding below its last decimal keeps that.
std::string CutText(std::optional<double> value, double factor) {
    constexpr double kRounding = 1e-9;
    if (!value || !std::isfinite(*value)) return {};
    return TrimmedNumberText(Cut(*value + kRounding * (1 + std::abs(*value)), factor));
}

// One column: its head, and what it shows of a state.
struct Column {
    std::string head;
    std::function<std::string(const ProcessState&, const StateFigures&)> text;
};

std::optional<double> Product(std::optional<double> one, std::optional<double> other) {
    return one && other ? std::optional(*one * *other) : std::nullopt;
}

std::vector<Column> StateColumns(const Captions& words, bool exact, double pressure_bar) {
    const auto head = [&words](Caption word, std::string_view unit) {
        return words[word] + " /[" + std::string(unit) + "]";
    };
    using State = const ProcessState&;
    using Figures = const StateFigures&;
    std::vector<Column> columns = {
        {words[Caption::State], [](State s, Figures) { return s.name; }},
        {head(Caption::Temperature, UnitDegC), [](State s, Figures) { return CutText(s.t, 100); }},
        {head(Caption::RelativeHumidity, "%"),
         [](State, Figures f) { return CutText(f.percent, 10); }},
        {head(Caption::HumidityRatio, "g/kg"), [](State s, Figures) { return CutText(s.x, 100); }},
        {head(Caption::Enthalpy, UnitKJkg),
         [](State, Figures f) { return CutText(f.h + 0.05, 10); }},
        {head(Caption::Density, "kg/m³"),
         [](State, Figures f) { return CutText(f.density, 1000); }}};
    if (exact) {
        columns.push_back({head(Caption::DewOrFrostPoint, UnitDegC),
                           [](State, Figures f) { return CutText(f.dew_point, 10); }});
        columns.push_back({head(Caption::WetBulb, UnitDegC),
                           [](State, Figures f) { return CutText(f.wet_bulb, 10); }});
        columns.push_back({head(Caption::DryAirVolume, "m³/kg"),
                           [](State, Figures f) { return CutText(f.volume, 1000); }});
    }
    columns.push_back({head(Caption::AirFlow, UnitM3h), [](State s, Figures f) {
                           return CutText(s.flow ? s.flow : Product(s.dry_air, f.volume), 1);
                       }});
    if (exact) {
        columns.push_back({head(Caption::DryAirFlow, "kg/h"),
                           [](State s, Figures) { return CutText(s.dry_air, 1); }});
    }
    const std::string to_air = " " + words[Caption::ToTheAir] + " /[";
    columns.push_back({words[Caption::Capacity] + to_air + std::string(UnitKW) + "]",
                       [](State s, Figures) { return s.capacity; }});
    columns.push_back(
        {words[Caption::Water] + to_air + "kg/h]", [](State s, Figures) { return s.water; }});
    columns.push_back({head(Caption::Pressure, UnitBar),
                       [text = TrimmedNumberText(pressure_bar)](State, Figures) { return text; }});
    return columns;
}

}  // namespace

StateList ListStates(const ProcessPanels& processes) {
    const ProcessSurroundings& around = processes.Around();
    StateSolver& solver = around.solver;
    const AirState kept = solver;
    const bool exact = around.settings.convention == Convention::Exact;
    const auto columns = StateColumns(around.captions, exact, solver.ChartDruckBar);
    StateList list;
    list.pressure = TrimmedNumberText(solver.ChartDruckBar) + " " + std::string(UnitBar);
    list.heads.reserve(columns.size());
    for (const Column& column : columns) list.heads.push_back(column.head);
    for (const ProcessState& state : processes.States()) {
        const auto figures = exact ? ExactFigures(state, solver) : SuiteFigures(state, solver);
        auto& row = list.rows.emplace_back();
        row.reserve(columns.size());
        for (const Column& column : columns) {
            row.push_back(figures ? column.text(state, *figures) : "");
        }
    }
    static_cast<AirState&>(solver) = kept;
    return list;
}

}  // namespace zandrell
