#pragma once

#include <array>

namespace zandrell {

struct WaterAirTables;

// The steam equations of sub-region 2 of the 1967 IFC Formulation for Industrial Use, taken apart
// into what depends on the temperature alone (these structs) and what is left for each pressure.
// Many pressures at one temperature then cost a few multiplications each.

// The powers of one temperature's X = exp(b (1 - theta)) from which all others are a product of
// two.
struct SteamPowers {
    double theta = 0;
    double X = 0;
    std::array<double, 8> low{};   // X^0 .. X^7
    std::array<double, 8> high{};  // X^0, X^8 .. X^48, and 0 for a term that is not there
};

struct VolumeTerms {
    double theta = 0;
    double X = 0;
    double boundary_pressure = 0;  // beta-L, reduced
    std::array<double, 5> sums{};  // of rows 1..5, each times mu
};

// One of rows 6..8: (numerator - weighted / D) / D with D = beta^(2 - mu) + denominator.
struct FractionTerms {
    double numerator = 0, weighted = 0, denominator = 0;
};

struct EnthalpyTerms {
    double theta = 0;
    double X = 0;
    double boundary_pressure = 0;  // beta-L, reduced
    double boundary_slope = 0;     // d beta-L / d theta
    double ideal = 0;              // reduced
    std::array<double, 5> sums{};  // of rows 1..5
    std::array<FractionTerms, 3> fractions{};
};

// T in K.
SteamPowers MakeSteamPowers(const WaterAirTables& tables, double T);
VolumeTerms MakeVolumeTerms(const WaterAirTables& tables, const SteamPowers& at);
EnthalpyTerms MakeEnthalpyTerms(const WaterAirTables& tables, const SteamPowers& at);

// Specific volume in m3/kg at the reduced pressure beta > 0; not finite at beta 0.
double VolumeAt(const WaterAirTables& tables, const VolumeTerms& terms, double beta);
// Specific enthalpy in kJ/kg at the reduced pressure beta >= 0.
double EnthalpyAt(const WaterAirTables& tables, const EnthalpyTerms& terms, double beta);

}  // namespace zandrell
