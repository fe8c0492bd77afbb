#include "painter/chart_file.h"

#include <QBuffer>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

#include "painter/chart_drawing.h"
#include "painter/output_file.h"
#include "painter/svg_engine.h"

namespace zandrell {
namespace {

constexpr int kPixelsPerInch = 96;
constexpr double kPointsPerInch = 72;

void PaintChart(QPainter& painter, const RecordingCanvas& picture, const Overlay& overlay,
                int width, int height) {
    const ChartView view(picture, QRectF(0, 0, width, height), 1);
    const TextLayout texts = PaintPicture(painter, picture, view);
    PaintOverlay(painter, VisibleItems(overlay, view, texts), view, picture.Background());
}

QByteArray ChartPng(const RecordingCanvas& picture, const Overlay& overlay, int width, int height) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!ChartImage(picture, overlay, width, height).save(&buffer, "PNG")) bytes.clear();
    return bytes;
}

using Encoder = QByteArray (*)(const RecordingCanvas&, const Overlay&, int, int);

Encoder EncoderFor(const QString& path) {
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QStringLiteral("png")) return ChartPng;
    if (ending == QStringLiteral("svg")) return ChartSvg;
    if (ending == QStringLiteral("pdf")) return ChartPdf;
    return nullptr;
}

bool IsPaintableSide(int pixels) { return pixels >= 1 && pixels <= kLargestPictureSide; }

}  // namespace

QImage ChartImage(const RecordingCanvas& picture, const Overlay& overlay, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull()) return image;
    QPainter painter(&image);
    PaintChart(painter, picture, overlay, width, height);
    return image;
}

QByteArray ChartSvg(const RecordingCanvas& picture, const Overlay& overlay, int width, int height) {
    SvgSheet sheet(QSize(width, height));
    QPainter painter(&sheet);
    PaintChart(painter, picture, overlay, width, height);
    painter.end();
    return sheet.Document();
}

QByteArray ChartPdf(const RecordingCanvas& picture, const Overlay& overlay, int width, int height) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    const QSizeF points = QSizeF(width, height) * (kPointsPerInch / kPixelsPerInch);
    writer.setPageSize(QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(kPixelsPerInch);
    writer.setTitle(QStringLiteral("Zandrell"));
    QPainter painter(&writer);
    PaintChart(painter, picture, overlay, width, height);
    painter.end();
    return bytes;
}

bool WriteChartFile(const RecordingCanvas& picture, const Overlay& overlay, const std::string& path,
                    int width, int height, std::string& error) {
    const QString name = QString::fromStdString(path);
    const Encoder encode = EncoderFor(name);
    if (!encode) {
        error = path + ": a chart file ends in .png, .svg or .pdf";
        return false;
    }
    if (!IsPaintableSide(width) || !IsPaintableSide(height)) {
        error =
            path + ": a chart has sides of 1 to " + std::to_string(kLargestPictureSide) + " pixels";
        return false;
    }
    const QByteArray bytes = encode(picture, overlay, width, height);
    if (bytes.isEmpty()) {
        error = path + ": the picture could not be made, it may be too large";
        return false;
    }
    return WriteOutput(bytes, path, error);
}

}  // namespace zandrell
