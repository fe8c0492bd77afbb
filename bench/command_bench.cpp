#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "base/data_files.h"
#include "command/row_calculations.h"
#include "command/row_run.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

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

// Rows as a logger writes them: temperatures from -15 to 35 degC, humidities from 20 to 100 %, a
// time and a remark passed through, a pressure that changes every `same_pressure` rows.
std::string Measurements(int rows, int same_pressure) {
    std::string table = "time,t,rh,p,remark\n";
    for (int i = 0; i < rows; ++i) {
        table += std::to_string(i) + ',' +
                 std::to_string(-15 + 50.0 * ((i % 9973 * 61) % 9973) / 9973) + ',' +
                 std::to_string(20 + 80.0 * ((i % 10007 * 37) % 10007) / 10007) + ',' +
                 std::to_string(1.013 + 0.0001 * ((i / same_pressure) % 100)) +
                 (i % 7 == 0 ? ",\"room 1, \"\"north\"\"\"\n" : ",ok\n");
    }
    return table;
}

RowStreams InMemory(const std::string& table, std::size_t& written) {
    RowStreams streams;
    streams.input = [&table, place = std::size_t{0}](std::span<char> block) mutable {
        const std::size_t count = std::min(block.size(), table.size() - place);
        std::copy_n(table.data() + place, count, block.data());
        place += count;
        return std::optional(count);
    };
    streams.output = [&written](std::string_view bytes) {
        written += bytes.size();
        benchmark::DoNotOptimize(bytes.data());
        return true;
    };
    streams.reports = [](std::string_view) { return false; };  // there are no bad rows
    return streams;
}

void Table(benchmark::State& rounds, RowCalculation& calculation, const std::string& table,
           RowFormat format, int rows) {
    std::size_t written = 0;
    for (auto _ : rounds) {
        std::string error;
        if (!RunRows(calculation, format, InMemory(table, written), error)) std::abort();
    }
    if (written == 0) std::abort();
    rounds.SetItemsProcessed(rounds.iterations() * rows);
}

void StateTable(benchmark::State& rounds, RowFormat format, int same_pressure) {
    constexpr int kRows = 1000000;
    const std::string table = Measurements(kRows, same_pressure);
    Table(rounds, *MakeStateCalculation(Tables(), 1.013), table, format, kRows);
}
BENCHMARK_CAPTURE(StateTable, csv, RowFormat::Csv, 1000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StateTable, csv_new_pressure_in_each_row, RowFormat::Csv, 1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StateTable, json, RowFormat::Json, 1000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void ExactTable(benchmark::State& rounds) {
    constexpr int kRows = 1000000;
    Table(rounds, *MakeExactAirCalculation(Files(), 1.013), Measurements(kRows, 1000),
          RowFormat::Csv, kRows);
}
BENCHMARK(ExactTable)->UseRealTime()->Unit(benchmark::kMillisecond);

void HumidityTable(benchmark::State& rounds) {
    constexpr int kRows = 100000;
    std::string table = "t,x,p\n";
    for (int i = 0; i < kRows; ++i) {
        table += std::to_string(15 + i % 20) + ',' + std::to_string(2 + i % 80 * 0.1) + ",1.013\n";
    }
    Table(rounds, *MakeInverseCalculation("rh-from-x", Files(), 1.013), table, RowFormat::Csv,
          kRows);
}
BENCHMARK(HumidityTable)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zandrell
