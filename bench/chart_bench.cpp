// The chart and the main form without a toolkit: paints, pointer moves, a drag in the plant.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "shell/form_script.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

// A main form over a data folder of its own, started and with the sample working state.
class StartedForm {
  public:
    StartedForm() {
        fs::copy(ZANDRELL_STAGED_DATA, folder_, fs::copy_options::recursive);
        form.Load();
        form.Resize(1920, 1080);
        form.Activate();
    }
    ~StartedForm() { fs::remove_all(folder_); }

    void DropCache() { fs::remove(folder_ / "qv_wert.dat"); }

  private:
    static fs::path NewFolder() {
        std::string pattern = (fs::temp_directory_path() / "zandrell.XXXXXX").string();
        return ::mkdtemp(pattern.data());
    }

    fs::path folder_ = NewFolder();
    std::istringstream no_script_;
    std::ostringstream no_dumps_;
    ScriptedUser user_{no_script_, no_dumps_};
    DataFiles files_{folder_};

  public:
    MainForm form{user_, files_, NamedFolder(folder_)};
};

void PaintWithColdCache(benchmark::State& state) {
    StartedForm started;
    double pressure = 0;
    for (auto _ : state) {
        state.PauseTiming();
        started.DropCache();
        state.ResumeTiming();
        started.form.chart.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, pressure);
    }
}
BENCHMARK(PaintWithColdCache)->Unit(benchmark::kMillisecond);

void PaintWithWarmCache(benchmark::State& state) {
    StartedForm started;
    double pressure = 0;
    for (auto _ : state) started.form.chart.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, pressure);
}
BENCHMARK(PaintWithWarmCache)->Unit(benchmark::kMillisecond);

void PaintUnderExact(benchmark::State& state) {
    StartedForm started;
    started.form.chart.convention_override = Convention::Exact;
    double pressure = 0;
    for (auto _ : state) started.form.chart.DiagrammZeichnen(ChartTask::PaintWhole, 0, 0, pressure);
}
BENCHMARK(PaintUnderExact)->Unit(benchmark::kMillisecond);

void PointerMoveWithReadOut(benchmark::State& state) {
    StartedForm started;
    double x = 100;
    for (auto _ : state) {
        x = x < 900 ? x + 1 : 100;
        started.form.PointerMove({x, 200});
    }
}
BENCHMARK(PointerMoveWithReadOut)->Unit(benchmark::kMicrosecond);

void DragOfAThousandMovesInThePlant(benchmark::State& state) {
    StartedForm started;
    MainForm& form = started.form;
    form.UserClick("AnlageButt");
    const Mark& mark = form.overlay.PP2;
    form.PointerPress(PointerButton::Left, {mark.left + 6, mark.top + 6});
    if (!form.Pointer().Marks().IsCarried(form.overlay.PP2))
        state.SkipWithError("the mark was not picked up");
    for (auto _ : state) {
        for (int i = 0; i < 1000; ++i) form.PointerMove({450 + 0.2 * i, 90 + 0.05 * i});
    }
}
BENCHMARK(DragOfAThousandMovesInThePlant)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zandrell
