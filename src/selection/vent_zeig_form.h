#pragma once

#include "forms/window_form.h"
#include "selection/frequency_panel.h"
#include "selection/selection_context.h"
#include "selection/series_acts.h"
#include "selection/series_list.h"
#include "selection/unit_choice.h"
#include "selection/unit_table.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The window `VentZeig`: selects a component out of the catalogues of makers. Its opener sets the
// shared inputs, opens it, and acts on the request that it leaves in `DialogMode`. It hides itself
// for its opener (`FensterZu`) and keeps what it shows until it is left for good.
class VentZeigForm : public ModalForm {
  public:
    explicit VentZeigForm(const SelectionContext& context);

    VentZeigControls controls;
    SelectionHost host;

    bool loaded = false;        // false once it was left for good
    bool pointer_busy = false;  // a fill is running

    // Shows the window and gives it its activation; loads it first when it was left for good.
    void Open();

    // Writes the data sheet of the chosen unit; false, and a message says so, when it cannot be
    // written.
    bool BT_file_create();
    // The figures of the compressor in hand at the frequency in force.
    void FollowFrequency() { frequency_.inverter_rech(); }

    int RecordsRead() const { return units_.records_read; }

  private:
    void BindActs();
    void BindListActs();
    void BindUnitActs();
    void BindLeaving();
    void Load();
    void Activate();
    void BuildAfresh();
    void SetCaptions();
    void ShowWhatCallerNeeds();
    void SetTitle();
    void Search(std::string_view text);
    void OpenSeries();
    void TakeUnit();
    void SwitchEconomizer();
    void HideForOpener(LeaveCode code);
    void Leave();
    void PrintSheet();
    void ShowDocuments();

    SelectionContext context_;
    ProgressBar progress_;
    UnitTable units_;
    SeriesList series_;
    SeriesActs series_acts_;
    UnitChoice choice_;
    FrequencyPanel frequency_;
    bool busy_ = false;  // the window itself moves boxes and slider
};

}  // namespace zandrell
