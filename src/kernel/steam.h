#pragma once

namespace zandrell {

struct WaterAirTables;

// Which form of the saturation pressure is wanted.
inline constexpr int kReducedPressure = 1;
inline constexpr int kPressureInBar = 2;

// Saturation pressure of water at theta = T / RefTemp: reduced (beta-K) with modus 1, in bar with
// any other. Saturation line of the 1967 IFC Formulation for Industrial Use.
double SaettigungsDruck(const WaterAirTables& tables, double theta, int modus);

// Boiling temperature in K at p_bar, by secant on the saturation line from the fitted start
// polynomial; at most 50 rounds, stopped on the change of the residual.
double SiedeTemperatur(const WaterAirTables& tables, double p_bar);

// Specific volume of steam in m3/kg at T (K) and p_bar: sub-region 2 of the formulation without its
// sum over mu = 6..8, which humid air does not reach and none of the suite's modules counts;
// volumes at high pressure therefore differ from published ones.
double DampfVolumen(const WaterAirTables& tables, double T, double p_bar);

// Specific enthalpy of steam in kJ/kg at T (K) and p_bar: sub-region 2, with that sum.
double DampfEnthalpie(const WaterAirTables& tables, double T, double p_bar);

// The pressure in bar at which DampfVolumen gives the specific volume (m3/kg) at T (K): a start by
// Soave-Redlich-Kwong for water, refined by at most ten secant steps. The first step mixes a
// residual with one that is 1000 times larger, and that is kept. No result of the state function
// depends on it.
double EquationOfStatePressure(const WaterAirTables& tables, double T, double volume);

}  // namespace zandrell
