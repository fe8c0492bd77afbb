#include <QClipboard>
#include <QEventLoop>
#include <QImage>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QWindow>
#include <fstream>

#include "desktop/script_runner.h"
#include "desktop/window_session.h"

namespace zandrell {
namespace {

class MainWindowTest : public WindowSession {
  protected:
    // The capacity panel with two states typed in.
    void OpenCapacity() {
        Click(*Find<QPushButton>("BearButt"));
        struct {
            const char *name, *text;
        } const inputs[] = {
            {"Temp1", "32"}, {"relF1", "40"}, {"Temp2", "22"}, {"relF2", "50"}, {"LuftM1", "1000"}};
        for (const auto& input : inputs) {
            auto* field = Find<QLineEdit>(input.name);
            Type(*field, input.text);
            Key(*field, Qt::Key_Return);
        }
    }

    void OpenPlant() {
        Click(*Find<QPushButton>("AnlageButt"));
        struct {
            const char *name, *text;
        } const inputs[] = {{"tabLuft", "24"},   {"PHIAbluft", "50"}, {"Taus", "32"},
                            {"PhiAussen", "40"}, {"TZuluft", "18"},   {"PHIZuluft", "50"},
                            {"tKA", "12"},       {"phiKanal", "95"},  {"vhAnlage", "10000"},
                            {"aussenAnt", "1"},  {"dtVent1", "1"},    {"dtVent2", "1"}};
        for (const auto& input : inputs) Type(*Find<QLineEdit>(input.name), input.text);
        Key(*Find<QLineEdit>("vhAnlage"), Qt::Key_Return);
    }
};

TEST_F(MainWindowTest, ToolButtonOpensItsPanel) {
    EXPECT_FALSE(Find<QWidget>("Anlage1PN")->isVisible());
    Click(*Find<QPushButton>("BearButt"));
    EXPECT_EQ(form_.processes.Rechenmodus, Calculation::Capacity);
    EXPECT_TRUE(Find<QWidget>("Anlage1PN")->isVisible());
    Key(*Find<QLineEdit>("Temp1"), Qt::Key_Escape);
    EXPECT_FALSE(Find<QWidget>("Anlage1PN")->isVisible());
    EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::Nobody);
}

TEST_F(MainWindowTest, TypedTextAndReturnReachTheForm) {
    OpenCapacity();
    EXPECT_EQ(QString::fromStdString(form_.processes.point.Temp1.text).trimmed(),
              QStringLiteral("32"));
    EXPECT_EQ(form_.processes.point.Tscroll1.Position(), 320);
    // 11.91 g/kg: humid air of 32 degC and 40 % at 1.013 bar, as published tables have it (11.9).
    EXPECT_EQ(Find<QLabel>("absF1")->text(), QStringLiteral("11.91"));
    EXPECT_FALSE(Find<QLineEdit>("Kleist")->text().isEmpty());
}

TEST_F(MainWindowTest, EqualTextsAreNotRewritten) {
    OpenCapacity();
    auto* field = Find<QLineEdit>("Temp1");
    field->setFocus();
    field->setSelection(1, 1);
    auto* bar = Find<QSlider>("FScroll2");
    Key(*bar, Qt::Key_Right);
    EXPECT_EQ(Find<QLineEdit>("relF2")->text(), QStringLiteral(" 50.1"));
    // A text that is written again loses its selection.
    EXPECT_EQ(field->selectedText(), field->text().mid(1, 1));
}

TEST_F(MainWindowTest, BarFollowsKeysAndTheFormsRefusal) {
    OpenCapacity();
    auto* bar = Find<QSlider>("Tscroll1");
    EXPECT_EQ(bar->value(), 320);
    Key(*bar, Qt::Key_PageUp);
    EXPECT_EQ(form_.processes.point.Tscroll1.Position(), 330);
    EXPECT_EQ(form_.processes.point.Temp1.text, " 33");
    Key(*bar, Qt::Key_End);
    // The chart ends at 40 degC; the field's bar follows only strictly inside the range.
    EXPECT_EQ(bar->value(), form_.processes.point.Tscroll1.Position());
    EXPECT_EQ(bar->maximum(), 400);
}

TEST_F(MainWindowTest, MarkIsCarriedFromTheRimOfItsRing) {
    OpenPlant();
    ChartWidget& chart = window_->Chart();
    const QPointF centre = chart.ToWidget(form_.overlay.PP2.state);
    // Five pixels aside is outside the box of canvas units that the form looks into.
    Mouse(chart, QEvent::MouseButtonPress, centre + QPointF(5, 0));
    ASSERT_TRUE(form_.Pointer().Marks().IsCarried(form_.overlay.PP2));
    Mouse(chart, QEvent::MouseMove, chart.ToWidget(form_.chart.scale.PointOf(10, 30)));
    Mouse(chart, QEvent::MouseButtonPress, chart.ToWidget(form_.chart.scale.PointOf(10, 30)));
    EXPECT_FALSE(form_.Pointer().Marks().IsCarried(form_.overlay.PP2));
    EXPECT_NEAR(Find<QLineEdit>("Taus")->text().toDouble(), 30, 0.11);
}

// Keeps which parts of a widget were repainted.
class RepaintWatch : public QObject {
  public:
    explicit RepaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
    QRegion region;
};

TEST_F(MainWindowTest, ACarriedMarkIsRepaintedWhereItWasAndWhereItComesTo) {
    OpenPlant();
    ChartWidget& chart = window_->Chart();
    const QPointF start = chart.ToWidget(form_.overlay.PP2.state);
    Mouse(chart, QEvent::MouseButtonPress, start);
    ASSERT_TRUE(form_.Pointer().Marks().IsCarried(form_.overlay.PP2));
    QApplication::processEvents();
    RepaintWatch watch(chart);
    Mouse(chart, QEvent::MouseMove, chart.ToWidget(form_.chart.scale.PointOf(10, 30)));
    QApplication::processEvents();
    const QPointF end = chart.ToWidget(form_.overlay.PP2.state);
    ASSERT_GT((end - start).manhattanLength(), 20);
    EXPECT_TRUE(watch.region.contains(start.toPoint()));
    EXPECT_TRUE(watch.region.contains(end.toPoint()));
    EXPECT_FALSE(watch.region.contains(QPoint(chart.width() - 3, chart.height() - 3)))
        << "the rest of the picture stays";
}

TEST_F(MainWindowTest, PanelIsDraggedByItsGroundAndStaysInside) {
    OpenCapacity();
    auto* panel = Find<QWidget>("Anlage1PN");
    ChartWidget& chart = window_->Chart();
    const QPoint before = panel->pos();
    const QPointF grip(16, 16);
    Mouse(*panel, QEvent::MouseButtonPress, grip);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(form_.controls.Shape3.visible);
    Mouse(chart, QEvent::MouseMove, panel->mapToParent(grip.toPoint()) - QPoint(200, 50));
    Mouse(chart, QEvent::MouseButtonRelease, panel->mapToParent(grip.toPoint()) - QPoint(200, 50));
    EXPECT_TRUE(panel->isVisible());
    EXPECT_LE((panel->pos() - (before - QPoint(200, 50))).manhattanLength(), 2);
    for (int step = 0; step < 200; ++step) {
        Key(*panel, Qt::Key_Down, {}, Qt::ControlModifier);
    }
    EXPECT_LE(panel->geometry().bottom(), chart.height() + FloatingPanel::kShadow);
}

TEST_F(MainWindowTest, EveryControlThatTakesInputHasAName) {
    OpenCapacity();
    window_->Mirror().Click("Command3D4");
    OpenPlant();
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
        const bool takes_input = qobject_cast<QLineEdit*>(widget) ||
                                 qobject_cast<QSlider*>(widget) ||
                                 qobject_cast<QPushButton*>(widget);
        if (!takes_input || widget->focusPolicy() == Qt::NoFocus) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
}

TEST_F(MainWindowTest, CopiedChartIsAPictureAndADrawing) {
    window_->Mirror().Click("kopieren");
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied->hasImage());
    EXPECT_TRUE(copied->data(QStringLiteral("image/svg+xml")).contains("kJ/kg"));
}

