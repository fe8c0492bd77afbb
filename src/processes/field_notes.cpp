#include "processes/field_notes.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/unit_texts.h"

namespace zandrell {

TakenTexts::TakenTexts(std::initializer_list<const TextField*> fields) {
    texts_.reserve(fields.size());
    for (const TextField* field : fields) texts_.emplace_back(field, std::string());
}

void TakenTexts::Take(std::string besides) {
    for (auto& [field, text] : texts_) text = field->text;
    besides_ = std::move(besides);
    known_ = true;
}

bool TakenTexts::Hold(const std::string& besides) const {
    if (!known_ || besides_ != besides) return false;
    return std::all_of(texts_.begin(), texts_.end(),
                       [](const auto& taken) { return taken.first->text == taken.second; });
}

bool TakenTexts::Holds(const TextField& field) const {
    if (!known_) return true;
    return std::all_of(texts_.begin(), texts_.end(), [&field](const auto& taken) {
        return taken.first != &field || taken.second == field.text;
    });
}

void FieldNotes::MarkUsed(TextField& field) const {
    field.hint.clear();
    field.pending = false;
}

void FieldNotes::MarkRefused(TextField& field, const Refusal& refusal) const {
    field.pending = false;
    const std::string reason = FilledIn(captions_[refusal.reason], {refusal.least, refusal.most});
    field.hint = refusal.reason == Caption::CountsAs
                     ? reason
                     : FilledIn(captions_[Caption::NotUsed], {reason});
}

void FieldNotes::MarkPending(TextField& field) const {
    field.pending = true;
    field.hint = captions_[Caption::NotConfirmed];
}

void FieldNotes::MarkFigures(std::initializer_list<Control*> figures, bool stale) const {
    for (Control* figure : figures) {
        figure->stale = stale;
        figure->hint = stale ? captions_[Caption::OfEarlierInputs] : std::string();
    }
}

Refusal CountsAs(std::string_view percent) {
    return {Caption::CountsAs, std::string(percent).append(" %")};
}

std::optional<Refusal> AgainstNumber(const std::string& text) {
    if (text.find_first_not_of(' ') == std::string::npos) return Refusal{Caption::ValueMissing};
    if (text.find_first_of("0123456789") != std::string::npos) return std::nullopt;
    return Refusal{Caption::NotANumber};
}

std::optional<Refusal> AgainstTemperature(const std::string& text, const ChartSettings& settings) {
    if (auto refusal = AgainstNumber(text)) return refusal;
    const double t = ParsedNumber(text);
    if (t >= settings.ChartTMin && t <= settings.ChartTMax) return std::nullopt;
    return Refusal{Caption::OutsideChartRange, TrimmedNumberText(settings.ChartTMin),
                   TrimmedNumberText(settings.ChartTMax).append(" ").append(UnitDegC)};
}

std::optional<Refusal> AgainstHumidity(const std::string& text) {
    if (auto refusal = AgainstNumber(text)) return refusal;
    const double percent = ParsedNumber(text);
    if (percent > 0 && percent <= 100) return std::nullopt;
    if (percent == 0) return Refusal{Caption::AboveZero};
    return Refusal{Caption::OutsideLimits, "0", "100 %"};
}

std::optional<Refusal> AgainstFlow(const std::string& text) {
    if (auto refusal = AgainstNumber(text)) return refusal;
    if (ParsedNumber(text) > 0) return std::nullopt;
    return Refusal{Caption::AboveZero};
}

}  // namespace zandrell
