#pragma once

#include <QByteArray>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QSize>
#include <span>
#include <string>

namespace zandrell {

// Writes what is painted as a scalable drawing, in few bytes: steps from point to point in
// hundredths of a pixel, and a text with a rim once. Knows what charts are made of: rectangles,
// lines, also with one dash and one gap, paths, ellipses and texts in solid colours, in pixels of
// the drawing.
class SvgEngine : public QPaintEngine {
  public:
    explicit SvgEngine(QSize size);

    // That of a painter; null when it paints on something else.
    static SvgEngine* Of(const QPainter& painter);

    // A text over a rim: over copies of it in the colour of the ground, moved `around`.
    void HaloedText(QPointF baseline, const QString& text, const QFont& font, const QColor& colour,
                    const QColor& ground, std::span<const QPointF> around);

    // The whole document. Requires: the painter has ended.
    QByteArray Document() const;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    using QPaintEngine::drawEllipse;
    using QPaintEngine::drawPolygon;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawEllipse(const QRectF& rect) override;
    void drawTextItem(const QPointF& baseline, const QTextItem& item) override;
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    Type type() const override { return User; }

  private:
    void Shape(const char* tag, const std::string& geometry, bool filled);
    void SetFont(const QFont& font);

    QSize size_;
    std::string body_;
    QFont font_;  // of the group that is open
    bool in_group_ = false;
    int named_ = 0;
};

// A sheet of that size, to be painted on.
class SvgSheet : public QPaintDevice {
  public:
    explicit SvgSheet(QSize size) : size_(size), engine_(size) {}
    QPaintEngine* paintEngine() const override { return &engine_; }
    QByteArray Document() const { return engine_.Document(); }

  protected:
    int metric(PaintDeviceMetric metric) const override;

  private:
    QSize size_;
    mutable SvgEngine engine_;
};

}  // namespace zandrell
