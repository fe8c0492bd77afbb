#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/grid_order.h"
#include "selection/chosen_unit.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The capacities of the open series against the duty.
struct CapacityPlot {
    struct Point {
        double capacity = 0;  // kW
        std::string name, figure;
        int colour = 0;  // palette number, as in the table
        bool chosen = false;
    };
    struct Tick {
        double value = 0;
        std::string text;
    };
    double duty = 0;  // kW
    std::string duty_text;
    double top = 0;  // kW, end of the axis
    std::vector<Point> points;
    std::vector<Tick> ticks;
};

// What a planner wants of the lists beside the window's own: order, only what fits, a comparison, a
// plot.
class PlannerLists {
  public:
    // All of it outlives the lists.
    PlannerLists(const SelectionContext& context, VentZeigControls& controls);

    static constexpr int kMostCompared = 4;

    bool hide_unfit = false;
    // Name, figures and running cost of up to four units side by side.
    Grid Comparison{"Comparison"};

    void Sort(Grid& grid);
    // Brings order and hidden rows in line with what the grids hold now.
    void Follow();
    // Puts a unit beside those of its kind that are there, once; the fifth takes the place of the
    // first. All figures are those of `duty`.
    void Compare(const UnitPlace& unit, const SelectionDuty& duty);
    // The comparison as it stands, for another duty. False when there is nothing to compare.
    bool CompareAnew(const SelectionDuty& duty);
    // Empty unless a series of a kind with a capacity is open.
    std::optional<CapacityPlot> Plot() const;

  private:
    bool Fits(const Grid& grid, int row) const;
    void HideRows(Grid& grid) const;
    void PaintStripes(Grid& grid) const;
    std::vector<std::string> HeadsToCompare() const;
    void FillComparison(const std::vector<std::vector<std::string>>& units);

    SelectionContext context_;
    VentZeigControls& controls_;
    GridOrder series_order_, unit_order_;
    long series_revision_ = 0, unit_revision_ = 0;
    bool hidden_ = false;
    SeriesReader compared_reader_;
    std::vector<UnitPlace> compared_;
    int compared_kind_ = 0;
};

}  // namespace zandrell
