#include "painter/sheet_painter.h"

#include <QFontMetricsF>
#include <QPen>
#include <algorithm>
#include <filesystem>

#include "painter/haloed_text.h"
#include "painter/picture_file.h"
#include "painter/qt_canvas.h"
#include "painter/text_layout.h"

namespace zandrell {
namespace {

// Fonts take whole sizes only, so the page is painted in fine units.
constexpr double kUnitsPerPoint = 16;
constexpr double kPointsPerDot = 72.0 / 96;           // of a picture
constexpr double kStrokeUnit = 0.5 * kUnitsPerPoint;  // of rims and dots
constexpr double kEdge = 11 * kUnitsPerPoint;         // texts keep clear of the paper's edge
constexpr double kWidthUnit = 0.22 * kUnitsPerPoint;  // of a line of width 1
constexpr double kLeastLine = 0.32 * kUnitsPerPoint;  // thinner ones break up on paper
constexpr double kRim = 0.9 * kUnitsPerPoint;
constexpr double kSmallestShrink = 0.5;
constexpr double kFrameToEdge = 30, kTextTolerance = 8;  // canvas units

// The chart's frame on the page, in canvas units. It ends where the paper's edge would cut it.
QRectF FrameOn(const PageScale& page) {
    const double right = std::min(kCanvasRight, page.right - kFrameToEdge);
    return {QPointF(kCanvasLeft, kCanvasTop), QPointF(right, kCanvasBottom)};
}

// Its scales stand outside the frame, to the left, above and below; labels end curves at its right.
QRectF TextRoomOn(const PageScale& page) {
    const double right = std::min(kCanvasRight + kTextTolerance, page.right);
    return {QPointF(page.left, -20), QPointF(right, 588)};
}

class PagePlaces {
  public:
    PagePlaces(const QRectF& page, const PageScale& scale) : page_(page), scale_(scale) {}

    QPointF At(double x, double y) const {
        return {page_.left() + (x - scale_.left) * UnitWidth(),
                page_.top() + (y - scale_.top) * UnitHeight()};
    }
    QRectF Rect(const QRectF& rect) const {
        return {At(rect.left(), rect.top()), At(rect.right(), rect.bottom())};
    }
    double UnitWidth() const { return page_.width() / (scale_.right - scale_.left); }
    double UnitHeight() const { return page_.height() / (scale_.bottom - scale_.top); }

