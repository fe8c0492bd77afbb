#pragma once

#include <array>
#include <cmath>
#include <cstddef>

// Humid air from formulas that the kernel does not have, to balance plants
// with: specific heats of the gases after McBride, Gordon and Reno (NASA TM-4513, 1993, 200 to 1000
// K), dry air of 78.084 % N2, 20.946 % O2, 0.934 % Ar and 0.04 % CO2, steam of 2500.92 kJ/kg at
// 0.01 degC (IAPWS-95). The mixture departs from ideal gases by second virial coefficients: of
// steam by Harvey and Lemmon (J. Phys. Chem. Ref. Data 33, 2004), of air and of air with steam by
// Hyland and Wexler (ASHRAE Transactions 89 (2A), 1983). Saturated steam comes out at 2537.50 kJ/kg
// at 20 degC and 2573.65 at 40; steam tables have 2537.4 and 2573.5. Dry air of 25 degC and 101.325
// kPa comes out at 25.152 kJ/kg and 0.8444 m3/kg, saturated air at 76.508 kJ/kg; the ASHRAE
// Handbook (2017, chapter 1, table 2) has 25.148, 0.8443 and 76.504.
namespace zandrell::independent {

inline constexpr double kGasConstant = 8.314462618;                        // J/(mol K)
inline constexpr double kAirMass = 28.9647, kWaterMass = 18.015268;        // g/mol
inline constexpr double kTriplePoint = 273.16, kTriplePressure = 611.657;  // K, Pa

// Saturation pressure in Pa, over ice up to 0.01 degC: Murphy and Koop (Q. J. R. Meteorol. Soc.
// 131, 2005), over water: Wagner and Pruss (J. Phys. Chem. Ref. Data 22, 1993).
inline double SaturationPressure(double t) {
    const double T = t + 273.15;
    if (t <= 0.01)
        return std::exp(9.550426 - 5723.265 / T + 3.53068 * std::log(T) - 0.00728332 * T);
    const double r = 1 - T / 647.096;
    return 22.064e6 * std::exp(647.096 / T *
                               (-7.85951783 * r + 1.84408259 * std::pow(r, 1.5) -
                                11.7866497 * std::pow(r, 3) + 22.6807411 * std::pow(r, 3.5) -
                                15.9618719 * std::pow(r, 4) + 1.80122502 * std::pow(r, 7.5)));
}

// g/kg at the relative humidity f (a fraction), raised as air raises saturation after Buck (J.
// Appl. Meteorol. 20, 1981). 50 % at 20 degC and 101300 Pa have 7.295 g/kg.
inline double X(double f, double t, double p) {
    const double factor = t <= 0.01 ? 1.0003 + 4.18e-8 * p : 1.0007 + 3.46e-8 * p;
    const double vapour = f * factor * SaturationPressure(t);
    return 1000 * kWaterMass / kAirMass * vapour / (p - vapour);
}

// J/mol at T in K.
inline double HeatOf(const std::array<double, 5>& cp, double T) {
    double sum = 0;
    for (std::size_t i = cp.size(); i-- > 0;) sum = sum * T + cp[i] / static_cast<double>(i + 1);
    return kGasConstant * sum * T;
}

inline double DryAirHeat(double T) {
    constexpr std::array<double, 5> n2{3.53100528, -1.23660988e-4, -5.02999433e-7, 2.43530612e-9,
                                       -1.40881235e-12},
        o2{3.78245636, -2.99673416e-3, 9.84730201e-6, -9.68129509e-9, 3.24372837e-12},
        ar{2.5, 0, 0, 0, 0},
        co2{2.35677352, 8.98459677e-3, -7.12356269e-6, 2.45919022e-9, -1.43699548e-13};
    return 0.78084 * HeatOf(n2, T) + 0.20946 * HeatOf(o2, T) + 0.00934 * HeatOf(ar, T) +
           0.0004 * HeatOf(co2, T);
}

// A second virial coefficient and T times its slope, m3/mol.
struct Virial {
    double value = 0, slope = 0;
};

inline Virial OfSteam(double T) {
    constexpr std::array<double, 4> a{0.34404, -0.75826, -24.219, -3978.2},
        b{-0.5, -0.8, -3.35, -8.3};
    Virial sum;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const double term = a[i] * std::pow(T / 100, b[i]) * 1e-3;
        sum.value += term;
        sum.slope += b[i] * term;
    }
    return sum;
}

// A polynomial in 1 / T, cm3/mol.
inline Virial InverseSum(const std::array<double, 5>& c, double T) {
    Virial sum;
    for (std::size_t i = 0; i < c.size(); ++i) {
        const double term = c[i] * std::pow(T, -static_cast<double>(i)) * 1e-6;
        sum.value += term;
        sum.slope -= static_cast<double>(i) * term;
    }
    return sum;
}
inline Virial OfAir(double T) {
    return InverseSum({0.349568e2, -0.668772e4, -0.210141e7, 0.924746e8, 0}, T);
}
inline Virial OfAirWithSteam(double T) {
    return InverseSum({0.32366097e2, -0.141138e5, -0.1244535e7, 0, -0.2348789e10}, T);
}

// Of a gas of which `steam` is the mole fraction of water.
inline Virial OfMixture(double T, double steam) {
    const double air = 1 - steam;
    const Virial aa = OfAir(T), aw = OfAirWithSteam(T), ww = OfSteam(T);
    const auto mixed = [&](double i, double j, double k) {
        return air * air * i + 2 * air * steam * j + steam * steam * k;
    };
    return {mixed(aa.value, aw.value, ww.value), mixed(aa.slope, aw.slope, ww.slope)};
}

// J/mol that a gas of p (Pa) has more than the ideal gas.
inline double Departure(const Virial& b, double p) { return p * (b.value - b.slope); }

// kJ/kg of steam as an ideal gas at T (K).
inline double SteamHeat(double T) {
    constexpr std::array<double, 5> h2o{4.19864056, -2.03643410e-3, 6.52040211e-6, -5.48797062e-9,
                                        1.77197817e-12};
    return 2500.92 + (HeatOf(h2o, T) - HeatOf(h2o, kTriplePoint) -
                      Departure(OfSteam(kTriplePoint), kTriplePressure)) /
                         kWaterMass;
}

inline double ShareOfSteam(double x) { return x / (1000 * kWaterMass / kAirMass + x); }

// kJ per kg of dry air; t in degC, x in g/kg, p the total pressure in Pa. 0 for dry air at 0 degC
// and 101325 Pa.
inline double H(double t, double x, double p) {
    const double T = t + 273.15, steam = ShareOfSteam(x);
    const double zero = DryAirHeat(273.15) + Departure(OfAir(273.15), 101325);
    return (DryAirHeat(T) - zero + Departure(OfMixture(T, steam), p) / (1 - steam)) / kAirMass +
           x / 1000 * SteamHeat(T);
}

// kg of dry air in 1 m3, by p / (R T) = n (1 + B n).
inline double DryAir(double t, double x, double p) {
    const double T = t + 273.15, steam = ShareOfSteam(x), ideal = p / (kGasConstant * T);
    const double b = OfMixture(T, steam).value;
    const double n = 2 * ideal / (1 + std::sqrt(1 + 4 * b * ideal));
    return n * (1 - steam) * kAirMass / 1000;
}

}  // namespace zandrell::independent
