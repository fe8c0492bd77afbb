#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace zandrell {

struct WaterAirTables;

// What of a state below boiling depends on the temperature alone, and the boiling temperature by
// pressure, as polynomials in short cells: Chebyshev interpolation of the formulas, some 1E-13 off.
// A state costs a tenth of the formulas then. Cells in which the coefficients of a file make
// anything that a polynomial does not follow are left out, and the formulas serve there.
class StateTable {
  public:
    static constexpr double kLowest = -50, kHighest = 118;  // degC
    static constexpr std::size_t kSteamTerms = 6;

    struct Entry {
        double saturated_density = 0;  // kg/m3
        double mean_heat_of_air = 0;   // kJ/(kg K), from 0 degC
        double vapour_enthalpy = 0;    // kJ/kg, by the specific heat, without the latent heat
        // Enthalpy of steam in kJ/kg as a polynomial in the relative humidity: the steam equations
        // are one in the pressure, up to a remainder below 1E-15 at these pressures.
        std::array<double, kSteamTerms> steam{};
    };

    // Requires: exponents planned.
    explicit StateTable(const WaterAirTables& tables);

    // t in degC; not-a-number is not covered.
    bool Covers(double t) const {
        return t >= kLowest && t < kHighest && cells_[CellOf(t)].covered;
    }
    // Requires: Covers(t).
    inline Entry At(double t) const;
    // The density alone, to the last digit as At gives it.
    inline double SaturatedDensity(double t) const;

    // Whether BoilingTemperature (K) has an answer for p_bar.
    bool CoversPressure(double p_bar) const {
        const std::size_t cell = PressureCellOf(p_bar);
        return cell < kPressureCells && pressures_[cell].covered;
    }
    inline double BoilingTemperature(double p_bar) const;

  private:
    static constexpr std::size_t kCells = 168, kDegree = 5;
    static constexpr double kCellWidth = (kHighest - kLowest) / kCells;
    static constexpr std::size_t kQuantities = 10;  // one is spare, so that pairs fill registers
    // Sixteen cells to each doubling of the pressure.
    static constexpr std::size_t kPressureCells = 116;
    static constexpr double kLowestPressure = 0.0625;  // bar; the highest is 10

    // Two numbers to a register, which every processor of this kind can add and multiply at once.
    using Pair [[gnu::vector_size(16)]] = double;
    static constexpr std::size_t kPairs = kQuantities / 2;

    static std::size_t CellOf(double t) {
        return static_cast<std::size_t>((t - kLowest) * (1 / kCellWidth));
    }
    // From -1 to 1 within the cell.
    static double PlaceIn(std::size_t cell, double t) {
        const double middle = kLowest + kCellWidth * (static_cast<double>(cell) + 0.5);
        return (t - middle) * (2 / kCellWidth);
    }
    // Exponent and upper four digits of the mantissa number the cells.
    static constexpr unsigned kDigitsBelow = 48;
    static std::uint64_t PressureDigits(double p_bar) {
        return std::bit_cast<std::uint64_t>(p_bar) >> kDigitsBelow;
    }
    // Beyond kPressureCells for a pressure below the lowest, a negative one and not-a-number.
    static std::size_t PressureCellOf(double p_bar) {
        return PressureDigits(p_bar) - PressureDigits(kLowestPressure);
    }

    void TabulateCell(const WaterAirTables& tables, std::size_t cell);
    bool CellIsGood(const WaterAirTables& tables, std::size_t cell) const;
    void TabulatePressures(const WaterAirTables& tables, std::size_t cell);

    struct PressureCell {
        double middle = 0, per_half_width = 0;
        std::array<double, kDegree + 1> powers{};
        bool covered = false;
    };

    struct Cell {
        std::array<std::array<Pair, kPairs>, kDegree + 1> powers{};  // of the place
        bool covered = false;
    };

    // The polynomial of degree 5 by pairs of terms, which do not wait for each other.
    template <typename Coefficient>
    static auto Sum(double place, const Coefficient& c) {
        const double square = place * place;
        return ((c(5) * place + c(4)) * square + (c(3) * place + c(2))) * square +
               (c(1) * place + c(0));
    }

    std::array<Cell, kCells> cells_{};
    std::array<PressureCell, kPressureCells> pressures_{};
};

StateTable::Entry StateTable::At(double t) const {
    const std::size_t cell = CellOf(t);
    const double place = PlaceIn(cell, t);
    const auto& powers = cells_[cell].powers;
    std::array<Pair, kPairs> sums{};
    for (std::size_t i = 0; i < kPairs; ++i) {
        sums[i] = Sum(place, [&powers, i](std::size_t k) { return powers[k][i]; });
    }
    return {sums[0][0],
            sums[0][1],
            sums[1][0],
            {sums[1][1], sums[2][0], sums[2][1], sums[3][0], sums[3][1], sums[4][0]}};
}

double StateTable::SaturatedDensity(double t) const {
    const std::size_t cell = CellOf(t);
    const auto& powers = cells_[cell].powers;
    return Sum(PlaceIn(cell, t), [&powers](std::size_t k) { return powers[k][0][0]; });
}

double StateTable::BoilingTemperature(double p_bar) const {
    const PressureCell& cell = pressures_[PressureCellOf(p_bar)];
    const double place = (p_bar - cell.middle) * cell.per_half_width;
    return Sum(place, [&cell](std::size_t k) { return cell.powers[k]; });
}

}  // namespace zandrell