  private:
    QRectF page_;
    PageScale scale_;
};

QFont FontOf(const Sheet& sheet, int points, bool bold) {
    QFont font(QString::fromStdString(sheet.font_name));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(static_cast<int>(points * kUnitsPerPoint));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Ligatures would make other letters of a word that is searched for or copied from a PDF.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

// The chart on the page, and where its texts came to stand.
struct PrintedChart {
    PagePlaces places;
    ChartView view;
    TextLayout texts;
};

ChartView ViewOf(const Sheet& sheet, const QRectF& page, const PagePlaces& places) {
    const QRectF canvas(kCanvasLeft, kCanvasTop, kCanvasRight - kCanvasLeft,
                        kCanvasBottom - kCanvasTop);
    const auto& operations = sheet.chart.Operations();
    const int points = operations.empty() ? 8 : operations.front().font_size;
    return ChartView(PaperPlace{page.adjusted(0, 0, -kEdge, 0), places.Rect(canvas),
                                TextRoomOn(sheet.chart_scale), kStrokeUnit, kWidthUnit, kLeastLine,
                                FontOf(sheet, points, false)});
}

PrintedChart PaintChart(QPainter& painter, const Sheet& sheet, const QRectF& page) {
    const PagePlaces places(page, sheet.chart_scale);
    const ChartView view = ViewOf(sheet, page, places);
    QtCanvas chart(painter, view);
    painter.save();
    painter.setClipRect(places.Rect(FrameOn(sheet.chart_scale)));
    sheet.chart.ReplayOn(chart);
    chart.FinishStrokes();
    painter.restore();
    return {places, view, chart.Finish()};
}

QPen PenOf(const SheetItem& item) {
    return QPen(Qt::black, std::max(kLeastLine, item.line_width * kWidthUnit), Qt::SolidLine,
                Qt::RoundCap);
}

// A line break or tab that a file brought into a title must not break the page.
QString OneLine(const std::string& text) {
    QString line = QString::fromStdString(text);
    for (QChar& c : line) {
        if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
    }
    return line;
}

void PaintText(QPainter& painter, const Sheet& sheet, const SheetItem& item,
               const PagePlaces& places) {
    const QFont font = FontOf(sheet, item.font_size, item.bold);
    const QFontMetricsF metrics(font);
    const QPointF corner = places.At(item.x1, item.y1);
    const double room = std::max(0.0, places.At(item.room_right, 0).x() - corner.x());
    QString text = OneLine(item.text);
    double scale = 1;
    if (metrics.horizontalAdvance(text) > room) {
        if (item.fit == TextFit::Shrink) {
            scale = std::max(kSmallestShrink, room / metrics.horizontalAdvance(text));
        }
        text = metrics.elidedText(text, Qt::ElideRight, room / scale);
    }
    painter.save();
    painter.translate(corner);
    painter.scale(scale, scale);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(0, metrics.ascent()), text);
    painter.restore();
}

void PaintCircle(QPainter& painter, const SheetItem& item, const PagePlaces& places) {
    const double radius = item.radius * places.UnitHeight();
    painter.setPen(PenOf(item));
    painter.setBrush(Qt::white);
    painter.drawEllipse(places.At(item.x1, item.y1), radius, radius);
}

// A picture that cannot be read leaves its corner blank.
void PaintLogo(QPainter& painter, const SheetItem& item, const PagePlaces& places) {
    const QImage picture = ReadPicture(DataFiles(std::filesystem::path()), item.text);
    if (picture.isNull()) return;
    const QRectF room(places.At(item.x1, item.y1), places.At(item.x2, item.y2));
    QSizeF natural = QSizeF(picture.size()) * kPointsPerDot * kUnitsPerPoint;
    if (natural.width() > room.width() || natural.height() > room.height()) {
        natural.scale(room.size(), Qt::KeepAspectRatio);
    }
    painter.drawImage(QRectF(room.topLeft(), natural), picture);
}

using Kind = SheetItem::Kind;

void PaintItem(QPainter& painter, const Sheet& sheet, const SheetItem& item, const QRectF& page) {
    const PagePlaces places(page, item.scale);
    switch (item.kind) {
        case Kind::Line:
            painter.setPen(PenOf(item));
            painter.drawLine(places.At(item.x1, item.y1), places.At(item.x2, item.y2));
            break;
        case Kind::Circle:
            PaintCircle(painter, item, places);
            break;
        case Kind::Picture:
            PaintLogo(painter, item, places);
            break;
        case Kind::Text:
            PaintText(painter, sheet, item, places);
            break;
    }
}

std::vector<const SheetItem*> ItemsOf(const Sheet& sheet, Kind kind, bool on_chart) {
    std::vector<const SheetItem*> items;
    const QRectF frame = FrameOn(sheet.chart_scale);
    for (const SheetItem& item : sheet.Items()) {
        const bool inside = !on_chart || kind == Kind::Line || frame.contains(item.x1, item.y1);
        if (item.kind == kind && item.on_chart == on_chart && inside) items.push_back(&item);
    }
    return items;
}

WantedLabel WantedPlace(const SheetItem& label, const PagePlaces& places, const QFont& font) {
    const QPointF corner = places.At(label.x1, label.y1);
    return {corner.x(), corner.y() + QFontMetricsF(font).height() / 2,
            label.text, TextRole::MarkLabel,
            corner.x(), corner.y()};
}

// Labels of the process keep clear of each other, of the rings and of the chart's own texts.
LabelPlacer ProcessPlacer(const Sheet& sheet, const PrintedChart& chart, const QFont& font) {
    LabelPlacer placer = PlacerFor(font, chart.view);
    for (const LaidText& laid : chart.texts.Texts()) placer.KeepClear(laid.box);
    for (const ClearLine& line : chart.texts.Saturation()) placer.KeepClear(line);
    for (const SheetItem* mark : ItemsOf(sheet, Kind::Circle, true)) {
        const QPointF at = chart.places.At(mark->x1, mark->y1);
        const double reach = mark->radius * chart.places.UnitHeight() + kRim;
        placer.KeepClear(LabelBox{at.x(), at.y(), at.x(), at.y()}.Grown(reach));
    }
    for (const SheetItem* line : ItemsOf(sheet, Kind::Line, true)) {
        const QPointF from = chart.places.At(line->x1, line->y1);
        const QPointF to = chart.places.At(line->x2, line->y2);
        placer.Avoid({from.x(), from.y(), to.x(), to.y()});
    }
    return placer;
}

void PaintLabels(QPainter& painter, const Sheet& sheet, const PrintedChart& chart) {
    const auto labels = ItemsOf(sheet, Kind::Text, true);
    if (labels.empty()) return;
    const QFont font = FontOf(sheet, labels.front()->font_size, false);
    std::vector<WantedLabel> wanted;
    wanted.reserve(labels.size());
    for (const SheetItem* label : labels) {
        wanted.push_back(WantedPlace(*label, chart.places, font));
    }
    const auto placed = ProcessPlacer(sheet, chart, font).Place(wanted);
    for (std::size_t i = 0; i < placed.size(); ++i) {
        if (const auto leader = LeaderTo(placed[i], wanted[i])) {
            painter.setPen(QPen(Qt::black, kLeastLine));
            painter.drawLine(*leader);
        }
        const LabelBox& box = placed[i].box;
        PaintHaloedText(painter, {box.left, box.top}, box.bottom - box.top,
                        OneLine(labels[i]->text), font, Qt::black, Qt::white, kRim);
    }
}

// A process line ends at its marks and does not run through them, so lines come first.
void PaintProcess(QPainter& painter, const Sheet& sheet, const QRectF& page,
                  const PrintedChart& chart) {
    painter.save();
    painter.setClipRect(chart.places.Rect(FrameOn(sheet.chart_scale)));
    for (const Kind kind : {Kind::Line, Kind::Circle}) {
        for (const SheetItem* item : ItemsOf(sheet, kind, true)) {
            PaintItem(painter, sheet, *item, page);
        }
    }
    painter.restore();
    PaintLabels(painter, sheet, chart);
}

}  // namespace

void PaintSheet(QPainter& painter, const Sheet& sheet, const QRectF& printable,
                double units_per_point) {
    const double scale = units_per_point / kUnitsPerPoint;
    const QRectF page(QPointF(0, 0), printable.size() / scale);
    painter.save();
    painter.translate(printable.topLeft());
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    PaintProcess(painter, sheet, page, PaintChart(painter, sheet, page));
    for (const Kind kind : {Kind::Line, Kind::Circle, Kind::Picture, Kind::Text}) {
        for (const SheetItem* item : ItemsOf(sheet, kind, false)) {
            PaintItem(painter, sheet, *item, page);
        }
    }
    painter.restore();
}

}  // namespace zandrell
