#include "desktop/capacity_plot.h"

#include <QPainter>
#include <utility>

#include "desktop/form_mirror.h"
#include "desktop/look.h"
#include "desktop/look_colours.h"

namespace zandrell {

CapacityPlotView::CapacityPlotView(CapacityPlot plot, QWidget* parent)
    : QWidget(parent), plot_(std::move(plot)) {
    QString words;
    for (const auto& point : plot_.points) {
        words += ShownText(point.name) + QStringLiteral(": ") + ShownText(point.figure) +
                 (point.chosen ? QStringLiteral(" *; ") : QStringLiteral("; "));
    }
    setAccessibleDescription(words);
    setMinimumSize(Scaled(*this, 420), Scaled(*this, 260));
}

QSize CapacityPlotView::sizeHint() const { return {Scaled(*this, 860), Scaled(*this, 460)}; }

double CapacityPlotView::Y(double capacity) const {
    return area_.bottom() - capacity / plot_.top * area_.height();
}

void CapacityPlotView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ColourOf(LookColour::Panel));
    const int line = fontMetrics().height();
    // Names stand upright below their bars.
    int name = 0;
    for (const auto& point : plot_.points) {
        name = std::max(name, fontMetrics().horizontalAdvance(ShownText(point.name)));
    }
    name = std::min(name, height() / 3);
    area_ = QRectF(rect()).adjusted(4 * line, line, -5 * line, -name - line);
    PaintAxis(painter);
    PaintBars(painter);
    PaintDuty(painter);
    PaintChosenFigure(painter);
}

void CapacityPlotView::PaintAxis(QPainter& painter) const {
    const int line = fontMetrics().height();
    for (const auto& tick : plot_.ticks) {
        const double y = Y(tick.value);
        painter.setPen(ColourOf(LookColour::Hairline));
        painter.drawLine(QPointF(area_.left(), y), QPointF(area_.right(), y));
        painter.setPen(ColourOf(LookColour::MutedInk));
        painter.drawText(QRectF(0, y - line / 2.0, area_.left() - 8, line),
                         Qt::AlignRight | Qt::AlignVCenter, ShownText(tick.text));
    }
    painter.drawText(QRectF(4, 0, area_.left() + 40, line), Qt::AlignLeft, QStringLiteral("kW"));
}

void CapacityPlotView::PaintBars(QPainter& painter) const {
    const double step = area_.width() / static_cast<double>(plot_.points.size());
    const int line = fontMetrics().height();
    const auto every =
        std::max<std::size_t>(1, static_cast<std::size_t>(line / std::max(step, 1.0) + 0.999));
    for (std::size_t i = 0; i < plot_.points.size(); ++i) {
        const auto& point = plot_.points[i];
        const double left = area_.left() + static_cast<double>(i) * step;
        const QRectF bar(QPointF(left + 0.15 * step, Y(point.capacity)),
                         QPointF(left + 0.85 * step, area_.bottom()));
        painter.setPen(point.chosen ? QPen(ColourOf(LookColour::Ink), 2)
                                    : QPen(ColourOf(LookColour::Border), 1));
        painter.setBrush(GroundColour(point.colour));
        painter.drawRect(bar);
        if (i % every != 0 && !point.chosen) continue;
        painter.save();
        painter.setPen(ColourOf(point.chosen ? LookColour::Ink : LookColour::MutedInk));
        painter.translate(left + step / 2, area_.bottom() + 4);
        painter.rotate(90);
        painter.drawText(QRectF(0, -line / 2.0, height() - area_.bottom() - 6, line),
                         Qt::AlignLeft | Qt::AlignVCenter, ShownText(point.name));
        painter.restore();
    }
}

// In front of all lines and bars, on a ground of its own.
void CapacityPlotView::PaintChosenFigure(QPainter& painter) const {
    const double step = area_.width() / static_cast<double>(plot_.points.size());
    for (std::size_t i = 0; i < plot_.points.size(); ++i) {
        const auto& point = plot_.points[i];
        if (!point.chosen) continue;
        const double middle = area_.left() + (static_cast<double>(i) + 0.5) * step;
        QRectF place(fontMetrics().boundingRect(ShownText(point.figure)));
        place.adjust(-4, -1, 4, 1);
        place.moveCenter({middle, Y(point.capacity) - place.height()});
        painter.fillRect(place, ColourOf(LookColour::Panel));
        painter.setPen(ColourOf(LookColour::Ink));
        painter.drawText(place, Qt::AlignCenter, ShownText(point.figure));
    }
}

void CapacityPlotView::PaintDuty(QPainter& painter) const {
    const double y = Y(plot_.duty);
    painter.setPen(QPen(ColourOf(LookColour::Accent), 2));
    painter.drawLine(QPointF(area_.left(), y), QPointF(area_.right(), y));
    painter.drawText(QRectF(area_.right() + 4, y - fontMetrics().height() / 2.0,
                            width() - area_.right() - 6, fontMetrics().height()),
                     Qt::AlignLeft | Qt::AlignVCenter, ShownText(plot_.duty_text));
}

}  // namespace zandrell
