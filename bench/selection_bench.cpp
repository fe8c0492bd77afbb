#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <QApplication>
#include <QImage>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "desktop/accessible.h"
#include "desktop/look.h"
#include "desktop/selection_window.h"
#include "selection/catalogue_scan.h"
#include "selection/unit_figures.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

constexpr int kSeries = 2200;
constexpr int kSeriesAFile = 100;

void Put(std::string& record, KatalogFeld field, const std::string& text) {
    record.replace(PlaceOf(field).offset, text.size(), text);
}

std::string Record(int kind, int series, int unit) {
    using enum KatalogFeld;
    std::string record(KatalogSatz::kLength, ' ');
    Put(record, KatTyp, "Type " + std::to_string(series) + "-" + std::to_string(unit));
    Put(record, KatTyp2, "2 fans, 230 V");
    Put(record, KatWert, std::to_string(10 + unit) + ",5");
    Put(record, KatWert2, "46 bar");
    Put(record, KatLeistung, kind == 550 ? "S2" : std::to_string(5 + unit) + ".25");
    Put(record, KatAntrieb, "0,75");
    Put(record, KatLamelle, "4,5");
    Put(record, KatVolumen, std::to_string(400 * unit));
    Put(record, KatGewicht, std::to_string(8 + unit));
    Put(record, KatBild, "unit.bmp");
    return record;
}

// A catalogue of 2,200 full series, 60 MB, gone when the program ends.
class LargeCatalogue {
  public:
    explicit LargeCatalogue(int kind) {
        std::string pattern = (fs::temp_directory_path() / "zandrell_bench.XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
        std::ofstream index(folder_ / KatalogIndex("QV", kind), std::ios::binary);
        std::ofstream records;
        for (int series = 0; series < kSeries; ++series) {
            const std::string name = "B" + std::to_string(10000 + series / kSeriesAFile);
            const int place = series % kSeriesAFile;
            index << '"' << name << "\",\"1\",\"Maker" << series % 37 << " Series " << series
                  << "\",\"" << place * Serie::kUnits << "\"\r\n";
            if (place == 0) {
                records.close();
                records.open(folder_ / KatalogDateiOf(name), std::ios::binary);
            }
            for (int unit = 1; unit <= Serie::kUnits; ++unit) records << Record(kind, series, unit);
        }
        std::ofstream(folder_ / "Prodhide.dat") << "\"Series 17\"\r\n\"old\"\r\n";
    }
    ~LargeCatalogue() {
        std::error_code error;
        fs::remove_all(folder_, error);
    }
    LargeCatalogue(const LargeCatalogue&) = delete;
    LargeCatalogue& operator=(const LargeCatalogue&) = delete;

    const fs::path& Folder() const { return folder_; }

  private:
    fs::path folder_;
};

SelectionInputs Point(int kind) {
    SelectionInputs shared;
    shared.KatalogArt = kind;
    shared.QoSoll = 20;
    shared.LeistFaktor = 0.95;
    shared.MassenStrom = 0.1;
    shared.KatBezug = 1200;
    shared.LiefergradBezug = 0.8;
    shared.Label26 = 30;
    shared.DruckPo = 2;
    shared.DruckPc = 12;
    shared.KaelteMittel = "R134a";
    return shared;
}

// Index, hidden list, every record and the figure of every unit, from nothing but the file cache.
void FullScan(benchmark::State& rounds, int kind) {
    const LargeCatalogue catalogue(kind);
    const DataFiles files(catalogue.Folder());
    for (auto _ : rounds) {
        SelectionInputs shared = Point(kind);
        int units = 0;
        double sum = 0;
        ScanCatalogue(files, KatalogIndex("QV", kind), [&](const ScannedSeries& scanned) {
            UnitFigures figures;
            for (int i = 1; i <= Serie::kUnits; ++i) {
                const UnitNumbers unit = ReadUnit(scanned.serie.Satz(i));
                if (unit.IsEndMark()) break;
                CalculateUnit(unit, shared, figures);
                sum += figures.Q + figures.pressure_drop + figures.opening;
                ++units;
            }
        });
        if (units != kSeries * Serie::kUnits || !(sum > 0)) std::abort();
    }
    rounds.SetItemsProcessed(rounds.iterations() * kSeries * Serie::kUnits);
}
BENCHMARK_CAPTURE(FullScan, air_coolers, 600)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FullScan, compressors, 550)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FullScan, solenoid_valves, 250)->Unit(benchmark::kMillisecond);
// The first time that the code runs: no warm-up, one round.
BENCHMARK_CAPTURE(FullScan, cold_code, 650)->Unit(benchmark::kMillisecond)->Iterations(1);

