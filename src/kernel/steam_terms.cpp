#include "kernel/steam_terms.h"

#include <cmath>
#include <utility>

#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

// Below this part of the boundary pressure its term is left out: the tenth power is under 1E-30.
constexpr double kBoundaryTermFrom = 0.001;

// X to the exponent of one term, in two ways; `slot` is the exponent as the plan has it.
struct PlannedPowers {
    const SteamPowers& at;
    double operator()(std::uint8_t slot, double) const {
        return at.low[slot % 8] * at.high[slot / 8];
    }
};

struct GeneralPowers {
    const SteamPowers& at;
    double operator()(std::uint8_t slot, double exponent) const {
        return slot == ExponentPlan::kNoTerm ? 0 : std::pow(at.X, exponent);
    }
};

// Of one row: the sum of its terms B X^z, and that of z B X^z.
struct RowSums {
    double plain = 0, by_exponent = 0;
};

// `nu` runs from 0 here; unfolded by the compiler, since these sums are what a state is made of.
template <typename Powers, typename Row, typename Exponents, typename Slots, std::size_t... nu>
inline RowSums SumRow(const Powers& power, const Row& B, const Exponents& exponents,
                      const Slots& slots, std::index_sequence<nu...>) {
    const double terms[] = {B[nu + 1] * power(slots[nu + 1], exponents[nu + 1])...};
    return {(terms[nu] + ...), ((exponents[nu + 1] * terms[nu]) + ...)};
}

template <typename Powers>
inline RowSums SumNumerator(const WaterAirTables& tables, const Powers& power, std::size_t mu) {
    return SumRow(power, tables.BWasser[mu], tables.ExpZ[mu], tables.plan.z[mu],
                  std::make_index_sequence<3>());
}

template <typename Powers>
inline RowSums SumDenominator(const WaterAirTables& tables, const Powers& power, std::size_t mu) {
    return SumRow(power, tables.NennerWasser[mu], tables.ExpX[mu], tables.plan.x[mu],
                  std::make_index_sequence<2>());
}

double BoundaryPressure(const WaterAirTables& tables, double theta) {
    const auto& L = tables.LGrenz;
    return L[0] + theta * (L[1] + theta * L[2]);
}

double TenthPower(double ratio) {
    const double square = ratio * ratio, fourth = square * square;
    return fourth * fourth * square;
}

// Of the coefficients of the boundary term, by Horner: the sum of B X^i and that of i B X^i.
struct BoundarySums {
    double plain = 0, by_exponent = 0;
};

BoundarySums SumBoundary(const WaterAirTables& tables, double X) {
    const auto& B = tables.BWasser[9];
    BoundarySums sums;
    for (std::size_t i = B.size(); i-- > 0;) {
        sums.plain = sums.plain * X + B[i];
        sums.by_exponent = sums.by_exponent * X + static_cast<double>(i) * B[i];
    }
    return sums;
}

template <typename Powers>
VolumeTerms SumVolume(const WaterAirTables& tables, const SteamPowers& at, const Powers& power) {
    const auto sum = [&](std::size_t mu) { return SumNumerator(tables, power, mu).plain; };
    return {at.theta,
            at.X,
            BoundaryPressure(tables, at.theta),
            {sum(1), 2 * sum(2), 3 * sum(3), 4 * sum(4), 5 * sum(5)}};
}

double IdealEnthalpy(const WaterAirTables& tables, double theta) {
    constexpr std::array<double, 6> kWeights{0, -1, 0, 1, 2, 3};  // i - 2
    const auto& B = tables.BWasser[0];
    double polynomial = 0;
    for (std::size_t i = 5; i >= 1; --i) polynomial = polynomial * theta + B[i] * kWeights[i];
    return B[0] * theta - polynomial;
}

template <typename Powers>
FractionTerms SumFraction(const WaterAirTables& tables, const Powers& power, std::size_t mu,
                          double b_theta) {
    const RowSums row = SumNumerator(tables, power, mu);
    const RowSums denominator = SumDenominator(tables, power, mu);
    return {row.plain + b_theta * row.by_exponent, row.plain * b_theta * denominator.by_exponent,
            denominator.plain};
}

