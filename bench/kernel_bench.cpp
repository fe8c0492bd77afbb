#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "base/data_files.h"
#include "kernel/humid_air_state.h"
#include "kernel/inverse_state.h"
#include "kernel/state_solver.h"
#include "kernel/steam.h"
#include "kernel/water_air_tables.h"

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

struct Arguments {
    double relF, t;
};

// The hours of a year: temperatures from -15 to 35 degC and humidities from 20 to 100 %, each
// different from the last.
std::vector<Arguments> Year() {
    std::vector<Arguments> year;
    year.reserve(8760);
    for (int hour = 0; hour < 8760; ++hour) {
        year.push_back(
            {0.2 + 0.8 * ((hour * 37) % 1000) / 1000, -15 + 50.0 * ((hour * 61) % 997) / 997});
    }
    return year;
}

// A new temperature and humidity in each round, the pressure kept.
void StateAtConstantPressure(benchmark::State& rounds, double t_low, double relF) {
    const PressurePoint pressure = EvaluatePressure(Tables(), kPressureBar);
    double t = t_low;
    for (auto _ : rounds) {
        const TemperaturePoint point = EvaluateTemperature(Tables(), pressure, t);
        benchmark::DoNotOptimize(EvaluateHumidity(Tables(), point, relF));
        t = t < t_low + 5 ? t + 0.001 : t_low;
    }
}
// Vapour pressure 351..480 Pa though saturated air has more than 611 Pa; 86..131 Pa where it has
// less.
BENCHMARK_CAPTURE(StateAtConstantPressure, below_611_pa_warm, 20.0, 0.15);
BENCHMARK_CAPTURE(StateAtConstantPressure, below_611_pa_cold, -20.0, 0.7);
BENCHMARK_CAPTURE(StateAtConstantPressure, above_611_pa, 20.0, 0.6);
BENCHMARK_CAPTURE(StateAtConstantPressure, above_boiling, 120.0, 0.5);

void HumidityAlone(benchmark::State& rounds) {
    const auto point = EvaluateTemperature(Tables(), EvaluatePressure(Tables(), kPressureBar), 25);
    double relF = 0.3;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(EvaluateHumidity(Tables(), point, relF));
        relF = relF < 1 ? relF + 0.0001 : 0.3;
    }
}
BENCHMARK(HumidityAlone);

// Everything from nothing, the boiling temperature too; by threads for the cores.
void PureFunctionYear(benchmark::State& rounds) {
    const auto year = Year();
    for (auto _ : rounds) {
        for (const auto& hour : year) {
            benchmark::DoNotOptimize(EvaluateState(Tables(), hour.relF, hour.t, kPressureBar));
        }
    }
    rounds.SetItemsProcessed(rounds.iterations() * static_cast<std::int64_t>(year.size()));
}
BENCHMARK(PureFunctionYear)->Threads(1)->Threads(2)->UseRealTime();

void SolverYear(benchmark::State& rounds) {
    const auto year = Year();
    StateSolver solver(Files());
    for (auto _ : rounds) {
        for (const auto& hour : year) {
            benchmark::DoNotOptimize(solver.Evaluate(hour.relF, hour.t, kPressureBar));
        }
    }
    rounds.SetItemsProcessed(rounds.iterations() * static_cast<std::int64_t>(year.size()));
}
BENCHMARK(SolverYear);

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

void BoilingTemperature(benchmark::State& rounds) {
    double p_bar = 0.7;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(SiedeTemperatur(Tables(), p_bar));
        p_bar = p_bar < 1.1 ? p_bar + 0.0001 : 0.7;
    }
}
BENCHMARK(BoilingTemperature);

void HumiditySearch(benchmark::State& rounds) {
    StateSolver solver(Files());
    double x = 2;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(RelFeuchteAusX(solver, 25, x));
        x = x < 19 ? x + 0.01 : 2;
    }
}
BENCHMARK(HumiditySearch);

void EnthalpySearchRounds(benchmark::State& rounds, EnthalpySearch kind) {
    StateSolver solver(Files());
    double h = 30;
    for (auto _ : rounds) {
        double step = 40;
        benchmark::DoNotOptimize(TempAusEnthalpie(solver, 20, h, kind, step, 60, 7));
        h = h < 50 ? h + 0.01 : 30;
    }
}
BENCHMARK_CAPTURE(EnthalpySearchRounds, constant_relative_humidity,
                  EnthalpySearch::RelativeHumidity);
BENCHMARK_CAPTURE(EnthalpySearchRounds, constant_humidity_ratio, EnthalpySearch::HumidityRatio);

void DensitySearchRounds(benchmark::State& rounds) {
    StateSolver solver(Files());
    double rho = 1.15;
    for (auto _ : rounds) {
        benchmark::DoNotOptimize(TempAusDichte(solver, 12, rho, DensitySearch::Saturation));
        rho = rho < 1.22 ? rho + 0.0001 : 1.15;
    }
}
BENCHMARK(DensitySearchRounds);

}  // namespace
}  // namespace zandrell
