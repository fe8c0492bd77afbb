#include "selection/data_sheet.h"

#include <array>
#include <cmath>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/unit_texts.h"
#include "selection/sheet_writer.h"

namespace zandrell {
namespace {

constexpr double kZeroCelsius = 273.15;  // K
constexpr double kPsiPerBar = 14.504;

std::string Cut1(double value) { return NumberText(Cut(value, 10)); }
std::string Cut2(double value) { return NumberText(Cut(value, 100)); }
std::string Cut3(double value) { return NumberText(Cut(value, 1000)); }

std::string InSlashBrackets(std::string_view unit) { return "/[" + std::string(unit) + "] : "; }

std::string PressureText(double bar) { return Cut2(bar) + "/" + Cut1(bar * kPsiPerBar); }

// The words of a line of the project, in the order of the language.
std::string ProjectWords(const std::string& first, const std::string& second,
                         const std::string& tag) {
    if (tag == "FRA") return second + " du " + first;
    if (tag == "ITA" || tag == "ESP") return second + " del " + first;
    return first + " " + second;
}

class DataSheet {
  public:
    DataSheet(const SelectionContext& context, const VentZeigControls& controls)
        : words_(context.captions),
          shared_(context.shared),
          selection_(context.selection),
          controls_(controls),
          family_(FamilyOf(context.selection.inputs.KatalogArt)) {}

    void WriteHead(const std::string& date);
    void WriteDuty();
    void WriteEvaporatingSide();
    void WriteCondensingSide();
    void WriteUnit();
    void WriteSurfaces();
    void WriteSketch();
    void WriteCapacity();
    void WriteEnd();

    const std::string& Text() const { return sheet_.Text(); }

  private:
    bool HasClass() const {
        return family_ == KatalogFamilie::AirCoolers || family_ == KatalogFamilie::Condensers;
    }
    // A figure with its label, and an empty line.
    void Figure(const std::string& label, const std::string& value);
    void WritePair(const Label& label, const Label& value);
    void WriteFlow(const Label& label);

