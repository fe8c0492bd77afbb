#include "kernel/state_table.h"

#include <algorithm>
#include <cmath>

#include "kernel/humid_air_state.h"
#include "kernel/interpolation.h"
#include "kernel/steam.h"
#include "kernel/steam_terms.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

// How far a cell may be off its formulas, relative.
constexpr double kAgreement = 1e-12;
constexpr double kNeverBoils = 1e9;  // K, so that there is saturation at every temperature

bool Agrees(double tabulated, double formula) {
    return std::abs(tabulated - formula) <= kAgreement * std::abs(formula);
}

// Steam by its formulas at one temperature, whether or not saturated air has 611 Pa there.
struct SteamAt {
    SteamAt(const WaterAirTables& coefficients, double t)
        : tables(coefficients),
          point(
              TemperatureByFormulas(tables, {kHighestPressureBar, kNeverBoils}, t + kKelvinOffset)),
          terms(MakeEnthalpyTerms(tables, MakeSteamPowers(tables, point.T))) {}

    double Enthalpy(double relF) const {
        const double pressure_pa = kGasConstantSteam * point.T * relF * point.saturated_density;
        return EnthalpyAt(tables, terms, pressure_pa / tables.RefDruck);
    }

    const WaterAirTables& tables;
    const TemperaturePoint point;
    const EnthalpyTerms terms;
};

// The boundary term begins with a jump, which no polynomial follows. Published coefficients make it
// some 1E-25 of the whole; those of another file must not make it count.
bool BoundaryTermIsNothing(const WaterAirTables& tables) {
    constexpr double kLargestSum = 1e9;
    const auto& B = tables.BWasser[9];
    return std::all_of(B.begin(), B.end(), [](double b) { return std::abs(b) < kLargestSum; });
}

double MeanHeat(const WaterAirTables& tables, double celsius) {
    double sum = 0;
    for (std::size_t i = tables.CpLuft.size(); i-- > 0;) {
        sum = sum * celsius + tables.CpLuft[i] / static_cast<double>(i + 1);
    }
    return sum;
}

constexpr std::size_t kSteamTerms = StateTable::kSteamTerms;

struct CellTools {
    Interpolation<6> place;
    Interpolation<kSteamTerms> humidity;
};

const CellTools& Tools() {
    static const CellTools tools;
    return tools;
}

// The steam polynomial in relative humidity, whose nodes from -1 to 1 stand for 0 to 1.
std::array<double, kSteamTerms> SteamPolynomial(const SteamAt& steam) {
    std::array<double, kSteamTerms> values{};
    for (std::size_t i = 0; i < kSteamTerms; ++i) {
        values[i] = steam.Enthalpy(0.5 + 0.5 * Interpolation<kSteamTerms>::Node(i));
    }
    const auto powers = Tools().humidity.Powers(values);
    // From powers of 2 u - 1 to powers of u.
    std::array<double, kSteamTerms> shifted{};
    for (std::size_t k = kSteamTerms; k-- > 0;) {
        std::array<double, kSteamTerms> next{};
        for (std::size_t i = 0; i < kSteamTerms; ++i) {
            next[i] = (i > 0 ? 2 * shifted[i - 1] : 0) - shifted[i];
        }
        next[0] += powers[k];
        shifted = next;
    }
    return shifted;
}

}  // namespace

StateTable::StateTable(const WaterAirTables& tables) {
    static_assert(kDegree + 1 == 6, "see CellTools and Sum");
    if (!tables.Loaded()) return;
    for (std::size_t cell = 0; cell < kPressureCells; ++cell) TabulatePressures(tables, cell);
    if (!BoundaryTermIsNothing(tables)) return;
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        TabulateCell(tables, cell);
        cells_[cell].covered = CellIsGood(tables, cell);
    }
}

void StateTable::TabulateCell(const WaterAirTables& tables, std::size_t cell) {
    const double middle = kLowest + kCellWidth * (static_cast<double>(cell) + 0.5);
    std::array<std::array<double, kDegree + 1>, kQuantities> values{};
    for (std::size_t i = 0; i <= kDegree; ++i) {
        const double t = middle + kCellWidth / 2 * Interpolation<kDegree + 1>::Node(i);
        const SteamAt steam(tables, t);
        values[0][i] = steam.point.saturated_density;
        values[1][i] = MeanHeat(tables, t);
        values[2][i] = steam.point.vapour_enthalpy_polynomial;
        const auto polynomial = SteamPolynomial(steam);
        for (std::size_t k = 0; k < kSteamTerms; ++k) values[3 + k][i] = polynomial[k];
    }
    for (std::size_t quantity = 0; quantity < kQuantities; ++quantity) {
        const auto powers = Tools().place.Powers(values[quantity]);
        for (std::size_t k = 0; k <= kDegree; ++k)
            cells_[cell].powers[k][quantity / 2][quantity % 2] = powers[k];
    }
}

bool StateTable::CellIsGood(const WaterAirTables& tables, std::size_t cell) const {
    constexpr int kTrials = 3;
    const double start = kLowest + kCellWidth * static_cast<double>(cell);
    for (int i = 0; i < kTrials; ++i) {
        const double t = start + kCellWidth * (i + 0.001) / kTrials;
        if (CellOf(t) != cell) return false;
        const Entry found = At(t);
        const SteamAt steam(tables, t);
        bool good = Agrees(found.saturated_density, steam.point.saturated_density) &&
                    Agrees(found.mean_heat_of_air, MeanHeat(tables, t)) &&
                    Agrees(found.vapour_enthalpy + kLatentHeat,
                           steam.point.vapour_enthalpy_polynomial + kLatentHeat);
        for (const double relF : {0.0, 0.37, 0.7, 1.0}) {
            double sum = 0;
            for (std::size_t k = kSteamTerms; k-- > 0;) sum = sum * relF + found.steam[k];
            good = good && Agrees(sum, steam.Enthalpy(relF));
        }
        if (!good) return false;
    }
    return true;
}

void StateTable::TabulatePressures(const WaterAirTables& tables, std::size_t cell) {
    const auto at = [cell](std::size_t i) {
        return std::bit_cast<double>((PressureDigits(kLowestPressure) + cell + i) << kDigitsBelow);
    };
    const double low = at(0), high = at(1);
    PressureCell& entry = pressures_[cell];
    entry.middle = (low + high) / 2;
    entry.per_half_width = 2 / (high - low);
    std::array<double, kDegree + 1> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = SiedeTemperatur(
            tables, entry.middle + Interpolation<kDegree + 1>::Node(i) / entry.per_half_width);
    }
    entry.powers = Tools().place.Powers(values);
    constexpr int kTrials = 3;
    for (int i = 0; i < kTrials; ++i) {
        const double p_bar = low + (high - low) * (i + 0.01) / kTrials;
        if (!Agrees(BoilingTemperature(p_bar), SiedeTemperatur(tables, p_bar))) return;
    }
    entry.covered = true;
}

}  // namespace zandrell
