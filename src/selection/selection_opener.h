#pragma once

#include <optional>
#include <string>

#include "selection/chosen_unit.h"
#include "selection/selection_duty.h"
#include "selection/vent_zeig_form.h"

namespace zandrell {

// How the window was left.
enum class SelectionEnd { None, WithResult, WithoutResult };

// Who opens the selection window, supplies its shared inputs, and answers what it asks for when it
// hides itself.
class SelectionOpener {
  public:
    // All of it outlives the opener.
    SelectionOpener(const SelectionContext& context, VentZeigForm& window)
        : context_(context), window_(window), reader_(context.files) {}

    SelectionDuty duty;

    // Reads the refrigerants of the data folder.
    void Load();
    const RefrigerantTables& Refrigerants() const { return refrigerants_; }

    // Works the duty out and opens the window with it; the chosen unit is forgotten when the kind
    // is another one. A message, and nothing is opened or changed, when it cannot be computed.
    std::optional<std::string> Open();
    // Answers the request of a window that has hidden itself, and opens it again unless it was left
    // for good; also where it was left with a result and no unit is chosen. `wants_settings` is set
    // by the request for the settings of the opener.
    SelectionEnd React();

    bool wants_settings = false;
    bool HasUnit() const { return place_.position > 0; }
    // Of the chosen unit.
    const UnitPlace& Place() const { return place_; }
    // Of the chosen unit; empty when none is chosen.
    std::optional<ChosenUnit> Unit();

  private:
    void TakeUnit();
    void Step(int by);
    void Recalculate();
    void KeepOpen();
    void ShowUnit();
    void Show();

    SelectionContext context_;
    VentZeigForm& window_;
    SeriesReader reader_;
    RefrigerantTables refrigerants_;
    UnitPlace place_;
    int kind_ = 0;  // of the list that is shown
};

}  // namespace zandrell
