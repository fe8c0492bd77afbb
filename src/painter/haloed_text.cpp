#include "painter/haloed_text.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QStaticText>
#include <array>
#include <numbers>

#include "painter/svg_engine.h"

namespace zandrell {
namespace {

std::array<QPointF, 8> Around(double rim) {
    const double diagonal = rim * std::numbers::sqrt2 / 2;
    return {{{rim, 0},
             {-rim, 0},
             {0, rim},
             {0, -rim},
             {diagonal, diagonal},
             {diagonal, -diagonal},
             {-diagonal, diagonal},
             {-diagonal, -diagonal}}};
}

// On pixels the text itself is drawn all around: its glyphs are kept ready, stroking their outlines
// would cost ten times as much. It is laid out once for all of its places.
void PaintOnPixels(QPainter& painter, QPointF baseline, const QString& text, const QColor& colour,
                   const QColor& ground, double rim) {
    QStaticText laid(text);
    laid.setTextFormat(Qt::PlainText);
    laid.prepare({}, painter.font());
    const QPointF corner = baseline - QPointF(0, QFontMetricsF(painter.font()).ascent());
    painter.setPen(ground);
    for (const QPointF& aside : Around(rim)) painter.drawStaticText(corner + aside, laid);
    painter.setPen(colour);
    painter.drawStaticText(corner, laid);
}

// Elsewhere one outline is better than eight texts on top of each other.
void PaintRim(QPainter& painter, QPointF baseline, const QString& text, const QColor& ground,
              double rim) {
    QPainterPath outline;
    outline.addText(baseline, painter.font(), text);
    painter.strokePath(outline, QPen(ground, 2 * rim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

}  // namespace

void PaintHaloedText(QPainter& painter, QPointF corner, double box_height, const QString& text,
                     const QFont& font, const QColor& colour, const QColor& ground, double rim) {
    const QFontMetricsF metrics(font);
    const QPointF baseline(corner.x(), corner.y() + (box_height + metrics.capHeight()) / 2);
    if (auto* svg = SvgEngine::Of(painter)) {
        svg->HaloedText(baseline, text, font, colour, ground, Around(rim));
        return;
    }
    painter.setFont(font);
    const bool pixels = painter.paintEngine()->type() == QPaintEngine::Raster;
    if (pixels) return PaintOnPixels(painter, baseline, text, colour, ground, rim);
    PaintRim(painter, baseline, text, ground, rim);
    painter.setPen(colour);
    painter.drawText(baseline, text);
}

}  // namespace zandrell
