#pragma once

#include <QPixmap>
#include <QWidget>
#include <string_view>

#include "desktop/chart_widget.h"
#include "desktop/form_mirror.h"
#include "shell/main_form.h"

namespace zandrell {

// A rounded panel with a soft shadow that floats over the chart and is dragged by its ground.
class FloatingPanel : public QWidget {
  public:
    // All of it outlives the panel. Escape is a click on `closing_control`.
    FloatingPanel(MainForm& form, Panel& panel, FormMirror& mirror, ChartWidget& chart,
                  std::string_view closing_control);

    // Takes size and place of the form; the panel stays wholly inside the chart.
    void Place();

    // The part that hides what is under it, in positions of the chart.
    QRegion Opaque() const;

    // The room around the content that belongs to the shadow, in pixels.
    static constexpr int kShadow = 10;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QRect Body() const { return rect().adjusted(kShadow, kShadow, -kShadow, -kShadow); }
    // The place that the form knows belongs to the panel's shown corner, even where the window
    // holds the panel back at its edge.
    CanvasPoint AsSeenByForm(QPointF place) const;
    void MoveBy(QPointF pixels);

    MainForm& form_;
    Panel& panel_;
    FormMirror& mirror_;
    ChartWidget& chart_;
    std::string_view closing_control_;
};

// A small panel inside another, with its picture in a skin.
class InnerPanel : public QWidget {
  public:
    InnerPanel(const Panel& panel, Pictures& pictures, QWidget* parent)
        : QWidget(parent), panel_(panel), pictures_(pictures) {}

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Panel& panel_;
    Pictures& pictures_;
};

// Fills a rounded rectangle with a panel's picture, or with `ground` where it has none.
void PaintPanelGround(QPainter& painter, const QRectF& body, double radius, const Panel& panel,
                      Pictures& pictures, const QColor& ground);

}  // namespace zandrell
