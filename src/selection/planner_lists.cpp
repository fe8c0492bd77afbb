#include "selection/planner_lists.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr int kRed = 12, kStripe = 7;
constexpr int kRowHeight = 240, kWordWidth = 2600, kUnitWidth = 2200;  // twips
constexpr int kTicks = 5;
constexpr const char* kNoFigure = "-";

// A step of 1, 2 or 5 times a power of ten that divides a span in about five.
double NiceStep(double span) {
    const double raw = span / kTicks;
    const double power = std::pow(10, std::floor(std::log10(raw)));
    for (const double factor : {1, 2, 5}) {
        if (raw <= factor * power) return factor * power;
    }
    return 10 * power;
}

// In the order of HeadsToCompare.
std::vector<std::string> FiguresToCompare(const ChosenUnit& unit, const SelectionDuty& duty) {
    using enum KatalogFeld;
    const YearlyFigures year = YearlyFiguresOf(unit, duty);
    const auto family = FamilyOf(duty.KatalogArt);
    const bool line =
        family == KatalogFamilie::RegulatingComponents || family == KatalogFamilie::LineComponents;
    const auto figure = [](double value) { return NumberText(Cut(value, 100)); };
    const auto powered = [&](double value) { return unit.power > 0 ? figure(value) : kNoFigure; };
    return {unit.name,
            line ? kNoFigure : figure(unit.figures.Q),
            line ? figure(unit.figures.pressure_drop) : kNoFigure,
            std::string(EfficiencyClass(family, unit.figures.class_ratio)),
            unit.record.Text(KatVolumen),
            powered(unit.power),
            powered(year.ratio),
            powered(year.cost),
            powered(year.emission),
            unit.record.Text(KatGewicht)};
}

}  // namespace

PlannerLists::PlannerLists(const SelectionContext& context, VentZeigControls& controls)
    : context_(context), controls_(controls), compared_reader_(context.files) {}

void PlannerLists::Sort(Grid& grid) {
    GridOrder& order = &grid == &controls_.Venttab ? unit_order_ : series_order_;
    order.Ask(grid.asked_column);
    SortRows(grid, order);
    PaintStripes(grid);
    series_revision_ = unit_revision_ = 0;
    Follow();
}

void PlannerLists::Follow() {
    const bool changed = series_revision_ != controls_.KatalogSpread.Revision() ||
                         unit_revision_ != controls_.Venttab.Revision() || hidden_ != hide_unfit;
    if (!changed) return;
    for (Grid* grid : {&controls_.KatalogSpread, &controls_.Venttab}) {
        const GridOrder& order = grid == &controls_.Venttab ? unit_order_ : series_order_;
        SortRows(*grid, order);
        if (order.column >= 0) PaintStripes(*grid);
        HideRows(*grid);
    }
    hidden_ = hide_unfit;
    series_revision_ = controls_.KatalogSpread.Revision();
    unit_revision_ = controls_.Venttab.Revision();
}

// A stripe belongs to a place, the other colours to the row that moves.
void PlannerLists::PaintStripes(Grid& grid) const {
    const bool units = &grid == &controls_.Venttab;
    const auto [from, to] = units ? std::pair(1, 7) : std::pair(3, 4);
    for (int row = 1; row < grid.RowCount(); ++row) {
        for (int column = from; column <= to; ++column) {
            const auto back = grid.Back(row, column);
            if (back && *back != kStripe) continue;
            grid.SetBack(row, column, row % 2 == 1 ? std::optional(kStripe) : std::nullopt);
        }
    }
}

// By the colours that the lists give; a unit that is only near its duty does not meet it.
bool PlannerLists::Fits(const Grid& grid, int row) const {
    if (&grid == &controls_.KatalogSpread) return grid.Back(row, 1) != kRed;
    if (grid.IsEmptyRow(row)) return false;
    if (grid.Back(row, kUnitFigure) == kRed || grid.Back(row, kUnitThrow) == kRed) return false;
    const double target = TargetCapacity(context_.selection.inputs);
    return target <= 0 || ParsedNumber(grid.Text(row, kUnitFigure)) >= target;
}

void PlannerLists::HideRows(Grid& grid) const {
    for (int row = 1; row < grid.RowCount(); ++row) {
        const int height = hide_unfit && !Fits(grid, row) ? 0 : kRowHeight;
        if (grid.Height(row) != height) grid.SetHeight(row, height);
    }
}

