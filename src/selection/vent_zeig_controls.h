#pragma once

#include "forms/choice_list.h"
#include "forms/control.h"
#include "forms/grid.h"
#include "forms/scroll_bar.h"

namespace zandrell {

class Form;

// The column of the hidden locator in `KatalogSpread`.
inline constexpr int kLocatorColumn = 4;
inline constexpr int kSeriesTextColumn = 3;

// Columns of `Venttab` that other routines read.
enum UnitColumn {
    kUnitName = 1,
    kUnitFigure = 2,
    kUnitClass = 3,
    kUnitVolume = 4,
    kUnitThrow = 5,
    kUnitRated = 6,
    kUnitWeight = 7,
    kUnitPicture = 12,
    kUnitPosition = 13
};

// The controls of the window `VentZeig` by their names. Places and sizes are in twips.
struct VentZeigControls {
    VentZeigControls();
    void ListControls(Form& form);

    // The list of series.
    Grid KatalogSpread{"KatalogSpread"};
    ListBox HerstellList{"HerstellList"};
    TextField search{"search"};
    Label searchLabel{"searchLabel"};
    Button GoButt{"GoButt"};
    CheckBox Check1{"Check1"};
    Panel AssitPN{"AssitPN"};
    Panel Picture2{"Picture2", ControlKind::Picture};  // preview beside the row under the pointer
    Panel Picture3{"Picture3"}, Shape9{"Shape9"};      // progress: its frame, and how far it is
    Label StatusLab{"StatusLab"};  // what the user has to know: a missing file, nothing found

    // The units of the open series.
    Panel pn77{"pn77"};
    Panel SerienPN{"SerienPN"};
    Grid Venttab{"Venttab"};
    TextField venttabText{"venttabText"};
    Button Command3D2{"Command3D2"}, Command3D3{"Command3D3"}, VentUeberNehm{"VentUeberNehm"};

    // The chosen unit.
    Label PN19{"PN19"}, ventlabel{"ventlabel"};
    Panel Picture1{"Picture1", ControlKind::Picture}, Picture5{"Picture5"};
    Label R_Label{"R_Label"};
    Label Label13{"Label13"}, Label3{"Label3"};    // to
    Label Label15{"Label15"}, Label14{"Label14"};  // tc
    Label Label1{"Label1"};
    Label Label29{"Label29"}, Label25{"Label25"}, Label30{"Label30"}, Label26{"Label26"};
    Label Label24{"Label24"}, Label23{"Label23"}, Label39{"Label39"}, relFeuchte{"relFeuchte"};
    Label Label31{"Label31"}, Label27{"Label27"}, Label32{"Label32"}, Label28{"Label28"};
    Label Label6{"Label6"}, GewLab{"GewLab"}, Label41{"Label41"}, RVol{"RVol"};
    Label Label37{"Label37"}, Label37_l{"Label37_l"};
    Label volStrLab{"volStrLab"}, wurfWLab{"wurfWLab"};
    Label FlLab{"FlLab"}, LamALab{"LamALab"}, DefrLab{"DefrLab"};

    // Frequency and energy.
    ScrollBar HScroll1{"HScroll1", 1, 99};
    TextField KPFreq{"KPFreq"};
    Label KPFreqLabel{"KPFreqLabel"};
    CheckBox EcoCheck{"EcoCheck"};
    Label Label38{"Label38"}, BetrKo{"BetrKo"}, Label34{"Label34"};
    Label Label19{"Label19"}, LeistZ{"LeistZ"};
    Label Label46{"Label46"}, CO2consum{"CO2consum"}, Label33{"Label33"};

    // Leaving, and other windows.
    Button UeberNehm{"UeberNehm"}, VentSpeich{"VentSpeich"}, VentEinstell{"VentEinstell"};
    Button Abbrech{"Abbrech"}, Klein{"Klein"}, Gross{"Gross"};
    Button druckbutt{"druckbutt"}, viewbutt{"viewbutt"};
};

}  // namespace zandrell
