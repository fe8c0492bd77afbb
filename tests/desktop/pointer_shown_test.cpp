// The pointer over the chart as a user sees it: its shape, wheel and hand.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

#include "desktop/window_session.h"

namespace zandrell {
namespace {

class PointerShown : public WindowSession {
  protected:
    PointerShown() : chart_(window_->Chart()) {}

    void Wheel(QPointF place, int notches) {
        QWheelEvent event(place, chart_.mapToGlobal(place), {}, QPoint(0, 120 * notches),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart_, &event);
    }
    void Drag(QPointF from, QPointF to) {
        Mouse(chart_, QEvent::MouseButtonPress, from, Qt::MiddleButton);
        Mouse(chart_, QEvent::MouseMove, (from + to) / 2);
        Mouse(chart_, QEvent::MouseMove, to);
        Mouse(chart_, QEvent::MouseButtonRelease, to, Qt::MiddleButton);
    }
    QPointF PlaceOf(double x, double t) const {
        return chart_.ToWidget(form_.chart.scale.PointOf(x, t));
    }
    // The chart as it looks once the steps pause.
    QImage Settled() {
        QTest::qWait(120);
        return chart_.grab().toImage();
    }
    static int Differing(const QImage& a, const QImage& b) {
        int count = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 60;
            }
        }
        return count;
    }
    void OpenStates() {
        window_->Mirror().Perform([&] {
            struct {
                const char *name, *text;
            } const inputs[] = {{"Temp1", "32"}, {"relF1", "40"}, {"Temp2", "22"}, {"relF2", "50"}};
            for (const auto& input : inputs) form_.UserSetText(input.name, input.text);
            form_.UserClick("ZAButt");
        });
        QApplication::processEvents();
    }

    ChartWidget& chart_;
};

TEST_F(PointerShown, AHandLiesOverARingThatCanBePickedUp) {
    OpenStates();
    const QPointF ring = chart_.ToWidget(form_.overlay.PP1.state);
    Mouse(chart_, QEvent::MouseMove, ring + QPointF(80, 40));
    EXPECT_EQ(chart_.cursor().shape(), Qt::ArrowCursor);
    Mouse(chart_, QEvent::MouseMove, ring + QPointF(4, 0));
    EXPECT_EQ(chart_.cursor().shape(), Qt::OpenHandCursor);
    Mouse(chart_, QEvent::MouseButtonPress, ring);
    EXPECT_EQ(chart_.cursor().shape(), Qt::ClosedHandCursor);
    Mouse(chart_, QEvent::MouseMove, ring + QPointF(80, 40));
    EXPECT_EQ(chart_.cursor().shape(), Qt::ClosedHandCursor);
    Mouse(chart_, QEvent::MouseButtonPress, ring + QPointF(80, 40));
    Mouse(chart_, QEvent::MouseMove, ring);
    EXPECT_EQ(chart_.cursor().shape(), Qt::ArrowCursor) << "nothing lies there any more";
}

// The rows of the exact read-out, as they stand in the column.
TEST_F(PointerShown, FrostAndIceAreCalledByTheirNamesUnderExactAlone) {
    const auto row = [&](const char* name) {
        return window_->findChild<QLabel*>(QLatin1String(name));
    };
    const auto read = [&](double x, double t) {
        Mouse(chart_, QEvent::MouseMove, PlaceOf(x, t));
        QApplication::processEvents();
    };
    form_.chart.convention_override = Convention::Exact;
    window_->Mirror().Perform([&] { form_.Activate(); });
    const struct {
        double x, t;
        const char *dew, *condensed;
    } cases[] = {{5, 20, "td", "xw"}, {30, 10, "td", "xw"}, {20, -10, "tf", "xi"}};
    for (const auto& c : cases) {
        read(c.x, c.t);
        ASSERT_TRUE(row("DewPointLabel") && row("CondensedWaterLabel"));
        EXPECT_TRUE(row("DewPointLabel")->isVisible());
        EXPECT_TRUE(row("DewPointLabel")->text().startsWith(QLatin1String(c.dew))) << c.t;
        EXPECT_TRUE(row("CondensedWaterLabel")->text().startsWith(QLatin1String(c.condensed)))
            << c.t;
    }
    window_->Mirror().Perform([&] { form_.Activate(); });
    EXPECT_TRUE(row("DewPointLabel")->text().startsWith(QLatin1String("tf"))) << "as its figure";
    form_.chart.convention_override = Convention::Suite;
    read(5, 20);
    EXPECT_FALSE(row("DewPointLabel")->isVisible());
    EXPECT_TRUE(row("DampfDSLabel")->isVisible());
}

