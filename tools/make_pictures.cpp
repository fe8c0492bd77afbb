// make_pictures SOURCE_FOLDER OUTPUT_FOLDER
//
// Renders the drawings of the program (SVG) into the BMP and JPEG files that the data folder holds.
// Every picture of the table is made on each run; the first failure ends the run with status 1.

#include <QColor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRectF>
#include <QSaveFile>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>

namespace zandrell {
namespace {

struct Picture {
    const char* file_name;  // in the output folder; the ending decides the format
    const char* drawing;    // in the source folder
    int width;              // pixels
    int height;             // pixels
    int quality;            // 0..100 for JPEG, kUncompressed for BMP
};

constexpr int kUncompressed = -1;
constexpr int kButton = 64;  // pixels; shown at half of it, dense screens use them all
constexpr int kJpegQuality = 92;
constexpr int kUnitWidth = 240, kUnitHeight = 180;  // of a catalogue's unit

constexpr Picture UnitPicture(const char* file_name, const char* drawing) {
    return {file_name, drawing, kUnitWidth, kUnitHeight, kUncompressed};
}

constexpr std::array kPictures = {
    Picture{"STcap.bmp", "buttons/settings.svg", kButton, kButton, kUncompressed},
    Picture{"ZAcap.bmp", "buttons/state_change.svg", kButton, kButton, kUncompressed},
    Picture{"ZAMcap.bmp", "buttons/mixing.svg", kButton, kButton, kUncompressed},
    Picture{"ZALcap.bmp", "buttons/capacity.svg", kButton, kButton, kUncompressed},
    Picture{"KLcap.bmp", "buttons/air_handling_unit.svg", kButton, kButton, kUncompressed},
    Picture{"Prcap.bmp", "buttons/printer.svg", kButton, kButton, kUncompressed},
    Picture{"PScap.bmp", "buttons/quick_save.svg", kButton, kButton, kUncompressed},
    Picture{"Plcap.bmp", "buttons/quick_load.svg", kButton, kButton, kUncompressed},
    Picture{"Zoomcap.bmp", "buttons/zoom_out.svg", kButton, kButton, kUncompressed},
    Picture{"mprcap.bmp", "buttons/small_printer.svg", kButton, kButton, kUncompressed},
    Picture{"brcaps.bmp", "buttons/volume_flow.svg", kButton, kButton, kUncompressed},
    Picture{"OKcap.bmp", "buttons/ok.svg", kButton, kButton, kUncompressed},
    Picture{"abcap.bmp", "buttons/cancel.svg", kButton, kButton, kUncompressed},
    Picture{"iceCube.bmp", "buttons/ice_cube.svg", kButton, kButton, kUncompressed},
    Picture{"ZD_Bk00.jpg", "skins/tool_column.svg", 200, 1200, kJpegQuality},
    Picture{"ZD_Bk01.jpg", "skins/floating_panel.svg", 1440, 800, kJpegQuality},
    Picture{"ZD_Bk031.jpg", "skins/read_out.svg", 260, 320, kJpegQuality},
    Picture{"ZD_Bk032.jpg", "skins/inner_panel.svg", 500, 300, kJpegQuality},
    Picture{"ZD_Bk041.jpg", "skins/inner_panel.svg", 500, 300, kJpegQuality},
    Picture{"ZD_Back01.jpg", "skins/floating_panel.svg", 900, 500, kJpegQuality},
    Picture{"ZD_Back02.jpg", "skins/inner_panel.svg", 500, 300, kJpegQuality},
    Picture{"pic2.bmp", "logos/zandrell_logo.svg", 220, 64, kUncompressed},
    Picture{"zdsample.jpg", "logos/sample_logo.svg", 260, 80, kJpegQuality},
    UnitPicture("600.bmp", "catalogue/air_cooler.svg"),
    UnitPicture("650.bmp", "catalogue/condenser.svg"),
    UnitPicture("550.bmp", "catalogue/compressor.svg"),
    UnitPicture("100.bmp", "catalogue/stored_capacity.svg"),
    UnitPicture("50.bmp", "catalogue/regulator.svg"),
    UnitPicture("250.bmp", "catalogue/solenoid_valve.svg"),
    UnitPicture("150.bmp", "catalogue/filter_drier.svg"),
    UnitPicture("1.bmp", "catalogue/line_component.svg"),
    UnitPicture("200.bmp", "catalogue/line_component.svg"),
    UnitPicture("300.bmp", "catalogue/line_component.svg"),
    UnitPicture("350.bmp", "catalogue/line_component.svg"),
    UnitPicture("450.bmp", "catalogue/line_component.svg"),
    UnitPicture("700.bmp", "catalogue/line_component.svg"),
    UnitPicture("750.bmp", "catalogue/line_component.svg"),
    UnitPicture("ceiling.bmp", "catalogue/ceiling_cooler.svg"),
    UnitPicture("table.bmp", "catalogue/table_condenser.svg"),
    UnitPicture("screw.bmp", "catalogue/screw_compressor.svg"),
};

// The message of what went wrong; nothing when all is well.
using Failure = std::optional<QString>;

// A drawing stretched to another shape would show ovals for circles.
bool SameShape(const QSizeF& drawing, const Picture& picture) {
    const double drawn_height = picture.width * drawing.height() / drawing.width();
    return std::abs(drawn_height - picture.height) < 0.5;
}

// One pass of antialiasing gives exact coverage; rendering larger and scaling down gains nothing.
QImage Render(QSvgRenderer& drawing, const Picture& picture) {
    QImage image(picture.width, picture.height, QImage::Format_RGB32);
    image.fill(QColor(Qt::white));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, QRectF(image.rect()));
    return image;
}

// Replaces the file only when the whole picture is written.
Failure Write(const QImage& image, const QString& path, int quality) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return path + QStringLiteral(": ") + file.errorString();
    QImageWriter writer(&file, path.endsWith(QStringLiteral(".jpg")) ? "jpg" : "bmp");
    writer.setQuality(quality);
    if (!writer.write(image)) {
        const bool disk_failed = file.error() != QFileDevice::NoError;
        return path + QStringLiteral(": ") +
               (disk_failed ? file.errorString() : writer.errorString());
    }
    if (!file.commit()) return path + QStringLiteral(": ") + file.errorString();
    return std::nullopt;
}

