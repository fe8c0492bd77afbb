#pragma once

#include <cmath>

// What others need for the same questions: humid air as a mixture of ideal gases by the formulas of
// the ASHRAE Handbook of Fundamentals (2017), chapter 1, as small psychrometric libraries have
// them. Measured in the same run as our own, so that figures of different machines can be told
// apart.
namespace zandrell::peer {

struct Air {
    double x = 0;         // kg/kg
    double h = 0;         // kJ/kg
    double density = 0;   // kg/m3
    double p_vapour = 0;  // Pa
};

// Pa, t in degC: equations 5 (over ice) and 6 (over water).
inline double SaturationPressure(double t) {
    const double T = t + 273.15;
    if (t < 0) {
        return std::exp(-5.6745359e3 / T + 6.3925247 - 9.677843e-3 * T + 6.2215701e-7 * T * T +
                        2.0747825e-9 * T * T * T - 9.484024e-13 * T * T * T * T +
                        4.1635019 * std::log(T));
    }
    return std::exp(-5.8002206e3 / T + 1.3914993 - 4.8640239e-2 * T + 4.1764768e-5 * T * T -
                    1.4452093e-8 * T * T * T + 6.5459673 * std::log(T));
}

// Equations 20, 26 and 30.
inline Air State(double relF, double t, double p_pa) {
    Air air;
    air.p_vapour = relF * SaturationPressure(t);
    air.x = 0.621945 * air.p_vapour / (p_pa - air.p_vapour);
    air.h = 1.006 * t + air.x * (2501 + 1.86 * t);
    air.density = (1 + air.x) / (287.042 * (t + 273.15) * (1 + 1.607858 * air.x) / p_pa);
    return air;
}

// The paths of our searches, with these states.
inline double HumidityFromX(double t, double x, double p_pa) {
    double f = 0.5, d = 0.5, found = 0.2;
    const double saturation = SaturationPressure(t);
    for (int n = 1; std::abs(x - found) > 5e-6 && n < 60; ++n) {
        found = 0.621945 * f * saturation / (p_pa - f * saturation);
        d /= 2;
        f += x < found ? -d : d;
    }
    return f;
}

inline double TemperatureFromEnthalpy(double t, double h, double step, double relF, double p_pa) {
    double found = State(relF, t, p_pa).h;
    for (int n = 1; std::abs(h - found) > 0.01 && n < 40; ++n) {
        step /= 2;
        t += h > found ? step : -step;
        found = State(relF, t, p_pa).h;
    }
    return t;
}

inline double TemperatureFromDensity(double t, double rho, double relF, double p_pa) {
    double d = 8;
    t += d;
    double found = State(relF, t, p_pa).density;
    for (int n = 1; std::abs(rho - found) > 1e-4 && n <= 30; ++n) {
        t += rho < found ? d : -d;
        found = State(relF, t, p_pa).density;
        d /= 2;
    }
    return t;
}

}  // namespace zandrell::peer
