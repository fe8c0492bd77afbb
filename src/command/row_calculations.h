#pragma once

#include <array>
#include <memory>
#include <string>

#include "base/data_files.h"
#include "command/row_calculation.h"
#include "kernel/air_state.h"

namespace zandrell {

struct WaterAirTables;

// The results of a state, in the order of the columns that the state calculation adds.
inline constexpr std::size_t kStateResults = 8;
extern const std::array<std::string_view, kStateResults> kStateResultNames;
// Some may be no finite number: each stands for itself.
std::array<double, kStateResults> ResultsOf(const AirState& state);

// Why there is no state at t (degC) and p_bar. Requires: one of them is outside the limits.
std::string NoStateReason(double t, double p_bar);

// The state of humid air from t (degC), rh (per cent) and p (bar). Rows without p have
// `default_p_bar`. `tables` outlives the calculation and is loaded.
std::unique_ptr<RowCalculation> MakeStateCalculation(const WaterAirTables& tables,
                                                     double default_p_bar);

// The searches of kernel/inverse_state.h, by the name that the command line gives them: rh-from-x,
// t-from-h, t-from-density; null for any other. `files` outlives the calculation.
std::unique_ptr<RowCalculation> MakeInverseCalculation(std::string_view search,
                                                       const DataFiles& files,
                                                       double default_p_bar);

}  // namespace zandrell
