#pragma once

#include <optional>

#include "selection/selection_inputs.h"

namespace zandrell {

// What the inverter panel shows after a change of the frequency. A figure that is empty could not
// be formed: its label keeps its text. Colours are palette numbers.
struct InverterFigures {
    static constexpr int kGreen = 10, kRed = 12, kYellow = 14, kWhite = 15;

    std::optional<double> Label25;  // m3/h, two decimals
    std::optional<double> Label28;  // electric figure, two decimals
    int label25_back = kWhite;
    int label27_back = kWhite;
    // By the slider alone:
    std::optional<double> Label1;  // kW at the frequency, two decimals
    std::optional<int> label37_back;
};

// The slider stands at `position` Hz. Rescales the chosen compressor from 50 Hz to that; sets
// BetriebsFreq, QoFreq, Label25 and, when it was not set, InverterNetzFreq to 50.
InverterFigures inverter_rech(int position, SelectionInputs& shared);

// A frequency in Hz was typed. Empty, and nothing changed, unless it lies between 0 and 100. The
// ratio is that of the mains to the frequency, the other way round than by the slider, and the
// electric figure has no factor: a slider is moved to try a speed, a frequency is typed from the
// plate of a machine. Sets BetriebsFreq, Label25 and, when the inverter
// has a mains frequency, `MainsFrequency` in Hz.
std::optional<InverterFigures> TypedFrequency(double frequency, SelectionInputs& shared,
                                              double& MainsFrequency);

}  // namespace zandrell
