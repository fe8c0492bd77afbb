#include "painter/chart_drawing.h"

#include <QFontMetricsF>
#include <QPen>
#include <algorithm>
#include <utility>

#include "painter/haloed_text.h"
#include "painter/qt_canvas.h"
#include "painter/shades.h"

namespace zandrell {
namespace {

bool SamePlace(CanvasPoint a, CanvasPoint b) { return a.x == b.x && a.y == b.y; }

QFont LabelFont(const ChartView& view) {
    QFont font = view.Font();
    font.setWeight(QFont::DemiBold);
    font.setPixelSize(font.pixelSize() + std::max(1, font.pixelSize() / 10));
    return font;
}

double LabelBoxHeight(const ChartView& view) { return 1.2 * LabelFont(view).pixelSize(); }

// Beside the ring, not under it.
WantedLabel WantedPlace(const OverlayDrawing::Label& label, const ChartView& view) {
    const QPointF anchor = view.ToDevice(label.corner);
    const QPointF corner =
        anchor + QPointF(1.4 * MarkRadius(view), -0.25 * view.Font().pixelSize());
    const double middle = corner.y() + LabelBoxHeight(view) / 2;
    return {corner.x(), middle, label.text, TextRole::MarkLabel, anchor.x(), anchor.y()};
}

void PlaceLabels(OverlayDrawing& drawing, const ChartView& view, const TextLayout& texts) {
    if (drawing.labels.empty()) return;
    LabelPlacer placer = PlacerFor(LabelFont(view), view);
    for (const LaidText& laid : texts.Texts()) placer.KeepClear(laid.box);
    for (const ClearLine& line : texts.Saturation()) placer.KeepClear(line);
    const double reach = MarkRadius(view) + view.StrokeUnit();
    for (const auto& mark : drawing.marks) {
        const QPointF centre = view.ToDevice(mark.centre);
        placer.KeepClear(LabelBox{centre.x(), centre.y(), centre.x(), centre.y()}.Grown(reach));
    }
    for (const auto& line : drawing.lines) {
        const QPointF from = view.ToDevice(line.part.from), to = view.ToDevice(line.part.to);
        placer.Avoid({from.x(), from.y(), to.x(), to.y()});
    }
    std::vector<WantedLabel> wanted;
    for (const auto& label : drawing.labels) wanted.push_back(WantedPlace(label, view));
    const auto placed = placer.Place(wanted);
    for (std::size_t i = 0; i < placed.size(); ++i) drawing.labels[i].placed = placed[i];
}

void PaintLabel(QPainter& painter, const OverlayDrawing::Label& label, const ChartView& view,
                int ground) {
    const QColor rim = ShadeFor(ground, StrokeRole::Ground, ground).colour;
    const QColor colour = ShadeFor(label.colour, StrokeRole::Process, ground).colour;
    if (const auto leader = LeaderTo(label.placed, WantedPlace(label, view))) {
        painter.setPen(QPen(colour, 0.8 * view.StrokeUnit()));
        painter.drawLine(*leader);
    }
    const LabelBox& box = label.placed.box;
    PaintHaloedText(painter, {box.left, box.top}, box.bottom - box.top,
                    QString::fromStdString(label.text), LabelFont(view), colour, rim,
                    1.6 * view.StrokeUnit());
}

void PaintLines(QPainter& painter, const OverlayDrawing& drawing, const ChartView& view,
                int ground) {
    const QColor rim = ShadeFor(ground, StrokeRole::Ground, ground).colour;
    const auto pen = [&view](const QColor& colour, double width) {
        return QPen(colour, width * view.StrokeUnit(), Qt::SolidLine, Qt::FlatCap);
    };
    for (const auto& line : drawing.lines) {
        QColor halo = rim;
        halo.setAlphaF(0.75F);
        painter.setPen(pen(halo, ShadeFor(line.colour, StrokeRole::Process, ground).width + 2.4));
        painter.drawLine(view.ToDevice(line.part.from), view.ToDevice(line.part.to));
    }
    for (const auto& line : drawing.lines) {
        const Shade shade = ShadeFor(line.colour, StrokeRole::Process, ground);
        painter.setPen(pen(shade.colour, shade.width));
        painter.drawLine(view.ToDevice(line.part.from), view.ToDevice(line.part.to));
    }
}

void PaintMark(QPainter& painter, const OverlayDrawing::Mark& mark, const ChartView& view,
               int ground) {
    const Shade shade = ShadeFor(mark.colour, StrokeRole::Process, ground);
    const QColor fill = ShadeFor(ground, StrokeRole::Ground, ground).colour;
    const QPointF centre = view.ToDevice(mark.centre);
    const double radius = MarkRadius(view);
    if (mark.carried) {
        QColor glow = shade.colour;
        glow.setAlphaF(0.3F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(glow);
        painter.drawEllipse(centre, 2 * radius, 2 * radius);
    }
    painter.setPen(QPen(shade.colour, 0.8 * shade.width * view.StrokeUnit()));
    painter.setBrush(fill);
    painter.drawEllipse(centre, radius, radius);
    if (mark.carried) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade.colour);
        painter.drawEllipse(centre, 0.45 * radius, 0.45 * radius);
    }
}

// --- What the items of an overlay touch, in pixels.

double Reach(const ChartView& view) { return 5 * view.StrokeUnit(); }

QRectF AreaBetween(QPointF a, QPointF b, double reach) {
    return QRectF(a, b).normalized().adjusted(-reach, -reach, reach, reach);
}

QRectF AreaOf(const OverlayDrawing::Line& line, const ChartView& view) {
    return AreaBetween(view.ToDevice(line.part.from), view.ToDevice(line.part.to), Reach(view));
}

QRectF AreaOf(const OverlayDrawing::Mark& mark, const ChartView& view) {
    const QPointF centre = view.ToDevice(mark.centre);
    return AreaBetween(centre, centre, 2 * MarkRadius(view) + Reach(view));
}

QRectF BoxArea(const OverlayDrawing::Label& label, const ChartView& view) {
    const LabelBox box = label.placed.box.Grown(Reach(view));
    return {QPointF(box.left, box.top), QPointF(box.right, box.bottom)};
}

// Null: the label stands beside its mark.
QRectF LeaderArea(const OverlayDrawing::Label& label, const ChartView& view) {
    const auto leader = LeaderTo(label.placed, WantedPlace(label, view));
    return leader ? AreaBetween(leader->p1(), leader->p2(), Reach(view)) : QRectF();
}

bool LooksLike(const auto& a, const auto& b) { return a == b; }
// What follows from all else may follow from another item.
bool LooksLike(const OverlayDrawing::Label& a, const OverlayDrawing::Label& b) {
    return a == b && a.placed == b.placed;
}

}  // namespace

