#include "desktop/pictures.h"

#include <QImage>
#include <algorithm>

#include "desktop/look_colours.h"
#include "painter/picture_file.h"

namespace zandrell {
namespace {

// Pixels of a side: a drawing for a button or the logo is kept no larger than the largest screen
// shows it.
constexpr int kLargestDrawing = 1024;

QImage ReadDrawing(const DataFiles& files, std::string_view file_name) {
    QImage image = ReadPicture(files, file_name);
    if (std::max(image.width(), image.height()) <= kLargestDrawing) return image;
    return image.scaled(kLargestDrawing, kLargestDrawing, Qt::KeepAspectRatio,
                        Qt::SmoothTransformation);
}

// Undoes the blending with white: the darkest channel says how much of the ink covers the ground.
QRgb WithoutWhite(QRgb pixel) {
    const int alpha = 255 - std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    if (alpha == 0) return 0;
    const auto ink = [alpha](int channel) { return (channel - 255 + alpha) * 255 / alpha; };
    return qRgba(ink(qRed(pixel)), ink(qGreen(pixel)), ink(qBlue(pixel)), alpha);
}

// The hue stays.
QRgb WithLightnessTurned(QRgb pixel) {
    const QColor colour = QColor::fromRgba(pixel);
    return QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), 255 - colour.lightness(),
                           colour.alpha())
        .rgba();
}

template <class Change>
QImage Changed(QImage image, const Change& change) {
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, change);
    }
    return image;
}

}  // namespace

QPixmap Pictures::Opaque(std::string_view file_name) {
    if (file_name.empty()) return {};
    const auto found = opaque_.find(file_name);
    if (found != opaque_.end()) return found->second;
    const QPixmap picture = QPixmap::fromImage(ReadPicture(files_, file_name));
    return opaque_.emplace(file_name, picture).first->second;
}

QPixmap Pictures::OnGround(std::string_view file_name) {
    if (file_name.empty()) return {};
    const auto found = on_ground_.find(file_name);
    if (found != on_ground_.end()) return found->second;
    const QImage image = ReadDrawing(files_, file_name);
    const QPixmap picture =
        QPixmap::fromImage(image.isNull() ? image : Changed(image, WithoutWhite));
    return on_ground_.emplace(file_name, picture).first->second;
}

QPixmap Pictures::OnButton(std::string_view file_name) {
    if (SchemeInForce() == LookScheme::Light || file_name.empty()) return OnGround(file_name);
    const auto found = on_dark_.find(file_name);
    if (found != on_dark_.end()) return found->second;
    QImage image = OnGround(file_name).toImage();
    if (!image.isNull()) image = Changed(image, WithLightnessTurned);
    return on_dark_.emplace(file_name, QPixmap::fromImage(image)).first->second;
}

}  // namespace zandrell
