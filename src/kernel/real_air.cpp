#include "kernel/real_air.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "kernel/real_air_fits.h"
#include "kernel/root.h"

namespace zandrell {
namespace {

constexpr double kTriplePoint = 273.16, kOffset = 273.15;              // K
constexpr double kIceUpTo = 0.01;                                      // degC
constexpr double kMolarMassAir = 28.966, kMolarMassWater = 18.015268;  // g/mol
// The report takes one gas constant for the mixture and a newer one for the enhancement factor.
constexpr double kGasConstant = 8.314472, kGasConstantOfFactor = 8.314371;  // J/(mol K)
constexpr double kPascalPerBar = 100000;
constexpr double kCubicMetrePerCm3 = 1e-6;

// A figure and T times its slope.
struct Sloped {
    double value = 0, slope = 0;
};

template <typename Coefficients>
double ValueAt(const Coefficients& coefficients, double w) {
    double value = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) value = value * w + coefficients[i];
    return value;
}

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

double VariableAt(double t) { return kTriplePoint / (t + kOffset) - 1; }

// ln(1 - z) for the share of air that water dissolves, some 1E-05.
double LogOfOneLess(double z) { return -z * (1 + z / 2); }

// ln f of the report at a mole fraction psi of saturated vapour. n is p / (R T) and n_s the same of
// the saturation pressure, mol/cm3; the condensed phase has the volume V_c and dissolves air.
double LogFactor(const Virials& v, double psi, double n, double n_s, double condensed_volume,
                 double dissolved) {
    const double b = 1 - psi, b2 = b * b, y = psi;
    const double aa = v.aa.value, aw = v.aw.value, ww = v.ww.value;
    const double P = n * n, S = n_s * n_s;
    const double first = (n - n_s) * condensed_volume + LogOfOneLess(dissolved * b) +
                         b2 * n * (aa - 2 * aw) - (n - n_s - b2 * n) * ww;
    const double third = P * (b2 * b * v.aaa.value + 1.5 * b2 * (1 - 2 * b) * v.aaw.value -
                              3 * b2 * y * v.aww.value) -
                         ((3 - 2 * y) * y * y * P - S) * v.www.value / 2;
    const double second = P * (b2 * y * (2 - 3 * y) * aa * ww + 2 * b2 * b * (1 - 3 * y) * aa * aw +
                               6 * b2 * y * y * ww * aw - 1.5 * b2 * b2 * aa * aa +
                               2 * b2 * y * (2 - 3 * y) * aw * aw) -
                          (S - (4 - 3 * y) * y * y * y * P) * ww * ww / 2;
    return first + third + second;
}

// exp for the small logarithms of enhancement factors, to 1E-10.
double ExpOfSmall(double l) { return 1 + l * (1 + l / 2 * (1 + l / 3 * (1 + l / 4))); }

double Enhancement(const Virials& v, double w, double t, double p, double saturation) {
    if (saturation > p) return 1;  // above boiling there is no condensed phase
    const bool ice = t <= kIceUpTo;
    const double condensed_volume = ValueAt(ice ? std::span<const double>(real_air::kIceVolume)
                                                : std::span<const double>(real_air::kLiquidVolume),
                                            w);
    const double dissolved = ice ? 0 : ValueAt(real_air::kHenry, w) * p * 1e-9;  // Pa to GPa
    const double per_pascal = kCubicMetrePerCm3 / (kGasConstantOfFactor * (t + kOffset));
    const double n = p * per_pascal, n_s = saturation * per_pascal;
    // psi depends on f itself; the second time leaves 2E-06.
    const double start =
        ExpOfSmall(LogFactor(v, saturation / p, n, n_s, condensed_volume, dissolved));
    const double psi = std::min(start * saturation / p, 1.0);
    const double factor = ExpOfSmall(LogFactor(v, psi, n, n_s, condensed_volume, dissolved));
    return std::max(factor, 1.0);
}

double EnhancementAt(double t, double p, double saturation) {
    if (t >= kRealAirLowest) {
        const double w = VariableAt(t);
        return Enhancement(Virials(w), w, t, p, saturation);
    }
    // Below the fits' range the factor goes on as it came.
    constexpr double kReach = 5;  // K
    const auto at = [p](double low) { return EnhancementAt(low, p, RealSaturationPressure(low)); };
    const double lowest = at(kRealAirLowest);
    return lowest + (lowest - at(kRealAirLowest + kReach)) / kReach * (kRealAirLowest - t);
}

// The gas by mole fractions psi of water and a of air.
struct Mixture {
    Mixture(const Virials& v, double psi) {
        const double a = 1 - psi;
        B = Sum(v.aa, a * a, v.aw, 2 * a * psi, v.ww, psi * psi);
        C = Sum(v.aaa, a * a * a, v.aaw, 3 * a * a * psi, v.aww, 3 * a * psi * psi);
        C.value += psi * psi * psi * v.www.value;
        C.slope += psi * psi * psi * v.www.slope;
    }
    static Sloped Sum(Sloped first, double i, Sloped second, double j, Sloped third, double k) {
        return {i * first.value + j * second.value + k * third.value,
                i * first.slope + j * second.slope + k * third.slope};
    }
    // mol/cm3, where it is n = p / (R T) for an ideal gas: r (1 + B r + C r^2) = n without a
    // division. At these densities each round gains a digit and a half at least.
    double Density(double n) const {
        constexpr int kRounds = 5;
        double r = n * (1 - B.value * n);
        for (int round = 0; round < kRounds; ++round) r = n - r * r * (B.value + C.value * r);
        return r;
    }
    Sloped B, C;
};

RealAirState StateOf(const Virials& v, double w, double T, double p, double psi) {
    const double a = 1 - psi;
    const Mixture mixture(v, psi);
    const double r = mixture.Density(p * kCubicMetrePerCm3 / (kGasConstant * T));
    const double residual =
        r * (mixture.B.value - mixture.B.slope + r * (mixture.C.value - mixture.C.slope / 2));
    const double air = a * kMolarMassAir, water = psi * kMolarMassWater;  // g in a mole of both
    RealAirState state;
    state.x = 1000 * water / air;
    state.volume = 1 / (1000 * r * air);
    state.density = 1000 * (air + water) * r;
    state.enthalpy = (air * ValueAt(real_air::kAirEnthalpy, w) +
                      water * ValueAt(real_air::kVapourEnthalpy, w) + kGasConstant * T * residual) /
                     air;
    state.vapour_pressure = psi * p;
    return state;
}

constexpr double kCloseEnough = 1e-11;  // of a logarithm of pressures

bool PressureWithinLimits(double p_bar) {
    return p_bar >= kRealAirLowestBar && p_bar <= kRealAirHighestBar;
}

// The dew point from the equation of Magnus (coefficients of Sonntag, Z. Meteorol. 40, 1990), which
// is off by some tenths of a kelvin, on one side of the triple point.
template <typename Saturation>
std::optional<double> NearDewPoint(double vapour_pressure, const Saturation& saturation) {
    constexpr double kPressure = 611.2;  // Pa
    constexpr double kAway = 0.5;        // K, off which the branches are not mixed up
    constexpr double kClose = 1e-6;      // K, of a step; what is left is a thousandth of it
    const double l = std::log(vapour_pressure / kPressure);
    const bool ice = l < 0;
    const double a = ice ? 22.46 : 17.62, b = ice ? 272.62 : 243.12;
    const double start = b * l / (a - l);
    if (std::abs(start) < 2 * kAway) return std::nullopt;
    const double slope = a * b / ((b + start) * (b + start));
    return RootBySlope(start, -slope, ice ? -100 : kAway, ice ? -kAway : 105, kClose,
                       [&](double t) { return std::log(vapour_pressure / saturation(t)); });
}

}  // namespace