bool OverlayDrawing::Line::operator==(const Line& other) const {
    return SamePlace(part.from, other.part.from) && SamePlace(part.to, other.part.to) &&
           colour == other.colour;
}

bool OverlayDrawing::Mark::operator==(const Mark& other) const {
    return SamePlace(centre, other.centre) && carried == other.carried && colour == other.colour;
}

bool OverlayDrawing::Label::operator==(const Label& other) const {
    return SamePlace(corner, other.corner) && text == other.text && colour == other.colour;
}

TextLayout PaintPicture(QPainter& painter, const RecordingCanvas& picture, const ChartView& view) {
    QtCanvas canvas(painter, view);
    picture.ReplayOn(canvas);
    return canvas.Finish();
}

OverlayDrawing VisibleItems(const Overlay& overlay, const ChartView& view,
                            const TextLayout& texts) {
    OverlayDrawing drawing;
    for (const ChartLine* line : overlay.Lines()) {
        const auto part = ClippedToCanvas({{line->x1, line->y1}, {line->x2, line->y2}});
        if (line->visible && part) drawing.lines.push_back({*part, line->colour});
    }
    for (const Mark* mark : overlay.Marks()) {
        if (mark->visible && IsOnCanvas(mark->state, 0)) {
            drawing.marks.push_back({mark->state, mark->shape == 1, mark->colour});
        }
    }
    for (const ChartLabel* label : overlay.Labels()) {
        const CanvasPoint corner{label->left, label->top};
        if (label->visible && !label->text.empty() && IsOnCanvas(corner, 0)) {
            drawing.labels.push_back({corner, label->text, label->colour, {}});
        }
    }
    PlaceLabels(drawing, view, texts);
    return drawing;
}

double MarkRadius(const ChartView& view) { return 5.5 * view.StrokeUnit(); }

void PaintOverlay(QPainter& painter, const OverlayDrawing& drawing, const ChartView& view,
                  int ground) {
    painter.setRenderHint(QPainter::Antialiasing);
    PaintLines(painter, drawing, view, ground);
    for (const auto& mark : drawing.marks) {
        if (!mark.carried) PaintMark(painter, mark, view, ground);
    }
    for (const auto& mark : drawing.marks) {
        if (mark.carried) PaintMark(painter, mark, view, ground);
    }
    for (const auto& label : drawing.labels) PaintLabel(painter, label, view, ground);
}

std::vector<QRectF> TouchedBy(const OverlayDrawing& drawing, const ChartView& view) {
    std::vector<QRectF> touched;
    for (const auto& line : drawing.lines) touched.push_back(AreaOf(line, view));
    for (const auto& mark : drawing.marks) touched.push_back(AreaOf(mark, view));
    for (const auto& label : drawing.labels) {
        touched.push_back(BoxArea(label, view));
        const QRectF leader = LeaderArea(label, view);
        if (!leader.isNull()) touched.push_back(leader);
    }
    return touched;
}

OverlayDrawing Without(OverlayDrawing drawing, const OverlayDrawing& other) {
    const auto drop = [](auto& items, const auto& others) {
        std::erase_if(items, [&others](const auto& item) {
            return std::any_of(others.begin(), others.end(), [&item](const auto& candidate) {
                return LooksLike(item, candidate);
            });
        });
    };
    drop(drawing.lines, other.lines);
    drop(drawing.marks, other.marks);
    drop(drawing.labels, other.labels);
    return drawing;
}

OverlayDrawing Touching(OverlayDrawing drawing, const ChartView& view,
                        const std::function<bool(const QRectF&)>& touches) {
    std::erase_if(drawing.lines, [&](const auto& line) { return !touches(AreaOf(line, view)); });
    std::erase_if(drawing.marks, [&](const auto& mark) { return !touches(AreaOf(mark, view)); });
    std::erase_if(drawing.labels, [&](const auto& label) {
        const QRectF leader = LeaderArea(label, view);
        return !touches(BoxArea(label, view)) && (leader.isNull() || !touches(leader));
    });
    return drawing;
}

QImage RenderPicture(const RecordingCanvas& picture, int width, int height, double density) {
    QImage image(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
    QPainter painter(&image);
    PaintPicture(painter, picture, ChartView(picture, QRectF(image.rect()), density));
    return image;
}

}  // namespace zandrell
