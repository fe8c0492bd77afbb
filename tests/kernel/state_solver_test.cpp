#include "kernel/state_solver.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "kernel/humid_air_state.h"
#include "kernel_support.h"

namespace zandrell {
namespace {

using kernel_test::CoefficientText;
using kernel_test::FirstNumbers;
using kernel_test::TemporaryFolder;

void ExpectSame(const AirState& actual, const AirState& expected, const std::string& where) {
    EXPECT_EQ(actual.ZustandX, expected.ZustandX) << where;
    EXPECT_EQ(actual.ZustandH, expected.ZustandH) << where;
    EXPECT_EQ(actual.ZustandHLuft, expected.ZustandHLuft) << where;
    EXPECT_EQ(actual.ZustandPLuft, expected.ZustandPLuft) << where;
    EXPECT_EQ(actual.ZustandPDampf, expected.ZustandPDampf) << where;
    EXPECT_EQ(actual.ZustandDichte, expected.ZustandDichte) << where;
    EXPECT_EQ(actual.ZustandDichteTrocken, expected.ZustandDichteTrocken) << where;
    EXPECT_EQ(actual.SiedeTempK, expected.SiedeTempK) << where;
}

// What the solver keeps from call to call must not show in any digit.
TEST(StateSolver, KeptPointsGiveTheSameStates) {
    const DataFiles files(ZANDRELL_STAGED_DATA);
    StateSolver solver(files);
    const double pressures[] = {1.013, 1.013, 0.8, 1.013, 8.5};
    const double temperatures[] = {20, 20, 0, -0.0, 20, 95, 150, 20};
    for (const double p : pressures) {
        for (const double t : temperatures) {
            for (const double relF : {1.0, 0.3, 0.3, -1.0}) {
                ASSERT_TRUE(solver.Evaluate(relF, t, p));
                ExpectSame(solver, *EvaluateState(kernel_test::RealTables(), relF, t, p),
                           std::to_string(t));
                EXPECT_EQ(solver.LetzterDruckBar, p);
            }
        }
    }
}

TEST(StateSolver, RefusedCallLeavesTheFieldsAndClampsTheArguments) {
    const DataFiles files(ZANDRELL_STAGED_DATA);
    StateSolver solver(files);
    EXPECT_EQ(solver.LetzterDruckBar, 0);
    ASSERT_TRUE(solver.Evaluate(0.5, 20, 1.013));
    const AirState before = solver;
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        double relF, t, p, relF_after, p_after;
    } rows[] = {
        {1.5, 900, 0, 1, 1.01}, {-3, -51, 1.02, 0.01, 1.02}, {0.5, 20, 9, 0.5, 9},
        {0.5, kNan, 1, 0.5, 1}, {0.5, 20, -1, 0.5, -1},
    };
    for (auto row : rows) {
        EXPECT_FALSE(solver.ZustandBerechnen(row.relF, row.t, row.p));
        EXPECT_EQ(row.relF, row.relF_after);
        EXPECT_EQ(row.p, row.p_after);
        ExpectSame(solver, before, std::to_string(row.t));
        EXPECT_EQ(solver.LetzterDruckBar, 1.013);
    }
    double relF = -0.2, t = 20, p = 0;
    EXPECT_TRUE(solver.ZustandBerechnen(relF, t, p));
    EXPECT_EQ(relF, 0.01);
    EXPECT_EQ(solver.LetzterDruckBar, 1.01);
    solver.ChartDruckBar = 1.01325;
    EXPECT_NEAR(solver.SaturationHumidity(20), 14.70, 0.01);
}

TEST(StateSolver, FilesThatCannotServe) {
    const struct {
        std::string name, text;
    } cases[] = {
        {"empty", ""},
        {"binary", std::string("\x7f"
                               "ELF\0\0\1\2\3,,,,\0",
                               14)},
        {"a short one", FirstNumbers(100)},
        {"one number", FirstNumbers(1)},
        {"one number less", FirstNumbers(117)},
        {"prose", "There are no numbers here, only words.\n"},
        {"finite nonsense",
         [] {
             std::string text = "1";
             for (int i = 1; i < 118; ++i) text += ",0";
             return text;
         }()},
    };
    for (const auto& each : cases) {
        TemporaryFolder folder;
        folder.WriteCoefficients(each.text);
        const DataFiles files(folder.Path());
        StateSolver solver(files);
        EXPECT_FALSE(solver.Evaluate(0.5, 20, 1.013)) << each.name;
        EXPECT_FALSE(solver.Evaluate(0.5, 20, 1.013)) << each.name;
        ExpectSame(solver, AirState{}, each.name);
        if (each.name != "finite nonsense") {
            EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Malformed) << each.name;
            EXPECT_FALSE(solver.HasCoefficients()) << each.name;
        }
        // A good file that takes its place is read at the next call.
        folder.WriteCoefficients(CoefficientText());
        EXPECT_TRUE(solver.Evaluate(0.5, 20, 1.013)) << each.name;
        EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Ok) << each.name;
    }
}

TEST(StateSolver, MissingAndOversizedFiles) {
    TemporaryFolder folder;
    const DataFiles files(folder.Path());
    StateSolver solver(files);
    EXPECT_FALSE(solver.Evaluate(0.5, 20));
    EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Missing);
    folder.WriteCoefficients("1");
    std::filesystem::resize_file(folder.Path() / "qvdata.dat", 100U << 20U);
    EXPECT_FALSE(solver.Evaluate(0.5, 20));
    EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Malformed);
    std::filesystem::remove(folder.Path() / "qvdata.dat");
    std::filesystem::create_directory(folder.Path() / "qvdata.dat");
    EXPECT_FALSE(solver.Evaluate(0.5, 20));
    EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Unreadable);
}

// A changed file is taken up at a change of pressure and only then; one that became worse never.
TEST(StateSolver, ReadsAgainAtAChangeOfPressure) {
    TemporaryFolder folder;
    folder.WriteCoefficients(CoefficientText());
    const DataFiles files(folder.Path());
    StateSolver solver(files);
    ASSERT_TRUE(solver.Evaluate(0, 10, 1.01));
    const double original = solver.ZustandHLuft;

    // Specific heats of air that are all 0 but the first, 2 kJ/(kg K): 10 degC makes 20 kJ/kg.
    std::string doubled = FirstNumbers(100);
    for (int i = 0; i < 9; ++i) doubled += i == 0 ? ",1.86,2" : ",0,0";
    folder.WriteCoefficients(doubled);
    ASSERT_TRUE(solver.Evaluate(0, 10, 1.01));
    EXPECT_EQ(solver.ZustandHLuft, original) << "same pressure";
    ASSERT_TRUE(solver.Evaluate(0, 10, 1.02));
    EXPECT_NEAR(solver.ZustandHLuft, 20, 1e-12) << "other pressure";

    folder.WriteCoefficients(FirstNumbers(90));
    ASSERT_TRUE(solver.Evaluate(0, 10, 1.01));
    EXPECT_NEAR(solver.ZustandHLuft, 20, 1e-12) << "a short file";
    EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Malformed);
    folder.RemoveCoefficients();
    ASSERT_TRUE(solver.Evaluate(0, 10, 1.02));
    EXPECT_NEAR(solver.ZustandHLuft, 20, 1e-12) << "no file";
    EXPECT_EQ(solver.CoefficientStatus(), FileStatus::Missing);

    folder.WriteCoefficients(CoefficientText());
    ASSERT_TRUE(solver.Evaluate(0, 10, 1.01));
    EXPECT_EQ(solver.ZustandHLuft, original) << "back again";
}

}  // namespace
}  // namespace zandrell