template <typename Powers>
EnthalpyTerms SumEnthalpy(const WaterAirTables& tables, const SteamPowers& at,
                          const Powers& power) {
    const double theta = at.theta, b_theta = tables.ExpoB * theta;
    const auto sum = [&](std::size_t mu) {
        const RowSums row = SumNumerator(tables, power, mu);
        return row.plain + b_theta * row.by_exponent;
    };
    const auto fraction = [&](std::size_t mu) { return SumFraction(tables, power, mu, b_theta); };
    return {theta,
            at.X,
            BoundaryPressure(tables, theta),
            tables.LGrenz[1] + 2 * tables.LGrenz[2] * theta,
            IdealEnthalpy(tables, theta),
            {sum(1), sum(2), sum(3), sum(4), sum(5)},
            {fraction(6), fraction(7), fraction(8)}};
}

}  // namespace

SteamPowers MakeSteamPowers(const WaterAirTables& tables, double T) {
    SteamPowers at;
    at.theta = T / tables.RefTemp;
    const double X = std::exp(tables.ExpoB * (1 - at.theta));
    const double X2 = X * X, X3 = X2 * X, X4 = X2 * X2;
    at.X = X;
    at.low = {1, X, X2, X3, X4, X4 * X, X4 * X2, X4 * X3};
    const double X8 = X4 * X4, X16 = X8 * X8, X24 = X16 * X8, X32 = X16 * X16;
    at.high = {1, X8, X16, X24, X32, X32 * X8, X32 * X16, 0};
    return at;
}

VolumeTerms MakeVolumeTerms(const WaterAirTables& tables, const SteamPowers& at) {
    return tables.plan.whole_exponents ? SumVolume(tables, at, PlannedPowers{at})
                                       : SumVolume(tables, at, GeneralPowers{at});
}

EnthalpyTerms MakeEnthalpyTerms(const WaterAirTables& tables, const SteamPowers& at) {
    return tables.plan.whole_exponents ? SumEnthalpy(tables, at, PlannedPowers{at})
                                       : SumEnthalpy(tables, at, GeneralPowers{at});
}

double VolumeAt(const WaterAirTables& tables, const VolumeTerms& terms, double beta) {
    double sum = 0;
    for (std::size_t i = terms.sums.size(); i-- > 0;) sum = sum * beta + terms.sums[i];
    // The fractions of rows 6..8 do not enter the volume: at the pressures of humid air they count
    // for less than the fit of the volume, and the suite's figures are made without them.
    double chi = tables.IdealI1 * terms.theta / beta - sum;
    const double ratio = beta / terms.boundary_pressure;
    if (!(ratio < kBoundaryTermFrom)) {
        chi += 11 * TenthPower(ratio) * SumBoundary(tables, terms.X).plain;
    }
    return chi * tables.RefVolumen;
}

double EnthalpyAt(const WaterAirTables& tables, const EnthalpyTerms& terms, double beta) {
    double sum = 0;
    for (std::size_t i = terms.sums.size(); i-- > 0;) sum = sum * beta + terms.sums[i];
    double eps = terms.ideal - sum * beta;
    // 1 / D as beta^(mu - 2) / (1 + ... beta^(mu - 2)), which stands at beta 0 too.
    double power = beta * beta * beta * beta;
    for (const FractionTerms& fraction : terms.fractions) {
        const double reciprocal = power / (1 + fraction.denominator * power);
        eps -= (fraction.numerator - fraction.weighted * reciprocal) * reciprocal;
        power *= beta;
    }
    const double ratio = beta / terms.boundary_pressure;
    if (!(ratio < kBoundaryTermFrom)) {
        const BoundarySums boundary = SumBoundary(tables, terms.X);
        const double steepness = 10 * terms.boundary_slope / terms.boundary_pressure;
        eps += beta * TenthPower(ratio) *
               ((1 + terms.theta * steepness) * boundary.plain +
                terms.theta * tables.ExpoB * boundary.by_exponent);
    }
    return eps * tables.RefDruck * tables.RefVolumen / 1000;
}

}  // namespace zandrell
