#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/data_files.h"
#include "selection/cubic_spline.h"

namespace zandrell {

inline constexpr std::string_view kRefrigerantFile = "refrigerants.csv";

// A refrigerant at saturation. Enthalpies in kJ/kg by the IIR reference (200 kJ/kg of liquid at
// 0 degC), specific heats in kJ/(kg K), densities in kg/m3, pressures in bar a.
struct SaturationState {
    double p_bubble = 0, p_dew = 0;
    double h_liquid = 0, h_vapour = 0;
    double cp_liquid = 0, cp_vapour = 0;
    double rho_liquid = 0, rho_vapour = 0;
};

struct SaturationRow {
    double t = 0;  // degC
    SaturationState state;
};

// The saturation table of a refrigerant between its rows: pressures as the straight line of ln p
// over 1/T, the rest by natural cubic splines.
class Refrigerant {
  public:
    // Requires: at least three rows, temperatures strictly ascending, pressures above 0.
    Refrigerant(std::string name, double gwp, const std::vector<SaturationRow>& rows);

    const std::string& Name() const { return name_; }
    double Gwp() const { return gwp_; }
    double LowestTemperature() const { return temperatures_.front(); }  // degC
    double HighestTemperature() const { return temperatures_.back(); }  // degC

    // Empty outside the table: nothing is extrapolated.
    std::optional<SaturationState> At(double t) const;
    // degC of the liquid at a pressure in bar; empty outside the table.
    std::optional<double> BubbleTemperature(double pressure) const;

  private:
    double Pressure(const std::vector<double>& logarithms, double t) const;

    std::string name_;
    double gwp_;
    std::vector<double> temperatures_, ln_bubble_, ln_dew_;
    CubicSpline h_liquid_, h_vapour_, cp_liquid_, cp_vapour_, rho_liquid_, rho_vapour_;
};

// One table a refrigerant, in the order of the text: a header line, then name, GWP, temperature and
// the eight figures. A row that is damaged, or not above the one before it, is passed over; a
// refrigerant with fewer than three rows is left out.
std::vector<Refrigerant> ParseRefrigerants(std::string_view csv);

struct RefrigerantTables {
    FileStatus status = FileStatus::Missing;
    std::vector<Refrigerant> tables;

    // Null for a name that is none of theirs.
    const Refrigerant* Find(std::string_view name) const;
};

RefrigerantTables ReadRefrigerants(const DataFiles& files);

}  // namespace zandrell
