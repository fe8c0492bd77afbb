#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zandrell {

// The file by which another module of the suite starts this one with data, and in which this one
// reports back.
inline constexpr std::string_view kHandOverFile = "ZANDData.dat";

// Two isotherms that a sibling module wants to see on the chart.
struct TemperatureLine {
    double temperature = 0;  // degC
    std::string text;        // at the end of the line
};
using TemperatureLines = std::array<TemperatureLine, 2>;

// What a sibling module hands over.
struct HandOver {
    bool waiting = false;  // a flag of 0: nothing is handed over, and the rest means nothing
    int kind = 0;          // ProjektArt
    std::string file;      // ProjektFeldDatei
    TemperatureLines lines;
    std::string title, remark, project_text;
    std::string cooler_word;  // empty: the word of the captions stays
    std::string window_title;
    double pressure_bar = 0;  // 0: none
};

// Takes any text: an item that lacks is empty or 0. A file that is no working state of its own
// counts as QV_ACT.dat. Of a kind that takes no items only the kind is read.
HandOver ReadHandOver(std::string_view text);

// Whether a sibling module may name this file as the working state: a bare name ending in ".dat"
// that is none of the suite's own settings. It may be deleted and written, so nothing else will do.
bool IsWorkingStateName(std::string_view name);

// The file when nothing is handed over.
std::string EmptyHandOver();

// What this module reports back.
struct Report {
    std::string project_file, project_folder, working_state_file;
    double first_temperature = 0, second_temperature = 0;  // degC
    std::string cooler_duty;
    std::string title, remark, project_text, module_tag, language_tag;
};
std::string ReportText(const Report& report);

}  // namespace zandrell
