#pragma once

#include <array>

#include "forms/control.h"
#include "forms/form.h"

namespace zandrell {

// A tool button: a picture and the caption that lies on it. A click on either does the same.
struct ToolButton {
    Button picture;
    Button caption;
};

// The controls of the main window beside its chart and its two floating panels.
struct MainControls {
    Panel FunktButtPn{"FunktButtPn"};
    ToolButton optButt{Button{"optButt", "STcap.bmp"}, Button{"optButt_l"}};
    ToolButton ZAButt{Button{"ZAButt", "ZAcap.bmp"}, Button{"ZAButt_l"}};
    ToolButton MischButt{Button{"MischButt", "ZAMcap.bmp"}, Button{"MischButt_l"}};
    ToolButton BearButt{Button{"BearButt", "ZALcap.bmp"}, Button{"BearButt_l"}};
    ToolButton AnlageButt{Button{"AnlageButt", "KLcap.bmp"}, Button{"AnlageButt_l"}};
    ToolButton druckbutt{Button{"druckbutt", "Prcap.bmp"}, Button{"druckbutt_l"}};
    ToolButton PSButt{Button{"PSButt", "PScap.bmp"}, Button{"PSButt_l"}};
    ToolButton PLbutt{Button{"PLbutt", "Plcap.bmp"}, Button{"PLbutt_l"}};
    Button ZOOMMIN{"ZOOMMIN", "Zoomcap.bmp"};
    Button mPributt{"mPributt", "mprcap.bmp"}, mPributt_2{"mPributt_2", "mprcap.bmp"};
    Button Command3D7{"Command3D7", "OKcap.bmp"}, Command3D2{"Command3D2", "abcap.bmp"};

    // The project's two texts, below the tool buttons.
    Label Label24{"Label24"}, Label25{"Label25"};
    TextField Proj_T{"Proj_T"}, Schr_T{"Schr_T"};
    // Heading of the read-out panel (always white) and the vendor line, never bold.
    Label Label7{"Label7"}, Label19{"Label19"};
    Panel Shape3{"Shape3"};  // outline of a panel that is being dragged

    MenuEntry proj{"proj"}, NeuPro{"NeuPro"}, ProLad{"ProLad"}, ProSpeich{"ProSpeich"},
        ProSpeichU{"ProSpeichU"}, PrinterSetup{"PrinterSetup"}, PrintPreview{"PrintPreview"},
        Ende{"Ende"};
    // Beside the suite's own entries.
    MenuEntry Recent{"Recent"}, PrevState{"PrevState"}, Undo{"Undo"}, Redo{"Redo"};
    std::array<MenuEntry, 8> recent_entries = {
        MenuEntry("Recent1"), MenuEntry("Recent2"), MenuEntry("Recent3"), MenuEntry("Recent4"),
        MenuEntry("Recent5"), MenuEntry("Recent6"), MenuEntry("Recent7"), MenuEntry("Recent8")};
    MenuEntry Opt{"Opt"}, qveinst{"qveinst"}, wrgEinst{"wrgEinst"}, KompAusw{"KompAusw"};
    MenuEntry Bearb{"Bearb"}, ZustAe{"ZustAe"}, Misch{"Misch"}, Kleis{"Kleis"}, AnlageS{"AnlageS"},
        Leist_Ber{"Leist_Ber"}, Heiz_start{"Heiz_start"}, Kuehl_start{"Kuehl_start"},
        Humid_W_Start{"Humid_W_Start"}, Humid_D_Start{"Humid_D_Start"}, StateList{"StateList"},
        kopieren{"kopieren"}, Hsich{"Hsich"}, Hlad{"Hlad"};
    MenuEntry HelpMenu{"HelpMenu"}, HelpHere{"HelpHere"}, HelpSoftware{"HelpSoftware"},
        HelpChart{"HelpChart"}, HelpAirTreatment{"HelpAirTreatment"}, HelpProject{"HelpProject"},
        HelpValues{"HelpValues"}, HelpSettings{"HelpSettings"};

    MainControls();
    std::array<ToolButton*, 8> ToolButtons();
    void ListControls(Form& form);
};

// Which entries stand in which menu; an entry with entries of its own opens a menu.
struct MenuBranch {
    std::string_view entry;
    std::string_view parent;  // empty: in the menu bar
};
inline constexpr std::array<MenuBranch, 46> kMenuTree = {{
    {"proj", ""},
    {"NeuPro", "proj"},
    {"ProLad", "proj"},
    {"Recent", "proj"},
    {"Recent1", "Recent"},
    {"Recent2", "Recent"},
    {"Recent3", "Recent"},
    {"Recent4", "Recent"},
    {"Recent5", "Recent"},
    {"Recent6", "Recent"},
    {"Recent7", "Recent"},
    {"Recent8", "Recent"},
    {"ProSpeich", "proj"},
    {"ProSpeichU", "proj"},
    {"PrevState", "proj"},
    {"PrinterSetup", "proj"},
    {"PrintPreview", "proj"},
    {"Ende", "proj"},
    {"Opt", ""},
    {"qveinst", "Opt"},
    {"wrgEinst", "Opt"},
    {"KompAusw", "Opt"},
    {"Bearb", ""},
    {"Undo", "Bearb"},
    {"Redo", "Bearb"},
    {"ZustAe", "Bearb"},
    {"Misch", "Bearb"},
    {"Kleis", "Bearb"},
    {"AnlageS", "Bearb"},
    {"Leist_Ber", "Bearb"},
    {"Heiz_start", "Leist_Ber"},
    {"Kuehl_start", "Leist_Ber"},
    {"Humid_W_Start", "Leist_Ber"},
    {"Humid_D_Start", "Leist_Ber"},
    {"StateList", "Bearb"},
    {"kopieren", "Bearb"},
    {"Hsich", ""},
    {"Hlad", ""},
    {"HelpMenu", ""},
    {"HelpHere", "HelpMenu"},
    {"HelpSoftware", "HelpMenu"},
    {"HelpChart", "HelpMenu"},
    {"HelpAirTreatment", "HelpMenu"},
    {"HelpProject", "HelpMenu"},
    {"HelpValues", "HelpMenu"},
    {"HelpSettings", "HelpMenu"},
}};

}  // namespace zandrell
