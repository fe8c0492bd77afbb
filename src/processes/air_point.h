#pragma once

namespace zandrell {

// A state of the air as the processes hand it on.
struct AirPoint {
    double t = 0;  // degC
    double x = 0;  // humidity ratio, g/kg
    double h = 0;  // enthalpy, kJ per kg of dry air
};

}  // namespace zandrell
