#pragma once

#include <QWidget>

#include "selection/planner_lists.h"

namespace zandrell {

// Draws the capacities of a series as bars, the duty as a line across them; the chosen unit has a
// frame.
class CapacityPlotView : public QWidget {
  public:
    CapacityPlotView(CapacityPlot plot, QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double Y(double capacity) const;
    void PaintAxis(QPainter& painter) const;
    void PaintBars(QPainter& painter) const;
    void PaintDuty(QPainter& painter) const;
    void PaintChosenFigure(QPainter& painter) const;

    CapacityPlot plot_;
    QRectF area_;
};

}  // namespace zandrell
