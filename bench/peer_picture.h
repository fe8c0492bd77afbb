#pragma once

#include <QFont>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QString>
#include <vector>

#include "painter/chart_view.h"
#include "painter/shades.h"

namespace zandrell {

// A picture as bare primitives for the toolkit's painter: what somebody would write who wants the
// same lines, dots and texts on the screen and nothing else. No curve is smoothed, no text has a
// rim or is moved out of the way of another.
class PeerPicture {
  public:
    PeerPicture(const RecordingCanvas& picture, const ChartView& view)
        : ground_(picture.Background()), target_(view.Target()), font_(view.Font()) {
        paper_ = ShadeFor(ground_, StrokeRole::Ground, ground_).colour;
        ink_ = ShadeFor(picture.Foreground(), StrokeRole::Text, ground_).colour;
        for (const CanvasOperation& operation : picture.Operations()) {
            if (operation.stroke == Stroke::Line) AddLine(operation, view);
            const CanvasPoint place{operation.x1, operation.y1};
            if (operation.stroke == Stroke::Dot && IsOnCanvas(place, 0)) {
                const double side = view.StrokeUnit();
                dots_.emplace_back(view.ToDevice(place), QSizeF(side, side));
                dot_ = ShadeFor(operation.colour, StrokeRole::Dots, ground_).colour;
            }
            if (operation.stroke == Stroke::Text && view.HoldsText(place)) {
                texts_.push_back({view.ToDevice(place) + QPointF(0, font_.pixelSize()),
                                  QString::fromStdString(operation.text)});
            }
        }
    }

    void Paint(QPainter& painter) const {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(target_, paper_);
        for (const Chain& chain : chains_) {
            painter.setPen(chain.pen);
            painter.drawPolyline(chain.points);
        }
        for (const QRectF& dot : dots_) painter.fillRect(dot, dot_);
        painter.setFont(font_);
        painter.setPen(ink_);
        for (const Text& text : texts_) painter.drawText(text.place, text.text);
    }

  private:
    struct Chain {
        QPen pen;
        QPolygonF points;
    };
    struct Text {
        QPointF place;
        QString text;
    };

    void AddLine(const CanvasOperation& line, const ChartView& view) {
        const auto part = ClippedToCanvas({{line.x1, line.y1}, {line.x2, line.y2}});
        if (!part) return;
        const bool straight = line.x1 == line.x2 || line.y1 == line.y2;
        const Shade shade =
            ShadeFor(line.colour, straight ? StrokeRole::Grid : StrokeRole::Curve, ground_);
        const QPen pen(shade.colour, view.Thickness(line.width, shade.width), Qt::SolidLine,
                       Qt::FlatCap, Qt::RoundJoin);
        const QPointF from = view.ToDevice(part->from);
        const bool goes_on = !straight && !chains_.empty() && chains_.back().pen == pen &&
                             chains_.back().points.last() == from;
        if (!goes_on) chains_.push_back({pen, {from}});
        chains_.back().points << view.ToDevice(part->to);
    }

    int ground_;
    QRectF target_;
    QFont font_;
    QColor paper_, ink_, dot_;
    std::vector<Chain> chains_;
    std::vector<QRectF> dots_;
    std::vector<Text> texts_;
};

}  // namespace zandrell
