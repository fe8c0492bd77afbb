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
    // Puts a unit beside those that are there; the fifth takes the place of the first.
    void Compare(const ChosenUnit& unit, const SelectionDuty& duty);
    // Empty unless a series of a kind with a capacity is open.
    std::optional<CapacityPlot> Plot() const;

  private:
    bool Fits(const Grid& grid, int row) const;
    void HideRows(Grid& grid) const;
    void PaintStripes(Grid& grid) const;
    void FillComparison();

    SelectionContext context_;
    VentZeigControls& controls_;
    GridOrder series_order_, unit_order_;
    long series_revision_ = 0, unit_revision_ = 0;
    bool hidden_ = false;
    std::vector<std::vector<std::string>> compared_;  // the texts of one unit
};

}  // namespace zandrell
