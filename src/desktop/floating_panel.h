#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <string_view>

#include "desktop/chart_widget.h"
#include "desktop/content_scroll.h"
#include "desktop/form_mirror.h"
#include "shell/main_form.h"

namespace zandrell {

// A rounded panel with a soft shadow that floats over the chart and is dragged by its ground.
class FloatingPanel : public QWidget {
  public:
    // All of it outlives the panel. A click on `closing_control` closes it.
    FloatingPanel(MainForm& form, Panel& panel, FormMirror& mirror, ChartWidget& chart,
                  std::string_view closing_control);

    // What lies below the title; it is scrolled where the chart is too small for it.
    void SetContent(QWidget* content);
    // Fits the content to the room that there is; asked before its size is taken.
    std::function<void(QSize room)> arrange;

    // Takes size and place of the form; the panel stays wholly inside the chart.
    void Place();
    const Panel& Shown() const { return panel_; }

    // Puts the focus into the first field.
    void TakeFocus();
    void Close();
    // By one step of the arrow keys.
    void MoveBy(QPoint direction);

    // The part that hides what is under it, in positions of the chart.
    QRegion Opaque() const;

    // The room around the content that belongs to the shadow, in pixels.
    static constexpr int kShadow = 10;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void HideWhatIsUnder(QWidget& content) const;
    QRect Body() const { return rect().adjusted(kShadow, kShadow, -kShadow, -kShadow); }
    // The place that the form knows belongs to the panel's shown corner, even where the window
    // holds the panel back at its edge.
    CanvasPoint AsSeenByForm(QPointF place) const;

    MainForm& form_;
    Panel& panel_;
    FormMirror& mirror_;
    ChartWidget& chart_;
    std::string_view closing_control_;
    ContentScroll* scroll_ = nullptr;
};

// A small panel inside another, with its picture in a skin.
class InnerPanel : public QWidget {
  public:
    // `panel` and `pictures` outlive the widget.
    InnerPanel(const Panel& panel, Pictures& pictures, QWidget* parent)
        : QWidget(parent), panel_(panel), pictures_(pictures) {}

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Panel& panel_;
    Pictures& pictures_;
};

// Fills a rounded rectangle with the picture of that name, or with `ground` where there is none.
void PaintPanelGround(QPainter& painter, const QRectF& body, double radius,
                      std::string_view picture_name, Pictures& pictures, const QColor& ground);

}  // namespace zandrell
