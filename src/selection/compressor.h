#pragma once

#include <string_view>

#include "selection/selection_inputs.h"

namespace zandrell {

// What the efficiency of a compressor depends on besides pressures and size.
struct CompressorKind {
    int VerdichterArt = 0;    // 0, 1: one family; 2 to 5: another; others have no efficiency
    int VerdichterStufe = 0;  // design step 1, 2 or 3; others count as 2
    std::string_view KaelteMittel;
};

// The volumetric efficiency of a compressor, an estimate of the suite's own. `pc` and `po` are the
// condensing and evaporating pressure in bar, `dpc` and `dpo` the losses behind and in front of the
// machine in mbar, `capacity` its size as the bare number that the caller iterates with (its swept
// volume in m3/h times an efficiency). A pressure ratio that cannot be formed counts as 0, and a
// term that has no value leaves the efficiency as it was, so the result is always finite.
double VerdichterWirkungsgrad(double pc, double dpc, double po, double dpo, double capacity,
                              const CompressorKind& kind);

// Takes family and step out of the code of a compressor: 3 for a first letter S in either case,
// else 1; the last character 1, 2 or 3, any other is 2. A blank code leaves both as they were for
// the unit before: in a catalogue it stands only where it changes.
void SetCompressorKind(std::string_view code, SelectionInputs& shared);

}  // namespace zandrell
