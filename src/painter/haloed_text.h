#pragma once

#include <QPainter>
#include <QString>

namespace zandrell {

// Draws `text` with its upper left corner at `corner` and a rim of the ground colour, so that it
// reads well over lines. `box_height` is the height that the text is centred in.
void PaintHaloedText(QPainter& painter, QPointF corner, double box_height, const QString& text,
                     const QFont& font, const QColor& colour, const QColor& ground, double rim);

}  // namespace zandrell
