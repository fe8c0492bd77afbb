#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "command/command_line.h"

namespace zandrell {

// The options as they were typed; a decimal comma is as good as a point in them.
struct TypedOptions {
    std::string data, p, air, kind, size, zoom, convention, duties;
    std::array<std::string, kPairFigures> figures;  // of one state
    std::vector<std::string> inputs;
};

// Ends the reading of the command line with this reason.
[[noreturn]] void Refuse(const std::string& reason);

// The option of a figure of real air, --t-wet for t_wet.
std::string OptionOf(std::string_view figure);
bool HasEnding(std::string_view name, std::string_view ending);

// What was typed, as the verbs take it; all refuse what makes no sense. One state of the suite's or
// of real air is left out where nothing of it was typed, which asks for a table.
void TakeAir(const TypedOptions& typed, CommandLine& line);
void TakeConvention(const TypedOptions& typed, CommandLine& line);
void TakeChart(const TypedOptions& typed, ChartRequest& chart);
void TakeCapacity(const TypedOptions& typed, CapacityRequest& request);

}  // namespace zandrell