TEST_F(MainWindowTest, ScriptRunsThroughADialogAndTakesShots) {
    const std::string script = (folder_ / "acts.txt").string();
    const std::string shot = (folder_ / "options.png").string();
    std::ofstream(script) << "# the options over the chart\n"
                          << "click optButt\n"
                          << "set qvopt.geoH 1000\n"
                          << "return qvopt.geoH\n"
                          << "shot " << shot << "\n"
                          << "click qvopt.Command3D1\n";
    ScriptRunner runner(form_, *window_, user_);
    ASSERT_TRUE(runner.Start(script));
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(runner.Failed());
    EXPECT_EQ(QImage(QString::fromStdString(shot)).size(), QSize(1280, 800));
    // 0.0005 + 1.013 (1 - 6.5 / 288)^5.255 = 0.8989, cut to three figures.
    EXPECT_DOUBLE_EQ(form_.chart.settings.pressure_bar, 0.898);
}

// Pictures of sizes that come and go are never painted; the one that stays is, up to its edges.
TEST_F(MainWindowTest, AResizedChartIsPaintedInItsLastSize) {
    ChartWidget& chart = window_->Chart();
    const auto settled = [this, &chart](QSize size) {
        window_->resize(1600, 1000);
        window_->resize(size);
        for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
        return chart.grab().toImage();
    };
    // Lines of the grid that cross a column near the right edge of the chart.
    const auto crossings = [](const QImage& image) {
        int inked = 0;
        const QRgb ground = image.pixel(1, 1);
        for (int y = 0; y < image.height(); ++y) {
            inked += image.pixel(image.width() * 9 / 10, y) != ground;
        }
        return inked;
    };
    const QImage first = settled({1280, 800});
    const QImage larger = settled({1420, 870});
    EXPECT_EQ(larger.size(), chart.size());
    EXPECT_GT(larger.width(), first.width());
    EXPECT_GT(crossings(first), 10);
    EXPECT_NEAR(crossings(larger), crossings(first), 30);  // an unpainted column has all its pixels
    EXPECT_EQ(settled({1280, 800}), first);
}

// While the edge is dragged a stretched picture stands for the chart; at rest it is painted.
TEST_F(MainWindowTest, AChartAtADraggedEdgeIsPaintedWhenTheEdgeRests) {
    ChartWidget& chart = window_->Chart();
    const auto drag_to = [this](QSize size) {
        window_->windowHandle()->resize(size);
        QApplication::processEvents();
    };
    const auto rest = [] {
        QEventLoop loop;
        QTimer::singleShot(300, &loop, [&loop] { loop.quit(); });
        loop.exec();
    };
    drag_to({1400, 900});
    rest();
    const QImage painted = chart.grab().toImage();
    for (int step = 1; step < 10; ++step) drag_to({1400 - 12 * step, 900 - 6 * step});
    for (int step = 9; step >= 0; --step) drag_to({1400 - 12 * step, 900 - 6 * step});
    rest();
    EXPECT_EQ(chart.grab().toImage(), painted);
}

}  // namespace
}  // namespace zandrell
