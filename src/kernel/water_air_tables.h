#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

namespace zandrell {

class StateTable;

inline constexpr int kCoefficientCount = 118;

// How the powers of X in the steam sums are had. With exponents that are whole numbers from 0 to 55
// every power is a product of two out of fifteen; any others are served by std::pow.
struct ExponentPlan {
    static constexpr std::uint8_t kExponentsEnd = 56;
    static constexpr std::uint8_t kNoTerm = kExponentsEnd;  // in the place of an exponent

    ExponentPlan() {
        for (auto* rows : {&z, &x}) {
            for (auto& row : *rows) row.fill(kNoTerm);
        }
    }

    bool whole_exponents = true;
    // The exponents of ExpZ and ExpX where there is a term; not the true ones when they are not
    // whole.
    std::array<std::array<std::uint8_t, 4>, 9> z, x;
};

// The coefficients of the water and air correlations as they stand in qvdata.dat: the constants of
// the 1967 IFC Formulation for Industrial Use in its own numbering, the start polynomial of the
// boiling temperature and the two specific heats.
struct WaterAirTables {
    std::array<double, 15> KSatt{};  // 1..9 saturation line, 10..14 start polynomial
    std::array<double, 3> LGrenz{};  // boundary line, a quadratic in theta
    std::array<std::array<double, 7>, 10>
        BWasser{};  // (mu, nu); row 0 ideal gas, row 9 boundary term
    std::array<std::array<double, 3>, 9> NennerWasser{};  // (mu, lambda), rows 6..8
    std::array<std::array<double, 4>, 9>
        ExpZ{};  // (mu, j), rows 1..8: number of terms, exponents of X
    std::array<std::array<double, 4>, 10>
        ExpX{};                       // (mu, j), rows 6..8: number of terms, exponents of X
    std::array<double, 9> CpDampf{};  // kJ/(kg K), polynomial in t degC, water vapour
    std::array<double, 9> CpLuft{};   // the same for dry air
    double ExpoB = 0;
    double IdealI1 = 0;
    double RefDruck = 0;      // Pa
    double RefVolumen = 0;    // m3/kg
    double RefTemp = 0;       // K
    double ReserveWertA = 0;  // read and without any effect
    double ReserveWertB = 0;

    ExponentPlan plan;  // follows ExpZ and ExpX, see PlanExponents
    // States by temperature, made by ReadWaterAirTables; null where only the formulas serve.
    std::shared_ptr<const StateTable> states;
    int numbers_read = 0;  // how many of the 118 numbers the text held

    // A table whose first coefficient is 0 counts as not loaded.
    bool Loaded() const { return KSatt[1] != 0; }
    bool Complete() const { return Loaded() && numbers_read == kCoefficientCount; }
};

// Reads the 118 numbers of qvdata.dat in their order. Elements that a short text does not reach
// stay 0.
WaterAirTables ReadWaterAirTables(std::string_view text);

// Brings `plan` in line with ExpZ and ExpX and drops `states`, which follow every coefficient;
// ReadWaterAirTables has done both. To be called after a change of any coefficient. The numbers of
// terms are rounded, and held to the three (two) that a row can take.
void PlanExponents(WaterAirTables& tables);

}  // namespace zandrell
