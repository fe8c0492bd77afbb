#pragma once

#include <optional>

#include "kernel/state_solver.h"

namespace zandrell {

// A state of air as Exact counts it, per kg of dry air where not said otherwise.
struct ExactAirState {
    double t = 0;                // degC
    double x = 0;                // all water, g/kg: vapour, liquid and ice
    double fraction = 0;         // relative humidity, over ice up to 0.01 degC; above 1 in the fog:
                                 // the pressure that all water would have as vapour
    double enthalpy = 0;         // kJ/kg, with liquid and ice; zero points as of RealAirState
    double volume = 0;           // m3/kg of the gas: liquid and ice take up next to nothing
    double density = 0;          // of the air and all water in it, kg/m3
    double vapour_pressure = 0;  // Pa
    double liquid = 0, ice = 0;  // g/kg, beyond saturation

    bool IsFog() const { return fraction > 1; }
};

// The air of the Exact convention: a real gas (real_air.h), continued beyond the limits of that
// model (continued_air.h), and in the fog saturated air with ice up to 0.01 degC, with liquid water
// above. At the ChartDruckBar of a solver, which must outlive it; cheap to make. t in degC from
// kLowestTemperature to kHighestTemperature, x in g/kg, h in kJ per kg of dry air. Empty outside
// these limits, for what is no air, and without coefficients.
class ExactAir {
  public:
    explicit ExactAir(StateSolver& solver);

    // relF as a fraction, 0 to 1; over ice up to 0.01 degC. Above boiling it counts from the
    // saturation pressure of water, which vapour cannot reach there.
    std::optional<ExactAirState> FromHumidity(double relF, double t) const;
    std::optional<ExactAirState> FromX(double t, double x) const;
    // The state with the enthalpy h; in whole millionths of a millikelvin, so that a figure cut
    // after its hundredths keeps the last. Where ice melts it is 0.01 degC over a range of h, and
    // part of what has condensed is ice.
    std::optional<ExactAirState> FromEnthalpy(double h, double x) const;

    // Single figures, for less than a state. Enthalpy and Fraction are those of FromX.
    std::optional<double> Enthalpy(double t, double x) const;
    std::optional<double> Fraction(double t, double x) const;
    std::optional<double> XFromHumidity(double relF, double t) const;
    std::optional<double> SaturatedX(double t) const { return XFromHumidity(1, t); }
    std::optional<double> Temperature(double h, double x) const;
    // The x up to saturation, or 10 kg/kg, at which air of t has the enthalpy h; empty where h lies
    // beyond dry or saturated air.
    std::optional<double> XFromEnthalpy(double t, double h) const;

    // Up to 0.01 degC the frost point. Air in the fog has its own temperature. Empty for dry air.
    std::optional<double> DewPoint(const ExactAirState& state) const;
    // Up to 0.01 degC the iced bulb. Air in the fog has its own temperature.
    std::optional<double> WetBulb(const ExactAirState& state) const;

    double PressureBar() const { return p_bar_; }

  private:
    struct Found {
        double t = 0;
        double melted = 0;  // of what has condensed at 0.01 degC, as a share
    };

    bool Answers(double t) const;
    double VapourPressureOf(double x) const;
    double XOf(double vapour_pressure) const;
    std::optional<ExactAirState> StateAt(double t, double x, double saturation,
                                         double fraction) const;
    std::optional<Found> Find(double h, double x) const;
    Found Melting(double h, double x) const;
    std::optional<double> BracketedDewPoint(double vapour_pressure) const;
    std::optional<double> BracketedWetBulb(const ExactAirState& state) const;

    StateSolver& solver_;
    double p_bar_;
};

}  // namespace zandrell
