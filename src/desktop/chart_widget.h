#pragma once

#include <QElapsedTimer>
#include <QRegion>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/kept_picture.h"

namespace zandrell {

// Shows the chart: its picture is kept as pixels and made anew only when it changed; marks, process
// lines and frames are painted over it.
class ChartWidget : public QWidget {
  public:
    // Both outlive the widget.
    ChartWidget(MainForm& form, Pictures& pictures, QWidget* parent);

    // Performs an act of the user; set by the window that mirrors the form.
    std::function<void(const std::function<void()>&)> perform;

    // For who cannot see the read-out: quantities, values and units.
    QString StateUnderPointer() const;

    // Brings what is shown in line with the form; repaints no more than what changed.
    void Sync();

    // To be told before each size that the user gives the window: while its edge is dragged the
    // kept picture is stretched.
    void FollowEdge();

    // Positions of this widget, in device-independent pixels.
    QPointF ToWidget(CanvasPoint point) const;
    CanvasPoint ToCanvas(QPointF point) const;

    // While a panel is dragged the chart has the pointer and shows an outline of this size.
    void TakeDrag(QSize outline);
    bool IsDragging() const { return outline_size_.has_value(); }
    // What lies over the chart and needs no repaint under it, in positions of this widget.
    std::function<QRegion()> covered;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    struct Frames {
        std::optional<QRectF> zoom, outline, progress;
        bool operator==(const Frames&) const = default;
    };

    const ChartView& View() const;
    OverlayDrawing WantedOverlay() const;
    void DrawMovedPicture(QPainter& painter, const QRegion& region) const;
    void PaintFrames(QPainter& painter) const;
    void PaintAnew();
    void SyncOverlay();
    void SyncFrames();
    void SyncPointer();
    void TellReaders();
    Frames FramesOfForm() const;
    const Mark* MarkUnder(QPointF place) const;
    void ShowMoved(const std::function<void()>& move);
    QRect FromDevice(const QRectF& pixels) const;
    void UpdateDevice(const std::vector<QRectF>& touched);
    void EndDrag();

    MainForm& form_;
    KeptPicture picture_;
    bool stale_ = true;  // the kept picture is not of the chart and size of now
    QTimer refine_;      // runs while a moved picture stands for the one to be painted
    QElapsedTimer edge_moved_;
    mutable std::optional<ChartView> view_;  // in pixels of the screen
    OverlayDrawing shown_overlay_;
    Frames shown_frames_;
    Qt::CursorShape shown_pointer_ = Qt::ArrowCursor;
    std::optional<QPointF> pointer_place_;  // empty: not over the chart
    bool panning_ = false;
    QString told_state_;
    std::optional<QSize> outline_size_;
};

}  // namespace zandrell
