#include "kernel/state_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "kernel/humid_air_state.h"
#include "kernel/inverse_state.h"
#include "kernel/state_solver.h"
#include "kernel/steam.h"
#include "kernel_support.h"

// The table and the shortened searches against the formulas and the searches step by step.
namespace zandrell {
namespace {

using kernel_test::RealTables;

AirState ByFormulas(const WaterAirTables& tables, double relF, double t, double p_bar) {
    const PressurePoint pressure{p_bar, SiedeTemperatur(tables, p_bar)};
    return EvaluateHumidity(tables, TemperatureByFormulas(tables, pressure, t + kKelvinOffset),
                            relF);
}

// Within 1E-9 of the formulas; sums of two signs are measured by their parts.
void ExpectFormulas(const WaterAirTables& tables, double relF, double t, double p_bar) {
    const auto found = EvaluateState(tables, relF, t, p_bar);
    const AirState formula = ByFormulas(tables, relF, t, p_bar);
    ASSERT_EQ(found.has_value(), AllFinite(formula)) << t << " " << relF << " " << p_bar;
    if (!found) return;
    const double moist = std::abs(formula.ZustandH - formula.ZustandHLuft);
    const double wet = std::abs(formula.ZustandDichte - formula.ZustandDichteTrocken);
    const struct {
        double found, formula, size;
    } fields[] = {
        {found->ZustandX, formula.ZustandX, std::abs(formula.ZustandX)},
        {found->ZustandH, formula.ZustandH, std::abs(formula.ZustandHLuft) + moist},
        {found->ZustandHLuft, formula.ZustandHLuft, std::abs(formula.ZustandHLuft)},
        {found->ZustandPLuft, formula.ZustandPLuft, std::abs(formula.ZustandPLuft)},
        {found->ZustandPDampf, formula.ZustandPDampf, std::abs(formula.ZustandPDampf)},
        {found->ZustandDichte, formula.ZustandDichte, formula.ZustandDichteTrocken + wet},
        {found->ZustandDichteTrocken, formula.ZustandDichteTrocken, formula.ZustandDichteTrocken},
        {found->SiedeTempK, formula.SiedeTempK, formula.SiedeTempK},
    };
    for (const auto& field : fields) {
        ASSERT_NEAR(field.found, field.formula, 1e-9 * std::abs(field.size))
            << t << " " << relF << " " << p_bar;
    }
}

TEST(StateTable, GivesTheFormulas) {
    std::mt19937 random(28);
    std::uniform_real_distribution<double> wide(-50, 200), part(0, 1), log_p(-5, std::log(8.5));
    int covered = 0;
    for (int i = 0; i < 30000; ++i) {
        const int whole_degrees = i / 100 - 50;
        const double t = i % 100 == 0 ? whole_degrees : wide(random);
        const double p = i % 3 == 0 ? 1.013 : std::exp(log_p(random));
        covered += RealTables().states->Covers(t) && RealTables().states->CoversPressure(p);
        ExpectFormulas(RealTables(), i % 7 == 0 ? 1 : part(random), t, p);
    }
    EXPECT_GT(covered, 15000);
    for (const double t : {-50.0, -44.0, 112.0, 118.0}) {
        for (const double other : {t, std::nextafter(t, 0), std::nextafter(t, 200)}) {
            ExpectFormulas(RealTables(), 0.4, other, 3);
        }
    }
}

// The enthalpy of vapour has a step at 611 Pa: each state stays on the side that the formulas give
// it, to the last digit of its humidity.
TEST(StateTable, KeepsToItsSideOf611Pascal) {
    for (double t = 1; t < 100; t += 0.37) {
        const double saturated = ByFormulas(RealTables(), 1, t, 2).ZustandPDampf;
        double relF = 611 / saturated;
        for (int i = 0; i < 4; ++i) relF = std::nextafter(relF, 0);
        for (int i = 0; i < 8; ++i, relF = std::nextafter(relF, 1)) {
            ExpectFormulas(RealTables(), relF, t, 2);
        }
    }
}

// Any coefficient may be another one; what a polynomial does not follow stays with the formulas.
TEST(StateTable, LeavesOutWhatItDoesNotFollow) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> part(0, 1);
    int covered = 0, left_out = 0;
    const auto expect = [&](WaterAirTables tables) {
        PlanExponents(tables);
        EXPECT_FALSE(tables.states);
        tables.states = std::make_shared<const StateTable>(tables);
        for (int i = 0; i < 40; ++i) {
            const double t = -50 + 168 * part(random), p = 0.1 + part(random);
            ++(tables.states->Covers(t) ? covered : left_out);
            ExpectFormulas(tables, part(random), t, p);
        }
    };
    for (const double factor : {0.9, 1.3, -1.0, 40.0}) {
        for (std::size_t i = 0; i < 9; ++i) {
            WaterAirTables c = RealTables();
            c.KSatt[i + 1] *= factor;
            expect(c);
            c = RealTables();
            c.BWasser[i + 1][i % 2 + 1] *= factor;
            c.CpDampf[i] *= factor;
            expect(c);
            c = RealTables();
            c.NennerWasser[6 + i % 3][1] *= factor * 1e6;
            expect(c);
        }
    }
    WaterAirTables jump = RealTables();
    for (double& b : jump.BWasser[9]) b *= 1e24;
    expect(jump);
    EXPECT_GT(covered, 1000);
    EXPECT_GT(left_out, 100);
}

TEST(StateTable, ArraysAreStatesOneByOne) {
    const std::vector<double> relF{0.5, -1, 2, 0.3, std::nan(""), 0.5, 0.2};
    const std::vector<double> t{20, 30, 150, -60, 20, 801, -50};
    const std::vector<double> p{1.013, 0, 1.013, 1, 1, 1, 8.6};
    std::vector<std::optional<AirState>> states(t.size());
    for (const auto& pressures : {p, std::vector<double>{0.95}}) {
        EvaluateStates(RealTables(), relF, t, pressures, states);
        for (std::size_t i = 0; i < t.size(); ++i) {
            const double p_bar = pressures.size() == 1 ? pressures[0] : pressures[i];
            const auto expected = EvaluateState(RealTables(), relF[i], t[i], p_bar);
            ASSERT_EQ(states[i].has_value(), expected.has_value()) << i;
            if (!expected) continue;
            EXPECT_EQ(states[i]->ZustandH, expected->ZustandH) << i;
            EXPECT_EQ(states[i]->SiedeTempK, expected->SiedeTempK) << i;
        }
    }
}

// The searches as they are told, with a whole state by formulas in each step.
class StepByStep {
  public:
    explicit StepByStep(double p_bar) : p_bar_(p_bar) {}

