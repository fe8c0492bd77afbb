#include <array>
#include <cmath>

#include "base/number_text.h"
#include "command/row_calculations.h"
#include "kernel/inverse_state.h"

namespace zandrell {
namespace {

using InputValues = std::span<const std::optional<double>>;
using ResultCells = std::span<std::optional<double>>;

// What the three searches share: they run on a solver at the pressure of the row.
class InverseCalculation : public RowCalculation {
  public:
    InverseCalculation(const DataFiles& files, double default_p_bar)
        : solver_(files), files_(files), default_p_bar_(default_p_bar) {}

    void Calculate(InputValues inputs, ResultCells results, std::string& reason) override {
        double relF = 0, p_bar = inputs.back().value_or(default_p_bar_);
        ClampArguments(relF, p_bar);
        const double t = FirstTemperature(inputs);
        if (!WithinLimits(relF, t, p_bar)) {
            reason = NoStateReason(t, p_bar);
            return;
        }
        solver_.ChartDruckBar = p_bar;
        Search(inputs, results, reason);
    }

  protected:
    // Where the search asks for its first state, degC.
    virtual double FirstTemperature(InputValues inputs) const = 0;
    virtual void Search(InputValues inputs, ResultCells results, std::string& reason) = 0;

    // Enters what was found as the first result, and with it the humidity of the state there as
    // the last one. A target out of reach is answered by the nearest value.
    void Enter(const SearchResult& found, ResultCells results, std::string& reason) const {
        if (found.end == SearchEnd::NoState) {
            reason = "the search left the limits of the state";
            return;
        }
        results.front() = found.value;
        if (results.size() > 1) results.back() = solver_.ZustandX;
    }

    StateSolver solver_;

    template <typename Calculation>
    std::unique_ptr<RowCalculation> AnotherOf() const {
        return std::make_unique<Calculation>(files_, default_p_bar_);
    }

  private:
    const DataFiles& files_;
    double default_p_bar_;
};

// A whole number from 1 to `last`; 0 for anything else.
int KindOf(double value, int last, std::string& reason) {
    for (int kind = 1; kind <= last; ++kind) {
        if (value == kind) return kind;
    }
    reason = "kind is not a whole number from 1 to " + std::to_string(last);
    return 0;
}

constexpr std::array<InputColumn, 3> kHumidityInputs{
    {{"t"}, {"x"}, {"p", ColumnNeed::ColumnMayLack}}};
constexpr std::array<std::string_view, 1> kHumidityResults{"rh"};

class HumidityFromX : public InverseCalculation {
  public:
    using InverseCalculation::InverseCalculation;
    std::span<const InputColumn> Inputs() const override { return kHumidityInputs; }
    std::span<const std::string_view> Results() const override { return kHumidityResults; }

    std::unique_ptr<RowCalculation> Another() const override { return AnotherOf<HumidityFromX>(); }

  protected:
    double FirstTemperature(InputValues inputs) const override { return *inputs[0]; }
    void Search(InputValues inputs, ResultCells results, std::string& reason) override {
        Enter(RelFeuchteAusX(solver_, *inputs[0], *inputs[1]), results, reason);
    }
};

constexpr std::array<InputColumn, 7> kEnthalpyInputs{{{"t_start"},
                                                      {"h"},
                                                      {"kind"},
                                                      {"step"},
                                                      {"rh", ColumnNeed::NumberMayLack},
                                                      {"x", ColumnNeed::NumberMayLack},
                                                      {"p", ColumnNeed::ColumnMayLack}}};
constexpr std::array<std::string_view, 3> kEnthalpyResults{"t", "step_after", "x_last"};

class TemperatureFromEnthalpy : public InverseCalculation {
  public:
    using InverseCalculation::InverseCalculation;
    std::span<const InputColumn> Inputs() const override { return kEnthalpyInputs; }
    std::span<const std::string_view> Results() const override { return kEnthalpyResults; }

    std::unique_ptr<RowCalculation> Another() const override {
        return AnotherOf<TemperatureFromEnthalpy>();
    }

  protected:
    double FirstTemperature(InputValues inputs) const override { return *inputs[0]; }
    void Search(InputValues inputs, ResultCells results, std::string& reason) override {
        const int kind = KindOf(*inputs[2], 3, reason);
        if (kind == 0) return;
        const auto search = static_cast<EnthalpySearch>(kind);
        const bool by_x = search == EnthalpySearch::HumidityRatio;
        if (!inputs[by_x ? 5 : 4]) {
            reason = by_x ? "kind 3 needs x" : "kinds 1 and 2 need rh";
            return;
        }
        const auto rel_percent = RoundToInteger(by_x ? 0 : *inputs[4]);
        if (!rel_percent) {
            reason = "rh is no percentage";
            return;
        }
        double step = *inputs[3];
        Enter(TempAusEnthalpie(solver_, *inputs[0], *inputs[1], search, step, *rel_percent,
                               inputs[5].value_or(0)),
              results, reason);
        results[1] = step;
    }
};

constexpr std::array<InputColumn, 4> kDensityInputs{
    {{"t_start"}, {"density"}, {"kind"}, {"p", ColumnNeed::ColumnMayLack}}};
constexpr std::array<std::string_view, 2> kDensityResults{"t", "x_last"};

class TemperatureFromDensity : public InverseCalculation {
  public:
    using InverseCalculation::InverseCalculation;
    std::span<const InputColumn> Inputs() const override { return kDensityInputs; }
    std::span<const std::string_view> Results() const override { return kDensityResults; }

    std::unique_ptr<RowCalculation> Another() const override {
        return AnotherOf<TemperatureFromDensity>();
    }

  protected:
    // The search begins 8 K above its start.
    double FirstTemperature(InputValues inputs) const override { return *inputs[0] + 8; }
    void Search(InputValues inputs, ResultCells results, std::string& reason) override {
        const int kind = KindOf(*inputs[2], 2, reason);
        if (kind == 0) return;
        Enter(TempAusDichte(solver_, *inputs[0], *inputs[1], static_cast<DensitySearch>(kind)),
              results, reason);
    }
};

}  // namespace

std::unique_ptr<RowCalculation> MakeInverseCalculation(std::string_view search,
                                                       const DataFiles& files,
                                                       double default_p_bar) {
    if (search == "rh-from-x") return std::make_unique<HumidityFromX>(files, default_p_bar);
    if (search == "t-from-h") {
        return std::make_unique<TemperatureFromEnthalpy>(files, default_p_bar);
    }
    if (search == "t-from-density") {
        return std::make_unique<TemperatureFromDensity>(files, default_p_bar);
    }
    return nullptr;
}

}  // namespace zandrell
