#include "selection/unit_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr int kGrey = 7, kGreen = 10, kRed = 12, kYellow = 14;
constexpr int kRowHeight = 240, kHeadHeight = 350;  // twips
constexpr int kColumns = 14;

std::string InBrackets(std::string_view unit) { return " [" + std::string(unit) + "]"; }

// The steps in which a capacity is rounded down: finer for smaller ones.
double RoundedDown(double capacity, bool compressor) {
    const double fine = compressor ? 10 : 100;
    const double factor = capacity <= fine ? 1000 : capacity <= 10 * fine ? 100 : 10;
    double rounded = 0;
    AssignFinite(rounded, std::floor(capacity * factor) / factor);
    return rounded;
}

// By how much a series or a unit may miss its target; shares of it.
struct Bands {
    double range_red, range_yellow, range_short;
    double yellow_from, yellow_to, green_from, green_to;
    bool short_at_limit;
};

Bands BandsOf(KatalogFamilie family) {
    if (family == KatalogFamilie::Compressors) {
        return {1.1, 1.3, 0.95, 0.85, 1.3, 0.95, 1.1, true};
    }
    if (family == KatalogFamilie::StoredCapacity) {
        return {1.2, 1.4, 1, 0.95, 1.87, 1, 1.42, false};
    }
    return {1.5, 2, 1, 0.85, 2, 1, 1.5, false};
}

bool HasRange(KatalogFamilie family) {
    return family == KatalogFamilie::AirCoolers || family == KatalogFamilie::Condensers ||
           family == KatalogFamilie::Compressors || family == KatalogFamilie::StoredCapacity;
}

int UnitColour(double capacity, double target, const Bands& bands) {
    const auto between = [&](double from, double to) {
        return from * target < capacity && capacity < to * target;
    };
    if (between(bands.green_from, bands.green_to)) return kGreen;
    return between(bands.yellow_from, bands.yellow_to) ? kYellow : kRed;
}

}  // namespace

void ZeilenStreifen(int rows, int which, VentZeigControls& controls, ProgressBar& progress) {
    Grid& grid = which == 1 ? controls.KatalogSpread : controls.Venttab;
    const auto [from, to] = which == 1 ? std::pair(3, 4) : std::pair(1, 7);
    for (int row = 1; row <= rows; row += 2) {
        for (int column = from; column <= to; ++column) grid.SetBack(row, column, kGrey);
        progress.ProgressB_Count();
    }
}

void UnitTable::Load() {
    Grid& grid = controls_.Venttab;
    grid.SetColumns(kColumns);
    constexpr std::array<int, 8> kWidths = {450, 5600, 2000, 600, 2000, 1600, 1600, 1600};
    for (int column = 0; column < kColumns; ++column) {
        const auto place = static_cast<std::size_t>(column);
        grid.SetWidth(column, place < kWidths.size() ? kWidths[place] : 0);
    }
    grid.SetRows(0, 0);
    grid.SetRows(Serie::kUnits + 1, kRowHeight);
    grid.SetHeight(0, kHeadHeight);
}

