#include "kernel/state_solver.h"

namespace zandrell {
namespace {

constexpr std::string_view kCoefficientFile = "qvdata.dat";

}  // namespace

bool StateSolver::ZustandBerechnen(double& relF, double& t, double& p_bar) {
    ClampArguments(relF, p_bar);
    if (!tables_.Loaded() || LetzterDruckBar != p_bar) RefreshTables();
    return tables_.Loaded() && WithinLimits(relF, t, p_bar) && Compute(relF, t, p_bar);
}

bool StateSolver::Evaluate(double relF, double t, double p_bar) {
    return ZustandBerechnen(relF, t, p_bar);
}

double StateSolver::SaturationHumidity(double t) {
    Evaluate(1, t);
    return ZustandX;
}

const WaterAirTables& StateSolver::Tables() {
    if (!tables_.Loaded()) RefreshTables();
    return tables_;
}

bool StateSolver::Compute(double relF, double t, double p_bar) {
    const bool same_pressure = point_ && point_->pressure.p_bar == p_bar;
    if (!same_pressure || point_t_ != t) {
        const PressurePoint pressure =
            same_pressure ? point_->pressure : EvaluatePressure(tables_, p_bar);
        point_ = EvaluateTemperature(tables_, pressure, t);
        point_t_ = t;
    }
    const AirState state = EvaluateHumidity(tables_, *point_, relF);
    if (!AllFinite(state)) return false;
    static_cast<AirState&>(*this) = state;
    LetzterDruckBar = p_bar;
    return true;
}

// Called at each change of pressure, and at every call while there are no coefficients: nothing in
// the tables depends on the pressure, but this is when a changed file is taken up.
void StateSolver::RefreshTables() {
    const auto stamp = files_.Stamp(kCoefficientFile);
    const bool tried =
        coefficient_status_ == FileStatus::Ok || coefficient_status_ == FileStatus::Malformed;
    if (stamp && stamp == stamp_ && tried) return;
    stamp_ = stamp;
    ReadTables();
}

void StateSolver::ReadTables() {
    const FileText file = files_.OpenForInput(kCoefficientFile);
    coefficient_status_ = file.status;
    if (file.status != FileStatus::Ok) return;  // tables that worked are not given up for nothing
    const WaterAirTables tables = ReadWaterAirTables(file.text);
    if (!tables.Complete()) {
        coefficient_status_ = FileStatus::Malformed;
        return;
    }
    tables_ = tables;
    point_.reset();
}

}  // namespace zandrell
