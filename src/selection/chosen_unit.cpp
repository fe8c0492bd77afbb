#include "selection/chosen_unit.h"

#include <cmath>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

std::string InBrackets(std::string_view unit) { return " /[" + std::string(unit) + "] :"; }

std::string Cut2(double value) { return NumberText(Cut(value, 100)); }

class UnitLabels {
  public:
    UnitLabels(const SelectionDuty& duty, const SelectionContext& context,
               VentZeigControls& controls)
        : words_(context.captions),
          selection_(context.selection),
          c_(controls),
          family_(FamilyOf(duty.KatalogArt)),
          duty_(duty) {}

    void ShowDuty();
    void ShowUnit(const ChosenUnit& unit);
    void Clear();

  private:
    bool Is(KatalogFamilie family) const { return family_ == family; }
    bool HasCapacity() const {
        return family_ != KatalogFamilie::RegulatingComponents &&
               family_ != KatalogFamilie::LineComponents && family_ != KatalogFamilie::Unknown;
    }
    Caption CapacityWord() const {
        return Is(KatalogFamilie::Condensers) ? Caption::HeatRejection
                                              : Caption::RefrigeratingCapacity;
    }
    std::string DutyText() const;
    void ShowPairs();
    static void SetVisible(bool visible, std::initializer_list<Label*> labels) {
        for (Label* label : labels) label->visible = visible;
    }

    const Captions& words_;
    SelectionShared& selection_;
    VentZeigControls& c_;
    KatalogFamilie family_;
    const SelectionDuty& duty_;
};

std::string UnitLabels::DutyText() const {
    if (Is(KatalogFamilie::Condensers)) {
        return words_[Caption::HeatRejection] + " : " +
               TrimmedNumberText(Cut(selection_.inputs.KatBezug, 100)) + " kW";
    }
    if (HasCapacity()) {
        const double load = Is(KatalogFamilie::AirCoolers) ? duty_.added_load : 0;
        return words_[Caption::RefrigeratingCapacity] + " : " +
               TrimmedNumberText(Cut(duty_.capacity + load, 100)) + " kW";
    }
    return words_[Caption::MassFlow] + " : " +
           TrimmedNumberText(Cut(selection_.inputs.MassenStrom, 10000)) + " kg/s";
}

void UnitLabels::ShowPairs() {
    const bool compressor = Is(KatalogFamilie::Compressors);
    const bool cooler = Is(KatalogFamilie::AirCoolers);
    const bool condenser = Is(KatalogFamilie::Condensers);
    SetVisible(compressor,
               {&c_.Label29, &c_.Label25, &c_.Label30, &c_.Label26, &c_.Label31, &c_.Label27});
    SetVisible(compressor || cooler || condenser, {&c_.Label32, &c_.Label28});
    SetVisible(!compressor && !cooler && HasCapacity() ? condenser : !HasCapacity(),
               {&c_.Label24, &c_.Label23});
    SetVisible(cooler, {&c_.volStrLab, &c_.wurfWLab, &c_.FlLab, &c_.LamALab});
    SetVisible(false, {&c_.FlLab, &c_.LamALab, &c_.DefrLab, &c_.Label39, &c_.relFeuchte,
                       &c_.Label41, &c_.RVol});
    SetVisible(HasCapacity(), {&c_.Label37, &c_.Label37_l});
    c_.HScroll1.enabled = c_.KPFreq.enabled = compressor;
}

void UnitLabels::ShowDuty() {
    c_.PN19.text = DutyText();
    c_.Label3.text = NumberText(Cut(duty_.evaporating, 10)) + " " + std::string(UnitDegC);
    c_.Label14.text = NumberText(Cut(duty_.condensing, 10)) + " " + std::string(UnitDegC);
    c_.Label30.text = words_[Caption::RequiredVolumeFlow] + InBrackets(UnitM3h);
    c_.Label31.text = words_[Caption::RequiredPower] + InBrackets(UnitKW);
    c_.Label32.text = words_[Caption::PowerInput] + InBrackets(UnitKW);
    c_.Label24.text = HasCapacity() ? words_[Caption::VolumeFlow] + InBrackets(UnitM3h)
                                    : words_[Caption::PressureDrop] + InBrackets(UnitMbar);
    c_.Label37.text = words_[CapacityWord()];
    c_.Label6.text = words_[Caption::Weight] + InBrackets(UnitKg);
    c_.Label26.text = Cut2(selection_.inputs.Label26);
    c_.Label27.text = Cut2(selection_.inputs.Label27);
    ShowPairs();
}