    double Humidity(double t, double x_target) {
        double f = 0.5, d = 0.5, x = 200;
        for (int n = 1; std::abs(x_target - x) > 0.005 && n < 60; ++n) {
            x = At(f, t).ZustandX;
            if (x_target < x) f -= d / 2;
            if (x_target > x) f += d / 2;
            d /= 2;
        }
        return f * 100;
    }
    double Temperature(double t, double h_target, EnthalpySearch kind, double& step, double relF,
                       double x) {
        const auto enthalpy = [&] {
            return kind == EnthalpySearch::HumidityRatio ? At(x / At(1, t).ZustandX, t).ZustandH
                                                         : At(relF, t).ZustandH;
        };
        if (kind == EnthalpySearch::DryAirEstimate) return t * h_target / At(relF, t).ZustandHLuft;
        double h = enthalpy();
        for (int n = 1; std::abs(h_target - h) > 0.01; ++n) {
            step /= 2;
            if (n == 40) break;
            t += h_target > h ? step : -step;
            h = enthalpy();
        }
        return t;
    }
    double ByDensity(double t, double rho_target, double relF) {
        double d = 8;
        t += d;
        double rho = At(relF, t).ZustandDichte;
        for (int n = 1; std::abs(rho_target - rho) > 0.0001 && n <= 30; ++n) {
            t += rho_target < rho ? d : -d;
            rho = At(relF, t).ZustandDichte;
            d /= 2;
        }
        return t;
    }
    const AirState& Last() const { return last_; }

  private:
    const AirState& At(double relF, double t) {
        double p_bar = p_bar_;
        ClampArguments(relF, p_bar);
        return last_ = ByFormulas(RealTables(), relF, t, p_bar);
    }
    double p_bar_;
    AirState last_;
};

TEST(StateTable, SearchesEndAtTheSameBit) {
    const DataFiles files(ZANDRELL_STAGED_DATA);
    StateSolver solver(files);
    std::mt19937 random(13);
    std::uniform_real_distribution<double> part(0, 1);
    for (int i = 0; i < 10000; ++i) {
        solver.ChartDruckBar = i % 5 == 0 ? 0.6 + part(random) : 1.013;
        StepByStep plain(solver.ChartDruckBar);
        const double t = -10 + 120 * part(random), target = part(random);
        const auto expect = [&](double found, double expected) {
            ASSERT_EQ(found, expected) << i;
            ASSERT_NEAR(solver.ZustandX, plain.Last().ZustandX,
                        1e-9 * std::abs(plain.Last().ZustandX))
                << i;
        };
        const double x_target = 40 * target * target - 0.1;
        expect(RelFeuchteAusX(solver, t, x_target).value, plain.Humidity(t, x_target));
        const auto kind = static_cast<EnthalpySearch>(1 + i % 3);
        double step = 30, plain_step = 30;
        const double h = -10 + 150 * target, x = 30 * part(random);
        expect(TempAusEnthalpie(solver, t, h, kind, step, i % 101, x).value,
               plain.Temperature(t, h, kind, plain_step, i % 101 / 100.0, x));
        ASSERT_EQ(step, plain_step) << i;
        const auto line = i % 2 == 0 ? DensitySearch::DryEdge : DensitySearch::Saturation;
        const double rho = 0.6 + 0.9 * target;
        expect(TempAusDichte(solver, t, rho, line).value,
               plain.ByDensity(t, rho, i % 2 == 0 ? 0.01 : 1));
    }
}

}  // namespace
}  // namespace zandrell
