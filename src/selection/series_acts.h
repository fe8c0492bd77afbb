#pragma once

#include "selection/catalogue_index.h"
#include "selection/series_reader.h"
#include "selection/unit_table.h"

namespace zandrell {

// What a user does with the row of a series: open it, look at it, ask where it comes from.
class SeriesActs {
  public:
    SeriesActs(const SelectionContext& context, VentZeigControls& controls, UnitTable& units)
        : context_(context), controls_(controls), units_(units), preview_(context.files) {}

    // Takes the series of the chosen row and shows its units.
    void OpenChosen();
    // Shows the open series again, after its opener has refreshed. When the list is another one by
    // now and does not hold it, no series is open.
    void Reopen();
    // The first unit of the series of a row, in `Picture2` beside it.
    void ShowPreview(int row);
    void HidePreview();
    // File and address of the chosen series.
    void TellLocator();

  private:
    void ShowUnits(int row);

    SelectionContext context_;
    VentZeigControls& controls_;
    UnitTable& units_;
    SeriesReader preview_;
    SeriesPlace open_;
};

// Keys and wheel move a grid by two rows; where it ends they move nothing.
void ScrollRows(Grid& grid, bool up);

}  // namespace zandrell
