#include "printing/print_setup_form.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "printing/date_text.h"
#include "printing/logo.h"

namespace zandrell {
namespace {

// The module of the suite under whose tag fonts, zoom and frame are live.
constexpr std::string_view kOtherModule = "TARN";
constexpr int kCancelled = 0, kConfirmed = 1, kConfirmedLandscape = 2, kPickingLogo = 21;
constexpr int kFullZoom = 100;                            // per cent
constexpr int kSmallestSample = 1, kLargestSample = 200;  // points

}  // namespace

PrintSetupForm::PrintSetupForm(const DataFiles& files, SharedValues& shared,
                               const Captions& captions, UserInterface& user, Panel& Picture_p)
    : ModalForm("DruckEInstell"),
      files_(files),
      shared_(shared),
      captions_(captions),
      user_(user),
      Picture_p_(Picture_p) {
    cancel_control = Abbutt.name;
    default_control = Okbutt.name;
    Date_Combo.takes_any_text = true;
    ListControls();
    BindActs();
}

void PrintSetupForm::ListControls() {
    form.Add({&Size_combo, &Date_Combo, &Option1, &Option2, &StatesBox, &Landscape, &Text1,
              &Picture1, &Command1, &fontlist, &fontlist2, &Font_S, &FonttestPN, &font_label,
              &Slider1, &Slider2, &Line7, &Combo1});
    form.Add({&Label3, &Label4, &Label5, &Label6, &Frame3d1, &iceC});
    form.Add({&Panel3D1, &Pwidth, &Pheight, &Swidth, &Sheight, &Command3D1});
    form.Add({&Okbutt, &Okbutt_l, &Abbutt, &Abbutt_l, &drbutt, &drbutt_l, &prevButt, &prevButt_l,
              &viewButt});
}

void PrintSetupForm::BindActs() {
    const auto on_click = [this](const Button& button, const Button* caption,
                                 const ActTable::Handler& handler) {
        acts.Add(button.name, ActKind::Click, handler);
        if (caption != nullptr) acts.Add(caption->name, ActKind::Click, handler);
    };
    on_click(Okbutt, &Okbutt_l, [this] { Ende_druck(); });
    on_click(Abbutt, &Abbutt_l, [this] { Cancel(); });
    on_click(drbutt, &drbutt_l, [this] { printCMsetup(); });
    on_click(prevButt, &prevButt_l, [this] { ShowPrinterInformation(true); });
    on_click(Command3D1, nullptr, [this] { ShowPrinterInformation(false); });
    on_click(Command1, nullptr, [this] { PickLogo(); });
    on_click(viewButt, nullptr, [this] { Preview(); });
    acts.Add(Text1.name, ActKind::Return, [this] { TakeTypedLogo(); });
    acts.Add(Option1.name, ActKind::Choose, [this] { ShowOrientation(false); });
    acts.Add(Option2.name, ActKind::Choose, [this] { ShowOrientation(true); });
    for (ListBox* list : {&fontlist, &fontlist2}) {
        acts.Add(list->name, ActKind::Select, [this, list] { ChooseFont(list->text); });
    }
    acts.Add(Font_S.name, ActKind::Select, [this] { TakeSampleSize(); });
    acts.Add(Font_S.name, ActKind::Change, [this] { TakeSampleSize(); });
    Slider1.on_change = [this] { Label4.text = NumberText(Slider1.Position()) + " %"; };
    Slider2.on_change = [this] { line_thickness = Slider2.Position(); };
}

bool PrintSetupForm::ForOtherModule() const { return shared_.ModuleTag == kOtherModule; }

int PrintSetupForm::ShowPrintSetup() {
    shared_.DialogMode = kCancelled;
    closed = false;
    Load();
    Activate();
    user_.ShowModal(*this);
    shared_.print_setup_signal = PrintSetupSignal::Closed;
    return shared_.DialogMode;
}

// Once a run: listing the fonts of a system takes a while.
void PrintSetupForm::Load() {
    if (loaded_) return;
    loaded_ = true;
    iceC.picture = "iceCube.bmp";
    Frame3d1.picture = shared_.SkinNumber >= 1 && shared_.SkinNumber <= 5 ? "ZD_Back01.jpg" : "";
    if (device != nullptr) (ForOtherModule() ? fontlist2 : fontlist).Fill(device->FontNames());
    Font_S.Fill({"3", "4", "5", "6", "7", "8", "10", "12", "14", "16", "18", "20"});
    Combo1.Fill({"2 = normal", "1 = maximized", "0 = none"});
    Combo1.Choose(0);
    Size_combo.Fill({"A4", "A3", "A2"});
    Font_S.Choose(TrimmedNumberText(sample_size));
    if (shared_.PaperSize.empty()) shared_.PaperSize = "A4";
    for (Control* control : std::initializer_list<Control*>{&fontlist2, &Slider1, &Label4, &Slider2,
                                                            &Line7, &Combo1}) {
        control->visible = ForOtherModule();
    }
    fontlist.visible = StatesBox.visible = !ForOtherModule();
}

void PrintSetupForm::Activate() {
    SetCaptions();
    // A size of another module's list is shown, and taken for A4 by the page.
    if (!Size_combo.Choose(shared_.PaperSize)) {
        Size_combo.index = -1;
        Size_combo.text = shared_.PaperSize;
    }
    ShowOrientation(shared_.PaperOrientation == 2);
    StatesBox.on = shared_.prints_states;
    FillDates();
    ShowPrinterInformation(false);
    LoadLogo();
    Printer_I();
}

// On each opening, so that a program that stands open over midnight offers the day of today.
void PrintSetupForm::FillDates() {
    const std::string runtime = RuntimeDate(shared_), &code = shared_.DateFormatCode;
    const std::string in_force = DateInStyle(runtime, code, 0);
    Date_Combo.Fill({in_force, runtime, DateInStyle(runtime, code, 2),
                     DateInStyle(runtime, code, 3), DateInStyle(runtime, code, 4)});
    Date_Combo.Choose(in_force);
}

void PrintSetupForm::SetCaptions() {
    title = shared_.AppTitle + " " + shared_.VersionText + " - " + captions_[Caption::Printer] +
            " " + captions_[Caption::Settings];
    Label3.text = "Logo Graphic: *.jpg,  Size  ~260 x 80 Pixel";
    Command1.text = captions_[Caption::Select];
    Command1.tool_tip = captions_[Caption::Select] + " : Logo Graphic *.jpg";
    Label5.text = captions_[Caption::PaperSize];
    Label6.text = captions_[Caption::Date];
    Option1.text = captions_[Caption::Portrait];
    Option2.text = captions_[Caption::Landscape];
    StatesBox.text = captions_[Caption::StateTable];
    font_label.text = captions_[Caption::Font];
    FonttestPN.text = "Aa Bb Cc 123 °C kJ/kg";
    Okbutt_l.text = Command3D1.text = "O.K.";
    Abbutt_l.text = captions_[Caption::Cancel];
    drbutt_l.text = captions_[Caption::Printer];
    prevButt_l.text = captions_[Caption::PrinterInformation];
    viewButt.text = captions_[Caption::PrintPreview];
}

// A font that the printer does not know leaves the former one.
void PrintSetupForm::Printer_I() {
    ListBox& list = ForOtherModule() ? fontlist2 : fontlist;
    if (list.Choose(shared_.PrintFontName)) sample_font = shared_.PrintFontName;
    Slider1.SetPosition(kFullZoom);
    Label4.text = NumberText(kFullZoom) + " %";
}

void PrintSetupForm::ChooseFont(const std::string& name) {
    if (name.empty()) return;
    shared_.PrintFontName = name;
    sample_font = name;
}

void PrintSetupForm::TakeSampleSize() {
    const auto size = RoundToInteger(ParsedNumber(Font_S.text));
    if (size && *size >= kSmallestSample && *size <= kLargestSample) sample_size = *size;
}

void PrintSetupForm::LoadLogo() {
    Text1.text = shared_.LogoFile;
    if (Trimmed(shared_.LogoFile).empty()) return;
    const auto path = files_.Resolve(shared_.LogoFile);
    if (!IsPictureFile(path)) return;
    Picture1.picture = Picture_p_.picture = path.string();
}

void PrintSetupForm::TakeTypedLogo() {
    if (Text1.text == shared_.LogoFile) return;
    shared_.LogoFile = Text1.text;
    LoadLogo();
}

void PrintSetupForm::PickLogo() {
    shared_.DialogMode = kPickingLogo;
    if (choose_logo) choose_logo();
    shared_.DialogMode = kCancelled;
    LoadLogo();
}

void PrintSetupForm::ShowOrientation(bool landscape) {
    Choose(landscape ? Option2 : Option1, landscape ? Option1 : Option2);
    Landscape.visible = landscape;
}

void PrintSetupForm::ShowPrinterInformation(bool shown) {
    for (Control* control : std::initializer_list<Control*>{&Panel3D1, &Pwidth, &Pheight, &Swidth,
                                                            &Sheight, &Command3D1}) {
        control->visible = shown;
    }
    if (!shown || device == nullptr) return;
    const DeviceSize paper = device->PrintableSize(Size_combo.text, Option2.on);
    const DeviceSize screen = device->ScreenSize();
    Pwidth.text = "Printer Width = " + NumberText(paper.width) + " mm";
    Pheight.text = "Printer Height = " + NumberText(paper.height) + " mm";
    Swidth.text = "Screen Width = " + NumberText(screen.width) + " px";
    Sheight.text = "Screen Height = " + NumberText(screen.height) + " px";
}

// The page as it would print if the choices were confirmed; they are not.
void PrintSetupForm::Preview() {
    const std::string size = shared_.PaperSize, code = shared_.DateFormatCode;
    const int orientation = shared_.PaperOrientation;
    const bool states = shared_.prints_states;
    TakeTypedLogo();
    shared_.DateFormatCode = ChosenDateCode();
    TakePaper();
    if (show_preview) show_preview();
    shared_.PaperSize = size;
    shared_.PaperOrientation = orientation;
    shared_.prints_states = states;
    shared_.DateFormatCode = code;
}

// The text of style 0 is not compared: it is one of the others, or the program's own D.M.Y.
std::string PrintSetupForm::ChosenDateCode() const {
    const std::string runtime = RuntimeDate(shared_), chosen = Trimmed(Date_Combo.text);
    for (const int style : {4, 3, 2}) {
        if (chosen == DateInStyle(runtime, shared_.DateFormatCode, style)) {
            return TrimmedNumberText(style);
        }
    }
    return chosen == runtime ? "1" : "";
}

void PrintSetupForm::TakePaper() {
    shared_.PaperOrientation = Option2.on ? 2 : 1;
    shared_.prints_states = StatesBox.on;
    if (std::find(Size_combo.items.begin(), Size_combo.items.end(), Size_combo.text) !=
        Size_combo.items.end()) {
        shared_.PaperSize = Size_combo.text;
    }
}

void PrintSetupForm::Ende_druck() {
    shared_.DateFormatCode = ChosenDateCode();
    closed = true;
    if (printCMsetup() == 0) return;
    TakeTypedLogo();
    TakePaper();
    shared_.DialogMode = ForOtherModule() && Option2.on ? kConfirmedLandscape : kConfirmed;
}

void PrintSetupForm::Cancel() {
    shared_.DialogMode = kCancelled;
    closed = true;
}

int PrintSetupForm::printCMsetup() {
    const bool chosen =
        user_.ChoosePrinter(shared_.AppTitle + " " + shared_.VersionText + " - " +
                            captions_[Caption::Printer] + " " + captions_[Caption::Settings]);
    return chosen ? 1 : 0;
}

}  // namespace zandrell