void UnitLabels::Clear() {
    for (Label* label : {&c_.ventlabel, &c_.Label1, &c_.Label25, &c_.Label28, &c_.Label23,
                         &c_.GewLab, &c_.volStrLab, &c_.wurfWLab, &c_.Label37_l, &c_.R_Label,
                         &c_.BetrKo, &c_.LeistZ, &c_.CO2consum}) {
        label->text.clear();
        label->background.reset();
    }
    c_.Picture1.picture.clear();
    selection_.inputs.VolumenNenn = selection_.inputs.LeistungNenn = 0;
}

void UnitLabels::ShowUnit(const ChosenUnit& unit) {
    using enum KatalogFeld;
    c_.ventlabel.text = unit.name;
    c_.GewLab.text = unit.record.Text(KatGewicht);
    c_.R_Label.text = EfficiencyClass(family_, unit.figures.class_ratio);
    c_.Label23.text = HasCapacity() ? unit.record.Text(KatVolumen)
                                    : NumberText(std::floor(unit.figures.pressure_drop));
    c_.volStrLab.text = words_[Caption::VolumeFlow] + " : " + unit.record.Text(KatVolumen) + " " +
                        std::string(UnitM3h);
    c_.wurfWLab.text = words_[Caption::Throw] + " : " + unit.record.Text(KatWurf) + " m";
    if (unit.power > 0) c_.Label28.text = Cut2(unit.power);
    if (HasCapacity()) {
        c_.Label1.text = Cut2(unit.figures.Q);
        c_.Label37_l.text = words_[CapacityWord()] + " : " + Cut2(unit.figures.Q) + "kW";
    }
    if (Is(KatalogFamilie::Compressors)) {
        selection_.inputs.VolumenNenn = unit.numbers.KatWert;
        selection_.inputs.LeistungNenn = unit.power;
    }
    const YearlyFigures year = YearlyFiguresOf(unit, duty_);
    if (!(unit.power > 0)) return;
    c_.BetrKo.text = NumberText(std::floor(year.cost));
    c_.CO2consum.text = Cut2(year.emission);
    c_.LeistZ.text = Cut2(year.ratio);
}

}  // namespace

std::optional<ChosenUnit> ReadChosenUnit(SeriesReader& reader, const UnitPlace& place,
                                         const SelectionDuty& duty, SelectionInputs inputs) {
    const int position = place.position;
    const Serie serie = reader.SerieLesen(place.series.KatalogDatei, place.series.SerieStart - 2);
    if (position < 1 || position > serie.Units()) return std::nullopt;
    ChosenUnit unit;
    unit.record = serie.Satz(position);
    unit.name = Trimmed(unit.record.Text(KatalogFeld::KatTyp) + " " +
                        unit.record.Text(KatalogFeld::KatTyp2));
    for (int i = 1; i <= position; ++i) {
        unit.numbers = ReadUnit(serie.Satz(i));
        CalculateUnit(unit.numbers, inputs, unit.figures);
    }
    const auto family = FamilyOf(inputs.KatalogArt);
    if (family == KatalogFamilie::AirCoolers || family == KatalogFamilie::Condensers) {
        unit.power = unit.numbers.KatAntrieb;
    }
    if (family == KatalogFamilie::Compressors) {
        unit.power = EstimatedPower(unit.figures.Q, duty.evaporating, duty.condensing);
    }
    return unit;
}

YearlyFigures YearlyFiguresOf(const ChosenUnit& unit, const SelectionDuty& duty) {
    constexpr double kKgPerTonne = 1000;
    YearlyFigures year;
    AssignFinite(year.cost, unit.power * duty.hours * duty.price);
    AssignFinite(year.emission, unit.power * duty.hours * duty.emission / kKgPerTonne);
    if (unit.power > 0) AssignFinite(year.ratio, unit.figures.Q / unit.power);
    return year;
}

void ShowChosenUnit(const std::optional<ChosenUnit>& unit, const SelectionDuty& duty,
                    const SelectionContext& context, VentZeigControls& controls) {
    UnitLabels labels(duty, context, controls);
    labels.ShowDuty();
    labels.Clear();
    if (unit) labels.ShowUnit(*unit);
}

}  // namespace zandrell