double RealSaturationPressure(double t) {
    constexpr double kTriplePressure = 611.657;  // Pa
    if (t <= kIceUpTo)
        return kTriplePressure * std::exp(ValueAt(real_air::kSublimation, VariableAt(t)));
    constexpr double n[] = {0.11670521452767e4,  -0.72421316703206e6, -0.17073846940092e2,
                            0.12020824702470e5,  -0.32325550322333e7, 0.14915108613530e2,
                            -0.48232657361591e4, 0.40511340542057e6,  -0.23855557567849,
                            0.65017534844798e3};
    const double T = t + kOffset, theta = T + n[8] / (T - n[9]);
    const double A = (theta + n[0]) * theta + n[1];
    const double B = (n[2] * theta + n[3]) * theta + n[4];
    const double C = (n[5] * theta + n[6]) * theta + n[7];
    const double root = 2 * C / (-B + std::sqrt(B * B - 4 * A * C));
    return 1e6 * root * root * root * root;
}

double RealSaturatedVapour(double t, double p_bar) {
    const double saturation = RealSaturationPressure(t);
    return EnhancementAt(t, p_bar * kPascalPerBar, saturation) * saturation;
}

std::optional<RealAirState> EvaluateRealAir(double relF, double t, double p_bar) {
    if (!(relF >= 0 && relF <= 1 && t >= kRealAirLowest && t <= kRealAirHighest) ||
        !PressureWithinLimits(p_bar)) {
        return std::nullopt;
    }
    const double p = p_bar * kPascalPerBar, w = VariableAt(t);
    const Virials virials(w);
    const double saturation = RealSaturationPressure(t);
    const double factor = Enhancement(virials, w, t, p, saturation);
    const double psi = relF * factor * saturation / p;
    if (!(psi <= kRealAirMostWater)) return std::nullopt;
    RealAirState state = StateOf(virials, w, t + kOffset, p, psi);
    state.enhancement = factor;
    return state;
}

