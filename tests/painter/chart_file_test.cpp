#include "painter/chart_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QRegion>
#include <QSvgRenderer>
#include <cstdlib>
#include <functional>

#include "painter/chart_drawing.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

class ChartFileTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "painter_test";
        static char* arguments[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static auto* const application = new QGuiApplication(count, arguments);
        ASSERT_NE(application, nullptr);
    }

    ChartFileTest() {
        picture_.Clear(kWhite, kBlack);
        picture_.Line(30, 290, 2000, 290, kGrey);
        for (int i = 0; i < 10; ++i) {
            picture_.Line(100 * i, 580 - 5 * i * i, 100 * (i + 1), 580 - 5 * (i + 1) * (i + 1),
                          kDarkRed);
        }
        picture_.Text(1000, 100, " 40 kJ/kg");
        picture_.Text(1990, 100, "edge");
        picture_.Text(4000, 100, "unseen");
        overlay_.PP1.visible = true;
        overlay_.PP1.PlaceAt({500, 300}, 6);
        overlay_.t1Lab.visible = true;
        overlay_.t1Lab.text = "Außenluft";
        overlay_.t1Lab.PlaceAt({500, 300});
    }

    QByteArray Written(const char* name) {
        std::string error;
        const std::string path = (folder_ / name).string();
        EXPECT_TRUE(WriteChartFile(picture_, overlay_, path, 1200, 675, error)) << error;
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    RecordingCanvas picture_;
    Overlay overlay_;
    TestFolder folder_;
};

TEST_F(ChartFileTest, SvgIsReadableAndHoldsTheTextsOnce) {
    picture_.Text(300, 100, "a<b & \x01");
    const QByteArray svg = Written("chart.svg");
    EXPECT_TRUE(QSvgRenderer(svg).isValid());
    EXPECT_EQ(svg.count("40 kJ/kg"), 1);
    EXPECT_EQ(svg.count("Außenluft"), 1);
    EXPECT_EQ(svg.count("unseen"), 0);
    EXPECT_EQ(svg.count("a&lt;b &amp;"), 1);
}

// A drawing shows what the screen shows: curves, rims of texts and the dots of the comfort field,
// which lie in rows along either axis, and alone.
TEST_F(ChartFileTest, SvgShowsWhatTheScreenShows) {
    for (int row = 0; row < 40; ++row) {
        for (int i = 0; i < 40; ++i) picture_.Dot(1200 + 3 * i, 400 + row, kGrey);
    }
    for (int column = 0; column < 40; ++column) {
        for (int i = 0; i < 40; ++i) picture_.Dot(1500 + 3 * column, 400 + i, kGrey);
    }
    picture_.Dot(1700, 450, kGrey);
    for (int i = 0; i < 60; ++i) picture_.Line(1000, 95 + i / 4.0, 1100, 95 + i / 4.0, kGrey);
    constexpr int kWidth = 1600, kHeight = 900;
    const QImage screen = ChartImage(picture_, overlay_, kWidth, kHeight);
    QImage shown(screen.size(), screen.format());
    shown.fill(Qt::magenta);
    QPainter painter(&shown);
    QSvgRenderer(ChartSvg(picture_, overlay_, kWidth, kHeight)).render(&painter);
    painter.end();
    // In boxes of 10 pixels: edges are smoothed a little differently.
    constexpr int kBox = 10;
    const auto means = [](const QImage& image) {
        return image.scaled(kWidth / kBox, kHeight / kBox, Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
    };
    const QImage expected = means(screen), is = means(shown);
    int unlike = 0, inked = 0;
    for (int y = 0; y < is.height(); ++y) {
        for (int x = 0; x < is.width(); ++x) {
            unlike += std::abs(qGray(is.pixel(x, y)) - qGray(expected.pixel(x, y))) > 12;
            inked += qGray(expected.pixel(x, y)) < 250;
        }
    }
    EXPECT_GT(inked, 200);
    EXPECT_EQ(unlike, 0);
}

TEST_F(ChartFileTest, EachEndingGivesItsKindOfFile) {
    EXPECT_TRUE(Written("chart.PNG").startsWith("\x89PNG"));
    EXPECT_TRUE(Written("chart.pdf").startsWith("%PDF"));
    EXPECT_EQ(ChartImage(picture_, overlay_, 640, 360).size(), QSize(640, 360));
}

TEST_F(ChartFileTest, WhatCanNotBeWrittenIsOneClearLine) {
    struct {
        std::string path;
        int width;
        const char* says;
    } const cases[] = {
        {(folder_ / "chart.gif").string(), 800, ".png, .svg or .pdf"},
        {(folder_ / "chart.png").string(), 0, "sides of 1 to"},
        {(folder_ / "no_such_folder/chart.png").string(), 800, "no_such_folder"},
    };
    for (const auto& a_case : cases) {
        std::string error;
        EXPECT_FALSE(WriteChartFile(picture_, overlay_, a_case.path, a_case.width, 600, error));
        EXPECT_NE(error.find(a_case.says), std::string::npos) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos);
    }
}

