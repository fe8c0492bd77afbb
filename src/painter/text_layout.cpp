#include "painter/text_layout.h"

#include <QFontMetricsF>
#include <algorithm>

#include "canvas/palette.h"

namespace zandrell {
namespace {

constexpr double kTextBoxUnits = 10;  // canvas units; the places of texts count on this height

}  // namespace

LabelPlacer PlacerFor(const QFont& font, const ChartView& view) {
    const QRectF& target = view.Target();
    return LabelPlacer(
        [metrics = QFontMetricsF(font)](std::string_view text) {
            return metrics.horizontalAdvance(
                QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        },
        font.pixelSize(), {target.left(), target.top(), target.right(), target.bottom()});
}

std::optional<QLineF> LeaderTo(const PlacedLabel& placed, const WantedLabel& wanted) {
    if (!placed.far) return std::nullopt;
    const LabelBox& box = placed.box;
    const QPointF end(std::clamp(wanted.anchor_x, box.left, box.right),
                      std::clamp(wanted.anchor_y, box.top, box.bottom));
    return QLineF({wanted.anchor_x, wanted.anchor_y}, end);
}

TextLayout::TextLayout(const RecordingCanvas& picture, const ChartView& view) : view_(&view) {
    for (const CanvasOperation& operation : picture.Operations()) {
        if (operation.stroke == Stroke::Line) {
            Line({{operation.x1, operation.y1}, {operation.x2, operation.y2}}, operation.colour);
        } else if (operation.stroke == Stroke::Text) {
            Text({operation.x1, operation.y1}, operation.text, operation.role);
        }
    }
    Finish();
}

void TextLayout::Line(const Segment& line, int colour) {
    last_end_ = view_->ToDevice(line.to);
    last_direction_ = last_end_ - view_->ToDevice(line.from);
    if (colour != kDarkRed) return;
    if (const auto part = ClippedToCanvas(line)) {
        const QPointF from = view_->ToDevice(part->from), to = view_->ToDevice(part->to);
        saturation_.push_back({from.x(), from.y(), to.x(), to.y()});
    }
}

void TextLayout::Text(CanvasPoint place, std::string_view text, TextRole role) {
    if (!view_->HoldsText(place)) return;
    QPointF corner = view_->ToDevice(place);
    const double middle =
        corner.y() + kTextBoxUnits / 2 * view_->Extent().height() / (kCanvasBottom - kCanvasTop);
    // The leading blank of a number would push it off the line that it names.
    const QString shown =
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed();
    const double width = QFontMetricsF(view_->Font()).horizontalAdvance(shown);
    corner.setX(std::min(corner.x(), view_->TextsEnd() - width));
    const QPointF anchor =
        role == TextRole::ExtensionLabel ? last_end_ : QPointF(corner.x(), middle);
    wanted_.push_back({corner.x(), middle, shown.toStdString(), role, anchor.x(), anchor.y(),
                       last_direction_.x(), last_direction_.y()});
}

void TextLayout::Finish() {
    LabelPlacer placer = PlacerFor(view_->Font(), *view_);
    for (const ClearLine& line : saturation_) placer.KeepClear(line);
    const auto placed = placer.Place(wanted_);
    texts_.clear();
    for (std::size_t i = 0; i < placed.size(); ++i) {
        if (!placed[i].shown) continue;
        texts_.push_back({QString::fromStdString(wanted_[i].text), placed[i].box,
                          LeaderTo(placed[i], wanted_[i])});
    }
    wanted_.clear();
}

}  // namespace zandrell
