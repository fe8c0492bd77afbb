#include <algorithm>

#include "command/real_air_figures.h"
#include "command/row_calculations.h"
#include "kernel/state_solver.h"

namespace zandrell {
namespace {

constexpr std::array<InputColumn, kPairFigures + 1> kInputs{
    {{"t", ColumnNeed::NumberMayLack},
     {"rh", ColumnNeed::NumberMayLack},
     {"x", ColumnNeed::NumberMayLack},
     {"h", ColumnNeed::NumberMayLack},
     {"t_dew", ColumnNeed::NumberMayLack},
     {"t_wet", ColumnNeed::NumberMayLack},
     {"p_vapour", ColumnNeed::NumberMayLack},
     {"density", ColumnNeed::NumberMayLack},
     {"p", ColumnNeed::NumberMayLack}}};

constexpr std::array<InputColumn, 3> kPointInputs{
    {{"t"}, {"rh"}, {"p", ColumnNeed::ColumnMayLack}}};

// What both airs share: all results of a row, or none.
class RealAirColumns : public RowCalculation {
  public:
    explicit RealAirColumns(double default_p_bar) : default_p_bar_(default_p_bar) {}

    std::span<const std::string_view> Results() const override { return kRealAirResultNames; }

    void Calculate(std::span<const std::optional<double>> inputs,
                   std::span<std::optional<double>> results, std::string& reason) override {
        found_ = {};
        has_state_ = Find(inputs, inputs.back().value_or(default_p_bar_), found_, reason);
        if (has_state_) std::copy(found_.begin(), found_.end(), results.begin());
    }

    // A figure that a state does not have is no fault.
    const std::string* TextResult(std::size_t result) const override {
        static const std::string none;
        return has_state_ && !found_[result] ? &none : nullptr;
    }

  protected:
    virtual bool Find(std::span<const std::optional<double>> inputs, double p_bar,
                      RealAirResults& found, std::string& reason) = 0;

    double default_p_bar_;

  private:
    bool has_state_ = false;
    RealAirResults found_;
};

class RealAirCalculation : public RealAirColumns {
  public:
    using RealAirColumns::RealAirColumns;
    std::span<const InputColumn> Inputs() const override { return kInputs; }
    std::unique_ptr<RowCalculation> Another() const override {
        return std::make_unique<RealAirCalculation>(default_p_bar_);
    }

  protected:
    bool Find(std::span<const std::optional<double>> inputs, double p_bar, RealAirResults& found,
              std::string& reason) override {
        GivenFigures given;
        std::copy_n(inputs.begin(), given.size(), given.begin());
        return FindRealAir(given, p_bar, found, reason);
    }
};

class ExactAirCalculation : public RealAirColumns {
  public:
    ExactAirCalculation(const DataFiles& files, double default_p_bar)
        : RealAirColumns(default_p_bar), files_(files), solver_(files) {}
    std::span<const InputColumn> Inputs() const override { return kPointInputs; }
    std::unique_ptr<RowCalculation> Another() const override {
        return std::make_unique<ExactAirCalculation>(files_, default_p_bar_);
    }

  protected:
    bool Find(std::span<const std::optional<double>> inputs, double p_bar, RealAirResults& found,
              std::string& reason) override {
        StateQuestion question{*inputs[0], *inputs[1], p_bar};
        return FindExactAir(solver_, question, found, reason);
    }

  private:
    const DataFiles& files_;
    StateSolver solver_;
};

}  // namespace

std::unique_ptr<RowCalculation> MakeRealAirCalculation(double default_p_bar) {
    return std::make_unique<RealAirCalculation>(default_p_bar);
}

std::unique_ptr<RowCalculation> MakeExactAirCalculation(const DataFiles& files,
                                                        double default_p_bar) {
    return std::make_unique<ExactAirCalculation>(files, default_p_bar);
}

}  // namespace zandrell