void ReadingAlone(benchmark::State& rounds) {
    const LargeCatalogue catalogue(600);
    const DataFiles files(catalogue.Folder());
    for (auto _ : rounds) {
        std::size_t bytes = 0;
        ScanCatalogue(files, "I600.DAT",
                      [&](const ScannedSeries& scanned) { bytes += scanned.serie.bytes.size(); });
        if (bytes != std::size_t{kSeries} * Serie::kUnits * KatalogSatz::kLength) std::abort();
    }
}
BENCHMARK(ReadingAlone)->Unit(benchmark::kMillisecond);

constexpr int kWidth = 1920, kHeight = 1080;
constexpr int kLeastShown = 2000;  // some are hidden

// The selection window with all series of a kind in its list, as a planner has it before him.
struct WindowOverCatalogue {
    WindowOverCatalogue() : catalogue(600), files(Prepared(catalogue.Folder())) {
        desk.Load();
        planner.SetCaptions();
        window = std::make_unique<SelectionWindow>(desk, planner, user);
        window->resize(kWidth, kHeight);
        window->show();
        planner.Start({});
        window->Refresh();
        QApplication::processEvents();
        series = window->findChild<GridView*>(QStringLiteral("KatalogSpread"));
        if (series == nullptr || series->model()->rowCount() < kLeastShown) std::abort();
    }

    // Settings, words and refrigerants go beside the catalogue.
    static fs::path Prepared(const fs::path& folder) {
        fs::copy(ZANDRELL_STAGED_DATA, folder,
                 fs::copy_options::recursive | fs::copy_options::skip_existing);
        return folder;
    }

    LargeCatalogue catalogue;
    DataFiles files;
    QtUser user;
    SelectionDesk desk{user, files, NamedFolder(catalogue.Folder())};
    SelectionContext context{files, desk.shared, desk.captions, user, desk.selection};
    SelectionOpener opener{context, desk.window};
    PlannerForm planner{context, desk.window, opener};
    std::unique_ptr<SelectionWindow> window;
    GridView* series = nullptr;
};

QApplication& TheApplication() {
    static int count = 1;
    static char name[] = "selection_bench";
    static char* arguments[] = {name, nullptr};
    static QApplication* const application = [] {
        auto* made = new QApplication(count, arguments);  // outlives all statics
        ApplyLook(*made, {ScaleFor(kWidth, kHeight)});
        return made;
    }();
    return *application;
}

// Search for what stands in each name: index, records, ranges, colours, and the list on the screen.
void FillTheList(benchmark::State& rounds) {
    TheApplication();
    WindowOverCatalogue over;
    for (auto _ : rounds) {
        over.desk.window.UserSetText("search", "Maker");
        over.desk.window.UserReturn("search");
        over.window->Refresh();
        QApplication::processEvents();
        if (over.series->model()->rowCount() != kSeries) std::abort();
    }
}
BENCHMARK(FillTheList)->Unit(benchmark::kMillisecond);

// One turn of the wheel in a list of 2,200 series: the act, the comparison, the list painted anew.
void ScrollFrame(benchmark::State& rounds) {
    TheApplication();
    WindowOverCatalogue over;
    QImage image(over.series->viewport()->size(), QImage::Format_RGB32);
    bool down = true;
    for (auto _ : rounds) {
        const int before = over.desk.window.controls.KatalogSpread.TopRow();
        over.desk.window.UserGridAct("KatalogSpread", down ? ActKind::RowsDown : ActKind::RowsUp);
        over.window->Refresh();
        over.series->viewport()->render(&image);
        benchmark::DoNotOptimize(image.constBits());
        const int top = over.desk.window.controls.KatalogSpread.TopRow();
        if (top == before) std::abort();
        if (top > kLeastShown - 200) down = false;
        if (top < 200) down = true;
    }
}
BENCHMARK(ScrollFrame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zandrell
