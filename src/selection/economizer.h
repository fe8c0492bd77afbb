#pragma once

#include "selection/selection_inputs.h"

namespace zandrell {

// The refrigerant between evaporator and condenser, from the opener, and what an economizer makes
// of it. Enthalpies in kJ/kg, specific heats in kJ/(kg K), pressures in bar a.
struct EconomizerState {
    double HDampf = 0;     // saturated vapour at the evaporating point
    double HFluessig = 0;  // liquid at the condensing point
    double HZwischen = 0;  // liquid at the intermediate point
    double CpDampf = 0, CpFluessig = 0;
    double Ueberhitzung = 0, Unterkuehlung = 0;  // K
    double DruckMitte1 = 0, DruckMitte2 = 0;     // their geometric mean is the intermediate one
    int EcoStufe = 0;                            // 1 to 9: with an economizer

    double EcoLeistung = 0;       // kW
    double EcoMassenStrom = 0;    // kg/s
    double EcoDruck = 0;          // bar a
    double EcoAnteil = 0;         // of QoSoll that the main flow bears
    double EcoUnterkuehlung = 0;  // K, one decimal
};

// The mass flow of refrigerant in kg/s for `QoSoll`; `fallback` where the result is 0 or cannot be
// formed. With an economizer `QoSoll` takes `capacity` in kW first, and the Eco figures are set;
// a figure that cannot be formed keeps its value.
double MassenStromRechnen(double fallback, double capacity, SelectionInputs& inputs,
                          EconomizerState& eco);

}  // namespace zandrell
