#include "painter/pixel_stroke.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zandrell {
namespace {

constexpr int kSide = 200;

QImage Blank() {
    QImage image(kSide, kSide, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QPolygonF Arc(double radius, double from_degrees, double to_degrees) {
    QPolygonF points;
    for (int i = 0; i <= 40; ++i) {
        const double angle =
            (from_degrees + (to_degrees - from_degrees) * i / 40) * std::numbers::pi / 180;
        points << QPointF(100.3 + radius * std::cos(angle), 99.6 + radius * std::sin(angle));
    }
    return points;
}

// Whether a place lies in the stroke, beside one of its chords or in the round joint of two, or no
// farther than `spare` from it.
bool IsInStroke(const QPolygonF& chain, double half, QPointF place, double spare = 0) {
    for (qsizetype i = 0; i + 1 < chain.size(); ++i) {
        const QPointF way = chain[i + 1] - chain[i], there = place - chain[i];
        const double length = std::hypot(way.x(), way.y());
        if (length > 0) {
            const double along = QPointF::dotProduct(way, there) / length;
            const double aside = (way.x() * there.y() - way.y() * there.x()) / length;
            const bool beside = along >= -spare && along <= length + spare;
            if (beside && std::abs(aside) <= half + spare) return true;
        }
        if (i > 0 && std::hypot(there.x(), there.y()) <= half) return true;
    }
    return false;
}

// Black on white, each pixel by how many of 64 scattered places in it lie in the
// stroke.
QImage CountedStroke(const QPolygonF& chain, double width) {
    QImage image = Blank();
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            // Most pixels are far from the stroke, which the middle tells.
            if (!IsInStroke(chain, width / 2, {x + 0.5, y + 0.5}, 2)) continue;
            int inside = 0;
            for (int k = 0; k < 64; ++k) {
                const QPointF place(x + (k + 0.5) / 64, y + (k * 27 % 64 + 0.5) / 64);
                inside += IsInStroke(chain, width / 2, place) ? 1 : 0;
            }
            const int shade = 255 - inside * 255 / 64;
            image.setPixel(x, y, qRgb(shade, shade, shade));
        }
    }
    return image;
}

int LargestDifference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            largest = std::max(largest, std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y))));
        }
    }
    return largest;
}

double Ink(const QImage& image) {
    double ink = 0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) ink += 255 - qGreen(image.pixel(x, y));
    }
    return ink / 255;
}

TEST(PixelStroke, WeighsPixelsByTheirCoveredArea) {
    const struct {
        const char* name;
        QPolygonF chain;
        double width;
    } cases[] = {
        {"level", {{10.4, 50.2}, {180.7, 50.2}}, 2.3},
        {"upright, upward", {{50.2, 180.7}, {50.2, 10.4}}, 2.3},
        {"diagonal", {{20.5, 20.5}, {170.5, 170.5}}, 3},
        {"steep, to the left", {{120.1, 20.5}, {77.7, 170.5}}, 2.5},
        {"flat, to the left", {{170.2, 90.1}, {20.7, 61.9}}, 4},
        {"narrower than a pixel", {{10.4, 50.2}, {180.7, 80.3}}, 0.7},
        {"a bow that changes its axis twice", Arc(80, 10, 170), 2.5},
        {"a bow backwards", Arc(70, 300, 120), 3.4},
        {"points twice", {{20, 20}, {90, 50}, {90, 50}, {160, 84}}, 2},
        {"beyond the image", {{-60.5, 30.2}, {90, 80}, {290.5, 141.2}}, 3},
        {"all of it beyond", {{-60, 30}, {-40, 80}}, 3},
    };
    for (const auto& test : cases) {
        QImage image = Blank();
        ASSERT_TRUE(StrokePixels(image, test.chain, test.width, Qt::black)) << test.name;
        const QImage wanted = CountedStroke(test.chain, test.width);
        // A pixel weighed by its distance, and half of one where the axes change.
        EXPECT_LE(LargestDifference(image, wanted), 44) << test.name;
        EXPECT_NEAR(Ink(image), Ink(wanted), 0.01 * Ink(wanted)) << test.name;
    }
}

TEST(PixelStroke, CoversItsLengthTimesItsWidth) {
    QImage image = Blank();
    ASSERT_TRUE(StrokePixels(image, {{20, 30}, {140, 120}}, 3, Qt::black));
    EXPECT_NEAR(Ink(image), 450, 2);  // 150 pixels of length, 3 of width
}

TEST(PixelStroke, TakesItsColourAndRefusesWhatItCannotDraw) {
    QImage image = Blank();
    ASSERT_TRUE(StrokePixels(image, {{10, 50}, {180, 50}}, 4, QColor(200, 10, 60)));
    EXPECT_EQ(image.pixelColor(90, 50), QColor(200, 10, 60));
    const QImage before = image.copy();
    EXPECT_FALSE(StrokePixels(image, {{10, 20}, {90, 20}, {90, 90}}, 4, Qt::black)) << "a corner";
    EXPECT_FALSE(StrokePixels(image, {{10, 20}, {90, 20}}, 4, QColor(0, 0, 0, 90)))
        << "see-through";
    EXPECT_EQ(image, before);
}

TEST(PixelStroke, KnowsAPlainImage) {
    QImage image = Blank();
    QPainter painter(&image);
    EXPECT_EQ(PlainImageOf(painter), &image);
    painter.setClipRect(0, 0, 10, 10);
    EXPECT_EQ(PlainImageOf(painter), nullptr) << "a clip";
    painter.setClipping(false);
    painter.translate(3, 0);
    EXPECT_EQ(PlainImageOf(painter), nullptr) << "a transform";
    painter.resetTransform();
    painter.setOpacity(0.5);
    EXPECT_EQ(PlainImageOf(painter), nullptr) << "half transparent";
    painter.end();
    QImage clear(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter other(&clear);
    EXPECT_EQ(PlainImageOf(other), nullptr) << "pixels that may be transparent";
}

}  // namespace
}  // namespace zandrell
