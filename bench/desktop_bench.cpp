// What a user waits for in the windows, on a screen of 3840 by 2160 pixels.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QWindow>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>

#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_user.h"
#include "painter/chart_drawing.h"
#include "painter/chart_file.h"
#include "peer_picture.h"

namespace zandrell {
namespace {

constexpr int kWidth = 3840, kHeight = 2160;

// One chart to a file, as large as a page of a report holds it.
constexpr int kFileWidth = 1600, kFileHeight = 900;

// The program writes into its data folder; the delivered set must not change.
std::filesystem::path CopyOfDataSet() {
    static const QTemporaryDir folder;
    std::filesystem::path path = folder.path().toStdString();
    std::filesystem::copy(ZANDRELL_STAGED_DATA, path,
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
    return path;
}

// The program with a plant open, as a user has it before him.
struct Session {
    Session() {
        form.Load();
        window = std::make_unique<MainWindow>(form, files, user);
        window->resize(kWidth, kHeight);
        window->show();
        window->Start();
        struct {
            const char *field, *text;
        } const inputs[] = {{"tabLuft", "24"},   {"PHIAbluft", "50"}, {"Taus", "32"},
                            {"PhiAussen", "40"}, {"TZuluft", "18"},   {"PHIZuluft", "50"},
                            {"tKA", "12"},       {"phiKanal", "95"},  {"vhAnlage", "10000"},
                            {"aussenAnt", "1"},  {"dtVent1", "1"},    {"dtVent2", "1"}};
        window->Mirror().Perform([&] {
            form.UserClick("AnlageButt");
            for (const auto& input : inputs) form.UserSetText(input.field, input.text);
            form.UserReturn("vhAnlage");
        });
        QApplication::processEvents();
    }

    DataFiles files{CopyOfDataSet()};
    QtUser user;
    MainForm form{user, files, files.DataFolder()};
    std::unique_ptr<MainWindow> window;
};

Session& TheSession() {
    static Session* const session = new Session;  // outlives every other object of the toolkit
    return *session;
}

void FullPaint(benchmark::State& state) {
    const RecordingCanvas& picture = TheSession().form.chart.picture;
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    const ChartView view(picture, QRectF(image.rect()), 1);
    for (auto _ : state) {
        QPainter painter(&image);
        PaintPicture(painter, picture, view);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(FullPaint)->Unit(benchmark::kMillisecond);

// As many bare primitives of the toolkit's painter, with the same pens.
void FullPaintOfThePeer(benchmark::State& state) {
    const RecordingCanvas& picture = TheSession().form.chart.picture;
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    const PeerPicture peer(picture, ChartView(picture, QRectF(image.rect()), 1));
    for (auto _ : state) {
        QPainter painter(&image);
        peer.Paint(painter);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(FullPaintOfThePeer)->Unit(benchmark::kMillisecond);

// Every pixel of a screen copied once: the least that a frame of a resize can cost.
void BlitOfThePicture(benchmark::State& state) {
    QImage picture(kWidth, kHeight, QImage::Format_RGB32), screen = picture.copy();
    picture.fill(Qt::white);
    for (auto _ : state) {
        QPainter painter(&screen);
        painter.drawImage(QPointF(0, 0), picture);
        painter.end();
        benchmark::DoNotOptimize(screen.constBits());
    }
}
BENCHMARK(BlitOfThePicture)->Unit(benchmark::kMillisecond);

void SendMouse(ChartWidget& chart, QEvent::Type type, QPointF place) {
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, place, chart.mapToGlobal(place), moves ? Qt::NoButton : Qt::LeftButton,
                      moves ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&chart, &event);
}

// Counts the repaints of a widget, so that a figure without a repaint in it is not believed.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QObject& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return false;
    }
    double paints = 0;
};

// One move of a carried mark: the plant runs, the panel shows its figures, the window repaints.
void DragOfAMarkInThePlant(benchmark::State& state) {
    Session& session = TheSession();
    ChartWidget& chart = session.window->Chart();
    const QPointF start = chart.ToWidget(session.form.overlay.PP2.state);
    SendMouse(chart, QEvent::MouseButtonPress, start);
    if (!session.form.Pointer().Marks().IsCarried(session.form.overlay.PP2))
        state.SkipWithError("the mark was not picked up");
    const PaintCounter counter(chart);
    double turn = 0;
    for (auto _ : state) {
        turn += 0.1;
        SendMouse(chart, QEvent::MouseMove, start + 60 * QPointF(std::cos(turn), std::sin(turn)));
        QApplication::processEvents();
    }
    // Not a counter of the benchmark: a table with a column for some of its rows cannot be written.
    if (counter.paints < 0.5 * static_cast<double>(state.iterations())) {
        state.SkipWithError("the moves were not repainted");
    }
    SendMouse(chart, QEvent::MouseButtonPress, start);
}
BENCHMARK(DragOfAMarkInThePlant)->Unit(benchmark::kMillisecond);

// The edge of the window follows the hand, the plant stays open.
void ResizeWithThePlantOpen(benchmark::State& state) {
    Session& session = TheSession();
    const PaintCounter counter(session.window->Chart());
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 20;
        session.window->windowHandle()->resize(kWidth - 4 * step, kHeight - 2 * step);
        QApplication::processEvents();
    }
    if (counter.paints < 0.9 * static_cast<double>(state.iterations())) {
        state.SkipWithError("the sizes were not repainted");
    }
    session.window->resize(kWidth, kHeight);
    QApplication::processEvents();
}
BENCHMARK(ResizeWithThePlantOpen)->Unit(benchmark::kMillisecond);

// From a program that runs to the chart that is seen, on a screen of 3840 by 2160 pixels.
void StartToFirstChart(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        DataFiles files(CopyOfDataSet());
        state.ResumeTiming();
        QtUser user;
        MainForm form(user, files, files.DataFolder());
        form.Load();
        MainWindow window(form, files, user);
        const PaintCounter counter(window.Chart());
        window.resize(3379, 1901);
        window.show();
        window.Start();
        QApplication::processEvents();
        if (counter.paints < 1) state.SkipWithError("the chart was not painted");
    }
}
BENCHMARK(StartToFirstChart)->Unit(benchmark::kMillisecond);

void ChartToSvg(benchmark::State& state) {
    const MainForm& form = TheSession().form;
    qsizetype bytes = 0;
    for (auto _ : state) {
        bytes = ChartSvg(form.chart.picture, form.overlay, kFileWidth, kFileHeight).size();
        benchmark::DoNotOptimize(bytes);
    }
    state.SetLabel(std::to_string(bytes / 1000) + " KB");
}
BENCHMARK(ChartToSvg)->Unit(benchmark::kMillisecond);

// A notch of the wheel, forth and back: form, window and repaint, as long as the steps go on.
void WheelStep(benchmark::State& state) {
    Session& session = TheSession();
    ChartWidget& chart = session.window->Chart();
    const QPointF place = chart.ToWidget(session.form.overlay.PP2.state);
    const PaintCounter counter(chart);
    int step = 0;
    for (auto _ : state) {
        const int turn = step++ % 12 < 6 ? 120 : -120;
        QWheelEvent event(place, chart.mapToGlobal(place), {}, QPoint(0, turn), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart, &event);
        QApplication::processEvents();
    }
    if (counter.paints < 0.5 * static_cast<double>(state.iterations())) {
        state.SkipWithError("the steps were not repainted");
    }
    session.form.UserClick("ZOOMMIN");
}
BENCHMARK(WheelStep)->Unit(benchmark::kMillisecond);

// A move of the hand that drags the chart.
void PanStep(benchmark::State& state) {
    Session& session = TheSession();
    ChartWidget& chart = session.window->Chart();
    const QPointF start(1200, 700);
    const auto send = [&chart](QEvent::Type type, QPointF place) {
        QMouseEvent event(type, place, chart.mapToGlobal(place), Qt::MiddleButton, Qt::MiddleButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&chart, &event);
    };
    send(QEvent::MouseButtonPress, start);
    const PaintCounter counter(chart);
    double turn = 0;
    for (auto _ : state) {
        turn += 0.1;
        send(QEvent::MouseMove, start + 200 * QPointF(std::cos(turn), std::sin(turn)));
        QApplication::processEvents();
    }
    if (counter.paints < 0.5 * static_cast<double>(state.iterations())) {
        state.SkipWithError("the steps were not repainted");
    }
    send(QEvent::MouseButtonRelease, start);
    session.form.UserClick("ZOOMMIN");
}
BENCHMARK(PanStep)->Unit(benchmark::kMillisecond);

// A move with nothing carried: only the read-out follows.
void PointerMove(benchmark::State& state) {
    ChartWidget& chart = TheSession().window->Chart();
    double turn = 0;
    for (auto _ : state) {
        turn += 0.1;
        SendMouse(chart, QEvent::MouseMove,
                  QPointF(900, 500) + 60 * QPointF(std::cos(turn), std::sin(turn)));
        QApplication::processEvents();
    }
}
BENCHMARK(PointerMove)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zandrell

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    zandrell::ApplyLook(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
