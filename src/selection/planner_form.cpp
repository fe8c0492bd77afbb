#include "selection/planner_form.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr int kRefusedBack = 12;

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
    ShowFieldsOfKind();
    for (const auto& field : fields) field->field.text = TrimmedNumberText(duty.*field->value);
}

// What the kind does not ask for keeps its figure, and does not stand in the way.
void PlannerForm::ShowFieldsOfKind() {
    const KatalogFamilie family = FamilyOf(opener_.duty.KatalogArt);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i]->field.visible = fields[i]->label.visible = IsAskedFor(kDutyRows[i], family);
    }
}

void PlannerForm::Start(const SelectionDuty& first) {
    opener_.Load();
    opener_.duty = first;
    const RefrigerantTables& refrigerants = opener_.Refrigerants();
    // The duty of the last time may know one that the tables lack by now.
    if (!refrigerants.tables.empty() && refrigerants.Find(first.refrigerant) == nullptr) {
        opener_.duty.refrigerant = refrigerants.tables.front().Name();
    }
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
        if (!field->field.visible) continue;
        const bool number = IsDutyNumber(field->field.text);
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
    ShowFieldsOfKind();
    // What cannot be kept costs nothing but typing it anew.
    WriteDuty(context_.files, opener_.duty);
    lists.Follow();
}

SelectionEnd PlannerForm::Follow() {
    const SelectionEnd end = opener_.React();
    lists.Follow();
    return end;
}

// The unit in hand, or that of the chosen row while a series is open.
UnitPlace PlannerForm::PlaceInHand() const {
    const SelectionShared& selection = context_.selection;
    if (selection.OffeneSerie != kSeriesIsOpen) return opener_.Place();
    const Grid& grid = window_.controls.Venttab;
    const double position = ParsedNumber(grid.Text(grid.row, kUnitPosition));
    return {{selection.SerieStart, selection.KatalogDatei}, RoundToInteger(position).value_or(0)};
}

void PlannerForm::CompareChosen() {
    const UnitPlace place = PlaceInHand();
    if (place.position > 0) lists.Compare(place, opener_.duty);
    const bool any = lists.CompareAnew(opener_.duty);
    Message.text = any ? "" : context_.captions[Caption::NoUnitChosen];
    if (any && show_comparison) show_comparison();
}

void PlannerForm::ShowPlot() {
    const auto plot = lists.Plot();
    Message.text = plot ? "" : context_.captions[Caption::NoUnitChosen];
    if (plot && show_plot) show_plot(*plot);
}

void PlannerForm::WriteCsv() {
    const VentZeigControls& c = window_.controls;
    const bool units = c.pn77.visible;
    std::string proposal =
        units ? c.KatalogSpread.Text(c.KatalogSpread.row, kSeriesTextColumn) : KindBox.text;
    for (const char sign : std::string_view("/\\:*?\"<>|")) std::erase(proposal, sign);
    const std::string file = ask_file ? ask_file(proposal + ".csv") : "";
    if (file.empty()) return;
    const Grid& grid = units ? c.Venttab : c.KatalogSpread;
    Message.text = SaveAsCsv(grid, file, context_.files, context_.captions);
}

}  // namespace zandrell
