#include "shell/main_controls.h"

namespace zandrell {

MainControls::MainControls() {
    ZOOMMIN.visible = false;
    Shape3.visible = false;
}

std::array<ToolButton*, 8> MainControls::ToolButtons() {
    return {&optButt, &ZAButt, &MischButt, &BearButt, &AnlageButt, &druckbutt, &PSButt, &PLbutt};
}

void MainControls::ListControls(Form& form) {
    form.Add({&FunktButtPn});
    for (ToolButton* button : ToolButtons()) form.Add({&button->picture, &button->caption});
    form.Add({&ZOOMMIN, &mPributt, &mPributt_2, &Command3D7, &Command3D2});
    form.Add({&Label24, &Label25, &Proj_T, &Schr_T});
    form.Add({&Label7, &Label19, &Shape3});
    form.Add(
        {&proj, &NeuPro, &ProLad, &ProSpeich, &ProSpeichU, &PrinterSetup, &PrintPreview, &Ende});
    form.Add({&Recent, &PrevState, &Undo, &Redo});
    for (MenuEntry& entry : recent_entries) form.Add({&entry});
    form.Add({&Opt, &qveinst, &wrgEinst, &KompAusw});
    form.Add({&Bearb, &ZustAe, &Misch, &Kleis, &AnlageS, &Leist_Ber, &Heiz_start, &Kuehl_start,
              &Humid_W_Start, &Humid_D_Start, &StateList, &kopieren, &Hsich, &Hlad});
    form.Add({&HelpMenu, &HelpHere, &HelpSoftware, &HelpChart, &HelpAirTreatment, &HelpProject,
              &HelpValues, &HelpSettings});
}

}  // namespace zandrell