TEST_F(ChartFileTest, TextAtTheEdgeEndsInsideTheSurface) {
    const QImage image = RenderPicture(picture_, 1100, 770, 1);
    const ChartView view(picture_, QRectF(image.rect()), 1);
    EXPECT_LT(view.Extent().right(), 1095);
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        inked += image.pixel(image.width() - 1, y) != qRgb(255, 255, 255);
    }
    EXPECT_EQ(inked, 0);
    EXPECT_NE(image.pixel(view.ToDevice({1200, 290}).toPoint()), qRgb(255, 255, 255));
}

// Whatever moves, the pixels that change lie in what is said to be touched before and after.
TEST_F(ChartFileTest, NothingChangesOutsideWhatTheOverlayTouches) {
    const QRectF surface(0, 0, 1200, 675);
    const ChartView view(picture_, surface, 1);
    const TextLayout texts(picture_, view);
    const auto rendered = [&](const OverlayDrawing& drawing) {
        QImage image(surface.size().toSize(), QImage::Format_RGB32);
        QPainter painter(&image);
        PaintPicture(painter, picture_, view);
        PaintOverlay(painter, drawing, view, picture_.Background());
        return image;
    };
    overlay_.t1Lab.text = "Außenluft 32 °C";
    const struct {
        const char* what;
        std::function<void(Overlay&)> change;
    } changes[] = {
        {"mark",
         [](Overlay& o) {
             o.PP1.PlaceAt({900, 200}, 6);
         }},
        {"carried mark",
         [](Overlay& o) {
             o.PP1.PlaceAt({900, 200}, 6);
             o.PP1.shape = 1;
             o.PP1.colour = kLightGreen;
         }},
        {"label",
         [](Overlay& o) {
             o.t1Lab.PlaceAt({1200, 450});
         }},
        {"text", [](Overlay& o) { o.t1Lab.text = "M"; }},
        {"line",
         [](Overlay& o) {
             o.ZAeLine.visible = true;
             o.ZAeLine.Run({500, 300}, {1500, 310});
         }},
        {"hidden", [](Overlay& o) { o.AnlageMarkenLoeschen(); }},
    };
    for (const auto& [what, change] : changes) {
        Overlay moved = overlay_;
        change(moved);
        const OverlayDrawing before = VisibleItems(overlay_, view, texts);
        const OverlayDrawing after = VisibleItems(moved, view, texts);
        const QImage was = rendered(before), is = rendered(after);
        QRegion touched;
        for (const OverlayDrawing& drawing : {before, after}) {
            for (const QRectF& rect : TouchedBy(drawing, view)) touched += rect.toAlignedRect();
        }
        int changed = 0, missed = 0;
        for (int y = 0; y < is.height(); ++y) {
            for (int x = 0; x < is.width(); ++x) {
                if (was.pixel(x, y) == is.pixel(x, y)) continue;
                ++changed;
                missed += !touched.contains(QPoint(x, y));
            }
        }
        EXPECT_GT(changed, 30) << what;
        EXPECT_EQ(missed, 0) << what << ": of " << changed << " pixels";
        EXPECT_NE(before, after) << what;
    }
}

TEST(ChartView, LinesAreCutAtTheLogicalExtent) {
    struct {
        Segment line;
        bool seen;
        Segment part;
    } const cases[] = {
        {{{0, 100}, {50, 200}}, true, {{0, 100}, {50, 200}}},
        {{{1000, -580}, {1000, 580}}, true, {{1000, 0}, {1000, 580}}},
        // Half of the way from x = 1000 to 3000 lies inside.
        {{{1000, 0}, {3000, 200}}, true, {{1000, 0}, {2000, 100}}},
        {{{-1e9, 290}, {1e9, 290}}, true, {{-10, 290}, {2000, 290}}},
        {{{2100, 0}, {2200, 500}}, false, {}},
        {{{-100, 0}, {0, -100}}, false, {}},
    };
    for (const auto& a_case : cases) {
        const auto part = ClippedToCanvas(a_case.line);
        ASSERT_EQ(part.has_value(), a_case.seen) << a_case.line.from.x << " " << a_case.line.from.y;
        if (!part) continue;
        EXPECT_NEAR(part->from.x, a_case.part.from.x, 1e-6);
        EXPECT_NEAR(part->from.y, a_case.part.from.y, 1e-6);
        EXPECT_NEAR(part->to.x, a_case.part.to.x, 1e-6);
        EXPECT_NEAR(part->to.y, a_case.part.to.y, 1e-6);
    }
}

}  // namespace
}  // namespace zandrell
