#pragma once

namespace zandrell {

// The calculations that the main window shows (`Rechenmodus`). The numbers are those that dumps and
// the suite's files know.
enum class Calculation {
    None = 0,
    StateChange = 1,
    Capacity = 2,
    Mixing = 3,
    Plant = 5,
    Cooler = 12,
    Heater = 13,
    WaterHumidifier = 14,
    SteamHumidifier = 15
};

// The four apparatuses that work out the second of two states.
constexpr bool IsTool(Calculation mode) {
    switch (mode) {
        case Calculation::Cooler:
        case Calculation::Heater:
        case Calculation::WaterHumidifier:
        case Calculation::SteamHumidifier:
            return true;
        case Calculation::None:
        case Calculation::StateChange:
        case Calculation::Capacity:
        case Calculation::Mixing:
        case Calculation::Plant:
            break;
    }
    return false;
}

// Whether a mode works on the point panel with two states.
constexpr bool IsPointMode(Calculation mode) {
    return mode != Calculation::None && mode != Calculation::Plant;
}

// From where the drawing of two states takes them: from the fields, with the mixing point beside
// them, or one of them from the pointer read-out while its mark is carried (`marke`).
enum class MarkPlacing { FromFields = 1, WithMixture = 3, FirstCarried = 11, SecondCarried = 12 };

}  // namespace zandrell
