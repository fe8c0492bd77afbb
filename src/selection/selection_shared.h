#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/shared_values.h"
#include "selection/catalogue.h"
#include "selection/economizer.h"
#include "selection/selection_inputs.h"

namespace zandrell {

// The requests that the window leaves for its opener in `DialogMode`.
enum class LeaveCode {
    Recalculate = 15,  // the economizer was switched
    SmallerUnit = 17,
    LargerUnit = 18,
    WithResult = 19,
    WithoutResult = 20,
    SeriesOpened = 21,
    Settings = 23,
    UnitTaken = 25
};

// `OffeneSerie` while a series is open.
inline constexpr int kSeriesIsOpen = 77;

// What the window and the module that opens it share: the operating point, the state of the
// refrigerant, and the small integers by which each tells the other what has happened.
struct SelectionShared {
    SelectionInputs inputs;
    EconomizerState eco;

    // From the opener.
    int VentAufruf = 0;  // who opens: 44, 55, 88, 444 or another
    int TiefSuche = 0;   // 1: the search looks into the units too
    std::string FreqTitel;
    std::string ViewDatei1, ViewDatei2;  // documents of the unit
    double T0 = 0, Tc = 0;               // K, evaporation and condensation
    double dtM = 0;                      // K, mean temperature difference of an air cooler
    double tSL = 0;                      // degC, suction gas
    double xd = 0;                       // vapour fraction at the inlet of the cooler
    double GWP = 0;                      // of the refrigerant

    // From the window.
    int ErgebnisDa = 0;  // 1: it was left with a result
    int AnlagePending = 0;
    int Rueckkehr = 0;    // 1: the window is only hidden, its list stays
    int FensterZu = 0;    // 1: it has hidden itself so that the opener can refresh
    int OffeneSerie = 0;  // kSeriesIsOpen, else 0
    int VentAufruf2 = 0;
    int PrintOwner = 0;  // 55: the data sheet is the selection's
    long SerieStart = 0;
    std::string KatalogDatei;
    int AuswahlZeile = 0;  // position of the chosen unit in its series
    std::string BildDatei;
    std::string ResultLeer;
    double QErster = 0, QLetzter = 0;  // kW, range of the series read last
    double LeistungFreq = 0;           // electric figure handed to the module MOLK
    std::string record;                // bytes of the record that was read last

    KatalogSatz Satz() const { return KatalogSatz(record); }
};

// A value that both sides know by a name. One of the pointers is set.
struct NamedValue {
    std::string_view name;
    double* number = nullptr;
    int* whole = nullptr;
    long* position = nullptr;
    std::string* text = nullptr;
    bool from_opener = false;  // the opener may set it
};

std::vector<NamedValue> NamedValuesOf(SelectionShared& selection, SharedValues& shared);

// Takes a text for one of them. A whole number takes the nearest one; false for a text that is no
// number where one is wanted.
bool TakeValue(const NamedValue& value, std::string_view text);

}  // namespace zandrell
