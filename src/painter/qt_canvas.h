#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>
#include <string_view>
#include <vector>

#include "canvas/canvas.h"
#include "painter/chart_view.h"
#include "painter/shades.h"
#include "painter/text_layout.h"

namespace zandrell {

// A canvas on any of Qt's painters. Lines of one look that follow each other are drawn in one go;
// texts are kept until Finish, since they stand over all lines.
class QtCanvas : public Canvas {
  public:
    // Both outlive the canvas.
    QtCanvas(QPainter& painter, const ChartView& view);

    // Fills the whole surface, margins included.
    void Clear(int background, int foreground) override;
    void SetLineWidth(int width) override { width_ = width; }
    // The size of texts follows the surface.
    void SetFontSize(int) override {}
    void SetTextRole(TextRole role) override { text_role_ = role; }
    void Line(double x1, double y1, double x2, double y2, int colour) override;
    void Dot(double x, double y, int colour) override;
    void Circle(double x, double y, double radius, int colour) override;
    void Text(double x, double y, std::string_view text) override;

    // Draws the lines and dots that are still kept, but no texts.
    void FinishStrokes();
    // Draws what is still kept and tells where the texts came to stand. Requires: called once after
    // the last stroke.
    TextLayout Finish();

  private:
    struct LineLook {
        int colour = -1;
        int width = 0;
        bool straight = false;  // along one axis: a line of a grid
        bool operator==(const LineLook&) const = default;
    };

    void FlushLines();
    void FlushDots();
    void DrawCurve() const;
    void DrawGridLine(QPointF from, QPointF to) const;
    double Thickness(const Shade& shade) const;
    void DrawTexts();

    QPainter& painter_;
    const ChartView& view_;
    int ground_ = kWhite, foreground_ = kBlack;
    int width_ = 1;
    LineLook look_;
    QPolygonF polyline_;
    int dot_colour_ = kGrey;
    std::vector<QPointF> dots_;
    TextRole text_role_ = TextRole::CurveLabel;
    TextLayout texts_;
};

}  // namespace zandrell
