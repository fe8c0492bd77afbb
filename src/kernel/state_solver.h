#pragma once

#include <memory>

#include "base/data_files.h"
#include "kernel/air_state.h"

namespace zandrell {

struct PressurePoint;
struct WaterAirTables;

// The program's one current state: a thin object over the pure state function. Its result fields
// are those of the last completed call and stay as they were when a call is refused.
class StateSolver : public AirState {
  public:
    // Reads qvdata.dat through `files`, which must outlive the solver, at the first call, and again
    // when a call changes the pressure and the file has another time stamp or size.
    explicit StateSolver(const DataFiles& files);
    ~StateSolver();

    double LetzterDruckBar = 0;   // bar, of the last completed call; 0 before the first
    double ChartDruckBar = 1.01;  // bar, the total pressure of chart, tools and plant

    // Fills the result fields for relative humidity relF (0..1), t in degC and p_bar. Clamps relF
    // and p_bar in place (see ClampArguments). Returns false, with all result fields as they were,
    // when the arguments are outside the limits, there are no coefficients or a result would be no
    // number.
    bool ZustandBerechnen(double& relF, double& t, double& p_bar);
    // The same for values that need no clamped copy back.
    bool Evaluate(double relF, double t, double p_bar);
    // At ChartDruckBar.
    bool Evaluate(double relF, double t) { return Evaluate(relF, t, ChartDruckBar); }

    // Saturation humidity in g/kg at ChartDruckBar; a refused call gives the last ZustandX.
    double SaturationHumidity(double t);

    const WaterAirTables& Tables();
    // How the last reading of qvdata.dat ended, known after the first call; Malformed also when
    // some of its 118 numbers are lacking. A reading that failed leaves the tables that worked.
    FileStatus CoefficientStatus() const;
    bool HasCoefficients();

    // The pressure of the last completed call where that is ChartDruckBar, so that a search can go
    // on from it; else null.
    const PressurePoint* KeptPressure() const;

  private:
    // The coefficients and what the last call left to build on.
    struct Kept;

    bool Compute(double relF, double t, double p_bar);
    void RefreshTables();
    void ReadTables();

    const DataFiles& files_;
    std::unique_ptr<Kept> kept_;
};

}  // namespace zandrell
