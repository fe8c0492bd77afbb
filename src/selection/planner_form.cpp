#include "selection/planner_form.h"

#include <array>

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr std::string_view kDutyFile = "selection.dat";
constexpr int kRefusedBack = 12;

struct DutyRow {
    std::string_view name, label;
    Caption word;
    std::string_view unit;  // behind the word; "$" stands for the currency
    double SelectionDuty::*value;
};

using D = SelectionDuty;

constexpr std::array<DutyRow, 18> kDutyRows = {{
    {"Capacity", "CapacityLabel", Caption::RefrigeratingCapacity, " /[kW]", &D::capacity},
    {"AddedLoad", "AddedLoadLabel", Caption::AddedLoad, " /[kW]", &D::added_load},
    {"Rejection", "RejectionLabel", Caption::HeatRejection, " /[kW]", &D::heat_rejection},
    {"Evaporating", "EvaporatingLabel", Caption::Evaporation, " to /[°C]", &D::evaporating},
    {"Condensing", "CondensingLabel", Caption::Condensation, " tc /[°C]", &D::condensing},
    {"Superheat", "SuperheatLabel", Caption::Superheat, " /[K]", &D::superheat},
    {"Subcooling", "SubcoolingLabel", Caption::Subcooling, " /[K]", &D::subcooling},
    {"LossSuction", "LossSuctionLabel", Caption::PressureDrop, " po /[mbar]", &D::loss_suction},
    {"LossDischarge", "LossDischargeLabel", Caption::PressureDrop, " pc /[mbar]",
     &D::loss_discharge},
    {"MeanDifference", "MeanDifferenceLabel", Caption::MeanDifference, " /[K]",
     &D::mean_difference},
    {"RatingBasis", "RatingBasisLabel", Caption::RatingBasis, " /[0-2]", &D::rating_basis},
    {"Correction", "CorrectionLabel", Caption::CorrectionFactor, " /[-]", &D::correction},
    {"Efficiency", "EfficiencyLabel", Caption::ReferenceEfficiency, " /[-]", &D::efficiency},
    {"OpeningLimit", "OpeningLimitLabel", Caption::OpeningLimit, " /[%]", &D::opening},
    {"Mains", "MainsLabel", Caption::MainsFrequencyWord, " /[Hz]", &D::mains_frequency},
    {"Price", "PriceLabel", Caption::ElectricityPrice, " /[$/kWh]", &D::price},
    {"Hours", "HoursLabel", Caption::OperatingHours, " /[h/a]", &D::hours},
    {"EmissionFactor", "EmissionFactorLabel", Caption::EmissionFactor, " /[kg/kWh]", &D::emission},
}};

Caption WordOf(KatalogFamilie family) {
    switch (family) {
        case KatalogFamilie::AirCoolers:
            return Caption::AirCoolers;
        case KatalogFamilie::Condensers:
            return Caption::CondenserUnits;
        case KatalogFamilie::Compressors:
            return Caption::CompressorUnits;
        case KatalogFamilie::StoredCapacity:
            return Caption::StoredCapacityUnits;
        case KatalogFamilie::RegulatingComponents:
            return Caption::RegulatingComponents;
        default:
            return Caption::LineComponentUnits;
    }
}

bool IsNumber(const std::string& text) {
    const std::string word = Trimmed(text);
    const auto digit = word.find_first_of("0123456789");
    return digit != std::string::npos && digit <= 2 &&
           word.find_first_not_of("0123456789.,-+") == std::string::npos &&
           word.find_last_of("-+") + 1 <= 1;
}

}  // namespace

