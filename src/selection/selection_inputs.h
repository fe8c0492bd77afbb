#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zandrell {

// The operating point of a selection: what the module that opens it shares with it, by the names
// that the suite has for it. Numbers that nobody has set are 0.
struct SelectionInputs {
    std::string ModuleTag = "QV";
    int KatalogArt = 0;

    double QoSoll = 0;           // kW, required cooling capacity
    double QoZusatz = 0;         // kW, added to QoSoll for air coolers
    double KatBezug = 0;         // kW, required heat rejection of condensers; kg/m3, density of the
                                 // fluid in line components
    double LeistFaktor = 0;      // correction of a stored capacity; 0: not set, see CalculateUnit
    double LiefergradBezug = 0;  // volumetric efficiency of the reference compressor
    double MassenStrom = 0;      // kg/s of refrigerant
    double OeffnungMax = 0;      // %, limit of the opening figure
    int KuehlerBasis = 0;        // 0, 1 or 2: the wanted rating basis of an air cooler

    std::string KaelteMittel;  // refrigerant, as in "R22"
    double DruckPo = 0;        // bar a, evaporating
    double DruckPc = 0;        // bar a, condensing
    double VerlustPo = 0;      // mbar lost on the suction side
    double VerlustPc = 0;      // mbar lost on the discharge side

    double VolumenNenn = 0;       // m3/h swept by the chosen compressor at 50 Hz
    double LeistungNenn = 0;      // electric figure of the chosen compressor at 50 Hz
    double VolumenRef = 0;        // m3/h; nothing in this program sets it
    double InverterNetzFreq = 0;  // Hz of the mains of the inverter; 0 or less: not set

    // The numbers that the labels of these names show.
    double Label25 = 0;  // m3/h swept by the chosen compressor at its frequency
    double Label26 = 0;  // m3/h, required swept volume
    double Label27 = 0;  // required electric figure

    // Set by the selection itself.
    int VerdichterArt = 0;    // 1 or 3, see VerdichterWirkungsgrad
    int VerdichterStufe = 0;  // 1, 2 or 3
    double BetriebsFreq = 0;  // Hz
    double QoFreq = 0;        // kW at BetriebsFreq
};

// One of its numbers by name: the one member pointer or the other is set.
struct NumberInput {
    std::string_view name;
    double SelectionInputs::*number = nullptr;
    int SelectionInputs::*whole = nullptr;
};

extern const std::array<NumberInput, 24> kNumberInputs;

// Null for a name that is none of theirs; names are exact.
const NumberInput* NumberInputNamed(std::string_view name);

// Whole numbers take the nearest one. A value that is not finite, or beyond an int, changes
// nothing.
void SetInput(SelectionInputs& shared, const NumberInput& input, double value);

double InputOf(const SelectionInputs& shared, const NumberInput& input);

}  // namespace zandrell
