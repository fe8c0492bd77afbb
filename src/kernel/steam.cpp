#include "kernel/steam.h"

#include <cmath>

#include "base/number_text.h"
#include "base/unit_factors.h"
#include "kernel/air_state.h"
#include "kernel/steam_terms.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

double ReducedPressure(const WaterAirTables& tables, double p_bar) {
    return p_bar * kPascalPerBar / tables.RefDruck;
}

double BoilingStart(const WaterAirTables& tables, double pressure_pa) {
    const double log_pressure = std::log(pressure_pa);
    double reciprocal = 0;
    for (std::size_t i = 14; i >= 10; --i) reciprocal = reciprocal * log_pressure + tables.KSatt[i];
    double theta = 0;
    AssignFinite(theta, 1 / reciprocal);
    return theta;
}

// Soave-Redlich-Kwong for water: the pressure in Pa for the volume in m3/kg at T in K.
double SoavePressure(const WaterAirTables& tables, double T, double volume) {
    constexpr double kAcentricSlope = 1.06019;  // m
    constexpr double kAttraction = 1724.55;     // a, Pa m6 / kg2
    constexpr double kCovolume = 0.00117007;    // b, m3/kg
    const double root = 1 + kAcentricSlope * (1 - std::sqrt(T / tables.RefTemp));
    return kGasConstantSteam * T / (volume - kCovolume) -
           root * root * kAttraction / (volume * (volume + kCovolume));
}

}  // namespace

double SaettigungsDruck(const WaterAirTables& tables, double theta, int modus) {
    const auto& k = tables.KSatt;
    const double u = 1 - theta;
    double s = 0;
    for (std::size_t i = 5; i >= 1; --i) s = (s + k[i]) * u;
    s /= 1 + u * (k[6] + u * k[7]);
    s = s / theta - u / (k[8] * u * u + k[9]);
    const double reduced = std::exp(s);
    return modus == kReducedPressure ? reduced : reduced * tables.RefDruck / kPascalPerBar;
}

double SiedeTemperatur(const WaterAirTables& tables, double p_bar) {
    constexpr int kMostRounds = 50;
    constexpr double kHalfDistance = 1.5;      // K, of the two start points
    constexpr double kSmallestChange = 1e-07;  // of the residual, times RefTemp
    const double beta = ReducedPressure(tables, p_bar);
    const double start = BoilingStart(tables, beta * tables.RefDruck);
    // With coefficients that make no sense each failing step leaves its target, so the search runs
    // out after the last round with some finite temperature.
    double theta_a = 0, theta_b = 0, theta = 0, f_a = 0, f_b = 0;
    AssignFinite(theta_a, (start * tables.RefTemp - kHalfDistance) / tables.RefTemp);
    AssignFinite(theta_b, (start * tables.RefTemp + kHalfDistance) / tables.RefTemp);
    AssignFinite(f_a, SaettigungsDruck(tables, theta_a, kReducedPressure) / beta - 1);
    for (int round = 1; round <= kMostRounds; ++round) {
        AssignFinite(f_b, SaettigungsDruck(tables, theta_b, kReducedPressure) / beta - 1);
        const double d = f_b - f_a;
        const double change = std::abs(d) * tables.RefTemp;
        theta = theta_b;
        if (change > kSmallestChange) {
            AssignFinite(theta, theta_b - (theta_b - theta_a) * f_b / d);
        }
        // The stop looks at the change of the residual, not at the residual.
        if (change < kSmallestChange) break;
        theta_a = theta_b;
        theta_b = theta;
        f_a = f_b;
    }
    return theta * tables.RefTemp;
}

double DampfVolumen(const WaterAirTables& tables, double T, double p_bar) {
    const VolumeTerms terms = MakeVolumeTerms(tables, MakeSteamPowers(tables, T));
    return VolumeAt(tables, terms, ReducedPressure(tables, p_bar));
}

double DampfEnthalpie(const WaterAirTables& tables, double T, double p_bar) {
    const SteamPowers at = MakeSteamPowers(tables, T);
    return EnthalpyAt(tables, MakeEnthalpyTerms(tables, at), ReducedPressure(tables, p_bar));
}

double EquationOfStatePressure(const WaterAirTables& tables, double T, double volume) {
    constexpr int kMostRounds = 10;
    constexpr double kSmallest = 1e-06;
    constexpr double kResidualScale = 1000;
    const VolumeTerms terms = MakeVolumeTerms(tables, MakeSteamPowers(tables, T));
    const auto residual = [&](double p_bar) {
        return VolumeAt(tables, terms, ReducedPressure(tables, p_bar)) / volume - 1;
    };
    const double start = SoavePressure(tables, T, volume);
    double p_a = 0.9 * start / kPascalPerBar;
    double p_b = 1.1 * start / kPascalPerBar;
    double current = p_b;
    double e_a = residual(p_a);
    for (int round = 1; round <= kMostRounds; ++round) {
        const double e = kResidualScale * residual(current);
        if (std::abs(e_a - e) < kSmallest || std::abs(p_a - p_b) < kSmallest) break;
        if (round == kMostRounds) break;
        AssignFinite(current, p_b - (p_b - p_a) / (e - e_a) * e);
        p_a = p_b;
        p_b = current;
        e_a = e;
    }
    return current;
}

}  // namespace zandrell
