#include <benchmark/benchmark.h>

#include <array>

#include "base/data_files.h"
#include "kernel/state_solver.h"
#include "processes/process_panels.h"

namespace zandrell {
namespace {

// Both panels without a window, bound as the program binds them.
struct Processes {
    SharedValues shared;
    Captions captions;
    DataFiles files{ZANDRELL_STAGED_DATA};
    StateSolver solver{files};
    ChartSettings settings;
    ChartScale scale;
    Overlay overlay;
    ReadOutPanel read_out;
    ProcessPanels panels{{shared, captions, solver, settings, scale, overlay, read_out}};
    PointPanel& point = panels.point;
    PlantPanel& plant = panels.plant;
    ActTable acts;

    Processes() {
        solver.ChartDruckBar = 1.013;
        ApplyBaseScale(settings, scale);
        panels.BindActs(acts);
    }

    void SetPlant(const std::array<const char*, 12>& texts) {
        const std::array<TextField*, 12> fields = {
            &plant.vhAnlage, &plant.aussenAnt, &plant.tabLuft, &plant.PHIAbluft,
            &plant.Taus,     &plant.PhiAussen, &plant.TZuluft, &plant.PHIZuluft,
            &plant.tKA,      &plant.phiKanal,  &plant.dtVent1, &plant.dtVent2};
        for (std::size_t i = 0; i < fields.size(); ++i) fields[i]->text = texts[i];
        plant.TakeBarsFromFields();
        panels.Rechenmodus = Calculation::Plant;
    }
};

void RunPlant(benchmark::State& state, const std::array<const char*, 12>& texts, bool water,
              Convention convention = Convention::Suite) {
    Processes processes;
    processes.settings.convention = convention;
    processes.SetPlant(texts);
    if (water) Choose(processes.plant.Option3D4, processes.plant.Option3D3);
    // Dragging: the outside temperature changes with every run.
    const std::array<std::string, 2> outside = {texts[4], std::string(texts[4]) + ".1"};
    unsigned run = 0;
    for (auto _ : state) {
        processes.plant.Taus.text = outside[++run % 2];
        processes.plant.AnlageBerechnen();
        benchmark::DoNotOptimize(processes.overlay.PP5.left);
    }
    if (processes.plant.Heiz2.text.size() < 4) state.SkipWithError("the plant was not computed");
}

void PlantSummerSteam(benchmark::State& state) {
    RunPlant(state, {"10000", "1", "26", "50", "32", "40", "18", "75", "12", "95", "1", "1"},
             false);
}
BENCHMARK(PlantSummerSteam);

void PlantSummerWater(benchmark::State& state) {
    RunPlant(state, {"10000", "1", "26", "50", "32", "40", "18", "75", "12", "95", "1", "1"}, true);
}
BENCHMARK(PlantSummerWater);

void PlantWinterWater(benchmark::State& state) {
    RunPlant(state, {"10000", "1", "20", "50", "-10", "100", "25", "35", "12", "95", "1", "1"},
             true);
}
BENCHMARK(PlantWinterWater);

// Outside air of tenths moves no bar; what is computed is one exact run.
void ExactPlantWinterWater(benchmark::State& state) {
    RunPlant(state, {"10000", "1", "20", "50", "-10", "100", "25", "35", "12", "95", "1", "1"},
             true, Convention::Exact);
}
BENCHMARK(ExactPlantWinterWater);

void PointMode(benchmark::State& state, Calculation mode) {
    Processes processes;
    PointPanel& panel = processes.point;
    panel.Temp1.text = "20";
    panel.relF1.text = "50";
    panel.relF2.text = "60";
    panel.LuftM1.text = panel.LuftM2.text = "10000";
    panel.ShowForMode(mode);
    unsigned run = 0;
    for (auto _ : state) {
        panel.Temp2.text = ++run % 2 == 0 ? "15" : "15.1";
        panel.ZustandRechnen(mode, MarkPlacing::FromFields);
        benchmark::DoNotOptimize(processes.overlay.PP2.left);
    }
}
BENCHMARK_CAPTURE(PointMode, capacity, Calculation::Capacity);
BENCHMARK_CAPTURE(PointMode, mixing, Calculation::Mixing);
BENCHMARK_CAPTURE(PointMode, water_humidifier, Calculation::WaterHumidifier);

}  // namespace
}  // namespace zandrell
