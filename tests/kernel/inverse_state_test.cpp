#include "kernel/inverse_state.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kernel/humid_air_state.h"
#include "kernel_support.h"

namespace zandrell {
namespace {

class InverseState : public testing::Test {
  protected:
    InverseState() { solver_.ChartDruckBar = 1.013; }

    AirState At(double relF, double t) const {
        return *EvaluateState(kernel_test::RealTables(), relF, t, 1.013);
    }

    DataFiles files_{ZANDRELL_STAGED_DATA};
    StateSolver solver_{files_};
};

// Targets chosen so that the path can be followed by hand: f starts at 0.5 and moves by 0.25,
// 0.125, ... The round that meets the tolerance of 0.005 g/kg moves f once more, unless it met the
// target itself.
TEST_F(InverseState, HumidityFromHumidityRatio) {
    const double t = 20;
    const struct {
        const char* name;
        double x, expected;
    } rows[] = {
        {"met at once", At(0.5, t).ZustandX, 50},
        {"met from above at once", At(0.5, t).ZustandX + 0.004, 75},
        {"met from below at once", At(0.5, t).ZustandX - 0.004, 25},
        {"met in the second round", At(0.75, t).ZustandX, 75},
        {"second round, moved past", At(0.75, t).ZustandX + 0.004, 87.5},
        {"third round, moved back", At(0.625, t).ZustandX - 0.004, 56.25},
        // x(1) is 14.7 g/kg, so x is 0.007 at 2^-11 and 0.0035 at 2^-12; the move makes 2^-13.
        {"dry", 0, 100.0 / 8192},
        {"equal to the search's start value, so that no round runs", 200, 50},
    };
    for (const auto& row : rows) {
        const SearchResult result = RelFeuchteAusX(solver_, t, row.x);
        EXPECT_NEAR(result.value, row.expected, 1e-12) << row.name;
        EXPECT_TRUE(result.Found()) << row.name;
    }
    // Above saturation f runs through 1 - 2^-n until the rounds end.
    const SearchResult above = RelFeuchteAusX(solver_, t, 20);
    EXPECT_GT(above.value, 99.999);
    EXPECT_LE(above.value, 100);
    EXPECT_EQ(above.end, SearchEnd::OutOfReach);
    for (const double relF : {0.07, 0.33, 0.5, 0.81, 0.99}) {
        // The tolerance of 0.005 g/kg is 0.02 % here; the move of the last round adds to it.
        EXPECT_NEAR(RelFeuchteAusX(solver_, 30, At(relF, 30).ZustandX).value, 100 * relF, 0.25)
            << relF;
    }
}

TEST_F(InverseState, DryAirEstimate) {
    double step = 8;
    const auto estimate = [&](double t_start, double h) {
        return TempAusEnthalpie(solver_, t_start, h, EnthalpySearch::DryAirEstimate, step, 100, 0)
            .value;
    };
    EXPECT_EQ(estimate(0, 40), 0);
    // Dry air of 30 degC has 1.0045 kJ/(kg K) on the way up from 0 degC (table of cp), so 30 kJ/kg
    // are met at 29.86 degC.
    EXPECT_NEAR(estimate(30, 30), 30 / 1.0045, 0.01);
    EXPECT_EQ(step, 8) << "one step only";
}

// The step is halved before each move, and once more in the round that gives up: hand-made paths.
TEST_F(InverseState, TemperatureFromEnthalpy) {
    const auto h50 = [this](double t) { return At(0.5, t).ZustandH; };
    const struct {
        const char* name;
        double h, step, t, step_after;
        bool found = true;
    } rows[] = {
        {"already there", h50(20) + 0.009, 8, 20, 8},
        {"one move up", h50(24), 8, 24, 4},
        {"one move down", h50(16), 8, 16, 4},
        {"up and back", h50(22), 8, 22, 2},
        {"up, up, back", h50(25), 8, 25, 1},
        {"a negative step goes the wrong way", h50(24), -8, 20 - 8, -8 * std::ldexp(1, -40), false},
        {"out of reach, 39 moves", h50(60), 8, 28, 8 * std::ldexp(1, -40), false},
    };
    for (const auto& row : rows) {
        double step = row.step;
        const auto [t, end] =
            TempAusEnthalpie(solver_, 20, row.h, EnthalpySearch::RelativeHumidity, step, 50, 0);
        EXPECT_NEAR(t, row.t, 1e-9) << row.name;
        EXPECT_EQ(end, row.found ? SearchEnd::Found : SearchEnd::OutOfReach) << row.name;
        EXPECT_EQ(step, row.step_after) << row.name;
        EXPECT_EQ(solver_.ZustandX, At(0.5, t).ZustandX) << row.name;
    }
}

TEST_F(InverseState, TemperatureFromEnthalpyAtConstantHumidityRatio) {
    const double x = 7;
    const auto state = [&](double t) { return At(x / At(1, t).ZustandX, t); };
    for (const double target : {12.0, 20.0, 31.0, 45.0}) {
        double step = 40;
        const double t = TempAusEnthalpie(solver_, 25, state(target).ZustandH,
                                          EnthalpySearch::HumidityRatio, step, 0, x)
                             .value;
        EXPECT_NEAR(t, target, 0.011) << target;  // 0.01 kJ/kg at no less than 0.95 kJ/(kg K)
        EXPECT_EQ(solver_.ZustandX, state(t).ZustandX) << target;
        EXPECT_EQ(std::exp2(std::round(std::log2(40 / step))) * step, 40) << target;
    }
    // Enthalpy of 7 g/kg at 20 degC: 1.0043 * 20 + 0.007 * 2538.5 = 37.9 kJ/kg.
    double step = 30;
    EXPECT_NEAR(
        TempAusEnthalpie(solver_, 10, 37.86, EnthalpySearch::HumidityRatio, step, 0, x).value, 20,
        0.3);
}

// A first move of a full 8 K from t_start + 8, then 4, 2, ...
TEST_F(InverseState, TemperatureFromDensity) {
    const struct {
        const char* name;
        DensitySearch kind;
        double relF, at, expected;
        bool found = true;
    } rows[] = {
        {"start point", DensitySearch::Saturation, 1, 28, 28},
        {"one move up", DensitySearch::Saturation, 1, 36, 36},
        {"one move down", DensitySearch::DryEdge, 0.01, 20, 20},
        {"up, back", DensitySearch::DryEdge, 0.01, 32, 32},
        {"up, back, back", DensitySearch::Saturation, 1, 30, 30},
        // 30 moves reach 16 K less 16 * 2^-30.
        {"too thin", DensitySearch::DryEdge, 0.01, 90, 44 - 16 * std::ldexp(1, -30), false},
        {"too dense", DensitySearch::Saturation, 1, -30, 12 + 16 * std::ldexp(1, -30), false},
    };
    for (const auto& row : rows) {
        const double rho = At(row.relF, row.at).ZustandDichte;
        const auto [t, end] = TempAusDichte(solver_, 20, rho, row.kind);
        EXPECT_NEAR(t, row.expected, 1e-11) << row.name;
        EXPECT_EQ(end, row.found ? SearchEnd::Found : SearchEnd::OutOfReach) << row.name;
        EXPECT_EQ(solver_.ZustandX, At(row.relF, t).ZustandX) << row.name;
    }
}

// Searches that leave the limits say so, and they and targets that are no numbers end with a
// number.
TEST_F(InverseState, AlwaysEndsWithANumber) {
    const auto expect = [](const SearchResult& result, SearchEnd end, double odd) {
        EXPECT_TRUE(std::isfinite(result.value)) << odd;
        EXPECT_EQ(result.end, end) << odd;
    };
    for (const double odd : {-1e308, -200.0, 5000.0, 1e308, std::nan("")}) {
        // What is no number is off by no number, so that no search begins for it.
        const bool nan = std::isnan(odd);
        const SearchEnd missed = SearchEnd::OutOfReach, low = odd < 0 ? SearchEnd::NoState : missed;
        double step = 100;
        expect(RelFeuchteAusX(solver_, 20, odd), missed, odd);
        expect(RelFeuchteAusX(solver_, 900, odd), nan ? missed : SearchEnd::NoState, odd);
        expect(TempAusDichte(solver_, -50, odd, DensitySearch::Saturation),
               odd > 0 ? SearchEnd::NoState : missed, odd);
        expect(TempAusEnthalpie(solver_, -40, odd, EnthalpySearch::RelativeHumidity, step, 50, 5),
               low, odd);
        step = 100;
        expect(TempAusEnthalpie(solver_, 750, odd, EnthalpySearch::HumidityRatio, step, 50, 5),
               odd > 0 ? SearchEnd::NoState : missed, odd);
    }
}

}  // namespace
}  // namespace zandrell
