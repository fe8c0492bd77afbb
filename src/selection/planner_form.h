#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/choice_list.h"
#include "forms/window_form.h"
#include "selection/duty_fields.h"
#include "selection/planner_lists.h"
#include "selection/selection_opener.h"

namespace zandrell {

// The panel beside the selection window: what a planner fixes before he selects, and his wishes.
class PlannerForm : public WindowForm {
  public:
    // All of it outlives the form.
    PlannerForm(const SelectionContext& context, VentZeigForm& window, SelectionOpener& opener);

    // A number of the duty with its caption.
    struct DutyField {
        DutyField(std::string_view name, std::string_view label_name)
            : field(name), label(label_name) {}
        TextField field;
        Label label;
        double SelectionDuty::*value = nullptr;
    };

    ComboBox KindBox{"KindBox"}, RefrigerantBox{"RefrigerantBox"};
    Label KindLabel{"KindLabel"}, RefrigerantLabel{"RefrigerantLabel"};
    Label AirFlowLabel{"AirFlowLabel"}, AirFlow{"AirFlow"};  // hidden while none is known
    Button Apply{"Apply"}, Compare{"Compare"}, Plot{"Plot"}, Csv{"Csv"};
    CheckBox HideUnfit{"HideUnfit"};
    Label Message{"Message"};
    PlannerLists lists;
    std::vector<std::unique_ptr<DutyField>> fields;

    // What the windows do with a comparison, a plot, and where a list is to be written.
    std::function<void()> show_comparison;
    std::function<void(const CapacityPlot&)> show_plot;
    std::function<std::string(const std::string& proposal)> ask_file;

    // The words of all controls; a window that is built needs them first.
    void SetCaptions();
    // Reads the refrigerants, shows the duty and opens the selection window with it.
    void Start(const SelectionDuty& first);
    // The air flow in m3/h that goes with the duty, shown beside it for the choice of a cooler; 0:
    // none is known.
    void NoteAirFlow(double flow);
    // Whether the window asked for the settings of its opener since the last time.
    bool TakeWishForSettings() { return std::exchange(opener_.wants_settings, false); }
    // Behind each act in the selection window: answers its request and follows its lists.
    SelectionEnd Follow();

  private:
    void ListControls();
    void FillKinds();
    void ShowDuty();
    void ShowFieldsOfKind();
    bool TakeFields();
    UnitPlace PlaceInHand() const;
    void ApplyDutyNow();
    void CompareChosen();
    void ShowPlot();
    void WriteCsv();

    SelectionContext context_;
    VentZeigForm& window_;
    SelectionOpener& opener_;
};

}  // namespace zandrell