PlannerForm::PlannerForm(const SelectionContext& context, VentZeigForm& window,
                         SelectionOpener& opener)
    : WindowForm("Planner"),
      lists(context, window.controls),
      context_(context),
      window_(window),
      opener_(opener) {
    ListControls();
    acts.Add(Apply.name, ActKind::Click, [this] { ApplyDutyNow(); });
    acts.Add(KindBox.name, ActKind::Select, [this] { ApplyDutyNow(); });
    acts.Add(RefrigerantBox.name, ActKind::Select, [this] { ApplyDutyNow(); });
    for (const auto& field : fields) {
        acts.Add(field->field.name, ActKind::Return, [this] { ApplyDutyNow(); });
    }
    acts.Add(HideUnfit.name, ActKind::Check, [this] {
        lists.hide_unfit = HideUnfit.on;
        lists.Follow();
    });
    acts.Add(Compare.name, ActKind::Click, [this] { CompareChosen(); });
    acts.Add(Plot.name, ActKind::Click, [this] { ShowPlot(); });
    acts.Add(Csv.name, ActKind::Click, [this] { WriteCsv(); });
    for (Grid* grid : {&window_.controls.KatalogSpread, &window_.controls.Venttab}) {
        window_.acts.Add(grid->name, ActKind::Sort, [this, grid] { lists.Sort(*grid); });
    }
}

void PlannerForm::ListControls() {
    form.Add({&KindLabel, &KindBox, &RefrigerantLabel, &RefrigerantBox, &AirFlowLabel, &AirFlow});
    AirFlow.visible = AirFlowLabel.visible = false;
    fields.reserve(kDutyRows.size());
    for (const DutyRow& row : kDutyRows) {
        auto& field = fields.emplace_back(std::make_unique<DutyField>(row.name, row.label));
        field->value = row.value;
        form.Add({&field->label, &field->field});
    }
    form.Add({&Apply, &HideUnfit, &Compare, &Plot, &Csv, &Message});
}

void PlannerForm::SetCaptions() {
    const Captions& words = context_.captions;
    title = context_.shared.AppTitle + " " + context_.shared.VersionText + " : " +
            words[Caption::ComponentSelection];
    KindLabel.text = words[Caption::Component];
    RefrigerantLabel.text = words[Caption::Refrigerant];
    AirFlowLabel.text = words[Caption::VolumeFlow] + " /[" + std::string(UnitM3h) + "]";
    for (std::size_t i = 0; i < fields.size(); ++i) {
        std::string unit(kDutyRows[i].unit);
        const auto currency = unit.find('$');
        if (currency != std::string::npos) unit.replace(currency, 1, context_.shared.CurrencyTag);
        fields[i]->label.text = words[kDutyRows[i].word] + unit;
    }
    Apply.text = words[Caption::Calculate];
    HideUnfit.text = words[Caption::HideUnfit];
    Compare.text = words[Caption::CompareUnits];
    Plot.text = words[Caption::CapacityPlot];
    Csv.text = words[Caption::ListAsCsv];
}

void PlannerForm::FillKinds() {
    std::vector<std::string> kinds, refrigerants;
    kinds.reserve(kKatalogArten.size());
    for (const int kind : kKatalogArten) {
        kinds.push_back(TrimmedNumberText(kind) + " " + context_.captions[WordOf(FamilyOf(kind))]);
    }
    refrigerants.reserve(opener_.Refrigerants().tables.size());
    for (const Refrigerant& table : opener_.Refrigerants().tables) {
        refrigerants.push_back(table.Name());
    }
    KindBox.Fill(std::move(kinds));
    RefrigerantBox.Fill(std::move(refrigerants));
}

void PlannerForm::ShowDuty() {
    const SelectionDuty& duty = opener_.duty;
    for (std::size_t i = 0; i < kKatalogArten.size(); ++i) {
        if (kKatalogArten[i] == duty.KatalogArt) KindBox.Choose(static_cast<int>(i));
    }
    RefrigerantBox.Choose(duty.refrigerant);
    for (const auto& field : fields) field->field.text = TrimmedNumberText(duty.*field->value);
}

void PlannerForm::Start(const SelectionDuty& first) {
    opener_.Load();
    opener_.duty = first;
    FillKinds();
    ShowDuty();
    ApplyDutyNow();
}

void PlannerForm::NoteAirFlow(double flow) {
    AirFlow.visible = AirFlowLabel.visible = flow > 0;
    AirFlow.text = AirFlow.visible ? TrimmedNumberText(Cut(flow, 1)) : "";
}