TEST_F(PointerShown, WheelAndHandEndInTheZoomedStateAndZoomOutReturns) {
    const QImage whole = Settled();
    const QPointF place = PlaceOf(10, 20);
    for (int notch = 0; notch < 4; ++notch) Wheel(place, 1);
    const QImage preview = chart_.grab().toImage();
    const QImage zoomed = Settled();
    // Each notch brings the origin of the scale to whole units of the canvas, and those behind it
    // magnify that by a fifth each: a few pixels in four notches.
    EXPECT_LT((PlaceOf(10, 20) - place).manhattanLength(), 6);
    EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::Zoomed);
    EXPECT_TRUE(Find<QPushButton>("ZOOMMIN")->isVisible());
    // The picture that stands in shows the same lines at the same places, only coarser.
    const int to_whole = Differing(zoomed, whole), to_preview = Differing(zoomed, preview);
    EXPECT_GT(to_whole, 5000);
    EXPECT_LT(to_preview, to_whole);

    const QPointF hand = PlaceOf(10, 20);
    Drag(hand, hand + QPointF(90, -60));
    EXPECT_LT((PlaceOf(10, 20) - hand - QPointF(90, -60)).manhattanLength(), 4);
    EXPECT_GT(Differing(Settled(), zoomed), 5000);
    Click(*Find<QPushButton>("ZOOMMIN"));
    EXPECT_EQ(Differing(Settled(), whole), 0);
    EXPECT_FALSE(Find<QPushButton>("ZOOMMIN")->isVisible());

    Wheel(place, 2);
    Wheel(place, -3);
    EXPECT_EQ(Differing(Settled(), whole), 0) << "the wheel goes back to the whole chart";
    EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::Nobody);
}

TEST_F(PointerShown, AMarkIsCarriedOnAChartZoomedByTheWheel) {
    OpenStates();
    const QPointF place = chart_.ToWidget(form_.overlay.PP1.state);
    Wheel(place, 3);
    EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::PointPanel);
    EXPECT_LT((chart_.ToWidget(form_.overlay.PP1.state) - place).manhattanLength(), 4);
    Mouse(chart_, QEvent::MouseButtonPress, chart_.ToWidget(form_.overlay.PP1.state));
    ASSERT_TRUE(form_.Pointer().Marks().IsCarried(form_.overlay.PP1));
    const double scale = form_.chart.scale.MassstabX;
    Wheel(place, 1);
    EXPECT_EQ(form_.chart.scale.MassstabX, scale) << "not while a mark is carried";
    Mouse(chart_, QEvent::MouseMove, PlaceOf(11, 30));
    Mouse(chart_, QEvent::MouseButtonPress, PlaceOf(11, 30));
    EXPECT_NEAR(Find<QLineEdit>("Temp1")->text().toDouble(), 30, 0.11);
}

TEST_F(PointerShown, TheChartIsNeverLost) {
    Drag(QPointF(100, 100), QPointF(9000, 100));
    EXPECT_GT(PlaceOf(40, 20).x(), 0);
    for (int notch = 0; notch < 100; ++notch) Wheel(PlaceOf(10, 20), 1);
    EXPECT_LE(form_.chart.scale.MassstabX, 45 * 50.01);
    for (int notch = 0; notch < 100; ++notch) Wheel(QPointF(5, 5), -1);
    EXPECT_EQ(form_.chart.scale.MassstabX, 45);
}

}  // namespace
}  // namespace zandrell
