#include "selection/vent_zeig_form.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "selection/data_sheet.h"
#include "selection/economizer.h"
#include "selection/unit_documents.h"

namespace zandrell {
namespace {

constexpr int kPause = 500;  // ms; the opener and its printer let go of files meanwhile
constexpr int kChainedCall = 88;

}  // namespace

VentZeigForm::VentZeigForm(const SelectionContext& context)
    : ModalForm("VentZeig"),
      context_(context),
      progress_(controls.Picture3, controls.Shape9),
      units_(context, controls, progress_),
      series_(context, controls, units_, progress_),
      series_acts_(context, controls, units_),
      choice_(context, controls),
      frequency_(context, controls) {
    controls.ListControls(form);
    cancel_control = controls.Abbrech.name;
    progress_.on_step = [this] {
        if (host.show_progress) host.show_progress();
    };
    BindActs();
}

void VentZeigForm::BindActs() {
    BindListActs();
    BindUnitActs();
    BindLeaving();
}

void VentZeigForm::BindListActs() {
    const auto search = [this] { Search(controls.search.text); };
    acts.Add(controls.search.name, ActKind::Return, search);
    acts.Add(controls.GoButt.name, ActKind::Click, search);
    acts.Add(controls.HerstellList.name, ActKind::Select,
             [this] { Search(controls.HerstellList.text); });
    acts.Add(controls.Check1.name, ActKind::Check, [this] {
        if (!busy_) context_.selection.TiefSuche = controls.Check1.on ? 1 : 0;
    });
    const auto list = controls.KatalogSpread.name;
    acts.Add(list, ActKind::Pick, [this] { OpenSeries(); });
    acts.Add(list, ActKind::Return, [this] {
        if (!controls.KatalogSpread.IsEmptyRow(controls.KatalogSpread.row)) OpenSeries();
    });
    acts.Add(list, ActKind::Tell, [this] { series_acts_.TellLocator(); });
    acts.Add(list, ActKind::Hover,
             [this] { series_acts_.ShowPreview(controls.KatalogSpread.hovered_row); });
    acts.Add(list, ActKind::Leave, [this] { series_acts_.HidePreview(); });
    for (Grid* grid : {&controls.KatalogSpread, &controls.Venttab}) {
        acts.Add(grid->name, ActKind::RowsUp, [grid] { ScrollRows(*grid, true); });
        acts.Add(grid->name, ActKind::RowsDown, [grid] { ScrollRows(*grid, false); });
    }
}

void VentZeigForm::BindUnitActs() {
    const auto choose = [this] {
        choice_.venttabEdit(controls.Venttab.column, controls.Venttab.row);
        choice_.ZeileWaehlen();
    };
    acts.Add(controls.Venttab.name, ActKind::Pick, choose);
    acts.Add(controls.Venttab.name, ActKind::Return, [this, choose] {
        if (!controls.Venttab.IsEmptyRow(controls.Venttab.row)) choose();
    });
    acts.Add(controls.venttabText.name, ActKind::Return, [this] { TakeUnit(); });
    acts.Add(controls.VentUeberNehm.name, ActKind::Click, [this] { TakeUnit(); });
    acts.Add(controls.Command3D2.name, ActKind::Click, [this] {
        TakeUnit();
        frequency_.inverter_rech();
    });
    acts.Add(controls.Command3D3.name, ActKind::Click, [this] {
        controls.pn77.visible = controls.venttabText.visible = false;
        context_.selection.OffeneSerie = 0;
    });
    controls.HScroll1.on_change = [this] {
        if (!busy_) frequency_.inverter_rech();
    };
    acts.Add(controls.KPFreq.name, ActKind::Return, [this] {
        frequency_.TakeTyped();
        controls.StatusLab.text = controls.KPFreq.tool_tip;
    });
    acts.Add(controls.EcoCheck.name, ActKind::Check, [this] {
        if (!busy_) SwitchEconomizer();
    });
}

void VentZeigForm::BindLeaving() {
    SelectionShared& selection = context_.selection;
    acts.Add(controls.Klein.name, ActKind::Click,
             [this] { HideForOpener(LeaveCode::SmallerUnit); });
    acts.Add(controls.Gross.name, ActKind::Click, [this] { HideForOpener(LeaveCode::LargerUnit); });
    acts.Add(controls.VentEinstell.name, ActKind::Click,
             [this] { HideForOpener(LeaveCode::Settings); });
    acts.Add(controls.UeberNehm.name, ActKind::Click, [this, &selection] {
        // These callers take the unit on a way of their own, so they get no result from here.
        const int caller = selection.VentAufruf;
        selection.ErgebnisDa = caller == 55 || caller == 444 || caller == kChainedCall ? 0 : 1;
        selection.AnlagePending = 0;
        Leave();
    });
    acts.Add(controls.VentSpeich.name, ActKind::Click, [this, &selection] {
        selection.ErgebnisDa = 1;
        selection.AnlagePending = 0;
        Leave();
    });
    acts.Add(controls.Abbrech.name, ActKind::Click, [this, &selection] {
        selection.ErgebnisDa = 0;
        selection.AnlagePending = 0;
        context_.shared.DialogMode = static_cast<int>(LeaveCode::WithoutResult);
        Leave();
    });
    acts.Add(controls.druckbutt.name, ActKind::Click, [this] { PrintSheet(); });
    acts.Add(controls.viewbutt.name, ActKind::Click, [this] { ShowDocuments(); });
}

void VentZeigForm::Open() {
    if (!loaded) Load();
    closed = false;
    Activate();
}

void VentZeigForm::Load() {
    series_.Load();
    units_.Load();
    controls.pn77.visible = controls.venttabText.visible = false;
    controls.AssitPN.visible = controls.Picture2.visible = false;
    controls.EcoCheck.on = false;
    controls.search.text.clear();
    loaded = true;
}

void VentZeigForm::Activate() {
    SelectionShared& selection = context_.selection;
    pointer_busy = busy_ = true;
    selection.FensterZu = 0;
    selection.inputs.ModuleTag = context_.shared.ModuleTag;
    controls.Check1.on = selection.TiefSuche == 1;
    ShowWhatCallerNeeds();
    frequency_.Activate();
    if (selection.Rueckkehr == 0) BuildAfresh();
    ZeilenStreifen(controls.KatalogSpread.RowCount() - 1, 1, controls, progress_);
    SetTitle();
    if (selection.eco.EcoStufe > 1) controls.EcoCheck.on = true;
    if (selection.OffeneSerie == kSeriesIsOpen) series_acts_.Reopen();
    pointer_busy = busy_ = false;
    selection.Rueckkehr = 0;
    progress_.Finish();
}

void VentZeigForm::ShowWhatCallerNeeds() {
    const SelectionShared& selection = context_.selection;
    const int caller = selection.VentAufruf;
    constexpr double kPreviewLeft = 7770;  // twips
    controls.viewbutt.visible = !selection.ViewDatei1.empty() || !selection.ViewDatei2.empty();
    controls.Picture2.left = kPreviewLeft;
    controls.VentSpeich.visible =
        caller == 44 || caller == 55 || caller == kChainedCall || caller == 444;
}

void VentZeigForm::BuildAfresh() {
    SetCaptions();
    units_.records_read = 0;
    series_.FillAll();
}

void VentZeigForm::SetCaptions() {
    const Captions& words = context_.captions;
    const bool molk = EqualIgnoringCase(context_.shared.ModuleTag, "MOLK");
    controls.Label13.text = words[Caption::Evaporation] + (molk ? " :" : " to :");
    controls.Label15.text = words[Caption::Condensation] + (molk ? " :" : "  tc :");
    constexpr int kEvaporatorOnly = 44;
    const bool condenses = context_.selection.VentAufruf != kEvaporatorOnly;
    controls.Label15.visible = controls.Label14.visible = condenses;
    if (!condenses) controls.Label3.text = NumberText(Cut(context_.selection.T0 - 273.15, 10));
    controls.Label38.text = words[Caption::RunningCost] + " :";
    controls.Label34.text = context_.shared.CurrencyTag + "/a";
    controls.Label46.text = words[Caption::Emission] + " CO2" + " :";
    controls.searchLabel.text = words[Caption::Search];
    controls.GoButt.text = words[Caption::Search];
    controls.Check1.text = words[Caption::SearchUnits];
    controls.EcoCheck.text = words[Caption::Economizer];
    controls.KPFreqLabel.text = words[Caption::Frequency] + " /[Hz] :";
    for (Button* button : {&controls.UeberNehm, &controls.VentUeberNehm, &controls.Command3D2}) {
        button->text = words[Caption::TakeOver];
    }
    controls.Command3D3.text = words[Caption::Back];
    controls.VentSpeich.text = words[Caption::Save];
    controls.VentEinstell.text = words[Caption::Settings];
    controls.Abbrech.text = words[Caption::Cancel];
    controls.druckbutt.text = words[Caption::Print];
    controls.viewbutt.text = words[Caption::Documents];
}

void VentZeigForm::SetTitle() {
    const std::string& duty = controls.PN19.text;
    title = context_.captions[Caption::SelectSeries] + " " + context_.captions[Caption::Series] +
            ":" + NumberText(units_.records_read) + " " + duty.substr(0, duty.find(':'));
}

void VentZeigForm::Search(std::string_view text) {
    const std::string wanted(text);
    pointer_busy = true;
    series_.SerieSuchen(wanted);
    pointer_busy = false;
}

void VentZeigForm::OpenSeries() {
    series_acts_.OpenChosen();
    HideForOpener(LeaveCode::SeriesOpened);
}

void VentZeigForm::TakeUnit() {
    pointer_busy = true;
    context_.user.WaitMilliseconds(kPause);
    controls.venttabText.visible = false;
    context_.selection.OffeneSerie = 0;
    choice_.ZeileWaehlen();
    controls.pn77.visible = false;
    context_.user.WaitMilliseconds(kPause);
    pointer_busy = false;
    HideForOpener(LeaveCode::UnitTaken);
}

void VentZeigForm::SwitchEconomizer() {
    SelectionShared& selection = context_.selection;
    if (++selection.eco.EcoStufe > 1) selection.eco.EcoStufe = 0;
    selection.inputs.MassenStrom =
        MassenStromRechnen(0, selection.inputs.QoSoll, selection.inputs, selection.eco);
    HideForOpener(LeaveCode::Recalculate);
}

void VentZeigForm::HideForOpener(LeaveCode code) {
    SelectionShared& selection = context_.selection;
    selection.Rueckkehr = 1;
    context_.shared.DialogMode = static_cast<int>(code);
    const bool comes_back = code == LeaveCode::Recalculate || code == LeaveCode::SeriesOpened ||
                            code == LeaveCode::UnitTaken;
    if (comes_back && selection.VentAufruf == kChainedCall) selection.VentAufruf2 = kChainedCall;
    selection.FensterZu = 1;
    closed = true;
}

void VentZeigForm::Leave() {
    SelectionShared& selection = context_.selection;
    if (selection.ErgebnisDa != 0) {
        if (selection.VentAufruf == 55 || selection.VentAufruf == 444) {
            context_.shared.ResultText = controls.ventlabel.text;
        }
        if (EqualIgnoringCase(context_.shared.ModuleTag, "MOLK")) {
            selection.LeistungFreq = ParsedNumber(controls.Label28.text);
        }
        context_.shared.DialogMode = static_cast<int>(LeaveCode::WithResult);
    } else {
        constexpr int kLeftWithoutResult = 113;
        selection.ResultLeer.clear();
        if (selection.VentAufruf == kChainedCall) {
            context_.shared.DialogMode = static_cast<int>(LeaveCode::WithoutResult);
        } else {
            selection.VentAufruf = kLeftWithoutResult;
        }
    }
    selection.Rueckkehr = 0;
    loaded = false;
    closed = true;
}

bool VentZeigForm::BT_file_create() {
    constexpr int kSheetOfSelection = 55;
    context_.selection.Rueckkehr = 1;
    context_.selection.PrintOwner = kSheetOfSelection;
    const std::string date = host.date_text ? host.date_text() : "";
    const std::string name(kDataSheetFile);
    std::string reason;
    const FileStatus status = context_.files.OpenForOutput(
        name, DataSheetText(context_, controls, date), Durability::Flushed, &reason);
    if (status == FileStatus::Ok) return true;
    context_.user.ShowMessage({context_.shared.AppTitle,
                               FilledIn(context_.captions[Caption::SavingFailed],
                                        {context_.files.Resolve(name).string(), reason}),
                               MessageIcon::Stop});
    return false;
}

void VentZeigForm::PrintSheet() {
    pointer_busy = true;
    if (BT_file_create() && host.open_print_setup) host.open_print_setup();
    pointer_busy = false;
}

void VentZeigForm::ShowDocuments() {
    const SelectionShared& selection = context_.selection;
    if (HandDocumentsOver(context_, controls)) {
        context_.selection.Rueckkehr = 1;
        if (host.open_documents) host.open_documents();
        return;
    }
    const std::string& name =
        selection.ViewDatei1.empty() ? selection.ViewDatei2 : selection.ViewDatei1;
    controls.StatusLab.text = FilledIn(context_.captions[Caption::CatalogueUnreadable],
                                       {context_.files.Resolve(name).string()});
}

}  // namespace zandrell