// All or nothing: a duty of which one figure is no number is not a duty.
bool PlannerForm::TakeFields() {
    SelectionDuty duty = opener_.duty;
    bool all = true;
    Message.text.clear();
    for (const auto& field : fields) {
        const bool number = IsNumber(field->field.text);
        field->field.background = number ? std::nullopt : std::optional(kRefusedBack);
        field->field.tool_tip.clear();
        if (number) {
            duty.*field->value = ParsedNumber(field->field.text);
            continue;
        }
        all = false;
        field->field.tool_tip =
            FilledIn(context_.captions[Caption::NotUsed],
                     {Trimmed(field->field.text).empty() ? context_.captions[Caption::ValueMissing]
                                                         : context_.captions[Caption::NotANumber]});
        if (Message.text.empty()) Message.text = field->label.text + ": " + field->field.tool_tip;
    }
    if (!all) return false;
    if (KindBox.index >= 0) {
        duty.KatalogArt = kKatalogArten[static_cast<std::size_t>(KindBox.index)];
    }
    duty.refrigerant = RefrigerantBox.text;
    opener_.duty = duty;
    return true;
}

void PlannerForm::ApplyDutyNow() {
    const SelectionDuty before = opener_.duty;
    if (!TakeFields()) return;
    if (const auto message = opener_.Open()) {
        opener_.duty = before;
        Message.text = *message;
        return;
    }
    // What cannot be kept costs nothing but typing it anew.
    WriteDuty(context_.files, opener_.duty);
    lists.Follow();
}

SelectionEnd PlannerForm::Follow() {
    const SelectionEnd end = opener_.React();
    lists.Follow();
    return end;
}

void PlannerForm::CompareChosen() {
    const SelectionShared& selection = context_.selection;
    const bool open = selection.OffeneSerie == kSeriesIsOpen;
    const Grid& grid = window_.controls.Venttab;
    std::optional<ChosenUnit> unit;
    SeriesReader reader(context_.files);
    if (open) {
        const double position = ParsedNumber(grid.Text(grid.row, kUnitPosition));
        unit = ReadChosenUnit(reader, {selection.SerieStart, selection.KatalogDatei},
                              RoundToInteger(position).value_or(0), opener_.duty, selection.inputs);
    } else {
        unit = opener_.Unit();
    }
    Message.text = unit ? "" : context_.captions[Caption::NoUnitChosen];
    if (!unit) return;
    lists.Compare(*unit, opener_.duty);
    if (show_comparison) show_comparison();
}

void PlannerForm::ShowPlot() {
    const auto plot = lists.Plot();
    Message.text = plot ? "" : context_.captions[Caption::NoUnitChosen];
    if (plot && show_plot) show_plot(*plot);
}

void PlannerForm::WriteCsv() {
    const std::string file = ask_file ? ask_file() : "";
    if (file.empty()) return;
    const bool units = window_.controls.pn77.visible;
    std::string reason;
    const FileStatus status = context_.files.ReplaceBytes(
        file, GridAsCsv(units ? window_.controls.Venttab : window_.controls.KatalogSpread),
        Durability::Flushed, &reason);
    Message.text = status == FileStatus::Ok
                       ? file
                       : FilledIn(context_.captions[Caption::SavingFailed], {file, reason});
}

void ReadDuty(const DataFiles& files, SelectionDuty& duty) {
    const FileText file = files.OpenForInput(kDutyFile);
    DelimitedReader items(file.text);
    for (std::string name, value; items.ReadText(name) && items.ReadText(value);) {
        if (name == "Refrigerant") duty.refrigerant = value;
        if (name == "Kind") duty.KatalogArt = RoundToInteger(ToDouble(value)).value_or(0);
        for (const DutyRow& row : kDutyRows) {
            if (row.name == name && IsNumber(value)) duty.*row.value = ToDouble(value);
        }
    }
    if (FamilyOf(duty.KatalogArt) == KatalogFamilie::Unknown) {
        duty.KatalogArt = SelectionDuty().KatalogArt;
    }
}

FileStatus WriteDuty(const DataFiles& files, const SelectionDuty& duty) {
    DelimitedWriter writer;
    const auto item = [&](std::string_view name, const std::string& value) {
        writer.Text(name).Text(value).EndLine();
    };
    item("Kind", TrimmedNumberText(duty.KatalogArt));
    item("Refrigerant", duty.refrigerant);
    for (const DutyRow& row : kDutyRows) item(row.name, TrimmedNumberText(duty.*row.value));
    return files.OpenForOutput(kDutyFile, writer.Result());
}

}  // namespace zandrell