std::optional<RealAirState> EvaluateRealGas(double x, double t, double p_bar) {
    if (!(x >= 0 && x <= kRealAirMostX && t >= kRealAirLowest && t <= kRealAirHighest) ||
        !PressureWithinLimits(p_bar)) {
        return std::nullopt;
    }
    const double w = VariableAt(t);
    RealAirState state =
        StateOf(Virials(w), w, t + kOffset, p_bar * kPascalPerBar, x / (kRealAirRatio + x));
    state.x = x;
    return state;
}

void EvaluateRealAirs(std::span<const double> relF, std::span<const double> t,
                      std::span<const double> p_bar,
                      std::span<std::optional<RealAirState>> states) {
    const bool one_pressure = p_bar.size() == 1;
    for (std::size_t i = 0; i < states.size(); ++i) {
        states[i] = EvaluateRealAir(relF[i], t[i], p_bar[one_pressure ? 0 : i]);
    }
}

std::optional<double> RealDewPoint(double vapour_pressure, double p_bar) {
    if (!PressureWithinLimits(p_bar)) return std::nullopt;
    constexpr double kLowest = -100;    // degC
    constexpr double kMostLower = 1.2;  // K, by the factor, which stays below 1.02
    const double p = p_bar * kPascalPerBar;
    const auto pure = [](double t) { return RealSaturationPressure(t); };
    const auto humid = [p](double t) {
        const double saturation = RealSaturationPressure(t);
        return EnhancementAt(t, p, saturation) * saturation;
    };
    const double lowest = pure(kLowest), highest = pure(kRealAirHighest + kMostLower);
    if (!(vapour_pressure >= lowest && vapour_pressure <= highest)) return std::nullopt;
    // How far the vapour's pressure lies above saturation, as a logarithm, which is nearly straight
    // in the variable of the fits.
    const auto excess = [vapour_pressure](const auto& saturation) {
        return [&](double w) {
            return std::log(vapour_pressure / saturation(kTriplePoint / (1 + w) - kOffset));
        };
    };
    const auto temperature = [](double w) { return kTriplePoint / (1 + w) - kOffset; };
    if (const auto near = NearDewPoint(vapour_pressure, humid)) {
        return *near > kRealAirHighest ? std::nullopt : near;
    }
    // First without the factor, which costs most, then with it in what is left.
    constexpr double kRounding = 1e-6;  // K
    const double start = temperature(RootOfFalling(
        VariableAt(kLowest - kRounding), VariableAt(kRealAirHighest + kMostLower + kRounding),
        kCloseEnough, excess(pure)));
    const double found =
        temperature(RootOfFalling(VariableAt(start - kMostLower), VariableAt(start + kRounding),
                                  kCloseEnough, excess(humid)));
    if (found > kRealAirHighest) return std::nullopt;
    return found;
}

}  // namespace zandrell
