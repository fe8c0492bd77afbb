#include "desktop/qt_printing.h"

#include <QApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QScreen>

#include "desktop/form_mirror.h"
#include "painter/fonts.h"
#include "painter/sheet_file.h"
#include "painter/sheet_painter.h"

namespace zandrell {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kShareOfScreen = 0.85;

// Into what the printer can print on, which is less than the sheet on most.
bool PaintOn(QPrinter& printer, const Sheet& sheet) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QRectF printable(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
    PaintSheet(painter, sheet, printable, printer.resolution() / kPointsPerInch);
    for (const Sheet& next : sheet.further) {
        if (!printer.newPage()) return false;
        PaintSheet(painter, next, printable, printer.resolution() / kPointsPerInch);
    }
    return painter.end();
}

void TakeLayout(QPrinter& printer, const Sheet& sheet) {
    const QPageLayout layout = LayoutOf(sheet);
    printer.setPageSize(layout.pageSize());
    printer.setPageOrientation(layout.orientation());
}

}  // namespace

std::vector<std::string> QtPrinting::FontNames() { return zandrell::FontNames(); }

DeviceSize QtPrinting::PrintableSize(const std::string& paper, bool landscape) {
    Sheet sheet;
    sheet.paper = paper;
    sheet.landscape = landscape;
    QPrinter& printer = user_.Printer();
    TakeLayout(printer, sheet);
    const QRectF rect = printer.pageRect(QPrinter::Millimeter);
    return {qRound(rect.width()), qRound(rect.height())};
}

DeviceSize QtPrinting::ScreenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->size() * screen->devicePixelRatio() : QSize();
    return {size.width(), size.height()};
}

bool QtPrinting::Print(const Sheet& sheet, std::string& error) {
    QPrinter& printer = user_.Printer();
    const std::string chosen =
        user_.print_file.empty() ? printer.outputFileName().toStdString() : user_.print_file;
    if (!chosen.empty()) return WriteSheetPdf(sheet, chosen, error);
    TakeLayout(printer, sheet);
    printer.setDocName(QString::fromStdString(sheet.title));
    if (PaintOn(printer, sheet) && printer.printerState() != QPrinter::Error) return true;
    error = printer.printerName().toStdString() + ": the printer does not take the page";
    return false;
}

void QtPrinting::Preview(const Sheet& sheet) {
    QPrinter paper(QPrinter::HighResolution);
    paper.setOutputFormat(QPrinter::PdfFormat);
    paper.setPageLayout(LayoutOf(sheet));
    paper.setFullPage(true);
    QPrintPreviewDialog dialog(&paper, QApplication::activeWindow());
    dialog.setWindowTitle(ShownText(captions_[Caption::PrintPreview]));
    dialog.resize(QGuiApplication::primaryScreen()->availableSize() * kShareOfScreen);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&sheet](QPrinter* printer) { PaintOn(*printer, sheet); });
    dialog.exec();
}

}  // namespace zandrell
