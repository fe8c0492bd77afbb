#include "painter/pixel_stroke.h"

#include <QPaintEngine>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace zandrell {
namespace {

constexpr double kLeastCosine = 0.9;  // of the bend between two chords
constexpr double kSeam = 0.5;  // pixels by which parts of a stroke overlap, with their soft ends

// Coordinates along the axis that a chord runs closer to, and across it.
struct Place {
    double major = 0, minor = 0;
};

// A chord of a stroke. Of the pixels across it those belong to it whose centres lie between its
// ends along the major axis, so that a row of chords leaves none out and paints none twice.
struct Chord {
    Place from, to;
    double reach_from = 0, reach_to = 0;  // how far the stroke goes on beyond a free end
    bool free_from = false, free_to = false;
};

struct Size {
    qsizetype major = 0, minor = 0;
};

// The pixels of an image, with the axes exchanged where chords are level.
struct Pixels {
    QRgb* first;
    std::ptrdiff_t major_step, minor_step;
    Size size;
};

void Blend(QRgb& pixel, QRgb colour, double share) {
    const auto over = static_cast<unsigned>(share * 256.5), under = 256 - over;
    const unsigned red_blue = (pixel & 0xff00ff) * under + (colour & 0xff00ff) * over;
    const unsigned green = (pixel & 0x00ff00) * under + (colour & 0x00ff00) * over;
    pixel = 0xff000000 | ((red_blue >> 8) & 0xff00ff) | ((green >> 8) & 0x00ff00);
}

double Share(double inside) { return std::clamp(inside + 0.5, 0.0, 1.0); }

// The first of `count` pixels whose centre does not lie before a place; `count`: none.
qsizetype FirstFrom(double place, qsizetype count) {
    return static_cast<qsizetype>(
        std::clamp(std::ceil(place - 0.5), 0.0, static_cast<double>(count)));
}

void PaintChord(const Pixels& pixels, const Chord& chord, double half, QRgb colour) {
    const double run = chord.to.major - chord.from.major;
    const double slope = (chord.to.minor - chord.from.minor) / run;
    const double cosine = 1 / std::sqrt(1 + slope * slope);
    const double ahead = std::copysign(1.0, run), length = std::abs(run) / cosine;
    // Flat ends lean as the stroke does and reach farther along the axis on one side.
    const double lean = half * cosine * std::abs(slope) + 1;
    const double before = chord.free_from ? chord.reach_from + lean : 0;
    const double behind = chord.free_to ? chord.reach_to + lean : 0;
    const auto [low, high] =
        std::minmax({chord.from.major - ahead * before, chord.to.major + ahead * behind});
    const double across = (half + 0.5) / cosine;
    const qsizetype last = FirstFrom(high, pixels.size.major);
    for (qsizetype major = FirstFrom(low, pixels.size.major); major < last; ++major) {
        const double along = static_cast<double>(major) + 0.5 - chord.from.major;
        const double centre = chord.from.minor + along * slope;
        const qsizetype end = FirstFrom(centre + across, pixels.size.minor);
        qsizetype minor = FirstFrom(centre - across, pixels.size.minor);
        QRgb* pixel = pixels.first + major * pixels.major_step + minor * pixels.minor_step;
        for (; minor < end; ++minor, pixel += pixels.minor_step) {
            const double aside = static_cast<double>(minor) + 0.5 - centre;
            const double away = aside * cosine;
            double share = Share(half - away) - Share(-half - away);
            if (chord.free_from || chord.free_to) {
                const double done = ahead * (along / cosine + slope * away);
                if (chord.free_from) share *= Share(done + chord.reach_from);
                if (chord.free_to) share *= Share(length - done + chord.reach_to);
            }
            Blend(*pixel, colour, share);
        }
    }
}

bool IsLevel(QPointF way) { return std::abs(way.x()) > std::abs(way.y()); }

// Chords of no length have no direction.
QPolygonF WithoutRepeats(const QPolygonF& chain) {
    QPolygonF points = chain;
    points.erase(std::unique(points.begin(), points.end()), points.end());
    return points;
}

bool BendsLittle(const QPolygonF& points) {
    for (qsizetype i = 1; i + 1 < points.size(); ++i) {
        const QPointF a = points[i] - points[i - 1], b = points[i + 1] - points[i];
        const double lengths = std::hypot(a.x(), a.y()) * std::hypot(b.x(), b.y());
        if (QPointF::dotProduct(a, b) < kLeastCosine * lengths) return false;
    }
    return true;
}

}  // namespace

QImage* PlainImageOf(const QPainter& painter) {
    const auto* engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster) return nullptr;
    if (painter.device()->devType() != QInternal::Image) return nullptr;
    auto* image = static_cast<QImage*>(painter.device());
    const bool plain = image->pixelFormat() == QImage::toPixelFormat(QImage::Format_RGB32) &&
                       image->isDetached() && painter.combinedTransform().isIdentity() &&
                       !painter.hasClipping() && painter.opacity() == 1;
    return plain ? image : nullptr;
}

bool StrokePixels(QImage& image, const QPolygonF& chain, double width, const QColor& colour) {
    const QPolygonF points = WithoutRepeats(chain);
    if (points.size() < 2) return true;
    if (colour.alpha() < 255 || !BendsLittle(points)) return false;
    auto* const first = reinterpret_cast<QRgb*>(image.bits());
    const auto row = static_cast<std::ptrdiff_t>(image.bytesPerLine()) / 4;
    const Pixels level{first, 1, row, {image.width(), image.height()}};
    const Pixels steep{first, row, 1, {image.height(), image.width()}};
    const auto count = points.size() - 1;
    const auto is_level = [&points](qsizetype i) { return IsLevel(points[i + 1] - points[i]); };
    for (qsizetype i = 0; i < count; ++i) {
        const bool lies = is_level(i);
        const QPointF &a = points[i], &b = points[i + 1];
        Chord chord =
            lies ? Chord{{a.x(), a.y()}, {b.x(), b.y()}} : Chord{{a.y(), a.x()}, {b.y(), b.x()}};
        // Where the axes change pixels belong to both parts or to none: the parts overlap there.
        const bool turns_before = i > 0 && is_level(i - 1) != lies;
        const bool turns_after = i + 1 < count && is_level(i + 1) != lies;
        chord.free_from = i == 0 || turns_before;
        chord.free_to = i + 1 == count || turns_after;
        chord.reach_from = turns_before ? kSeam : 0;
        chord.reach_to = turns_after ? kSeam : 0;
        PaintChord(lies ? level : steep, chord, width / 2, colour.rgb());
    }
    return true;
}

}  // namespace zandrell
