#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "base/data_files.h"
#include "kernel/humid_air_state.h"
#include "kernel/inverse_state.h"
#include "kernel/real_air.h"
#include "kernel/real_air_pair.h"
#include "kernel/real_air_wet_bulb.h"
#include "kernel/state_solver.h"
#include "kernel/steam.h"
#include "kernel/water_air_tables.h"
#include "peer_air.h"

namespace zandrell {
namespace {

constexpr double kPressureBar = 1.013;

const DataFiles& Files() {
    static const DataFiles files(ZANDRELL_STAGED_DATA);
    return files;
}

const WaterAirTables& Tables() {
    static const WaterAirTables tables =
        ReadWaterAirTables(Files().OpenForInput("qvdata.dat").text);
    if (!tables.Complete()) std::abort();  // figures without coefficients would mean nothing
    return tables;
}

// The hours of a year: temperatures from -15 to 35 degC and humidities from 20 to 100 %, each
// different from the last.
struct Year {
    static constexpr std::size_t kHours = 8760;
    std::vector<double> relF, t;
    Year() {
        for (std::size_t hour = 0; hour < kHours; ++hour) {
            relF.push_back(0.2 + 0.8 * static_cast<double>((hour * 37) % 1000) / 1000);
            t.push_back(-15 + 50.0 * static_cast<double>((hour * 61) % 997) / 997);
        }
    }
};

// The time of one state over the hours of a year, by whatever way to it.
template <typename State>
void PerHour(benchmark::State& rounds, State state) {
    const Year year;
    std::size_t hour = 0;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(state(year.relF[hour], year.t[hour]));
        hour = hour + 1 < Year::kHours ? hour + 1 : 0;
    }
}

void StateAtKeptPressure(benchmark::State& rounds) {
    const PressurePoint pressure = EvaluatePressure(Tables(), kPressureBar);
    PerHour(rounds, [&](double relF, double t) { return EvaluateAt(Tables(), pressure, relF, t); });
}
BENCHMARK(StateAtKeptPressure);

void StateByTheFormulas(benchmark::State& rounds) {
    const PressurePoint pressure = EvaluatePressure(Tables(), kPressureBar);
    PerHour(rounds, [&](double relF, double t) {
        return EvaluateHumidity(Tables(),
                                TemperatureByFormulas(Tables(), pressure, t + kKelvinOffset), relF);
    });
}
BENCHMARK(StateByTheFormulas);

void StateOfThePeer(benchmark::State& rounds) {
    PerHour(rounds, [](double relF, double t) { return peer::State(relF, t, kPressureBar * 1e5); });
}
BENCHMARK(StateOfThePeer);

void RealAir(benchmark::State& rounds) {
    PerHour(rounds, [](double relF, double t) { return EvaluateRealAir(relF, t, kPressureBar); });
}
BENCHMARK(RealAir);

void RealAirWithDewPoint(benchmark::State& rounds) {
    PerHour(rounds, [](double relF, double t) {
        const auto state = EvaluateRealAir(relF, t, kPressureBar);
        return RealDewPoint(state->vapour_pressure, kPressureBar);
    });
}
BENCHMARK(RealAirWithDewPoint);

void RealAirWithDewPointAndWetBulb(benchmark::State& rounds) {
    PerHour(rounds, [](double relF, double t) {
        const auto state = EvaluateRealAir(relF, t, kPressureBar);
        const auto dew = RealDewPoint(state->vapour_pressure, kPressureBar);
        const auto bulb = RealWetBulb(t, state->x, state->enthalpy, kPressureBar);
        return dew.value_or(0) + (bulb ? bulb->t : 0);
    });
}
BENCHMARK(RealAirWithDewPointAndWetBulb);

void RealAirFromWetBulb(benchmark::State& rounds) {
    PerHour(rounds, [](double, double t) {
        return RealAirFromPair({AirFigure::Temperature, t}, {AirFigure::WetBulb, t - 1},
                               kPressureBar);
    });
}
BENCHMARK(RealAirFromWetBulb);

void StateInTwoSteps(benchmark::State& rounds) {
    const PressurePoint pressure = EvaluatePressure(Tables(), kPressureBar);
    PerHour(rounds, [&](double relF, double t) {
        return EvaluateHumidity(Tables(), EvaluateTemperature(Tables(), pressure, t), relF);
    });
}
BENCHMARK(StateInTwoSteps);

void PureFunction(benchmark::State& rounds) {
    PerHour(rounds,
            [](double relF, double t) { return EvaluateState(Tables(), relF, t, kPressureBar); });
}
BENCHMARK(PureFunction);

void PureFunctionAboveBoiling(benchmark::State& rounds) {
    PerHour(rounds, [](double relF, double t) {
        return EvaluateState(Tables(), relF, t + 150, kPressureBar);
    });
}
BENCHMARK(PureFunctionAboveBoiling);

void HumidityAlone(benchmark::State& rounds) {
    const auto point = EvaluateTemperature(Tables(), EvaluatePressure(Tables(), kPressureBar), 25);
    PerHour(rounds, [&](double relF, double) { return EvaluateHumidity(Tables(), point, relF); });
}
BENCHMARK(HumidityAlone);

// Everything from nothing, the boiling temperature too; by threads for the cores.
void PureFunctionYear(benchmark::State& rounds) {
    const Year year;
    for (auto _ : rounds) {
        for (std::size_t i = 0; i < Year::kHours; ++i) {
            benchmark::DoNotOptimize(
                EvaluateState(Tables(), year.relF[i], year.t[i], kPressureBar));
        }
    }
}
BENCHMARK(PureFunctionYear)->Unit(benchmark::kMillisecond);
BENCHMARK(PureFunctionYear)->Threads(2)->UseRealTime()->Unit(benchmark::kMillisecond);

// One call for an array of 1000 states, at one pressure or each at its own.
void ArrayOfStates(benchmark::State& rounds, std::size_t pressures) {
    constexpr std::size_t kCount = 1000;
    const Year year;
    std::vector<double> p_bar;
    for (std::size_t i = 0; i < pressures; ++i) {
        p_bar.push_back(0.95 + 0.0001 * static_cast<double>(i));
    }
    std::vector<std::optional<AirState>> states(kCount);
    for (auto _ : rounds) {
        EvaluateStates(Tables(), std::span(year.relF).first(kCount),
                       std::span(year.t).first(kCount), p_bar, states);
        benchmark::DoNotOptimize(states.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(ArrayOfStates, one_pressure, 1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ArrayOfStates, each_its_pressure, 1000)->Unit(benchmark::kMicrosecond);

void SolverAtKeptPressure(benchmark::State& rounds) {
    StateSolver solver(Files());
    PerHour(rounds, [&](double relF, double t) { return solver.Evaluate(relF, t, kPressureBar); });
}
BENCHMARK(SolverAtKeptPressure);

// The file's stamp is looked at and the boiling temperature found anew.
void SolverChangeOfPressure(benchmark::State& rounds) {
    StateSolver solver(Files());
    double p_bar = kPressureBar;
    for (auto _ : rounds) {
        p_bar = p_bar == kPressureBar ? 1.02 : kPressureBar;
        benchmark::DoNotOptimize(solver.Evaluate(0.5, 20, p_bar));
    }
}
BENCHMARK(SolverChangeOfPressure);

// The least that a change of pressure costs while a changed file is to be noticed.
void StampOfAFile(benchmark::State& rounds) {
    for (auto _ : rounds) benchmark::DoNotOptimize(Files().Stamp("qvdata.dat"));
}
BENCHMARK(StampOfAFile);

void BoilingTemperature(benchmark::State& rounds) {
    double p_bar = 0.7;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(SiedeTemperatur(Tables(), p_bar));
        p_bar = p_bar < 1.1 ? p_bar + 0.0001 : 0.7;
    }
}
BENCHMARK(BoilingTemperature);

void ReadingOfCoefficients(benchmark::State& rounds) {
    const std::string text = Files().OpenForInput("qvdata.dat").text;
    for (auto _ : rounds) benchmark::DoNotOptimize(ReadWaterAirTables(text));
}
BENCHMARK(ReadingOfCoefficients)->Unit(benchmark::kMicrosecond);

// Targets that wander from `low` to `high`.
template <typename Search>
void Searching(benchmark::State& rounds, double low, double high, Search search) {
    double target = low;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(search(target));
        target = target < high ? target + (high - low) / 1700 : low;
    }
}

void HumiditySearch(benchmark::State& rounds) {
    StateSolver solver(Files());
    Searching(rounds, 2, 19, [&](double x) { return RelFeuchteAusX(solver, 25, x); });
}
BENCHMARK(HumiditySearch);

void HumiditySearchOfThePeer(benchmark::State& rounds) {
    Searching(rounds, 2, 19, [](double x) { return peer::HumidityFromX(25, x / 1000, 101300); });
}
BENCHMARK(HumiditySearchOfThePeer);

void EnthalpySearchRounds(benchmark::State& rounds, EnthalpySearch kind) {
    StateSolver solver(Files());
    Searching(rounds, 30, 50, [&](double h) {
        double step = 40;
        return TempAusEnthalpie(solver, 20, h, kind, step, 60, 7);
    });
}
BENCHMARK_CAPTURE(EnthalpySearchRounds, constant_relative_humidity,
                  EnthalpySearch::RelativeHumidity);
BENCHMARK_CAPTURE(EnthalpySearchRounds, constant_humidity_ratio, EnthalpySearch::HumidityRatio);

void EnthalpySearchOfThePeer(benchmark::State& rounds) {
    Searching(rounds, 30, 50,
              [](double h) { return peer::TemperatureFromEnthalpy(20, h, 40, 0.6, 101300); });
}
BENCHMARK(EnthalpySearchOfThePeer);

void DensitySearchRounds(benchmark::State& rounds) {
    StateSolver solver(Files());
    Searching(rounds, 1.15, 1.22, [&](double rho) {
        return TempAusDichte(solver, 12, rho, DensitySearch::Saturation);
    });
}
BENCHMARK(DensitySearchRounds);

void DensitySearchOfThePeer(benchmark::State& rounds) {
    Searching(rounds, 1.15, 1.22,
              [](double rho) { return peer::TemperatureFromDensity(12, rho, 1, 101300); });
}
BENCHMARK(DensitySearchOfThePeer);

}  // namespace
}  // namespace zandrell
