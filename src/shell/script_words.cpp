#include "shell/script_words.h"

#include <sstream>

#include "base/number_text.h"

namespace zandrell {

ScriptLine::ScriptLine(std::string_view line) : text(line) {
    std::istringstream stream{std::string(line)};
    for (std::string word; stream >> word;) words.push_back(word);
}

std::string ScriptLine::Value() const {
    const auto act = text.find_first_not_of(" \t");
    auto place = text.find_first_of(" \t", act);
    place = text.find_first_not_of(" \t", place);
    place = text.find_first_of(" \t", place);
    return place == std::string_view::npos ? std::string() : std::string(text.substr(place + 1));
}

std::string ScriptLine::BehindAct() const {
    const auto act = text.find_first_not_of(" \t");
    const auto end = text.find_first_of(" \t", act);
    const auto value = text.find_first_not_of(" \t", end);
    return value == std::string_view::npos ? std::string() : std::string(text.substr(value));
}

bool ReadNumber(const std::string& word, double& value) {
    const bool numeric =
        !word.empty() && word.find_first_not_of("0123456789.+-eE") == std::string::npos;
    if (numeric) value = ToDouble(word);
    return numeric;
}

bool ReadWhole(const std::string& word, int& value) {
    double number = 0;
    if (!ReadNumber(word, number)) return false;
    const auto rounded = RoundToInteger(number);
    if (!rounded) return false;
    value = *rounded;
    return true;
}

bool Refused(std::string& error, const std::string& reason) {
    error = reason;
    return false;
}

}  // namespace zandrell
