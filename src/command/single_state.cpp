#include "command/single_state.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "command/table_cells.h"
#include "kernel/humid_air_state.h"

namespace zandrell {
namespace {

struct Quantity {
    std::string_view words, unit;
    bool may_lack = false;
};

constexpr std::array<Quantity, 3> kGiven{
    {{"Temperature", "degC"}, {"Relative humidity", "%"}, {"Total pressure", "bar"}}};
// Those of the suite, then those of real air; the point, which stands above them, has no words.
constexpr std::array<Quantity, kRealAirResults> kFound{
    {{"Humidity ratio", "g/kg dry air"},
     {"Enthalpy", "kJ/kg dry air"},
     {"Enthalpy of the dry air", "kJ/kg dry air"},
     {"Partial pressure of the dry air", "Pa"},
     {"Partial pressure of the vapour", "Pa"},
     {"Density", "kg/m3"},
     {"Density of dry air", "kg/m3"},
     {"Boiling temperature of water", "K"},
     {},
     {},
     {"Dew or frost point", "degC", true},
     {"Wet bulb", "degC", true},
     {"Wet bulb not iced", "degC", true},
     {"Specific volume", "m3/kg dry air"},
     {"Enhancement factor", "", true}}};
constexpr std::size_t kNameWidth = 32, kValueWidth = 13;

std::string SevenDigits(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::general, 7)
                         .ptr;
    return {digits.data(), end};
}

void AppendRow(std::string& text, const Quantity& quantity, std::optional<double> value) {
    const std::string digits = value ? SevenDigits(*value) : "-";
    text += quantity.words;
    text.append(kNameWidth - quantity.words.size(), ' ');
    text.append(kValueWidth - std::min(digits.size(), kValueWidth), ' ');
    text += digits;
    if (!quantity.unit.empty()) text.append("  ").append(quantity.unit);
    text += '\n';
}

void AddRow(std::size_t place, std::optional<double> value, StateSheet& sheet) {
    const auto& [words, unit, may_lack] = kFound[place];
    sheet.rows.push_back({kRealAirResultNames[place], words, unit, value, may_lack});
}

StateSheet SheetOf(const StateQuestion& point, const RealAirResults& results, std::string& remark) {
    StateSheet sheet{point, {}, std::exchange(remark, {})};
    sheet.rows.reserve(results.size());
    for (std::size_t i = 0; i < results.size(); ++i) AddRow(i, results[i], sheet);
    return sheet;
}

}  // namespace

std::optional<StateSheet> SuiteSheet(const WaterAirTables& tables, StateQuestion question,
                                     std::string& reason) {
    ClampQuestion(question);
    const double relF = question.rh / 100;
    if (!WithinLimits(relF, question.t, question.p)) {
        reason = NoStateReason(question.t, question.p);
        return std::nullopt;
    }
    const auto results =
        ResultsOf(EvaluateAt(tables, EvaluatePressure(tables, question.p), relF, question.t));
    StateSheet sheet{question, {}};
    sheet.rows.reserve(results.size());
    for (std::size_t i = 0; i < results.size(); ++i) {
        AddRow(i, std::isfinite(results[i]) ? std::optional(results[i]) : std::nullopt, sheet);
    }
    return sheet;
}

std::optional<StateSheet> ExactSheet(StateSolver& solver, StateQuestion question,
                                     std::string& reason) {
    RealAirResults results;
    if (!FindExactAir(solver, question, results, reason)) return std::nullopt;
    const bool beyond = !results.Of(RealAirResult::Enhancement);
    if (beyond && reason.empty()) {
        reason =
            "beyond -60..100 degC, 0.5..2 bar and 10 kg/kg real air is continued by the ideal "
            "mixture";
    }
    return SheetOf(question, results, reason);
}

std::optional<StateSheet> RealSheet(const GivenFigures& given, double p_bar, std::string& reason) {
    RealAirResults results;
    if (!FindRealAir(given, p_bar, results, reason)) return std::nullopt;
    const double t = results.Of(RealAirResult::Temperature).value_or(0);
    const double rh = results.Of(RealAirResult::RelativeHumidity).value_or(0);
    return SheetOf({t, rh, p_bar}, results, reason);
}

std::string SheetAsTable(const StateSheet& sheet) {
    std::string text;
    const std::array<double, kGiven.size()> given{sheet.point.t, sheet.point.rh, sheet.point.p};
    for (std::size_t i = 0; i < given.size(); ++i) AppendRow(text, kGiven[i], given[i]);
    for (const auto& row : sheet.rows) {
        const bool shown = !row.words.empty() && (row.value || !row.may_lack);
        if (shown) AppendRow(text, {row.words, row.unit}, row.value);
    }
    return text;
}

std::string SheetAsJson(const StateSheet& sheet) {
    std::string text;
    char mark = '{';
    const auto member = [&](std::string_view name, std::optional<double> value) {
        text += mark;
        text.append("\"").append(name).append("\":");
        if (value) {
            AppendNumber(text, *value);
        } else {
            text += "null";
        }
        mark = ',';
    };
    member("t", sheet.point.t);
    member("rh", sheet.point.rh);
    member("p", sheet.point.p);
    for (const auto& row : sheet.rows) member(row.column, row.value);
    return text + "}\n";
}

}  // namespace zandrell
