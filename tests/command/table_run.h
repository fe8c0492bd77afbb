#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "command/verbs.h"

namespace zandrell::command_test {

struct TableRun {
    bool done = false;
    std::string output, reports, error;
};

// Runs a table verb in memory; the input comes in pieces of `piece` bytes.
inline TableRun RunTable(const CommandLine& line, const std::string& table,
                         std::size_t piece = 1000) {
    TableRun run;
    RowStreams streams;
    streams.input = [&table, piece, place = std::size_t{0}](std::span<char> block) mutable {
        const std::size_t count = std::min({block.size(), piece, table.size() - place});
        std::copy_n(table.data() + place, count, block.data());
        place += count;
        return std::optional(count);
    };
    streams.output = [&run](std::string_view bytes) { return run.output.append(bytes), true; };
    streams.reports = [&run](std::string_view bytes) { return run.reports.append(bytes), true; };
    run.done = (line.verb == Verb::Invert ? RunInvert : RunState)(line, streams, run.error);
    return run;
}

inline CommandLine StateLine(AirChoice air = AirChoice::Suite) {
    CommandLine line;
    line.data = ZANDRELL_STAGED_DATA;
    line.air = air;
    return line;
}

inline CommandLine InvertLine(const std::string& search) {
    CommandLine line = StateLine();
    line.verb = Verb::Invert;
    line.search = search;
    return line;
}

inline std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

// The last cells of a row without quotes in them, as numbers.
inline std::vector<double> LastNumbers(const std::string& row, std::size_t count) {
    std::vector<double> numbers;
    std::istringstream stream(row);
    for (std::string cell; std::getline(stream, cell, ',');) {
        numbers.push_back(cell.empty() ? -1e9 : std::stod(cell));
    }
    if (row.ends_with(',')) numbers.push_back(-1e9);
    if (numbers.size() < count) return std::vector<double>(count, -1e9);
    return {numbers.end() - static_cast<std::ptrdiff_t>(count), numbers.end()};
}

}  // namespace zandrell::command_test
