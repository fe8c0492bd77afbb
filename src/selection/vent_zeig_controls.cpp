#include "selection/vent_zeig_controls.h"

#include "forms/form.h"

namespace zandrell {
namespace {

constexpr int kGridGrey = 14737632;  // E0E0E0, a colour value and no palette number

}  // namespace

VentZeigControls::VentZeigControls() {
    pn77.visible = venttabText.visible = AssitPN.visible = Picture2.visible = false;
    pn77.top = 600;
    KatalogSpread.background = kGridGrey;
    Picture2.left = 7770;
    Picture2.height = 1800;
    Picture3.width = 3000;
    Picture3.height = Shape9.height = 150;
    Klein.text = "<<";
    Gross.text = ">>";
    Label19.text = "EER/COP ca. :";
    Label33.text = "t/a";
}

void VentZeigControls::ListControls(Form& form) {
    form.Add({&KatalogSpread, &HerstellList, &search, &searchLabel, &GoButt, &Check1, &AssitPN,
              &Picture2, &Picture3, &Shape9, &StatusLab});
    form.Add({&pn77, &SerienPN, &Venttab, &venttabText, &Command3D2, &Command3D3, &VentUeberNehm});
    form.Add({&PN19, &ventlabel, &Picture1, &Picture5, &R_Label, &Label13, &Label3, &Label15,
              &Label14, &Label1});
    form.Add({&Label29, &Label25, &Label30, &Label26, &Label24, &Label23, &Label39, &relFeuchte,
              &Label31, &Label27, &Label32, &Label28, &Label6, &GewLab, &Label41, &RVol});
    form.Add({&Label37, &Label37_l, &volStrLab, &wurfWLab, &FlLab, &LamALab, &DefrLab});
    form.Add({&HScroll1, &KPFreq, &KPFreqLabel, &EcoCheck, &Label38, &BetrKo, &Label34, &Label19,
              &LeistZ, &Label46, &CO2consum, &Label33});
    form.Add(
        {&UeberNehm, &VentSpeich, &VentEinstell, &Abbrech, &Klein, &Gross, &druckbutt, &viewbutt});
}

}  // namespace zandrell