Failure Make(const Picture& picture, const QDir& sources, const QDir& output) {
    const QString source = sources.filePath(QString::fromLatin1(picture.drawing));
    if (!QFile::exists(source)) return source + QStringLiteral(": no such file");
    QSvgRenderer drawing(source);
    if (!drawing.isValid()) return source + QStringLiteral(": not a readable SVG drawing");
    const QSizeF size = drawing.viewBoxF().size();
    if (size.isEmpty()) return source + QStringLiteral(": the drawing has no size");
    if (!SameShape(size, picture)) {
        return source + QStringLiteral(": not of the shape of %1")
                            .arg(QString::fromLatin1(picture.file_name));
    }
    const QString target = output.filePath(QString::fromLatin1(picture.file_name));
    return Write(Render(drawing, picture), target, picture.quality);
}

int Fail(const QString& message) {
    std::fprintf(stderr, "make_pictures: %s\n", qPrintable(message));
    return 1;
}

int Run(const QStringList& arguments) {
    if (arguments.size() != 3) return Fail(QStringLiteral("SOURCE_FOLDER OUTPUT_FOLDER expected"));
    const QDir sources(arguments[1]);
    const QDir output(arguments[2]);
    if (!output.mkpath(QStringLiteral("."))) {
        return Fail(arguments[2] + QStringLiteral(": cannot make this folder"));
    }
    for (const Picture& picture : kPictures) {
        if (const Failure failure = Make(picture, sources, output)) return Fail(*failure);
    }
    return 0;
}

}  // namespace
}  // namespace zandrell

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return zandrell::Run(QCoreApplication::arguments());
}
