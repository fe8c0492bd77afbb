#include "command/single_state.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "command/row_calculations.h"
#include "command/table_cells.h"
#include "kernel/humid_air_state.h"

namespace zandrell {
namespace {

struct Quantity {
    std::string_view name, unit;
};

constexpr std::array<Quantity, 3> kGiven{
    {{"Temperature", "degC"}, {"Relative humidity", "%"}, {"Total pressure", "bar"}}};
constexpr std::array<Quantity, kStateResults> kFound{{{"Humidity ratio", "g/kg dry air"},
                                                      {"Enthalpy", "kJ/kg dry air"},
                                                      {"Enthalpy of the dry air", "kJ/kg dry air"},
                                                      {"Partial pressure of the dry air", "Pa"},
                                                      {"Partial pressure of the vapour", "Pa"},
                                                      {"Density", "kg/m3"},
                                                      {"Density of dry air", "kg/m3"},
                                                      {"Boiling temperature of water", "K"}}};
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
    text += quantity.name;
    text.append(kNameWidth - quantity.name.size(), ' ');
    text.append(kValueWidth - std::min(digits.size(), kValueWidth), ' ');
    text.append(digits).append("  ").append(quantity.unit).append("\n");
}

// What of a state is a finite number.
using FoundResults = std::array<std::optional<double>, kStateResults>;

// Replaces humidity and pressure in the question by those that were used.
bool FindState(const WaterAirTables& tables, StateQuestion& question, FoundResults& found,
               std::string& reason) {
    double relF = question.rh / 100;
    ClampArguments(relF, question.p);
    if (!WithinLimits(relF, question.t, question.p)) {
        reason = NoStateReason(question.t, question.p);
        return false;
    }
    if (relF != question.rh / 100) question.rh = relF * 100;
    const auto results =
        ResultsOf(EvaluateAt(tables, EvaluatePressure(tables, question.p), relF, question.t));
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (std::isfinite(results[i])) found[i] = results[i];
    }
    return true;
}

}  // namespace

bool StateAsTable(const WaterAirTables& tables, const StateQuestion& question, std::string& text,
                  std::string& reason) {
    StateQuestion used = question;
    FoundResults results;
    if (!FindState(tables, used, results, reason)) return false;
    const std::array<double, kGiven.size()> given{used.t, used.rh, used.p};
    for (std::size_t i = 0; i < given.size(); ++i) AppendRow(text, kGiven[i], given[i]);
    for (std::size_t i = 0; i < results.size(); ++i) AppendRow(text, kFound[i], results[i]);
    return true;
}

bool StateAsJson(const WaterAirTables& tables, const StateQuestion& question, std::string& text,
                 std::string& reason) {
    StateQuestion used = question;
    FoundResults results;
    if (!FindState(tables, used, results, reason)) return false;
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
    member("t", used.t);
    member("rh", used.rh);
    member("p", used.p);
    for (std::size_t i = 0; i < results.size(); ++i) member(kStateResultNames[i], results[i]);
    text += "}\n";
    return true;
}

bool RealStateAsTable(const GivenFigures& given, double p_bar, std::string& text,
                      std::string& reason) {
    RealAirResults results;
    if (!FindRealAir(given, p_bar, results, reason)) return false;
    AppendRow(text, kGiven.back(), p_bar);
    for (std::size_t i = 0; i < results.size(); ++i) {
        const auto& [column, words, unit] = kRealAirResultNames[i];
        if (results[i]) AppendRow(text, {words, unit}, results[i]);
    }
    return true;
}

bool RealStateAsJson(const GivenFigures& given, double p_bar, std::string& text,
                     std::string& reason) {
    RealAirResults results;
    if (!FindRealAir(given, p_bar, results, reason)) return false;
    text += "{\"p\":";
    AppendNumber(text, p_bar);
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (!results[i]) continue;
        text.append(",\"").append(kRealAirResultNames[i].column).append("\":");
        AppendNumber(text, *results[i]);
    }
    text += "}\n";
    return true;
}

}  // namespace zandrell