void UnitTable::HeadVentTab() {
    const Captions& words = context_.captions;
    Grid& grid = controls_.Venttab;
    const auto head = [&](int column, const std::string& text) { grid.SetText(0, column, text); };
    const auto flow = InBrackets(UnitM3h);
    grid.SetWidth(kUnitClass, 0);
    head(kUnitName, words[Caption::Type] + "/" + words[Caption::Designation]);
    head(kUnitRated, words[Caption::RatedValue]);
    head(kUnitWeight, words[Caption::Weight] + InBrackets(UnitKg));
    const auto family = FamilyOf(context_.selection.inputs.KatalogArt);
    switch (family) {
        case KatalogFamilie::AirCoolers:
            head(kUnitFigure, words[Caption::RefrigeratingCapacity] + InBrackets(UnitKW));
            grid.SetWidth(kUnitClass, 600);
            head(kUnitVolume, words[Caption::VolumeFlow] + flow);
            head(kUnitThrow, words[Caption::Throw] + "[m]");
            break;
        case KatalogFamilie::Condensers:
            head(kUnitFigure,
                 words[Caption::Capacity] + " " + words[Caption::Condenser] + InBrackets(UnitKW));
            grid.SetWidth(kUnitFigure, 2000);
            grid.SetWidth(kUnitClass, 600);
            head(kUnitVolume, words[Caption::VolumeFlow] + flow);
            grid.SetWidth(kUnitThrow, 0);
            break;
        case KatalogFamilie::Compressors:
        case KatalogFamilie::StoredCapacity:
            head(kUnitFigure, words[Caption::RefrigeratingCapacity] + InBrackets(UnitKW));
            head(kUnitVolume, words[Caption::VolumeFlow] + flow);
            if (family == KatalogFamilie::StoredCapacity) grid.SetWidth(kUnitVolume, 0);
            grid.SetWidth(kUnitThrow, 0);
            break;
        case KatalogFamilie::RegulatingComponents:
            head(kUnitFigure, words[Caption::PressureDrop] + "[mbar]");
            head(kUnitVolume, "kv" + flow);
            head(kUnitThrow, words[Caption::ValveOpeningFirst] + " " +
                                 words[Caption::ValveOpeningSecond] + " [%]");
            break;
        case KatalogFamilie::LineComponents:
            // The bracket that nothing opens has always stood there.
            head(kUnitFigure, words[Caption::PressureDrop] + " mbar]");
            head(kUnitVolume, "kv" + flow);
            grid.SetWidth(kUnitThrow, 0);
            break;
        case KatalogFamilie::Unknown:
            head(kUnitVolume, "kv" + flow);
            break;
    }
}

void UnitTable::ClearTable() {
    Grid& grid = controls_.Venttab;
    grid.SetRows(1, kHeadHeight);
    grid.SetRows(Serie::kUnits + 1, kRowHeight);
    grid.row = grid.column = 1;
    grid.SetTopRow(1);
    for (int row = 1; row <= Serie::kUnits; ++row) grid.SetText(row, 0, TrimmedNumberText(row));
    ZeilenStreifen(Serie::kUnits, 2, controls_, progress_);
    HeadVentTab();
}

void UnitTable::SerieLesen(long address, int mode, int row) {
    SelectionShared& selection = context_.selection;
    if (mode == kFillTable) ClearTable();
    selection.inputs.Label26 = ParsedNumber(controls_.Label26.text);
    selection.inputs.Label25 = ParsedNumber(controls_.Label25.text);
    found_ = false;
    const Serie serie = reader_.SerieLesen(selection.KatalogDatei, address);
    const bool range = HasRange(FamilyOf(selection.inputs.KatalogArt));
    UnitFigures figures;
    int number = 1;
    for (; number <= Serie::kUnits; ++number) {
        const KatalogSatz record = serie.Satz(number);
        const UnitNumbers unit = ReadUnit(record);
        ++records_read;
        const bool ends = unit.IsEndMark();
        if (ends && (mode == kFillTable || !range)) break;
        if (!TakeRecord({number, mode, ends || number == Serie::kUnits, &record, &unit}, figures,
                        row)) {
            break;
        }
    }
    const auto place = static_cast<std::size_t>(std::min(number, Serie::kUnits) - 1);
    const std::size_t offset = std::min(place * KatalogSatz::kLength, serie.bytes.size());
    selection.record = serie.bytes.substr(offset, KatalogSatz::kLength);
}

bool UnitTable::TakeRecord(const Step& step, UnitFigures& figures, int range_row) {
    const bool fills = step.mode == kFillTable;
    Grid& grid = controls_.Venttab;
    const auto put = [&](int column, KatalogFeld field) {
        grid.SetText(step.number, column, step.record->Text(field));
    };
    if (fills) {
        grid.SetText(
            step.number, kUnitName,
            step.record->Text(KatalogFeld::KatTyp) + " " + step.record->Text(KatalogFeld::KatTyp2));
    }
    SelectionInputs& inputs = context_.selection.inputs;
    CalculateUnit(*step.unit, inputs, figures);
    if (HasRange(FamilyOf(inputs.KatalogArt))) {
        if (!TakeCapacity(step, figures, range_row)) return false;
    } else if (fills) {
        WriteLineComponent(step, figures);
    }
    if (!fills) return true;
    put(kUnitRated, KatalogFeld::KatWert2);
    put(kUnitWeight, KatalogFeld::KatGewicht);
    put(kUnitPicture, KatalogFeld::KatBild);
    grid.SetText(step.number, kUnitPosition, TrimmedNumberText(step.number));
    return true;
}

