#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zandrell {

// A state of the process in force.
struct ProcessState {
    std::string name;
    double t = 0;  // degC
    double x = 0;  // g/kg
    // Where the process has figures of its own: kJ/kg, and the relative humidity in per cent.
    std::optional<double> h{}, percent{};
    std::optional<double> flow = {};  // m3/h, where it is given there
    std::optional<double> dry_air{};  // kg/h
    // What brings the air there from the state before, in kW and kg/h: positive what the air is
    // given, negative what is taken from it. With the digits that the panel shows; empty where
    // neither the panel nor the balance in force has a figure.
    std::string capacity{}, water{};
};

// In the order of the air's way; empty where the figures shown are not of the inputs shown.
using ProcessStates = std::vector<ProcessState>;

// The number at the start of a figure, without its unit; empty where none stands there.
std::string FigureAlone(const std::string& text);

}  // namespace zandrell
