#pragma once

#include <string>

#include "selection/selection_context.h"
#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The picture that stands for a unit: its own, in capitals, or that of the kind when the name is no
// bitmap's.
std::string PictureOf(std::string_view KatBild, int KatalogArt);

// Where the marker of the scale of efficiency stands, in twips.
int ClassMarkTop(std::string_view efficiency_class);

// The chosen cell of `Venttab`: its box, and the unit of its row.
class UnitChoice {
  public:
    UnitChoice(const SelectionContext& context, VentZeigControls& controls)
        : context_(context), controls_(controls) {}

    // Shows the value of a cell in `venttabText` over it.
    void venttabEdit(int column, int row);
    // Takes over the unit of the chosen row: position, picture and class. A row without a unit
    // changes nothing.
    void ZeileWaehlen();

  private:
    SelectionContext context_;
    VentZeigControls& controls_;
};

}  // namespace zandrell