// False behind the last record of the run. The capacity of that one never counts for the range.
bool UnitTable::TakeCapacity(const Step& step, const UnitFigures& figures, int range_row) {
    SelectionShared& selection = context_.selection;
    const bool compressor = FamilyOf(selection.inputs.KatalogArt) == KatalogFamilie::Compressors;
    const double capacity = RoundedDown(figures.Q, compressor);
    if (step.number == 1) selection.QErster = capacity;
    if (step.last) {
        WriteRange(range_row);
        return false;
    }
    selection.QLetzter = capacity;
    if (step.mode == kFillTable) WriteCapacity(step, figures, capacity);
    return true;
}

void UnitTable::WriteRange(int row) const {
    const SelectionShared& selection = context_.selection;
    const auto family = FamilyOf(selection.inputs.KatalogArt);
    const Bands bands = BandsOf(family);
    const double target = TargetCapacity(selection.inputs);
    int first = kGreen, last = kGreen;
    if (selection.QErster > bands.range_red * target) {
        first = selection.QErster < bands.range_yellow * target ? kYellow : kRed;
        last = kRed;
    }
    const double needed = bands.range_short * target;
    const bool is_short =
        bands.short_at_limit ? selection.QLetzter <= needed : selection.QLetzter < needed;
    if (is_short) {
        last = selection.QLetzter > 0.85 * target ? kYellow : kRed;
        first = kRed;
    }
    Grid& grid = controls_.KatalogSpread;
    grid.SetText(row, 1, NumberText(selection.QErster));
    grid.SetText(row, 2, NumberText(selection.QLetzter));
    grid.SetBack(row, 1, first);
    grid.SetBack(row, 2, last);
}

void UnitTable::WriteCapacity(const Step& step, const UnitFigures& figures, double capacity) {
    SelectionShared& selection = context_.selection;
    Grid& grid = controls_.Venttab;
    const auto family = FamilyOf(selection.inputs.KatalogArt);
    const double target = TargetCapacity(selection.inputs);
    if (family == KatalogFamilie::AirCoolers || family == KatalogFamilie::Condensers) {
        grid.SetText(step.number, kUnitClass, EfficiencyClass(family, figures.class_ratio));
        grid.SetText(step.number, kUnitVolume, step.record->Text(KatalogFeld::KatVolumen));
        grid.SetText(step.number, kUnitThrow, step.record->Text(KatalogFeld::KatWurf));
    }
    if (family == KatalogFamilie::Compressors) {
        grid.SetText(step.number, kUnitVolume, step.record->Text(KatalogFeld::KatWert));
    }
    grid.SetText(step.number, kUnitFigure, NumberText(capacity));
    grid.SetBack(step.number, kUnitFigure, UnitColour(capacity, target, BandsOf(family)));
    if (found_ || capacity < target) return;
    found_ = true;
    selection.AuswahlZeile = step.number;
}

void UnitTable::WriteLineComponent(const Step& step, const UnitFigures& figures) {
    SelectionShared& selection = context_.selection;
    Grid& grid = controls_.Venttab;
    const int row = step.number;
    const std::string KatWert = step.record->Text(KatalogFeld::KatWert);
    const auto family = FamilyOf(selection.inputs.KatalogArt);
    if (family == KatalogFamilie::Unknown) return grid.SetText(row, kUnitClass, KatWert);
    const std::string drop = NumberText(std::floor(figures.pressure_drop));
    if (family == KatalogFamilie::LineComponents) {
        grid.SetText(row, kUnitFigure, step.unit->KatWert == 0 ? "  - " : drop);
        // Into the column of width 0, below a head of kv that stays without figures: as in all
        // modules of the suite.
        return grid.SetText(row, kUnitThrow, KatWert);
    }
    grid.SetText(row, kUnitFigure, drop);
    grid.SetText(row, kUnitVolume, KatWert);
    grid.SetText(row, kUnitThrow, NumberText(std::floor(figures.opening)));
    if (figures.opening > selection.inputs.OeffnungMax) grid.SetBack(row, kUnitThrow, kRed);
    if (figures.pressure_drop >= step.unit->KatAntrieb) return;
    grid.SetBack(row, kUnitFigure, kRed);
    if (found_) return;
    found_ = true;
    selection.AuswahlZeile = row - 1;
}

}  // namespace zandrell