void PlannerLists::Compare(const UnitPlace& unit, const SelectionDuty& duty) {
    if (duty.KatalogArt != compared_kind_) compared_.clear();
    compared_kind_ = duty.KatalogArt;
    if (std::find(compared_.begin(), compared_.end(), unit) == compared_.end()) {
        compared_.push_back(unit);
    }
    if (compared_.size() > kMostCompared) compared_.erase(compared_.begin());
    CompareAnew(duty);
}

bool PlannerLists::CompareAnew(const SelectionDuty& duty) {
    if (duty.KatalogArt != compared_kind_) compared_.clear();
    std::vector<std::vector<std::string>> texts;
    for (const UnitPlace& place : compared_) {
        const auto unit = ReadChosenUnit(compared_reader_, place, duty, context_.selection.inputs);
        if (unit) texts.push_back(FiguresToCompare(*unit, duty));
    }
    FillComparison(texts);
    return !texts.empty();
}

// Figures that none of the units has get no line.
void PlannerLists::FillComparison(const std::vector<std::vector<std::string>>& units) {
    const auto heads = HeadsToCompare();
    Comparison.SetColumns(static_cast<int>(units.size()) + 1);
    Comparison.SetRows(0, 0);
    Comparison.SetRows(static_cast<int>(heads.size()), kRowHeight);
    Comparison.SetWidth(0, kWordWidth);
    int row = 0;
    for (std::size_t line = 0; line < heads.size(); ++line) {
        const auto has_figure = [line](const auto& unit) {
            return !unit[line].empty() && unit[line] != kNoFigure;
        };
        if (std::none_of(units.begin(), units.end(), has_figure)) continue;
        Comparison.SetText(row, 0, heads[line]);
        for (std::size_t i = 0; i < units.size(); ++i) {
            Comparison.SetWidth(static_cast<int>(i) + 1, kUnitWidth);
            Comparison.SetText(row, static_cast<int>(i) + 1, units[i][line]);
        }
        ++row;
    }
    Comparison.SetRows(row, kRowHeight);
}

std::vector<std::string> PlannerLists::HeadsToCompare() const {
    const Captions& words = context_.captions;
    const auto with_unit = [&](Caption word, std::string_view unit) {
        return words[word] + " [" + std::string(unit) + "]";
    };
    const Caption capacity =
        FamilyOf(context_.selection.inputs.KatalogArt) == KatalogFamilie::Condensers
            ? Caption::HeatRejection
            : Caption::RefrigeratingCapacity;
    return {words[Caption::Designation],
            with_unit(capacity, UnitKW),
            with_unit(Caption::PressureDrop, UnitMbar),
            words[Caption::EfficiencyClass],
            with_unit(Caption::VolumeFlow, UnitM3h),
            with_unit(Caption::PowerInput, UnitKW),
            "EER/COP",
            with_unit(Caption::RunningCost, context_.shared.CurrencyTag + "/a"),
            words[Caption::Emission] + " CO2 [t/a]",
            with_unit(Caption::Weight, UnitKg)};
}

std::optional<CapacityPlot> PlannerLists::Plot() const {
    const Grid& grid = controls_.Venttab;
    CapacityPlot plot;
    plot.duty = TargetCapacity(context_.selection.inputs);
    if (!controls_.pn77.visible || !(plot.duty > 0)) return std::nullopt;
    plot.duty_text = TrimmedNumberText(Cut(plot.duty, 100)) + " kW";
    double most = plot.duty;
    for (int row = 1; row < grid.RowCount(); ++row) {
        if (grid.IsEmptyRow(row) || grid.Height(row) == 0) continue;
        const double capacity = ParsedNumber(grid.Text(row, kUnitFigure));
        if (!(capacity > 0)) continue;
        plot.points.push_back({capacity, grid.Text(row, kUnitName),
                               TrimmedNumberText(capacity) + " kW",
                               grid.Back(row, kUnitFigure).value_or(kRed), row == grid.row});
        most = std::max(most, capacity);
    }
    if (plot.points.empty()) return std::nullopt;
    const double step = NiceStep(most);
    plot.top = std::ceil(most / step) * step;
    for (int i = 0; i * step <= plot.top + step / 2; ++i) {
        plot.ticks.push_back({i * step, TrimmedNumberText(i * step)});
    }
    return plot;
}

}  // namespace zandrell
