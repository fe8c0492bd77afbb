#include "selection/selection_opener.h"

#include "base/number_text.h"

namespace zandrell {

void SelectionOpener::Load() { refrigerants_ = ReadRefrigerants(context_.files); }

std::optional<std::string> SelectionOpener::Open() {
    if (refrigerants_.tables.empty()) {
        return FilledIn(context_.captions[Caption::CatalogueUnreadable],
                        {context_.files.Resolve(kRefrigerantFile).string()});
    }
    SelectionShared& selection = context_.selection;
    if (auto message = ApplyDuty(duty, refrigerants_, context_.captions, selection)) return message;
    if (duty.KatalogArt != kind_) {
        place_.position = 0;
        selection.OffeneSerie = 0;
        selection.AuswahlZeile = 0;
        selection.BildDatei.clear();
        window_.loaded = false;
    }
    kind_ = duty.KatalogArt;
    // A new duty gives every series another range, and every file another chance.
    selection.Rueckkehr = 0;
    window_.controls.StatusLab.text.clear();
    selection.inputs.BetriebsFreq = 0;
    context_.shared.MainsFrequency = duty.mains_frequency;
    selection.FreqTitel = "Qo";
    ShowUnit();
    Show();
    return std::nullopt;
}

SelectionEnd SelectionOpener::React() {
    if (!window_.closed) return SelectionEnd::None;
    const auto code = static_cast<LeaveCode>(context_.shared.DialogMode);
    if (!window_.loaded) {
        if (code != LeaveCode::WithResult) return SelectionEnd::WithoutResult;
        if (HasUnit()) return SelectionEnd::WithResult;
        KeepOpen();
        return SelectionEnd::None;
    }
    switch (code) {
        case LeaveCode::Recalculate:
            Recalculate();
            break;
        case LeaveCode::SmallerUnit:
            Step(-1);
            break;
        case LeaveCode::LargerUnit:
            Step(1);
            break;
        case LeaveCode::UnitTaken:
            TakeUnit();
            break;
        case LeaveCode::Settings:
            wants_settings = true;
            break;
        default:
            break;
    }
    Show();
    return SelectionEnd::None;
}

// Left with a result, and there is none: the window comes back as it stood.
void SelectionOpener::KeepOpen() {
    window_.loaded = true;
    context_.selection.Rueckkehr = 1;
    window_.controls.StatusLab.text = context_.captions[Caption::NoUnitChosen];
    Show();
}

void SelectionOpener::Show() {
    const std::string status = window_.controls.StatusLab.text;
    window_.Open();
    if (!status.empty()) window_.controls.StatusLab.text = status;
    const bool compressor = FamilyOf(duty.KatalogArt) == KatalogFamilie::Compressors;
    if (compressor && HasUnit()) window_.FollowFrequency();
}

// The window has worked out the mass flow; the swept volume that is wanted follows it.
void SelectionOpener::Recalculate() {
    FollowMassFlow(duty, refrigerants_, context_.selection);
    ShowUnit();
}

void SelectionOpener::TakeUnit() {
    const SelectionShared& selection = context_.selection;
    window_.controls.StatusLab.text.clear();
    place_ = {{selection.SerieStart, selection.KatalogDatei}, selection.AuswahlZeile};
    ShowUnit();
}

void SelectionOpener::Step(int by) {
    Label& status = window_.controls.StatusLab;
    if (!HasUnit()) {
        status.text = context_.captions[Caption::NoUnitChosen];
        return;
    }
    const int before = place_.position;
    place_.position += by;
    if (!Unit()) {
        place_.position = before;
        status.text = context_.captions[Caption::NextUnitMissing];
        return;
    }
    status.text.clear();
    context_.selection.AuswahlZeile = place_.position;
    ShowUnit();
}

std::optional<ChosenUnit> SelectionOpener::Unit() {
    if (!HasUnit()) return std::nullopt;
    return ReadChosenUnit(reader_, place_, duty, context_.selection.inputs);
}

void SelectionOpener::ShowUnit() {
    const auto unit = Unit();
    ShowChosenUnit(unit, duty, context_, window_.controls);
    if (!unit) return;
    SelectionShared& selection = context_.selection;
    selection.BildDatei = PictureOf(unit->record.Text(KatalogFeld::KatBild), duty.KatalogArt);
    window_.controls.Picture1.picture = selection.BildDatei;
    window_.controls.Picture5.top = ClassMarkTop(window_.controls.R_Label.text);
}

}  // namespace zandrell
