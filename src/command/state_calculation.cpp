#include <algorithm>
#include <array>

#include "command/row_calculations.h"
#include "command/table_cells.h"
#include "kernel/humid_air_state.h"

namespace zandrell {
namespace {

constexpr std::array<InputColumn, 3> kInputs{{{"t"}, {"rh"}, {"p", ColumnNeed::ColumnMayLack}}};

class StateCalculation : public RowCalculation {
  public:
    StateCalculation(const WaterAirTables& tables, double default_p_bar)
        : tables_(tables), default_p_bar_(default_p_bar) {}

    std::span<const InputColumn> Inputs() const override { return kInputs; }
    std::span<const std::string_view> Results() const override { return kStateResultNames; }

    std::unique_ptr<RowCalculation> Another() const override {
        return std::make_unique<StateCalculation>(tables_, default_p_bar_);
    }

    void Calculate(std::span<const std::optional<double>> inputs,
                   std::span<std::optional<double>> results, std::string& reason) override {
        const double t = *inputs[0];
        double relF = *inputs[1] / 100;
        double p_bar = inputs[2].value_or(default_p_bar_);
        ClampArguments(relF, p_bar);
        if (!WithinLimits(relF, t, p_bar)) {
            reason = NoStateReason(t, p_bar);
            return;
        }
        // Measurements mostly share one pressure, and its boiling point costs as much as a state.
        if (!pressure_ || pressure_->p_bar != p_bar) pressure_ = EvaluatePressure(tables_, p_bar);
        const auto found = ResultsOf(EvaluateAt(tables_, *pressure_, relF, t));
        std::copy(found.begin(), found.end(), results.begin());
    }

  private:
    const WaterAirTables& tables_;
    double default_p_bar_;
    std::optional<PressurePoint> pressure_;
};

}  // namespace

constexpr std::array<std::string_view, kStateResults> kStateResultNames{
    "x_g_per_kg",  "h_kj_per_kg",       "h_dry_air_kj_per_kg",       "p_dry_air_pa",
    "p_vapour_pa", "density_kg_per_m3", "density_dry_air_kg_per_m3", "t_boiling_k"};

std::array<double, kStateResults> ResultsOf(const AirState& state) {
    return {
        state.ZustandX,      state.ZustandH,      state.ZustandHLuft,         state.ZustandPLuft,
        state.ZustandPDampf, state.ZustandDichte, state.ZustandDichteTrocken, state.SiedeTempK};
}

std::string OutsideText(std::string_view name, double value, double low, double high,
                        std::string_view unit) {
    std::string text(name);
    text += " = ";
    AppendNumber(text, value);
    text += " is outside ";
    AppendNumber(text, low);
    text += "..";
    AppendNumber(text, high);
    text += ' ';
    return text.append(unit);
}

void ClampQuestion(StateQuestion& question) {
    double relF = question.rh / 100;
    ClampArguments(relF, question.p);
    if (relF != question.rh / 100) question.rh = relF * 100;
}

std::string NoStateReason(double t, double p_bar, double lowest_t) {
    if (!(p_bar >= kLowestPressureBar && p_bar <= kHighestPressureBar)) {
        return OutsideText("p", p_bar, kLowestPressureBar, kHighestPressureBar, "bar");
    }
    return OutsideText("t", t, lowest_t, kHighestTemperature, "degC");
}

std::unique_ptr<RowCalculation> MakeStateCalculation(const WaterAirTables& tables,
                                                     double default_p_bar) {
    return std::make_unique<StateCalculation>(tables, default_p_bar);
}

}  // namespace zandrell
