#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

// One line of a script.
struct ScriptLine {
    explicit ScriptLine(std::string_view line);

    std::string_view text;
    std::vector<std::string> words;

    // What stands behind the first two words: a value runs to the end of the line.
    std::string Value() const;
    // What stands behind the first word.
    std::string BehindAct() const;
};

// False when the word is no number, or no whole one.
bool ReadNumber(const std::string& word, double& value);
bool ReadWhole(const std::string& word, int& value);

// Sets the reason and answers false.
bool Refused(std::string& error, const std::string& reason);

}  // namespace zandrell
