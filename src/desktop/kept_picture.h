#pragma once

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <optional>

#include "desktop/pictures.h"
#include "painter/chart_drawing.h"
#include "painter/chart_view.h"
#include "shell/main_form.h"

namespace zandrell {

// The chart as pixels, with the logo under it: painted when the chart changed, shown as often as
// the window asks.
class KeptPicture {
  public:
    // Both outlive the picture.
    KeptPicture(const MainForm& form, Pictures& pictures) : form_(form), pictures_(pictures) {}

    // Paints the chart of now. `view` counts in pixels of the screen, of which `density` make one
    // of the window.
    void Render(const ChartView& view, double density);

    bool HasSizeOf(const ChartView& view) const;
    bool IsOfDensity(double density) const { return image_.devicePixelRatio() == density; }
    // Of the chart that it shows; -1 before the first.
    int Revision() const { return revision_; }
    // Where the texts stand in it.
    const TextLayout& Texts() const { return *texts_; }

    void Draw(QPainter& painter) const { painter.drawImage(QPointF(0, 0), image_); }
    // Shifted and stretched to where what it shows lies by now; around it is the ground.
    void DrawMoved(QPainter& painter, const ChartView& view) const;
    // Whether there is a picture that can stand for the one to be painted.
    bool IsPainted() const { return view_.has_value(); }

  private:
    void MakeRoom(QSize size);
    void PaintLogo(QPainter& painter, const ChartView& view) const;
    void PaintVersion(QPainter& painter, const ChartView& view, const QColor& ink) const;
    QTransform ToNow(const ChartView& view) const;

    const MainForm& form_;
    Pictures& pictures_;
    QImage room_;  // what `image_` lies in the corner of
    QImage image_;
    ChartScale scale_;  // that of the image, as its view
    std::optional<ChartView> view_;
    std::optional<TextLayout> texts_;
    int revision_ = -1;
};

}  // namespace zandrell
