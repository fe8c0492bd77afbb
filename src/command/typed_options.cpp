#include "command/typed_options.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "canvas/canvas.h"
#include "command/table_cells.h"
#include "selection/catalogue.h"

namespace zandrell {

void Refuse(const std::string& reason) { throw std::invalid_argument(reason); }

std::string OptionOf(std::string_view figure) {
    std::string option = "--" + std::string(figure);
    std::replace(option.begin(), option.end(), '_', '-');
    return option;
}

bool HasEnding(std::string_view name, std::string_view ending) {
    return name.size() > ending.size() &&
           EqualIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

namespace {

double NumberOf(const std::string& option, const std::string& text) {
    const auto number = NumberInCell(text);
    if (!number) Refuse(option + ": no number: \"" + Excerpt(text) + "\"");
    return *number;
}

std::vector<double> NumbersOf(const std::string& option, const std::string& text, char separator) {
    std::vector<double> numbers;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        numbers.push_back(NumberOf(option, part));
    }
    return numbers;
}

// Two of the figures, or none for a table.
void TakeState(const TypedOptions& typed, CommandLine& line) {
    StateOptions state;
    std::size_t count = 0;
    for (std::size_t i = 0; i < kPairFigures; ++i) {
        const std::string& text = typed.figures[i];
        if (text.empty()) continue;
        const std::string option = OptionOf(kPairFigureNames[i].name);
        if (i > 1 && line.air == AirChoice::Suite) Refuse(option + " needs --air real");
        state.given[i] = NumberOf(option, text);
        ++count;
    }
    if (count == 0 && typed.p.empty()) return;
    if (count != 2) {
        if (count == 0) Refuse("--p belongs to one state, and a table has a column p");
        Refuse(line.air == AirChoice::Suite
                   ? "one state needs both --t and --rh"
                   : "one state needs two figures, such as --t and --rh or --t and --t-wet");
    }
    if (!typed.p.empty()) state.p = NumberOf("--p", typed.p);
    line.state = state;
}

int SideOf(double pixels) {
    if (!(pixels >= 1 && pixels <= kLargestPictureSide) || pixels != std::floor(pixels)) {
        Refuse("--size: each side has 1 to " + std::to_string(kLargestPictureSide) +
               " whole pixels");
    }
    return static_cast<int>(pixels);
}

void TakeSize(const std::string& text, ChartRequest& chart) {
    const auto sides = NumbersOf("--size", text, 'x');
    if (sides.size() != 2) Refuse("--size: WIDTHxHEIGHT in pixels, as in 1600x900");
    chart.width = SideOf(sides[0]);
    chart.height = SideOf(sides[1]);
}

void TakeZoom(const std::string& text, ChartRequest& chart) {
    const auto frame = NumbersOf("--zoom", text, ',');
    if (frame.size() != 4) Refuse("--zoom: LEFT,TOP,WIDTH,HEIGHT in canvas units");
    // As narrow or as far out as nobody can draw it with the pointer.
    constexpr double kFarthest = 32767;
    if (!(frame[2] >= 1 && frame[3] >= 1)) Refuse("--zoom: width and height are 1 or more");
    if (std::any_of(frame.begin(), frame.end(), [](double f) { return std::abs(f) > kFarthest; })) {
        Refuse("--zoom: the frame lies far outside the chart");
    }
    chart.zoom = ZoomFrame{frame[0], frame[1], frame[2], frame[3]};
}

}  // namespace

void TakeAir(const TypedOptions& typed, CommandLine& line) {
    if (!typed.air.empty()) line.air = typed.air == "real" ? AirChoice::Real : AirChoice::Suite;
    TakeState(typed, line);
}

void TakeConvention(const TypedOptions& typed, CommandLine& line) {
    if (typed.convention.empty()) return;
    line.convention = typed.convention == "exact" ? Convention::Exact : Convention::Suite;
}

void TakeChart(const TypedOptions& typed, ChartRequest& chart) {
    const auto ends = [&](std::string_view ending) { return HasEnding(chart.output, ending); };
    if (!ends(".svg") && !ends(".png") && !ends(".pdf")) {
        Refuse(chart.output + ": a chart file ends in .svg, .png or .pdf");
    }
    if (!typed.kind.empty()) chart.kind = typed.kind == "carrier" ? kCarrier : kMollier;
    if (!typed.size.empty()) TakeSize(typed.size, chart);
    if (!typed.zoom.empty()) TakeZoom(typed.zoom, chart);
}

void TakeCapacity(const TypedOptions& typed, CapacityRequest& request) {
    std::string error;
    for (const auto& input : typed.inputs) {
        if (!TakeInput(input, request, error)) Refuse(error);
    }
    if (FamilyOf(request.shared.KatalogArt) == KatalogFamilie::Unknown) {
        Refuse("there is no kind " + std::to_string(request.shared.KatalogArt));
    }
    if (!typed.duties.empty()) request.duties = typed.duties;
}

}  // namespace zandrell
