#include "painter/svg_engine.h"

#include <QFontInfo>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include "canvas/svg_text.h"

namespace zandrell {
namespace {

constexpr double kMillimetresPerInch = 25.4, kPixelsPerInch = 96;

void AppendColour(std::string& text, const char* name, const QColor& colour) {
    AppendSvgAttribute(text, name, colour.name().toStdString());
    if (colour.alpha() == 255) return;
    AppendSvgAttribute(text, std::string(name) + "-opacity", colour.alphaF());
}

void AppendStroke(std::string& text, const QPen& pen) {
    const double width = pen.widthF() > 0 ? pen.widthF() : 1;
    AppendColour(text, "stroke", pen.color());
    AppendSvgAttribute(text, "stroke-width", width);
    const QList<qreal> dashes = pen.dashPattern();
    if (pen.style() == Qt::CustomDashLine && dashes.size() == 2) {
        AppendSvgDashes(text, dashes[0] * width, dashes[1] * width);
    }
    if (pen.capStyle() == Qt::RoundCap) AppendSvgAttribute(text, "stroke-linecap", "round");
    if (pen.capStyle() == Qt::SquareCap) AppendSvgAttribute(text, "stroke-linecap", "square");
    if (pen.joinStyle() == Qt::RoundJoin) AppendSvgAttribute(text, "stroke-linejoin", "round");
    if (pen.joinStyle() == Qt::BevelJoin) AppendSvgAttribute(text, "stroke-linejoin", "bevel");
}

std::string PathOf(const QPainterPath& path) {
    SvgPath data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element at = path.elementAt(i);
        if (at.isMoveTo()) {
            data.MoveTo(at.x, at.y);
        } else if (at.isLineTo()) {
            data.LineTo(at.x, at.y);
        } else if (i + 2 < path.elementCount()) {
            const QPointF in = path.elementAt(i + 1), end = path.elementAt(i + 2);
            data.CurveTo(at.x, at.y, in.x(), in.y(), end.x(), end.y());
            i += 2;
        }
    }
    return data.Text();
}

}  // namespace

SvgEngine::SvgEngine(QSize size)
    : QPaintEngine(PaintEngineFeatures(AllFeatures) & ~PaintEngineFeatures(PatternBrush)),
      size_(size) {}

SvgEngine* SvgEngine::Of(const QPainter& painter) {
    return dynamic_cast<SvgEngine*>(painter.paintEngine());
}

void SvgEngine::Shape(const char* tag, const std::string& geometry, bool filled) {
    body_ += '<';
    body_ += tag;
    const QBrush brush = state->brush();
    if (filled && brush.style() != Qt::NoBrush) {
        AppendColour(body_, "fill", brush.color());
    } else {
        AppendSvgAttribute(body_, "fill", "none");
    }
    if (state->pen().style() != Qt::NoPen) AppendStroke(body_, state->pen());
    body_ += geometry;
    body_ += "/>\n";
}

void SvgEngine::drawPath(const QPainterPath& path) {
    std::string geometry;
    AppendSvgAttribute(geometry, "d", PathOf(path));
    Shape("path", geometry, true);
}

void SvgEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
    if (count < 1) return;
    SvgPath data;
    data.MoveTo(points[0].x(), points[0].y());
    for (int i = 1; i < count; ++i) data.LineTo(points[i].x(), points[i].y());
    if (mode != PolylineMode) data.Close();
    std::string geometry;
    AppendSvgAttribute(geometry, "d", data.Text());
    Shape("path", geometry, mode != PolylineMode);
}

void SvgEngine::drawEllipse(const QRectF& rect) {
    std::string geometry;
    AppendSvgAttribute(geometry, "cx", rect.center().x());
    AppendSvgAttribute(geometry, "cy", rect.center().y());
    AppendSvgAttribute(geometry, "rx", rect.width() / 2);
    AppendSvgAttribute(geometry, "ry", rect.height() / 2);
    Shape("ellipse", geometry, true);
}