    const Captions& words_;
    const SharedValues& shared_;
    const SelectionShared& selection_;
    const VentZeigControls& controls_;
    KatalogFamilie family_;
    SheetWriter sheet_;
    double power_ = 0;  // electric figure of the chosen unit
};

void DataSheet::WriteHead(const std::string& date) {
    const auto line = [this](const std::string& label, const std::string& value) {
        sheet_.LineWithBlank(label + " : " + std::string(kValueMark) + value);
    };
    sheet_.Rule();
    line(words_[Caption::Project], shared_.ProjectTitle);
    line(words_[Caption::Remark], shared_.ProjectRemark);
    line(ProjectWords(words_[Caption::Project], words_[Caption::FileName], shared_.LanguageTag),
         shared_.ProjectFileName);
    line(words_[Caption::Date], date);
    line(words_[Caption::EditedBy], shared_.UserCompany);
    line(words_[Caption::Refrigerant],
         selection_.inputs.KaelteMittel + " / GWP = " + NumberText(selection_.GWP));
    sheet_.Rule();
}

void DataSheet::WriteDuty() {
    const std::string& duty = controls_.PN19.text;
    const auto colon = duty.find(':');
    const bool split = colon != std::string::npos;
    std::string title = duty.substr(0, colon);
    if (!title.empty() && split) title.pop_back();
    const std::string value = split && duty.size() > colon + 2 ? duty.substr(colon + 2) : "";
    sheet_.Empty();
    sheet_.Pair(words_[Caption::Component] + " " + title, " : §$&", value);
    sheet_.Empty();
    sheet_.Empty();
    sheet_.Pair(words_[Caption::SelectedUnit] + " : ", kValueMark, controls_.ventlabel.text);
    sheet_.Empty();
    sheet_.Empty();
    const double capacity = ParsedNumber(controls_.Label1.text);
    sheet_.LineWithBlank(words_[Caption::RefrigeratingCapacity] + "  " + InSlashBrackets(UnitKW) +
                         std::string(kValueMark) +
                         NumberText(std::floor(100 * capacity + 0.005) / 100));
}

void DataSheet::Figure(const std::string& label, const std::string& value) {
    sheet_.Pair(label, kValueMark, value);
}

void DataSheet::WriteEvaporatingSide() {
    const SelectionInputs& inputs = selection_.inputs;
    const EconomizerState& eco = selection_.eco;
    sheet_.Rule();
    sheet_.LineWithBlank(std::string(kSectionMark) + words_[Caption::Evaporation] + " :");
    sheet_.Empty();
    const auto figure = [this](const std::string& label, const std::string& value) {
        Figure(label, value);
        sheet_.Empty();
    };
    figure(words_[Caption::Temperature] + "  to " + InSlashBrackets(UnitDegC),
           Cut1(selection_.T0 - kZeroCelsius));
    figure(words_[Caption::Pressure] + "  po /[bar a/psi a] : ", PressureText(inputs.DruckPo));
    const double difference = (eco.HDampf - eco.HFluessig) + eco.CpDampf * eco.Ueberhitzung +
                              eco.Unterkuehlung * eco.CpFluessig;
    figure(words_[Caption::Enthalpy] + " " + words_[Caption::Cooler] + "   dho " +
               InSlashBrackets(UnitKJkg),
           Cut2(difference));
    figure(words_[Caption::MassFlow] + "   mp " + InSlashBrackets(UnitKgs),
           Cut3(inputs.MassenStrom));
    figure(words_[Caption::VapourFraction] + " " + words_[Caption::Cooler] + "  xd /[--] : ",
           Cut3(selection_.xd));
}

void DataSheet::WriteCondensingSide() {
    const SelectionInputs& inputs = selection_.inputs;
    sheet_.LineWithBlank(std::string(kSectionMark) + words_[Caption::Condensation] + "      :");
    sheet_.Empty();
    Figure(words_[Caption::Temperature] + "  tc " + InSlashBrackets(UnitDegC),
           NumberText(std::floor(selection_.Tc - kZeroCelsius)));
    Figure(words_[Caption::Pressure] + "  pc /[bar a/psi a] : ", PressureText(inputs.DruckPc));
    const double ratio = inputs.DruckPc / inputs.DruckPo;
    if (std::isfinite(ratio)) {
        sheet_.Pair(words_[Caption::Pressure] + " " + words_[Caption::Condensation] + " / " +
                        words_[Caption::Evaporation] + "    pc/po /[--] :",
                    kValueMark, Cut2(ratio));
    }
    Figure(words_[Caption::Subcooling] + "  tü " + InSlashBrackets(UnitK),
           NumberText(selection_.eco.Unterkuehlung));
    Figure(words_[Caption::Superheat] + "  toh " + InSlashBrackets(UnitK),
           NumberText(selection_.eco.Ueberhitzung));
    Figure(words_[Caption::Temperature] + " " + words_[Caption::SuctionGas] + "  tSL " +
               InSlashBrackets(UnitDegC),
           NumberText(std::floor(selection_.tSL)));
    sheet_.Rule();
    sheet_.Empty();
    sheet_.Rule();
    sheet_.Line(kPictureMark);
}

// The label decides whether both are there.
void DataSheet::WritePair(const Label& label, const Label& value) {
    if (label.visible) sheet_.Pair(label.text, "§$& ", value.text);
}

void DataSheet::WriteUnit() {
    const VentZeigControls& c = controls_;
    WritePair(c.Label29, c.Label25);
    WritePair(c.Label30, c.Label26);
    WritePair(c.Label24, c.Label23);
    WritePair(c.Label39, c.relFeuchte);
    if (HasClass()) {
        sheet_.Empty();
        sheet_.LineWithBlank(words_[Caption::EfficiencyClass] + " : " + std::string(kValueMark) +
                             c.R_Label.text);
        sheet_.Empty();
    }
    WritePair(c.Label31, c.Label27);
    WritePair(c.Label32, c.Label28);
    if (c.Label32.visible) power_ = ParsedNumber(c.Label28.text);
    WritePair(c.Label6, c.GewLab);
    WritePair(c.Label41, c.RVol);
}

void DataSheet::WriteFlow(const Label& label) {
    const auto [name, value] = SplitAt(label.text, ":");
    sheet_.Pair(name, ": §$& ", value);
}

void DataSheet::WriteSurfaces() {
    const VentZeigControls& c = controls_;
    if (c.volStrLab.visible) {
        WriteFlow(c.volStrLab);
        WriteFlow(c.wurfWLab);
    }
    if (c.FlLab.visible) {
        const auto [first, rest] = SplitAt(c.FlLab.text, CrLf);
        const auto [second, third] = SplitAt(rest, CrLf);
        sheet_.Pair(first, "§$& ", second);
        sheet_.Pair("", "§$& ", third);
        const auto [name, value] = SplitAt(c.LamALab.text, CrLf);
        sheet_.Pair(name, "§$& ", value);
    }
    if (HasClass()) {
        sheet_.Line(std::string(kClassLine) + std::string(kClassMark) + " " + c.R_Label.text);
    }
    if (c.DefrLab.visible) {
        const auto [name, value] = SplitAt(c.DefrLab.text, CrLf);
        sheet_.Pair(name, "§$& ", value);
    }
}

// The temperatures over an air cooler: the air enters at the right and leaves at the left, above
// the line of the refrigerant. The points and blanks place the words in the sketch.
void DataSheet::WriteSketch() {
    if (family_ != KatalogFamilie::AirCoolers) return;
    const double to = selection_.T0 - kZeroCelsius, difference = selection_.dtM;
    const std::string deg_c(UnitDegC), kelvin(UnitK);
    sheet_.Rule();
    sheet_.Line(words_[Caption::Temperature] + " " + words_[Caption::OfTheRoom] +
                " :§$&tr = " + Cut1(selection_.T0 + difference - kZeroCelsius) + deg_c);
    sheet_.LineWithBlank(kSketchMark);
    sheet_.Line(".                                tL2 = " +
                Cut1(selection_.T0 + 0.75 * difference - kZeroCelsius) + deg_c +
                "§$&.                                                     tL1 = " +
                Cut1(selection_.T0 + 1.25 * difference - kZeroCelsius) + deg_c);
    sheet_.Line("§$&.                                                       DT1 = " +
                Cut1(1.25 * difference) + kelvin);
    sheet_.Line(".                                 dtM = " + Cut1(difference) + kelvin +
                "§$&to = " + Cut1(to) + deg_c);
}

void DataSheet::WriteCapacity() {
    constexpr std::size_t kShortLabel = 50;  // characters
    if (!controls_.Label37.visible) return;
    sheet_.Rule();
    const std::string& text = controls_.Label37_l.text;
    std::string label = text.substr(0, text.find(':'));
    if (!label.empty() && label.size() < text.size()) label.pop_back();
    const std::string value = SplitAt(text, ":").second;
    const std::string number = value.substr(0, value.size() < 2 ? 0 : value.size() - 2);
    const double capacity = ParsedNumber(number);
    std::size_t characters = 0;
    for (const char c : label) characters += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    if (characters < kShortLabel) {
        sheet_.Pair(Trimmed(label), "§$& ", value);
    } else {
        sheet_.Pair(Trimmed(label) + "  " + InSlashBrackets(UnitKW), kValueMark,
                    NumberText(capacity));
    }
    if (family_ != KatalogFamilie::Compressors) return;
    // Without a power there is no ratio.
    double ratio = 0;
    AssignFinite(ratio, std::floor(100 * (capacity / power_ + 0.005)) / 100);
    sheet_.Line("EER = " + NumberText(ratio));
}

void DataSheet::WriteEnd() {
    constexpr int kRoomBelowCondensers = 4;  // lines
    if (family_ == KatalogFamilie::Condensers) {
        for (int i = 0; i < kRoomBelowCondensers; ++i) sheet_.LineWithBlank("");
    }
    sheet_.Rule();
}

}  // namespace

std::string DataSheetText(const SelectionContext& context, const VentZeigControls& controls,
                          const std::string& date) {
    DataSheet sheet(context, controls);
    sheet.WriteHead(date);
    sheet.WriteDuty();
    sheet.WriteEvaporatingSide();
    sheet.WriteCondensingSide();
    sheet.WriteUnit();
    sheet.WriteSurfaces();
    sheet.WriteSketch();
    sheet.WriteCapacity();
    sheet.WriteEnd();
    return sheet.Text();
}

}  // namespace zandrell
