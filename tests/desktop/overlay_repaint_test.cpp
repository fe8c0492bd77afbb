// What the window repaints while a mark is carried: no more than what changed, and all of it.
#include <gtest/gtest.h>

#include <QBackingStore>
#include <QImage>
#include <QTest>
#include <QWindow>
#include <cmath>
#include <sstream>

#include "desktop/window_session.h"

namespace zandrell {
namespace {

class CarriedMark : public WindowSession {
  protected:
    explicit CarriedMark(const char* chart) : WindowSession({.chart = chart}) {
        window_->Mirror().Perform([this] {
            const struct {
                const char *field, *text;
            } inputs[] = {{"tabLuft", "24"},   {"PHIAbluft", "50"}, {"Taus", "32"},
                          {"PhiAussen", "40"}, {"TZuluft", "18"},   {"PHIZuluft", "50"},
                          {"tKA", "12"},       {"phiKanal", "95"},  {"vhAnlage", "10000"},
                          {"aussenAnt", "1"},  {"dtVent1", "1"},    {"dtVent2", "1"}};
            form_.UserClick("AnlageButt");
            for (const auto& input : inputs) form_.UserSetText(input.field, input.text);
            form_.UserReturn("vhAnlage");
        });
        Settle();
    }

    static void Settle() {
        for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
    }

    // The pixels of the chart as the window has them.
    QImage OnScreen() {
        const ChartWidget& chart = window_->Chart();
        const auto* pixels = static_cast<QImage*>(window_->backingStore()->paintDevice());
        return pixels->copy({chart.mapTo(window_.get(), QPoint()), chart.size()});
    }

    // By the pointer over the window, which finds the widget itself.
    void MoveTo(QPointF place) {
        ChartWidget& chart = window_->Chart();
        QTest::mouseMove(window_->windowHandle(), chart.mapTo(window_.get(), place.toPoint()));
        Settle();
    }

    // Carries the mark of the outside air around in a spiral. After each step the window has to
    // show what it shows when all of it is painted anew.
    void CarryAround() {
        ChartWidget& chart = window_->Chart();
        const QPointF start = chart.ToWidget(form_.overlay.PP2.state);
        MoveTo(start);
        QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {},
                          chart.mapTo(window_.get(), start.toPoint()));
        Settle();
        ASSERT_TRUE(form_.Pointer().Marks().IsCarried(form_.overlay.PP2));
        int moved = 0;
        for (int step = 0; step < 24; ++step) {
            const QImage before = OnScreen();
            const double turn = 0.7 * step, radius = 6.0 * step;
            MoveTo(start + radius * QPointF(std::cos(turn), std::sin(turn)));
            const QImage shown = OnScreen();
            if (shown != before) ++moved;
            chart.update();
            Settle();
            ASSERT_TRUE(shown == OnScreen()) << "something was left behind at step " << step;
        }
        EXPECT_GT(moved, 12) << "the mark does not follow the pointer";
    }
};

// The same settings twice but for the kind of the chart.
class CarriedMarkOnMollier : public CarriedMark {
  protected:
    CarriedMarkOnMollier() : CarriedMark("1.013,-20,40,0,40,0,0,1,1") {}
};

class CarriedMarkOnCarrier : public CarriedMark {
  protected:
    CarriedMarkOnCarrier() : CarriedMark("1.013,-20,40,0,40,0,1,1,1") {}
};

TEST_F(CarriedMarkOnMollier, LeavesNoTraceBehind) { CarryAround(); }

TEST_F(CarriedMarkOnCarrier, LeavesNoTraceBehind) {
    ASSERT_NE(form_.chart.settings.DiagrammArt, kMollier);
    CarryAround();
}

}  // namespace
}  // namespace zandrell
