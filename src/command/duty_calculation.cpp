#include "command/duty_calculation.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/text_encoding.h"
#include "selection/duty_choice.h"

namespace zandrell {
namespace {

enum Column : std::size_t { kSeries, kUnit, kFigure, kClass, kColumns };

struct Unit {
    std::string name;
    UnitNumbers numbers;
};

struct Series {
    std::size_t maker = 0;
    std::string name;
    std::vector<Unit> units;
};

// The best unit of a maker for the duty in hand.
struct Choice {
    double surplus = std::numeric_limits<double>::infinity();
    double figure = 0;
    std::array<std::string, kColumns> texts;
};

std::string UnitName(const KatalogSatz& record) {
    return Trimmed(record.Text(KatalogFeld::KatTyp) + " " + record.Text(KatalogFeld::KatTyp2));
}

class DutyCalculation : public RowCalculation {
  public:
    explicit DutyCalculation(const CapacityRequest& request) : request_(request) {
        const auto has_capacity = [](KatalogFamilie family) {
            return family != KatalogFamilie::RegulatingComponents &&
                   family != KatalogFamilie::LineComponents;
        };
        family_ = FamilyOf(request.shared.KatalogArt);
        by_capacity_ = has_capacity(family_);
        for (const auto& input : kNumberInputs) {
            columns_.push_back({input.name, ColumnNeed::NumberMayLack});
        }
        columns_.push_back({kLargestPressureDropName, ColumnNeed::NumberMayLack});
        columns_.push_back({"KaelteMittel", ColumnNeed::Text});
    }

    void Take(const ScannedSeries& scanned) {
        const std::string text = Trimmed(scanned.line.SerieText);
        Series series{PlaceOfMaker(std::string(MakerOf(text))), SeriesNameOf(text), {}};
        const int units = scanned.serie.Units();
        for (int i = 1; i <= units; ++i) {
            const KatalogSatz record = scanned.serie.Satz(i);
            series.units.push_back({UnitName(record), ReadUnit(record)});
        }
        series_.push_back(std::move(series));
    }

    void NameResults() {
        const char* figure = by_capacity_ ? "_capacity_kw" : "_pressure_drop_mbar";
        for (const auto& maker : makers_) {
            for (const char* column : {"_series", "_unit", figure, "_class"}) {
                names_.push_back(maker + column);
            }
        }
        result_names_.assign(names_.begin(), names_.end());
    }

    std::span<const InputColumn> Inputs() const override { return columns_; }
    std::span<const std::string_view> Results() const override { return result_names_; }

    void Calculate(std::span<const std::optional<double>> inputs,
                   std::span<std::optional<double>> results, std::string& reason) override {
        choices_.assign(makers_.size(), {});
        CapacityRequest duty = request_;
        TakeNumbers(inputs, duty);
        if (refrigerant_) duty.shared.KaelteMittel = *refrigerant_;
        refrigerant_.reset();
        reason = MissingInput(duty.shared);
        if (reason.empty()) reason = MissingDuty(duty);
        if (!reason.empty()) return;
        for (const auto& series : series_) Choose(series, duty);
        for (std::size_t i = 0; i < choices_.size(); ++i) {
            results[i * kColumns + kFigure] = choices_[i].figure;
        }
    }

    void TakeText(std::size_t /*input*/, std::string_view text) override {
        if (!Trimmed(text).empty()) refrigerant_ = Trimmed(text);
    }

    const std::string* TextResult(std::size_t result) const override {
        const Choice& choice = choices_[result / kColumns];
        const bool is_number = result % kColumns == kFigure && !choice.texts[kUnit].empty();
        return is_number ? nullptr : &choice.texts[result % kColumns];
    }

  private:
    std::size_t PlaceOfMaker(const std::string& maker) {
        const auto found = std::find(makers_.begin(), makers_.end(), maker);
        if (found != makers_.end()) return static_cast<std::size_t>(found - makers_.begin());
        makers_.push_back(maker);
        return makers_.size() - 1;
    }

    static void TakeNumbers(std::span<const std::optional<double>> inputs, CapacityRequest& duty) {
        for (std::size_t i = 0; i < kNumberInputs.size(); ++i) {
            if (inputs[i]) SetInput(duty.shared, kNumberInputs[i], *inputs[i]);
        }
        if (const auto limit = inputs[kNumberInputs.size()]) duty.largest_pressure_drop = *limit;
    }

    std::string MissingDuty(const CapacityRequest& duty) const {
        // The catalogue in hand is that of one kind.
        if (duty.shared.KatalogArt != request_.shared.KatalogArt) {
            return "KatalogArt is another one than that of the command";
        }
        if (by_capacity_ && !(TargetCapacity(duty.shared) > 0)) {
            return family_ == KatalogFamilie::Condensers ? "KatBezug must be above 0"
                                                         : "QoSoll must be above 0";
        }
        const bool by_limit = family_ == KatalogFamilie::LineComponents;
        if (by_limit && !(duty.largest_pressure_drop > 0)) {
            return std::string(kLargestPressureDropName) + " must be above 0";
        }
        return {};
    }

    void Choose(const Series& series, CapacityRequest& duty) {
        Choice& choice = choices_[series.maker];
        UnitFigures figures;
        for (const auto& unit : series.units) {
            CalculateUnit(unit.numbers, duty.shared, figures);
            const auto surplus =
                Surplus(unit.numbers, figures, duty.shared, duty.largest_pressure_drop);
            if (!surplus || *surplus >= choice.surplus) continue;
            choice.surplus = *surplus;
            choice.figure = by_capacity_ ? figures.Q : figures.pressure_drop;
            choice.texts = {series.name, unit.name, "",
                            std::string(EfficiencyClass(family_, figures.class_ratio))};
        }
    }

    CapacityRequest request_;
    KatalogFamilie family_ = KatalogFamilie::Unknown;
    bool by_capacity_ = true;
    std::vector<InputColumn> columns_;
    std::vector<std::string> makers_, names_;
    std::vector<std::string_view> result_names_;
    std::vector<Series> series_;
    std::optional<std::string> refrigerant_;
    std::vector<Choice> choices_;
};

}  // namespace

std::unique_ptr<RowCalculation> MakeDutyCalculation(const CatalogueFolder& folder,
                                                    const CapacityRequest& request,
                                                    std::string& error) {
    auto calculation = std::make_unique<DutyCalculation>(request);
    const std::string index = KatalogIndex(request.shared.ModuleTag, request.shared.KatalogArt);
    const auto take = [&](const ScannedSeries& scanned) { calculation->Take(scanned); };
    if (!folder.Scan(index, request.hidden, take, error)) return nullptr;
    calculation->NameResults();
    return calculation;
}

}  // namespace zandrell
