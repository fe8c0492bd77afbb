#pragma once

#include <array>
#include <cmath>

#include "kernel/humid_air_state.h"
#include "kernel/water_air_tables.h"

// The published equations written out term by term in their plain order, with std::pow and nothing
// kept from one call to the next: what the kernel's own arrangement of them is held against.
namespace zandrell::plain {

inline std::size_t Terms(double count) { return static_cast<std::size_t>(std::nearbyint(count)); }

struct Point {
    Point(const WaterAirTables& c, double T, double p_bar)
        : theta(T / c.RefTemp),
          beta(p_bar * 100000 / c.RefDruck),
          X(std::exp(c.ExpoB * (1 - theta))),
          beta_L(c.LGrenz[0] + c.LGrenz[1] * theta + c.LGrenz[2] * theta * theta),
          slope(c.LGrenz[1] + 2 * c.LGrenz[2] * theta) {}
    double theta, beta, X, beta_L, slope;
};

inline double SaturationBar(const WaterAirTables& c, double T) {
    const double theta = T / c.RefTemp, u = 1 - theta;
    double s = 0;
    for (std::size_t i = 1; i <= 5; ++i) s += c.KSatt[i] * std::pow(u, static_cast<double>(i));
    s /= 1 + c.KSatt[6] * u + c.KSatt[7] * u * u;
    s = s / theta - u / (c.KSatt[8] * u * u + c.KSatt[9]);
    return std::exp(s) * c.RefDruck / 100000;
}

// `with_fractions` adds the sum over rows 6..8, as published; the kernel leaves it out.
inline double Volume(const WaterAirTables& c, double T, double p_bar, bool with_fractions = false) {
    const Point at(c, T, p_bar);
    double chi = c.IdealI1 * at.theta / at.beta;
    for (std::size_t mu = 1; mu <= 5; ++mu) {
        double sum = 0;
        for (std::size_t nu = 1; nu <= Terms(c.ExpZ[mu][0]); ++nu) {
            sum += c.BWasser[mu][nu] * std::pow(at.X, c.ExpZ[mu][nu]);
        }
        const auto m = static_cast<double>(mu);
        chi -= m * std::pow(at.beta, m - 1) * sum;
    }
    for (std::size_t mu = 6; with_fractions && mu <= 8; ++mu) {
        const auto m = static_cast<double>(mu);
        double sum = 0, D = std::pow(at.beta, 2 - m);
        for (std::size_t nu = 1; nu <= Terms(c.ExpZ[mu][0]); ++nu) {
            sum += c.BWasser[mu][nu] * std::pow(at.X, c.ExpZ[mu][nu]);
        }
        for (std::size_t l = 1; l <= Terms(c.ExpX[mu][0]); ++l) {
            D += c.NennerWasser[mu][l] * std::pow(at.X, c.ExpX[mu][l]);
        }
        chi -= (m - 2) * std::pow(at.beta, 1 - m) * sum / (D * D);
    }
    if (!(at.beta / at.beta_L < 0.001)) {
        double sum = 0;
        for (std::size_t nu = 0; nu <= 6; ++nu) {
            sum += c.BWasser[9][nu] * std::pow(at.X, static_cast<double>(nu));
        }
        chi += 11 * std::pow(at.beta / at.beta_L, 10) * sum;
    }
    return chi * c.RefVolumen;
}

inline double Enthalpy(const WaterAirTables& c, double T, double p_bar) {
    const Point at(c, T, p_bar);
    const double b_theta = c.ExpoB * at.theta;
    double eps = c.BWasser[0][0] * at.theta;
    for (std::size_t i = 1; i <= 5; ++i) {
        const auto n = static_cast<double>(i);
        eps -= c.BWasser[0][i] * (n - 2) * std::pow(at.theta, n - 1);
    }
    for (std::size_t mu = 1; mu <= 8; ++mu) {
        const auto m = static_cast<double>(mu);
        double D = std::pow(at.beta, 2 - m), A = 0, sum = 0;
        for (std::size_t l = 1; mu >= 6 && l <= Terms(c.ExpX[mu][0]); ++l) {
            D += c.NennerWasser[mu][l] * std::pow(at.X, c.ExpX[mu][l]);
            A += c.ExpX[mu][l] * c.NennerWasser[mu][l] * std::pow(at.X, c.ExpX[mu][l]);
        }
        for (std::size_t nu = 1; nu <= Terms(c.ExpZ[mu][0]); ++nu) {
            const double weight = 1 + c.ExpZ[mu][nu] * b_theta - (mu >= 6 ? b_theta * A / D : 0.0);
            sum += c.BWasser[mu][nu] * weight * std::pow(at.X, c.ExpZ[mu][nu]);
        }
        eps -= mu >= 6 ? sum / D : std::pow(at.beta, m) * sum;
    }
    if (!(at.beta / at.beta_L < 0.001)) {
        double sum = 0;
        for (std::size_t i = 0; i <= 6; ++i) {
            const auto n = static_cast<double>(i);
            sum += c.BWasser[9][i] * std::pow(at.X, n) *
                   (1 + at.theta * (10 * at.slope / at.beta_L + n * c.ExpoB));
        }
        eps += at.beta * std::pow(at.beta / at.beta_L, 10) * sum;
    }
    return eps * c.RefDruck * c.RefVolumen / 1000;
}

inline double EnthalpyFromSpecificHeat(const std::array<double, 9>& cp, double t) {
    double sum = 0;
    for (std::size_t i = 0; i < cp.size(); ++i) {
        const auto n = static_cast<double>(i) + 1;
        sum += cp[i] / n * std::pow(t, n);
    }
    return sum;
}

// `boiling` in K. Requires arguments within the limits.
inline AirState State(const WaterAirTables& c, double relF, double t, double p_bar,
                      double boiling) {
    const double T = t + 273.15, total = p_bar * 100000;
    const double reference = T > boiling ? total / 100000 : SaturationBar(c, T);
    const double rho_d = relF * (1 / Volume(c, T, reference));
    const double p_d = 461.5 * T * rho_d, p_l = total - p_d;
    const double x = rho_d / (p_l / (287.04 * T)), rho_0 = total / (287.04 * T);
    const double t_c = T - 273.15;
    const double h_v = EnthalpyFromSpecificHeat(c.CpDampf, t_c);
    const double h_a = EnthalpyFromSpecificHeat(c.CpLuft, t_c);
    const double h = h_a + x * (p_d < 611 ? h_v + 2501.6 : Enthalpy(c, T, p_d / 100000));
    return {1000 * x, h,      h_a, p_l, p_d, rho_0 - x * 1.124 * rho_0 * (1 - 18.015 / 28.96),
            rho_0,    boiling};
}

}  // namespace zandrell::plain
