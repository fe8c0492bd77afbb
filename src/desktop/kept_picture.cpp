#include "desktop/kept_picture.h"

#include <QFontMetricsF>
#include <QRegion>
#include <algorithm>

#include "desktop/form_mirror.h"
#include "desktop/look.h"
#include "painter/shades.h"

namespace zandrell {
namespace {

constexpr int kRoomStep = 256;  // pixels
constexpr double kLogoOpacity = 0.55, kLogoTextOpacity = 0.75;

// The logo is drawn for white paper; on a dark ground only its shape is kept.
QPixmap InOneColour(QPixmap picture, const QColor& ink) {
    if (picture.isNull()) return picture;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), ink);
    return picture;
}

}  // namespace

void KeptPicture::Render(const ChartView& view, double density) {
    MakeRoom(view.Target().size().toSize());
    image_.setDevicePixelRatio(1);
    QPainter painter(&image_);
    texts_ = PaintPicture(painter, form_.chart.picture, view);
    PaintLogo(painter, view);
    painter.end();
    image_.setDevicePixelRatio(density);
    scale_ = form_.chart.scale;
    view_ = view;
    revision_ = form_.chart.picture.Revision();
}

// A picture is painted over the last one: fresh memory costs as much as the painting. So that it
// lasts while the edge of a window is dragged, the room is larger than the picture.
void KeptPicture::MakeRoom(QSize size) {
    if (image_.size() == size) return;
    const auto grown = [](int side) { return (side / kRoomStep + 1) * kRoomStep; };
    const QSize wanted(grown(size.width()), grown(size.height()));
    const bool holds = room_.width() >= size.width() && room_.height() >= size.height();
    const bool wasteful = room_.sizeInBytes() / 2 > qsizetype{4} * wanted.width() * wanted.height();
    image_ = QImage();  // before the room that it lies in
    if (!holds || wasteful) {
        room_ = QImage();
        room_ = QImage(wanted, QImage::Format_RGB32);
    }
    image_ = QImage(room_.bits(), size.width(), size.height(), room_.bytesPerLine(),
                    QImage::Format_RGB32);
}

bool KeptPicture::HasSizeOf(const ChartView& view) const {
    return image_.size() == view.Target().size().toSize();
}

void KeptPicture::PaintLogo(QPainter& painter, const ChartView& view) const {
    const auto& controls = form_.chart.controls;
    const auto& logo = controls.Picture1;
    painter.setOpacity(kLogoOpacity);
    const int ground = form_.chart.picture.Background();
    const QColor ink = ShadeFor(form_.chart.picture.Foreground(), StrokeRole::Text, ground).colour;
    QPixmap picture = pictures_.OnGround(logo.picture);
    if (IsDarkGround(ground)) picture = InOneColour(picture, ink);
    if (logo.visible && !picture.isNull()) {
        const QPointF corner = view.ToDevice({logo.left, logo.top});
        const QPointF end = view.ToDevice({logo.left + logo.width, logo.top + logo.height});
        const QSizeF room(end.x() - corner.x(), end.y() - corner.y());
        const QSizeF size = QSizeF(picture.size()).scaled(room, Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QPointF place = corner + QPointF(0, room.height() - size.height());
        painter.drawPixmap(QRectF(place, size), picture, QRectF(picture.rect()));
    }
    PaintVersion(painter, view, ink);
    painter.setOpacity(1);
}

void KeptPicture::PaintVersion(QPainter& painter, const ChartView& view, const QColor& ink) const {
    const auto& line = form_.chart.controls.Label27;
    if (!line.visible) return;
    QFont font = view.Font();
    font.setPixelSize(std::max(8, font.pixelSize() * 5 / 6));
    painter.setFont(font);
    painter.setPen(ink);
    painter.setOpacity(kLogoTextOpacity);
    const QString text = ShownText(line.text);
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    QPointF place = view.ToDevice({line.left, line.top}) + QPointF(0, font.pixelSize());
    place.setX(std::min(place.x(), view.Target().right() - width - font.pixelSize()));
    painter.drawText(place, text);
}

void KeptPicture::DrawMoved(QPainter& painter, const ChartView& view) const {
    const int ground = form_.chart.picture.Background();
    const QColor colour = ShadeFor(ground, StrokeRole::Ground, ground).colour;
    const QTransform to_now = ToNow(view);
    // Only around the picture: to paint a large screen twice takes as long as the picture itself.
    const QRect covered = to_now.mapRect(view_->Target()).toAlignedRect().adjusted(1, 1, -1, -1);
    for (const QRect& rest : QRegion(view.Target().toAlignedRect()) - covered) {
        painter.fillRect(rest, colour);
    }
    const QTransform before = painter.transform();
    painter.setTransform(to_now, true);
    painter.drawImage(view_->Target(), image_);
    painter.setTransform(before);
}

QTransform KeptPicture::ToNow(const ChartView& view) const {
    const ChartScale& scale = form_.chart.scale;
    const QPointF old_origin = view_->ToDevice(scale_.PointOf(0, 0));
    const QPointF origin = view.ToDevice(scale.PointOf(0, 0));
    const QPointF old_unit = view_->ToDevice(scale_.PointOf(1, 1)) - old_origin;
    const QPointF unit = view.ToDevice(scale.PointOf(1, 1)) - origin;
    const double across = unit.x() / old_unit.x(), along = unit.y() / old_unit.y();
    return {across,
            0,
            0,
            along,
            origin.x() - across * old_origin.x(),
            origin.y() - along * old_origin.y()};
}

}  // namespace zandrell
