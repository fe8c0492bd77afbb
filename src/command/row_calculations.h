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

// What a state is asked for: degC, per cent, bar.
struct StateQuestion {
    double t = 0, rh = 0, p = 0;
};

// Replaces humidity and pressure by what the state function takes in their place.
void ClampQuestion(StateQuestion& question);

// "NAME = VALUE is outside LOW..HIGH UNIT".
std::string OutsideText(std::string_view name, double value, double low, double high,
                        std::string_view unit);

// Why there is no state at t (degC) and p_bar. Requires: one of them is outside the limits, of
// which t has another low end where more than the state function answers.
std::string NoStateReason(double t, double p_bar, double lowest_t = kLowestTemperature);

// The state of humid air from t (degC), rh (per cent) and p (bar). Rows without p have
// `default_p_bar`. `tables` outlives the calculation and is loaded.
std::unique_ptr<RowCalculation> MakeStateCalculation(const WaterAirTables& tables,
                                                     double default_p_bar);

// Real air within the limits of its model: two of the columns t, rh, x, h, t_dew, t_wet, p_vapour
// and density hold a number in each row (real_air_figures.h). Rows without p as above.
std::unique_ptr<RowCalculation> MakeRealAirCalculation(double default_p_bar);

// The air of the Exact convention, from the columns of MakeStateCalculation and within its limits
// with those of real air. `files` outlives the calculation and has the coefficients.
std::unique_ptr<RowCalculation> MakeExactAirCalculation(const DataFiles& files,
                                                        double default_p_bar);

// The searches of kernel/inverse_state.h, by the name that the command line gives them: rh-from-x,
// t-from-h, t-from-density; null for any other. `files` outlives the calculation.
std::unique_ptr<RowCalculation> MakeInverseCalculation(std::string_view search,
                                                       const DataFiles& files,
                                                       double default_p_bar);

}  // namespace zandrell
