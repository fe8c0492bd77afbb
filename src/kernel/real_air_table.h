#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace zandrell {

// What of real air depends on the temperature alone, as polynomials in short cells: Chebyshev
// interpolation of the fits (real_air_fits.h) and the saturation pressure, some 3E-10 off where it
// is worst, the third virial coefficient of water. Ice and liquid water meet at a border of two
// cells.
class RealAirTable {
  public:
    static constexpr double kLowest = -60, kHighest = 102;  // degC
    static constexpr double kTriplePressure = 611.657;      // Pa

    // About what a bar of air adds to the saturation pressure, relative: enough to begin with.
    static constexpr double kUsualEnhancement = 0.004;

    // Of saturation: what ln f, the logarithm of the enhancement factor, is made of, with n and n_s
    // the pressure and the saturation pressure over R T in mol/cm3, b the mole fraction of the air:
    // (n - n_s) volume + (n^2 - n_s^2) square + ln(1 - henry p b) +
    // b^2 (n first + n^2 (second + b (third + b fourth))).
    struct Saturation {
        double pressure = 0;  // of pure water, Pa
        double volume = 0, square = 0, first = 0, second = 0, third = 0, fourth = 0;
        double henry = 0;               // 1/GPa, 0 for ice
        double condensed_enthalpy = 0;  // kJ/kg, at the saturation pressure
        double condensed_volume = 0;    // cm3/mol
    };

    // Of the gas: virial coefficients in cm3/mol and cm6/mol2, what of them enters the enthalpy (B
    // less T times its slope, C less half of that), and the enthalpies of ideal gases in kJ/kg.
    struct Gas {
        double baa = 0, baw = 0, bww = 0, caaa = 0, caaw = 0, caww = 0, cwww = 0;
        double raa = 0, raw = 0, rww = 0, raaa = 0, raaw = 0, raww = 0, rwww = 0;
        double air_enthalpy = 0, vapour_enthalpy = 0;
    };

    // Made at the first call, in some tenths of a millisecond.
    static const RealAirTable& Get() {
        static const RealAirTable table;
        return table;
    }

    // Require: t from kLowest to kHighest.
    Saturation SaturationAt(double t) const;
    double SaturationPressureAt(double t) const;  // Saturation::pressure alone
    Gas GasAt(double t) const;
    // The temperature at which pure water has a saturation pressure, given by how far
    // its logarithm is above that of the triple point, as far as the table reaches; else empty.
    std::optional<double> SaturationTemperatureAt(double log_pressure) const;
    double LogOfTriplePressure() const { return log_triple_; }

    // The same by the fits themselves.
    static Saturation SaturationByFits(double t);
    static Gas GasByFits(double t);

  private:
    RealAirTable();

    static constexpr std::size_t kIceCells = 10, kCells = 27, kNodes = 8;
    static constexpr std::size_t kSaturation = 10, kGas = 16;

    // Two numbers to a register.
    using Pair [[gnu::vector_size(16)]] = double;
    template <std::size_t figures>
    using Powers = std::array<std::array<Pair, figures / 2>, kNodes>;
    struct Cell {
        Powers<kSaturation> saturation{};
        Powers<kGas> gas{};
    };
    struct Place {
        std::size_t cell = 0;
        double place = 0;  // from -1 to 1 within it
    };
    static Place PlaceOf(double t);
    template <std::size_t figures>
    static std::array<double, figures> Sums(const Powers<figures>& powers, double place);

    void InvertSaturation();

    std::array<Cell, kCells> cells_{};

    // Temperatures by the logarithm of the pressure, half of the cells for ice.
    static constexpr std::size_t kInverseCells = 8;
    std::array<std::array<double, kNodes>, kInverseCells> inverse_{};
    double log_triple_ = 0, log_lowest_ = 0, log_highest_ = 0;
    std::array<double, 2> cells_per_log_{};  // over water, over ice
};

}  // namespace zandrell
