#include "kernel/real_air_table.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <span>

#include "kernel/interpolation.h"
#include "kernel/real_air.h"
#include "kernel/real_air_fits.h"
#include "kernel/real_air_polynomial.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

// A figure and T times its slope.
struct Sloped {
    double value = 0, slope = 0;
};

template <typename Coefficients>
Sloped SlopedAt(const Coefficients& coefficients, double w) {
    double value = 0, derivative = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) {
        derivative = derivative * w + value;
        value = value * w + coefficients[i];
    }
    return {value, -(1 + w) * derivative};
}

// Second and third virial coefficients, cm3/mol and cm6/mol2; a for air, w for water.
struct Virials {
    explicit Virials(double w)
        : aa(SlopedAt(real_air::kBaa, w)),
          aw(SlopedAt(real_air::kBaw, w)),
          ww(SlopedAt(real_air::kBww, w)),
          aaa(SlopedAt(real_air::kCaaa, w)),
          aaw(SlopedAt(real_air::kCaaw, w)),
          aww(SlopedAt(real_air::kCaww, w)),
          www(SlopedAt(real_air::kCwww, w)) {}
    Sloped aa, aw, ww, aaa, aaw, aww, www;
};

// A polynomial of degree 7 by halves, whose terms do not wait for each other.
template <typename Coefficient>
auto ByHalves(double place, const Coefficient& c) {
    const double square = place * place, fourth = square * square;
    return ((c(7) * place + c(6)) * square + (c(5) * place + c(4))) * fourth +
           ((c(3) * place + c(2)) * square + (c(1) * place + c(0)));
}

}  // namespace

// The terms of RP-1485 with y = 1 - b, ordered by powers of b.
RealAirTable::Saturation RealAirTable::SaturationByFits(double t) {
    const double w = FitVariable(t);
    const Virials v(w);
    const double aa = v.aa.value, aw = v.aw.value, ww = v.ww.value;
    const double aaa = v.aaa.value, aaw = v.aaw.value, aww = v.aww.value, www = v.www.value;
    const bool ice = t <= kIceUpTo;
    Saturation s;
    s.pressure = RealSaturationPressure(t);
    s.condensed_volume = FitAt(ice ? std::span<const double>(real_air::kIceVolume)
                                   : std::span<const double>(real_air::kLiquidVolume),
                               w);
    s.condensed_enthalpy = FitAt(ice ? std::span<const double>(real_air::kIceEnthalpy)
                                     : std::span<const double>(real_air::kLiquidEnthalpy),
                                 w);
    s.henry = ice ? 0 : FitAt(real_air::kHenry, w);
    s.volume = s.condensed_volume - ww;
    s.square = (ww * ww - www) / 2;
    s.first = aa - 2 * aw + ww;
    s.second = 1.5 * aaw - 3 * aww + 1.5 * www - aa * ww + 6 * ww * aw - 2 * aw * aw - 3 * ww * ww;
    s.third = aaa - 3 * aaw + 3 * aww - www + 4 * aa * ww - 4 * aa * aw - 12 * ww * aw +
              8 * aw * aw + 4 * ww * ww;
    s.fourth =
        -3 * aa * ww + 6 * aa * aw + 6 * ww * aw - 1.5 * aa * aa - 6 * aw * aw - 1.5 * ww * ww;
    return s;
}

RealAirTable::Gas RealAirTable::GasByFits(double t) {
    const double w = FitVariable(t);
    const Virials v(w);
    const auto second = [](const Sloped& b) { return b.value - b.slope; };
    const auto third = [](const Sloped& c) { return c.value - c.slope / 2; };
    return {v.aa.value,
            v.aw.value,
            v.ww.value,
            v.aaa.value,
            v.aaw.value,
            v.aww.value,
            v.www.value,
            second(v.aa),
            second(v.aw),
            second(v.ww),
            third(v.aaa),
            third(v.aaw),
            third(v.aww),
            third(v.www),
            FitAt(real_air::kAirEnthalpy, w),
            FitAt(real_air::kVapourEnthalpy, w)};
}

namespace {

constexpr double kIceWidth = (kIceUpTo - RealAirTable::kLowest) / 10;
constexpr double kLiquidWidth = (RealAirTable::kHighest - kIceUpTo) / 17;

// The cells over liquid water and over ice, looked up rather than branched to: which it is changes
// from state to state.
struct Side {
    double start = 0, per_width = 0;
    int first = 0, last = 0;
};
constexpr Side kSides[] = {{kIceUpTo, 1 / kLiquidWidth, 10, 26},
                           {RealAirTable::kLowest, 1 / kIceWidth, 0, 9}};

}  // namespace

RealAirTable::Place RealAirTable::PlaceOf(double t) {
    static_assert(kIceCells == 10 && kCells == 27);
    const Side& side = kSides[t <= kIceUpTo ? 1 : 0];
    const double cells = (t - side.start) * side.per_width;
    const int cell = std::min(static_cast<int>(cells), side.last - side.first);
    return {static_cast<std::size_t>(side.first + cell), 2 * (cells - cell) - 1};
}

