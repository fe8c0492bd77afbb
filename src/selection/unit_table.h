#pragma once

#include "selection/progress_bar.h"
#include "selection/selection_context.h"
#include "selection/series_reader.h"
#include "selection/unit_figures.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// What a run through a series is for.
inline constexpr int kFillTable = 1;
inline constexpr int kFindRange = 2;

// Rows 1, 3, 5 ... of a grid in grey: 1 for KatalogSpread, 2 for Venttab.
void ZeilenStreifen(int rows, int which, VentZeigControls& controls, ProgressBar& progress);

// The units of a series with the figures for the present duty, and the range that it can deliver.
class UnitTable {
  public:
    UnitTable(const SelectionContext& context, VentZeigControls& controls, ProgressBar& progress)
        : context_(context), controls_(controls), progress_(progress), reader_(context.files) {}

    int records_read = 0;

    // The columns and widths of the first load.
    void Load();
    void HeadVentTab();

    // Runs through the series whose unit i stands in record `address` + i + 2 of `KatalogDatei`.
    // Mode kFindRange writes its range to `row` of KatalogSpread, kFillTable its units to Venttab.
    void SerieLesen(long address, int mode, int row);

    // How the series file of the last run could be opened.
    FileStatus Status() const { return reader_.Status(); }

  private:
    struct Step {
        int number = 0;  // of the record in the series
        int mode = 0;
        bool last = false;
        const KatalogSatz* record = nullptr;
        const UnitNumbers* unit = nullptr;
    };

    void ClearTable();
    // One record of the run; false behind the last one.
    bool TakeRecord(const Step& step, UnitFigures& figures, int range_row);
    bool TakeCapacity(const Step& step, const UnitFigures& figures, int range_row);
    void WriteCapacity(const Step& step, const UnitFigures& figures, double capacity);
    void WriteLineComponent(const Step& step, const UnitFigures& figures);
    void WriteRange(int row) const;

    SelectionContext context_;
    VentZeigControls& controls_;
    ProgressBar& progress_;
    SeriesReader reader_;
    bool found_ = false;  // a unit that does the duty
};

}  // namespace zandrell
