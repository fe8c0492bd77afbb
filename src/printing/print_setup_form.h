#pragma once

#include <functional>
#include <string>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "forms/choice_list.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"
#include "printing/print_device.h"

namespace zandrell {

// The window `DruckEInstell`, which comes before every print-out: date style, paper, logo, font and
// printer. What is chosen holds for the run. The suite's other modules use it too; zoom, line width
// and frame are live only under their module tag.
class PrintSetupForm : public ModalForm {
  public:
    // All of it outlives the form. `Picture_p` is the hidden picture of the main window that the
    // page header draws.
    PrintSetupForm(const DataFiles& files, SharedValues& shared, const Captions& captions,
                   UserInterface& user, Panel& Picture_p);

    ComboBox Size_combo{"Size_combo"}, Date_Combo{"Date_Combo"}, Font_S{"Font_S"}, Combo1{"Combo1"};
    OptionButton Option1{"Option1", true}, Option2{"Option2"};  // portrait, landscape
    CheckBox StatesBox{"StatesBox"};  // a second page with the table of states
    Panel Landscape{"Landscape", ControlKind::Picture}, Picture1{"Picture1", ControlKind::Picture},
        iceC{"iceC", ControlKind::Picture};
    TextField Text1{"Text1"};  // path of the logo
    Button Command1{"Command1"};
    ListBox fontlist{"fontlist"}, fontlist2{"fontlist2"};
    Label FonttestPN{"FonttestPN"}, font_label{"fontlistLabel"};
    ScrollBar Slider1{"Slider1", 10, 200}, Slider2{"Slider2", 1, 20};
    Label Label3{"Label3"}, Label4{"Label4"}, Label5{"Label5"}, Label6{"Label6"}, Line7{"Line7"};
    Panel Frame3d1{"Frame3d1"}, Panel3D1{"Panel3D1"};
    Label Pwidth{"Pwidth"}, Pheight{"Pheight"}, Swidth{"Swidth"}, Sheight{"Sheight"};
    Button Command3D1{"Command3D1"};  // hides the printer information
    Button Okbutt{"Okbutt", "okcap.bmp"}, Okbutt_l{"Okbutt_l"};
    Button Abbutt{"Abbutt", "abcap.bmp"}, Abbutt_l{"Abbutt_l"};
    Button drbutt{"drbutt", "prcap.bmp"}, drbutt_l{"drbutt_l"};
    Button prevButt{"prevButt", "zoomcap.bmp"}, prevButt_l{"prevButt_l"};
    Button viewButt{"viewButt", "mprcap.bmp"};  // the page as it would print with what is chosen

    std::string sample_font;  // of FonttestPN
    int sample_size = 10;     // points
    int line_thickness = 1;   // of Line7, the sample of the line width
    PrintDevice* device = nullptr;

    // Opens the suite's project dialog with `DialogMode` 21, which may write `LogoFile`.
    std::function<void()> choose_logo;
    // Shows the page; the shared values hold what is chosen meanwhile.
    std::function<void()> show_preview;

    // Shows the window. The answer is `DialogMode`: 0 cancelled, else confirmed.
    int ShowPrintSetup();
    // Shows `LogoFile`, and hands it to the page header; one that is no picture leaves the former.
    void LoadLogo();
    // The system's printer dialog. 0 when it was cancelled, else 1.
    int printCMsetup();

  private:
    void ListControls();
    void BindActs();
    void Load();
    void Activate();
    void FillDates();
    void SetCaptions();
    void Printer_I();
    void ChooseFont(const std::string& name);
    void TakeSampleSize();
    void TakeTypedLogo();
    void PickLogo();
    void ShowPrinterInformation(bool shown);
    void ShowOrientation(bool landscape);
    void Preview();
    void TakePaper();
    std::string ChosenDateCode() const;
    void Ende_druck();
    void Cancel();
    bool ForOtherModule() const;

    const DataFiles& files_;
    SharedValues& shared_;
    const Captions& captions_;
    UserInterface& user_;
    Panel& Picture_p_;
    bool loaded_ = false;
};

}  // namespace zandrell
