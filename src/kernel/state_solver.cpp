#include "kernel/state_solver.h"

#include "base/file_names.h"
#include "kernel/state_arithmetic.h"

namespace zandrell {
struct StateSolver::Kept {
    WaterAirTables tables;
    FileStatus coefficient_status = FileStatus::Missing;
    std::optional<FileStamp> stamp;  // of qvdata.dat when it was last read
    std::optional<PressurePoint> pressure;
    // Where no table serves a state is costly, and callers ask twice at a temperature.
    std::optional<TemperaturePoint> point;
    double point_t = 0;  // degC

    const TemperaturePoint& PointAt(double t) {
        if (!point || point_t != t) {
            point = TemperatureByFormulas(tables, *pressure, t + kKelvinOffset);
            point_t = t;
        }
        return *point;
    }
};

StateSolver::StateSolver(const DataFiles& files) : files_(files), kept_(std::make_unique<Kept>()) {}

StateSolver::~StateSolver() = default;

bool StateSolver::ZustandBerechnen(double& relF, double& t, double& p_bar) {
    ClampArguments(relF, p_bar);
    if (!kept_->tables.Loaded() || LetzterDruckBar != p_bar) RefreshTables();
    return kept_->tables.Loaded() && WithinLimits(relF, t, p_bar) && Compute(relF, t, p_bar);
}

bool StateSolver::Evaluate(double relF, double t, double p_bar) {
    return ZustandBerechnen(relF, t, p_bar);
}

double StateSolver::SaturationHumidity(double t) {
    Evaluate(1, t);
    return ZustandX;
}

const WaterAirTables& StateSolver::Tables() {
    if (!kept_->tables.Loaded()) RefreshTables();
    return kept_->tables;
}

FileStatus StateSolver::CoefficientStatus() const { return kept_->coefficient_status; }

bool StateSolver::HasCoefficients() { return Tables().Loaded(); }

const PressurePoint* StateSolver::KeptPressure() const {
    const auto& pressure = kept_->pressure;
    const bool same = pressure && pressure->p_bar == ChartDruckBar;
    return same && LetzterDruckBar == ChartDruckBar ? &*pressure : nullptr;
}

bool StateSolver::Compute(double relF, double t, double p_bar) {
    Kept& kept = *kept_;
    if (!kept.pressure || kept.pressure->p_bar != p_bar) {
        kept.pressure = EvaluatePressure(kept.tables, p_bar);
        kept.point.reset();
    }
    const AirState state = Tabulated(kept.tables, *kept.pressure, t)
                               ? StateAt(kept.tables, *kept.pressure, relF, t)
                               : StateByFormulas(kept.tables, kept.PointAt(t), relF);
    if (!AllFinite(state)) return false;
    static_cast<AirState&>(*this) = state;
    LetzterDruckBar = p_bar;
    return true;
}

// Called at each change of pressure, and at every call while there are no coefficients: nothing in
// the tables depends on the pressure, but this is when a changed file is taken up.
void StateSolver::RefreshTables() {
    const auto stamp = files_.Stamp(kCoefficientFile);
    const FileStatus status = kept_->coefficient_status;
    const bool tried = status == FileStatus::Ok || status == FileStatus::Malformed;
    if (stamp && stamp == kept_->stamp && tried) return;
    kept_->stamp = stamp;
    ReadTables();
}

void StateSolver::ReadTables() {
    const FileText file = files_.OpenForInput(kCoefficientFile);
    kept_->coefficient_status = file.status;
    if (file.status != FileStatus::Ok) return;  // tables that worked are not given up for nothing
    WaterAirTables tables = ReadWaterAirTables(file.text);
    if (!tables.Complete()) {
        kept_->coefficient_status = FileStatus::Malformed;
        return;
    }
    kept_->tables = std::move(tables);
    kept_->pressure.reset();
    kept_->point.reset();
}

}  // namespace zandrell
