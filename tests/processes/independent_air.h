#pragma once

#include <array>
#include <cmath>
#include <cstddef>

// Enthalpy and dry air of humid air from formulas that the kernel does not have, to balance plants
// with: specific heats of the gases after McBride, Gordon and Reno (NASA TM-4513, 1993, 200 to 1000
// K), dry air of 78.084 % N2, 20.946 % O2, 0.934 % Ar and 0.04 % CO2, steam of 2500.92 kJ/kg at
// 0.01 degC (IAPWS-95) that departs from the ideal gas by the second virial coefficient of Harvey
// and Lemmon (J. Phys. Chem. Ref. Data 33, 2004). Saturated steam comes out at 2537.50 kJ/kg at 20
// degC and 2573.65 at 40; steam tables have 2537.4 and 2573.5.
namespace zandrell::independent {

inline constexpr double kGasConstant = 8.314462618;                        // J/(mol K)
inline constexpr double kAirMass = 28.9647, kWaterMass = 18.015268;        // g/mol
inline constexpr double kTriplePoint = 273.16, kTriplePressure = 611.657;  // K, Pa

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

// J/mol that steam of p (Pa) has more than the ideal gas: p (B - T dB/dT).
inline double SteamDeparture(double T, double p) {
    constexpr std::array<double, 4> a{0.34404, -0.75826, -24.219, -3978.2},
        b{-0.5, -0.8, -3.35, -8.3};
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * (1 - b[i]) * std::pow(T / 100, b[i]);
    return p * sum * 1e-3;
}

// kJ/kg at t (degC) and a vapour pressure in Pa.
inline double SteamEnthalpy(double t, double p) {
    constexpr std::array<double, 5> h2o{4.19864056, -2.03643410e-3, 6.52040211e-6, -5.48797062e-9,
                                        1.77197817e-12};
    const double T = t + 273.15;
    return 2500.92 + (HeatOf(h2o, T) - HeatOf(h2o, kTriplePoint) + SteamDeparture(T, p) -
                      SteamDeparture(kTriplePoint, kTriplePressure)) /
                         kWaterMass;
}

// kJ per kg of dry air; t in degC, x in g/kg, p the total pressure in Pa.
inline double H(double t, double x, double p) {
    const double vapour = p * x / (1000 * kWaterMass / kAirMass + x);
    return (DryAirHeat(t + 273.15) - DryAirHeat(273.15)) / kAirMass +
           x / 1000 * SteamEnthalpy(t, vapour);
}

// kg of dry air in 1 m3.
inline double DryAir(double t, double x, double p) {
    const double ratio = 1000 * kWaterMass / kAirMass;
    return p * ratio / (ratio + x) * kAirMass / (1000 * kGasConstant * (t + 273.15));
}

}  // namespace zandrell::independent
