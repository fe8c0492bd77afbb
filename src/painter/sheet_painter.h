#pragma once

#include <QPainter>
#include <QRectF>

#include "canvas/sheet.h"

namespace zandrell {

// Paints a page into `printable`, the area of the painter's surface that can be printed on, with
// `units_per_point` units of the painter to the point. Lines and texts keep their size on every
// paper; only places follow the area.
void PaintSheet(QPainter& painter, const Sheet& sheet, const QRectF& printable,
                double units_per_point);

}  // namespace zandrell
