#pragma once

#include <sstream>
#include <string>

#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "shell/form_script.h"

namespace zandrell::fuzz {

// Runs the first lines of an input; more would only be slower than another input. Lines that read a
// file of the machine are left out. Each is done or says why not.
inline void RunLines(FormScript& script, const std::string& input) {
    constexpr int kMostLines = 8;
    std::istringstream lines(DecodeText(input));
    int count = 0;
    for (std::string line; std::getline(lines, line) && ++count <= kMostLines;) {
        if (line.find("fill") != std::string::npos) continue;
        std::string error;
        const bool done = script.RunLine(line, error);
        Require(done || !error.empty());
    }
}

}  // namespace zandrell::fuzz
