#pragma once

#include <optional>
#include <span>

namespace zandrell {

// Humid air as a real gas, after ASHRAE research project 1485 (Herrmann, Kretzschmar and Gatley,
// HVAC&R Research 15, 2009), the source of the moist-air tables of the ASHRAE Handbook: ice below
// 0.01 degC, enhancement factor, second and third virial coefficients. Within 0.05 % in humidity
// and density and 0.1 kJ/kg in enthalpy of that model where vapour makes at most half the pressure.

// Limits, inclusive.
inline constexpr double kRealAirLowest = -60, kRealAirHighest = 100;      // degC
inline constexpr double kRealAirLowestBar = 0.5, kRealAirHighestBar = 2;  // bar
// Up to which saturation, dew point and wet bulb are those of ice, degC.
inline constexpr double kIceUpTo = 0.01;
inline constexpr double kRealAirMostX = 10000;  // g/kg
constexpr bool RealAirKnowsPressure(double p_bar) {
    return p_bar >= kRealAirLowestBar && p_bar <= kRealAirHighestBar;
}
constexpr bool RealAirKnows(double t, double p_bar) {
    return t >= kRealAirLowest && t <= kRealAirHighest && RealAirKnowsPressure(p_bar);
}
// x of as many moles of vapour as of dry air, g/kg.
inline constexpr double kRealAirRatio = 1000 * 18.015268 / 28.966;
inline constexpr double kRealAirMostWater =
    kRealAirMostX / (kRealAirMostX + kRealAirRatio);  // of the moles

// Per kg of dry air where not said otherwise.
struct RealAirState {
    double x = 0;                // humidity ratio, g/kg
    double enthalpy = 0;         // kJ/kg; 0 for dry air at 0 degC and 1.01325 bar and for saturated
                                 // liquid at 0.01 degC
    double volume = 0;           // m3/kg
    double density = 0;          // of the humid air, kg/m3
    double vapour_pressure = 0;  // Pa, the mole fraction of the vapour times the total pressure
    double enhancement = 1;      // by which air raises the saturation pressure of water at t and p
};

// Saturation pressure of pure water in Pa at t in degC: over ice up to 0.01 degC (IAPWS R14-08,
// from -100), over liquid water above (IAPWS-IF97, equation 30, to 373 degC).
double RealSaturationPressure(double t);

// The temperature in degC at which pure water boils at p_bar (IAPWS-IF97, equation 31, which is
// the one above turned round). Empty below the triple point and above the critical one.
std::optional<double> RealBoilingTemperature(double p_bar);

// The pressure in Pa of vapour that saturates air at t and p_bar, from -100 degC: that of pure
// water, raised by the enhancement factor; above boiling without it.
double RealSaturatedVapour(double t, double p_bar);

// The state at relative humidity relF (0..1, over ice up to 0.01 degC), t in degC and p_bar. Above
// the boiling temperature relF is that of the saturation pressure without enhancement. Empty
// outside the limits, for a humidity outside 0..1 and for more than 10 kg of water per kg.
std::optional<RealAirState> EvaluateRealAir(double relF, double t, double p_bar);

// The gas with this x in g/kg (0 to 10 kg/kg) at t in degC and p_bar, also where a little more
// vapour is in it than saturates; far beyond saturation the virial coefficients mean nothing.
// `enhancement` is left at 1. Empty outside the limits.
std::optional<RealAirState> EvaluateRealGas(double x, double t, double p_bar);

// Saturated air (g/kg, kJ/kg) and the enthalpy of the water that wets it at its temperature and
// pressure, of ice up to 0.01 degC, of liquid water above, kJ/kg. Empty as EvaluateRealAir.
struct SaturatedRealAir {
    double x = 0, enthalpy = 0;
    double condensed_enthalpy = 0;
};
std::optional<SaturatedRealAir> EvaluateSaturatedAir(double t, double p_bar);

// EvaluateRealAir for arrays: state i from relF[i], t[i] and p_bar[i], or p_bar[0] for all.
// Requires: as many states and temperatures as humidities, as many pressures or one.
void EvaluateRealAirs(std::span<const double> relF, std::span<const double> t,
                      std::span<const double> p_bar, std::span<std::optional<RealAirState>> states);

// The dew point in degC, up to 0.01 degC the frost point, of air with this vapour pressure in Pa.
// Empty for pressures that are not reached between -100 degC and the highest temperature, and
// outside the limits of p_bar.
std::optional<double> RealDewPoint(double vapour_pressure, double p_bar);

}  // namespace zandrell
