#pragma once

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

// A source file below src/ as the rules of the house see it.
struct SourceText {
    std::filesystem::path path;  // from src/ on, "chart/overlay.h"
    std::string text;

    // The room that it stands in, also when a folder lies between.
    std::string Room() const { return path.begin()->string(); }
};

// Every file below src/ that a compiler may come to see.
std::vector<SourceText> AllSources();

// The text without comments and with continued lines joined.
std::string CodeOf(std::string_view text);

// What breaks the rules in one file, each breach one line of text; empty when it keeps them.
std::vector<std::string> IncludeBreaches(const SourceText& source);
std::vector<std::string> NumberBreaches(const SourceText& source);

// The exceptions from the number rule that no file makes use of.
std::vector<std::string> UnusedNumberExceptions(const std::vector<SourceText>& sources);

}  // namespace zandrell
