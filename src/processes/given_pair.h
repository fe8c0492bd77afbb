#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/captions.h"
#include "chart/chart_settings.h"
#include "kernel/real_air_pair.h"
#include "processes/field_notes.h"

// A state given by two of its figures as fields have them: texts in the units of the screen, which
// are those of AirFigure but per cent and hPa.
namespace zandrell {

struct FigurePair {
    AirFigure first, second;
};

// The pairs that are offered. That of the panel's own fields comes first.
std::span<const FigurePair> OfferedPairs();

Caption WordOf(AirFigure figure);
std::string_view UnitOf(AirFigure figure);

// Temperature and relative humidity of a state as the fields of a panel read.
struct StateTexts {
    std::string temperature, humidity;
    bool operator==(const StateTexts&) const = default;
};

struct PairTexts {
    std::string first, second;
    bool operator==(const PairTexts&) const = default;
};

// What fields show for the pair: temperature and humidity as they read, the others with the
// decimals of read-out and table. A figure is empty where the fields give no state on the chart.
PairTexts FiguresOf(FigurePair pair, const StateTexts& state, const ChartSettings& settings,
                    double p_bar);

// Either the state, or why one of the figures or both are not used: no number, or outside of what
// the chart has together with the first figure.
struct PairOutcome {
    std::optional<StateTexts> state{};
    std::optional<Refusal> first{}, second{};
};

// Temperature and humidity have four decimals, rounded upwards: figures that are cut for the screen
// then show what was given and not one unit less.
PairOutcome StateFromPair(FigurePair pair, const PairTexts& given, const ChartSettings& settings,
                          double p_bar);

}  // namespace zandrell
