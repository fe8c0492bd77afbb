#pragma once

#include <string>
#include <string_view>

#include "selection/catalogue.h"
#include "selection/selection_inputs.h"

namespace zandrell {

// What the calculation reads of a record.
struct UnitNumbers {
    double KatWert = 0;  // see KatalogFeld for the units
    double KatWert2 = 0;
    double KatLeistung = 0;
    double KatAntrieb = 0;
    double KatLamelle = 0;
    int KatBasis = 0;
    std::string code;  // KatLeistung of a compressor, trimmed

    // As KatalogSatz::IsEndMark.
    bool IsEndMark() const {
        return KatWert == 0 && KatWert2 == 0 && KatLeistung == 0 && KatAntrieb == 0;
    }
};

UnitNumbers ReadUnit(const KatalogSatz& record);

// The figures of a unit at an operating point; which of them its kind has, CalculateUnit says.
struct UnitFigures {
    double Q = 0;              // kW, capacity or heat rejection
    double pressure_drop = 0;  // mbar
    double opening = 0;        // %
    double class_ratio = 0;    // kW per kW, what the efficiency class goes by
};

// Works out one unit of the kind `shared.KatalogArt`. `figures` are those of the unit before it in
// the run, fresh ones before the first: a figure that cannot be formed keeps its value.
//
// Air coolers and condensers: Q = stored capacity x LeistFaktor (x the factor between two rating
// bases for coolers of the module MOLK), and the ratio of the class.
// Stored capacity: Q likewise; a capacity of 0 is replaced by KatAntrieb, and a LeistFaktor of 0
// becomes 1.037, also for all that follow.
// Compressors: Q = QoSoll x (KatWert x efficiency) / (Label26 x LiefergradBezug), the efficiency in
// three passes. Sets VerdichterArt and VerdichterStufe.
// Components with a kv value: the pressure drop; those that regulate, the opening too. A kv of 0
// keeps the pressure drop of the unit before.
void CalculateUnit(const UnitNumbers& unit, SelectionInputs& shared, UnitFigures& figures);

// "A++" to "E" for coolers and condensers by their ratio, no text for other kinds. It rests on the
// stored capacity, not on the corrected one.
std::string_view EfficiencyClass(KatalogFamilie family, double class_ratio);

// What the capacity of a unit is held against, in kW; 0 for kinds without a capacity.
double TargetCapacity(const SelectionInputs& shared);

}  // namespace zandrell
