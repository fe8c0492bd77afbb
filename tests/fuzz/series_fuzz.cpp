// Records of any bytes get their texts, and their figures at operating points of any numbers.
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "selection/series_reader.h"
#include "selection/unit_figures.h"

namespace {

using namespace zandrell;

SelectionInputs SensiblePoint() {
    SelectionInputs shared;
    shared.QoSoll = 20;
    shared.KatBezug = 1200;
    shared.LeistFaktor = 0.9;
    shared.LiefergradBezug = 0.8;
    shared.MassenStrom = 0.1;
    shared.KaelteMittel = "R22";
    shared.DruckPo = 2;
    shared.DruckPc = 12;
    shared.Label26 = 90;
    return shared;
}

// The first bytes of the input as numbers, whatever they are.
SelectionInputs PointOf(std::string_view bytes) {
    SelectionInputs shared;
    double* numbers[] = {&shared.QoSoll,          &shared.KatBezug,    &shared.LeistFaktor,
                         &shared.LiefergradBezug, &shared.MassenStrom, &shared.DruckPo,
                         &shared.DruckPc,         &shared.Label26};
    for (double* number : numbers) {
        if (bytes.size() < sizeof(double)) break;
        std::memcpy(number, bytes.data(), sizeof(double));
        bytes.remove_prefix(sizeof(double));
    }
    shared.KaelteMittel = std::string(bytes.substr(0, 4));
    return shared;
}

// One kind of each family.
constexpr std::array kKinds = {100, 150, 250, 550, 600, 650};

void Calculate(const std::vector<UnitNumbers>& units, SelectionInputs shared) {
    for (const int kind : kKinds) {
        shared.KatalogArt = kind;
        UnitFigures figures;
        for (const auto& unit : units) {
            CalculateUnit(unit, shared, figures);
            fuzz::Require(std::isfinite(figures.Q) && std::isfinite(figures.pressure_drop));
            fuzz::Require(std::isfinite(figures.opening) && std::isfinite(figures.class_ratio));
            EfficiencyClass(FamilyOf(kind), figures.class_ratio);
        }
    }
}

void ReadTexts(const KatalogSatz& record) {
    for (std::size_t i = 0; i < kKatalogFelder; ++i) {
        const auto field = static_cast<KatalogFeld>(i);
        fuzz::Require(record[field].size() <= PlaceOf(field).width);
        // A text that is no UTF-8 would be decoded once more, and so change.
        const std::string text = record.Text(field);
        fuzz::Require(DecodeText("x" + text) == "x" + text);
        const std::string stored = record.StoredText(field);
        fuzz::Require(DecodeText("x" + stored) == "x" + stored);
        fuzz::Require(std::isfinite(record.Number(field)));
    }
    fuzz::Require(record.IsEndMark() == ReadUnit(record).IsEndMark());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzz::Bytes(data, size);
    const Serie series{bytes};
    const int units = series.Units();
    fuzz::Require(units >= 0 && units <= Serie::kUnits);
    std::vector<UnitNumbers> numbers;
    for (int i = 1; i <= units + 1; ++i) {
        ReadTexts(series.Satz(i));
        numbers.push_back(ReadUnit(series.Satz(i)));
    }
    Calculate(numbers, SensiblePoint());
    Calculate(numbers, PointOf(bytes));
    return 0;
}
