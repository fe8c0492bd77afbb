#include "painter/sheet_file.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

#include "painter/output_file.h"
#include "painter/sheet_painter.h"

namespace zandrell {
namespace {

constexpr int kDotsPerInch = 1152;  // 16 to the point, as the page is painted
constexpr double kPointsPerInch = 72;

QPageSize::PageSizeId PaperOf(const Sheet& sheet) {
    if (sheet.paper == "A2") return QPageSize::A2;
    return sheet.paper == "A3" ? QPageSize::A3 : QPageSize::A4;
}

}  // namespace

QPageLayout LayoutOf(const Sheet& sheet) {
    return QPageLayout(QPageSize(PaperOf(sheet)),
                       sheet.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF(0, 0, 0, 0));
}

QByteArray SheetPdf(const Sheet& sheet) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(LayoutOf(sheet));
    writer.setResolution(kDotsPerInch);
    writer.setTitle(QString::fromStdString(sheet.title));
    writer.setCreator(QStringLiteral("Zandrell"));
    QPainter painter;
    if (!painter.begin(&writer)) return {};
    const QRectF page(0, 0, writer.width(), writer.height());
    PaintSheet(painter, sheet, page, kDotsPerInch / kPointsPerInch);
    for (const Sheet& next : sheet.further) {
        writer.newPage();
        PaintSheet(painter, next, page, kDotsPerInch / kPointsPerInch);
    }
    painter.end();
    return bytes;
}

bool WriteSheetPdf(const Sheet& sheet, const std::string& path, std::string& error) {
    const QByteArray bytes = SheetPdf(sheet);
    if (bytes.isEmpty()) {
        error = path + ": the page could not be made";
        return false;
    }
    return WriteOutput(bytes, path, error);
}

}  // namespace zandrell
