#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "command/catalogue_folder.h"
#include "command/duty_calculation.h"
#include "command/record_writer.h"
#include "command/selection_verbs.h"
#include "command/table_cells.h"
#include "selection/duty_choice.h"

namespace zandrell {
namespace {

// Stored capacities hold as they stand when nobody corrects them. Kind 100 has a factor of its own.
void SetDefaultFactor(SelectionInputs& shared) {
    const auto family = FamilyOf(shared.KatalogArt);
    const bool stored =
        family == KatalogFamilie::AirCoolers || family == KatalogFamilie::Condensers;
    if (stored && shared.LeistFaktor == 0) shared.LeistFaktor = 1;
}

class FigureList {
  public:
    FigureList(const SelectionInputs& shared, RecordWriter& writer)
        : shared_(shared), family_(FamilyOf(shared.KatalogArt)), writer_(writer) {}

    void Write(const ScannedSeries& scanned) {
        UnitFigures figures;
        const int units = scanned.serie.Units();
        for (int i = 1; i <= units; ++i) {
            const KatalogSatz record = scanned.serie.Satz(i);
            const UnitNumbers unit = ReadUnit(record);
            CalculateUnit(unit, shared_, figures);
            WriteName(scanned, record, i);
            WriteFigures(unit, figures);
            writer_.EndRecord();
        }
    }

  private:
    void WriteName(const ScannedSeries& scanned, const KatalogSatz& record, int number) {
        const std::string text = Trimmed(scanned.line.SerieText);
        writer_.Text(MakerOf(text)).Text(SeriesNameOf(text));
        writer_.Text(KatalogDateiOf(scanned.line.SerieDatei));
        writer_.Number(static_cast<double>(AddressOf(scanned.line) + number));
        writer_.Text(record.Text(KatalogFeld::KatTyp)).Text(record.Text(KatalogFeld::KatTyp2));
    }

    void WriteFigures(const UnitNumbers& unit, const UnitFigures& figures) {
        const bool regulates = family_ == KatalogFamilie::RegulatingComponents;
        if (!regulates && family_ != KatalogFamilie::LineComponents) {
            writer_.Number(figures.Q).Text(EfficiencyClass(family_, figures.class_ratio));
            return;
        }
        writer_.Lacking().Lacking();
        // The pressure drop of a unit without a kv value is that of the unit before it. Those that
        // regulate show it all the same, as the list of the suite does.
        if (unit.KatWert == 0 && !regulates) {
            writer_.Lacking();
        } else {
            writer_.Number(figures.pressure_drop);
        }
        writer_.Number(unit.KatWert);
        if (regulates) writer_.Number(figures.opening);
    }

    SelectionInputs shared_;
    KatalogFamilie family_;
    RecordWriter& writer_;
};

bool ListFigures(const CatalogueFolder& folder, const CapacityRequest& request, RowFormat format,
                 const RowStreams& streams, std::string& error) {
    error = MissingInput(request.shared);
    if (!error.empty()) return false;
    RecordWriter writer({"maker", "series", "file", "record", "type", "type2", "capacity_kw",
                         "class", "pressure_drop_mbar", "kv_m3_per_h", "opening_percent"},
                        format, streams.output);
    FigureList list(request.shared, writer);
    const std::string index = KatalogIndex(request.shared.ModuleTag, request.shared.KatalogArt);
    const auto write = [&](const ScannedSeries& scanned) { list.Write(scanned); };
    if (!folder.Scan(index, request.hidden, write, error)) return false;
    if (writer.Finish()) return true;
    error = "the output cannot be written";
    return false;
}

}  // namespace

bool TakeInput(std::string_view argument, CapacityRequest& request, std::string& error) {
    const auto mark = argument.find('=');
    if (mark == std::string_view::npos) {
        error = "NAME=VALUE is expected: \"" + Excerpt(argument) + "\"";
        return false;
    }
    const std::string_view name = argument.substr(0, mark), value = argument.substr(mark + 1);
    if (name == "KaelteMittel") {
        request.shared.KaelteMittel = Trimmed(value);
        return true;
    }
    const NumberInput* input = NumberInputNamed(name);
    if (name != kLargestPressureDropName && (input == nullptr || name == "KatalogArt")) {
        error = "there is no input " + Excerpt(name);
        return false;
    }
    const auto number = NumberInCell(value);
    if (!number) {
        error = std::string(name) + ": no number: \"" + Excerpt(value) + "\"";
        return false;
    }
    if (input != nullptr) {
        SetInput(request.shared, *input, *number);
    } else {
        request.largest_pressure_drop = *number;
    }
    return true;
}

bool RunCapacity(const NamedFolder& data, const CapacityRequest& request, RowFormat format,
                 const RowStreams& streams, std::string& error) {
    const CatalogueFolder folder(data, streams.reports);
    CapacityRequest used = request;
    SetDefaultFactor(used.shared);
    if (!used.duties) return ListFigures(folder, used, format, streams, error);
    const auto calculation = MakeDutyCalculation(folder, used, error);
    return calculation && RunRows(*calculation, format, streams, error);
}

}  // namespace zandrell
