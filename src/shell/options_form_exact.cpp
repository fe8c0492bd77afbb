#include <algorithm>

#include "base/number_text.h"
#include "base/unit_texts.h"
#include "kernel/air_state.h"
#include "kernel/real_air.h"
#include "shell/options_form.h"

// What the settings refuse under Exact beyond the suite's tests.
namespace zandrell {
namespace {

// Water boils at 46 degC there; below, a chart of the usual temperatures has no curves any more.
constexpr double kLeastPressureBar = 0.1;
constexpr std::string_view kRatioUnit = "g/kg";
constexpr double kLeastSpan = 1;  // g/kg from the lowest to the highest humidity ratio

std::optional<Refusal> Outside(double value, double least, double most, std::string_view unit) {
    if (value >= least && value <= most) return std::nullopt;
    return Refusal{Caption::OutsideLimits, TrimmedNumberText(least),
                   TrimmedNumberText(most).append(" ").append(unit)};
}

}  // namespace

std::optional<Refusal> OptionsForm::ExactRefusalOf(const TextField& field) const {
    // The one of the two that was typed last gives the pressure.
    if (&field == (HeightCounts() ? &absD : &geoH)) return std::nullopt;
    if (auto refusal = AgainstNumber(field.text)) return refusal;
    const double value = ParsedNumber(field.text);
    if (&field == &absD) {
        return Outside(value, kLeastPressureBar, kHighestPressureBar, UnitBar);
    }
    if (&field == &geoH && !(value > kLowestHeight && value < kHighestHeight)) {
        return Outside(value, kLowestHeight + 1, kHighestHeight - 1, UnitM);
    }
    constexpr double kMostXMin = kRealAirMostX - kLeastSpan;
    if (&field == &Xmini && value > kMostXMin) return Outside(value, 0, kMostXMin, kRatioUnit);
    if (&field == &Xmaxi) {
        const double x_min = std::min(ParsedNumber(Xmini.text), kMostXMin);
        return Outside(value, x_min + kLeastSpan, kRealAirMostX, kRatioUnit);
    }
    return std::nullopt;
}

bool OptionsForm::PassesExactTests() {
    const FieldNotes notes(captions_);
    std::string message;
    for (const auto& [field, label] : {std::pair{&absD, &pressure_label},
                                       {&geoH, &height_label},
                                       {&qvTmind, &tmin_label},
                                       {&qvtmaxi, &tmax_label},
                                       {&Xmini, &xmin_label},
                                       {&Xmaxi, &xmax_label}}) {
        field->hint.clear();
        const auto refusal = ExactRefusalOf(*field);
        if (!refusal) continue;
        notes.MarkRefused(*field, *refusal);
        if (!message.empty()) message += "\n";
        message.append(label->text).append(" ").append(field->hint);
    }
    if (message.empty()) return true;
    user_.ShowMessage({shared_.AppTitle, message, MessageIcon::Stop});
    return false;
}

}  // namespace zandrell
