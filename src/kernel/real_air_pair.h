#pragma once

#include <optional>

#include "kernel/real_air.h"

// A state of real air from any two of its figures. Each search keeps one figure and brackets along
// the line that it leaves, on which the other runs one way, so that it ends at the only state or
// knows that there is none.
namespace zandrell {

enum class AirFigure {
    Temperature,       // degC
    RelativeHumidity,  // 0..1, over ice up to 0.01 degC
    HumidityRatio,     // g/kg
    Enthalpy,          // kJ/kg
    DewPoint,          // degC, up to 0.01 degC the frost point
    WetBulb,           // degC, up to 0.01 degC the iced one
    VapourPressure,    // Pa
    Density            // of the humid air, kg/m3
};

struct GivenFigure {
    AirFigure figure = AirFigure::Temperature;
    double value = 0;
};

struct RealAirPoint {
    double t = 0;     // degC
    double relF = 0;  // 0..1
};

enum class PairEnd {
    Found,
    NotIndependent,  // the two tell the same: x, dew point and vapour pressure do, and that air is
                     // dry
    DryAir,          // a dew point of air without water
    FirstOutside,    // the first figure lies outside the model, whatever the second is
    SecondOutside,   // the second, whatever the first is
    Contradicting,   // with the first as it is the second lies between `least` and `most`
    OutsideModel     // the pressure, or no state of the model has the first figure
};

struct PairAnswer {
    PairEnd end = PairEnd::OutsideModel;
    std::optional<RealAirPoint> point{};
    // A second state with both figures, above 0.01 degC: as ice melts saturation drops a little, so
    // that a relative humidity meets some figures on both sides.
    std::optional<RealAirPoint> warmer{};
    double least = 0, most = 0;  // of the figure that lies outside
};

// p_bar as of EvaluateRealAir. For states up to saturation.
PairAnswer RealAirFromPair(GivenFigure first, GivenFigure second, double p_bar);

// A figure of a state; empty where it has none (the dew point of dry air).
std::optional<double> FigureOf(AirFigure figure, const RealAirPoint& point, double p_bar);

}  // namespace zandrell