RealAirTable::RealAirTable() {
    static_assert(sizeof(Saturation) == kSaturation * sizeof(double));
    static_assert(sizeof(Gas) == kGas * sizeof(double));
    const Interpolation<kNodes> nodes;
    const auto fill = [&nodes]<std::size_t pairs>(
                          std::array<std::array<Pair, pairs>, kNodes>& powers,
                          const auto& figures_at) {
        std::array<std::array<double, kNodes>, 2 * pairs> values{};
        for (std::size_t i = 0; i < kNodes; ++i) {
            const auto found = std::bit_cast<std::array<double, 2 * pairs>>(
                figures_at(Interpolation<kNodes>::Node(i)));
            for (std::size_t k = 0; k < found.size(); ++k) values[k][i] = found[k];
        }
        for (std::size_t k = 0; k < values.size(); ++k) {
            const auto sums = nodes.Powers(values[k]);
            for (std::size_t i = 0; i < kNodes; ++i) powers[i][k / 2][k % 2] = sums[i];
        }
    };
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        const bool ice = cell < kIceCells;
        const double width = ice ? kIceWidth : kLiquidWidth;
        const double number = static_cast<double>(ice ? cell : cell - kIceCells);
        const double middle = (ice ? kLowest : kIceUpTo) + width * (number + 0.5);
        const auto t = [&](double place) { return middle + place * width / 2; };
        fill(cells_[cell].saturation, [&](double place) { return SaturationByFits(t(place)); });
        fill(cells_[cell].gas, [&](double place) { return GasByFits(t(place)); });
    }
    InvertSaturation();
}

void RealAirTable::InvertSaturation() {
    constexpr double kClose = 1e-13;  // of a logarithm
    log_triple_ = std::log(kTriplePressure);
    const auto log_pressure = [this](double t) {
        return std::log(RealSaturationPressure(t)) - log_triple_;
    };
    log_lowest_ = log_pressure(kLowest);
    log_highest_ = log_pressure(kHighest);
    const Interpolation<kNodes> nodes;
    constexpr std::size_t half = kInverseCells / 2;
    cells_per_log_ = {half / log_highest_, -(half / log_lowest_)};
    for (std::size_t cell = 0; cell < kInverseCells; ++cell) {
        const bool ice = cell < half;
        const double width = (ice ? -log_lowest_ : log_highest_) / half;
        const double middle = width * (static_cast<double>(cell) - half + 0.5);
        std::array<double, kNodes> temperatures{};
        for (std::size_t i = 0; i < kNodes; ++i) {
            const double l = middle + Interpolation<kNodes>::Node(i) * width / 2;
            temperatures[i] = RootOfFalling(ice ? kLowest : kIceUpTo, ice ? kIceUpTo : kHighest,
                                            kClose, [&](double t) { return l - log_pressure(t); });
        }
        inverse_[cell] = nodes.Powers(temperatures);
    }
}

std::optional<double> RealAirTable::SaturationTemperatureAt(double log_pressure) const {
    if (!(log_pressure >= log_lowest_ && log_pressure <= log_highest_)) return std::nullopt;
    constexpr int half = kInverseCells / 2, last = kInverseCells - 1;
    const double cells = half + log_pressure * cells_per_log_[log_pressure < 0 ? 1 : 0];
    const int cell = std::min(static_cast<int>(cells), last);
    const auto& powers = inverse_[static_cast<std::size_t>(cell)];
    return ByHalves(2 * (cells - cell) - 1, [&](std::size_t power) { return powers[power]; });
}

template <std::size_t figures>
std::array<double, figures> RealAirTable::Sums(const Powers<figures>& powers, double place) {
    std::array<double, figures> sums{};
    for (std::size_t i = 0; i < figures / 2; ++i) {
        const Pair sum = ByHalves(place, [&](std::size_t power) { return powers[power][i]; });
        sums[2 * i] = sum[0];
        sums[2 * i + 1] = sum[1];
    }
    return sums;
}

RealAirTable::Saturation RealAirTable::SaturationAt(double t) const {
    const Place at = PlaceOf(t);
    return std::bit_cast<Saturation>(Sums<kSaturation>(cells_[at.cell].saturation, at.place));
}

double RealAirTable::SaturationPressureAt(double t) const {
    const Place at = PlaceOf(t);
    const auto& powers = cells_[at.cell].saturation;
    return ByHalves(at.place, [&](std::size_t power) { return powers[power][0][0]; });
}

RealAirTable::Gas RealAirTable::GasAt(double t) const {
    const Place at = PlaceOf(t);
    return std::bit_cast<Gas>(Sums<kGas>(cells_[at.cell].gas, at.place));
}

}  // namespace zandrell