// Texts of one font follow each other, so a group says it once.
void SvgEngine::SetFont(const QFont& font) {
    if (in_group_ && font == font_) return;
    if (in_group_) body_ += "</g>\n";
    in_group_ = true;
    font_ = font;
    body_ += "<g";
    AppendSvgAttribute(body_, "font-family", font.family().toStdString());
    AppendSvgAttribute(body_, "font-size", QFontInfo(font).pixelSize());
    AppendSvgAttribute(body_, "font-weight", static_cast<double>(font.weight()));
    if (font.italic()) AppendSvgAttribute(body_, "font-style", "italic");
    body_ += ">\n";
}

void SvgEngine::drawTextItem(const QPointF& baseline, const QTextItem& item) {
    SetFont(item.font());
    body_ += "<text";
    AppendColour(body_, "fill", state->pen().color());
    AppendSvgAttribute(body_, "x", baseline.x());
    AppendSvgAttribute(body_, "y", baseline.y());
    AppendSvgAttribute(body_, "xml:space", "preserve");
    body_ += '>';
    AppendSvgText(body_, item.text().toStdString());
    body_ += "</text>\n";
}

// The text stands in the drawing once, so that a search finds it once, and is shown several times:
// as its rim all around, and over that as itself. A stroke would be shorter, but some viewers give
// none to a text.
void SvgEngine::HaloedText(QPointF baseline, const QString& text, const QFont& font,
                           const QColor& colour, const QColor& ground,
                           std::span<const QPointF> around) {
    SetFont(font);
    std::string name = "t";
    AppendSvgLength(name, ++named_);
    body_ += "<defs><text";
    AppendSvgAttribute(body_, "id", name);
    AppendSvgAttribute(body_, "x", baseline.x());
    AppendSvgAttribute(body_, "y", baseline.y());
    if (text.contains(QStringLiteral("  "))) AppendSvgAttribute(body_, "xml:space", "preserve");
    body_ += '>';
    AppendSvgText(body_, text.toStdString());
    body_ += "</text></defs><g";
    name.insert(name.begin(), '#');
    AppendColour(body_, "fill", ground);
    body_ += '>';
    for (const QPointF& aside : around) {
        body_ += "<use";
        AppendSvgAttribute(body_, "xlink:href", name);
        if (aside.x() != 0) AppendSvgAttribute(body_, "x", aside.x());
        if (aside.y() != 0) AppendSvgAttribute(body_, "y", aside.y());
        body_ += "/>";
    }
    body_ += "</g><use";
    AppendSvgAttribute(body_, "xlink:href", name);
    AppendColour(body_, "fill", colour);
    body_ += "/>\n";
}

QByteArray SvgEngine::Document() const {
    std::string head = R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink")";
    std::string width, height, box = "0 0 ";
    AppendSvgLength(width, size_.width() * kMillimetresPerInch / kPixelsPerInch);
    AppendSvgLength(height, size_.height() * kMillimetresPerInch / kPixelsPerInch);
    AppendSvgLength(box, size_.width());
    box += ' ';
    AppendSvgLength(box, size_.height());
    AppendSvgAttribute(head, "width", width + "mm");
    AppendSvgAttribute(head, "height", height + "mm");
    AppendSvgAttribute(head, "viewBox", box);
    head += ">\n<title>Zandrell</title>\n";
    return QByteArray::fromStdString(head + body_ + (in_group_ ? "</g>\n</svg>\n" : "</svg>\n"));
}

int SvgSheet::metric(PaintDeviceMetric metric) const {
    const auto millimetres = [](int pixels) {
        return static_cast<int>(pixels * kMillimetresPerInch / kPixelsPerInch);
    };
    switch (metric) {
        case PdmWidth:
            return size_.width();
        case PdmHeight:
            return size_.height();
        case PdmWidthMM:
            return millimetres(size_.width());
        case PdmHeightMM:
            return millimetres(size_.height());
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return static_cast<int>(kPixelsPerInch);
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmNumColors:
            return 1 << 24;
        case PdmDepth:
            return 24;
    }
    return 0;
}

}  // namespace zandrell
