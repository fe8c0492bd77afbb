#include "desktop/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QRegularExpression>

#include "desktop/chart_widget.h"
#include "desktop/floating_panel.h"
#include "desktop/look.h"

namespace zandrell {
namespace {

QString WithUnit(const QString& value, const QObject& widget) {
    const QString unit = widget.property("unit").toString();
    return value.isEmpty() || unit.isEmpty() ? value : value + QLatin1Char(' ') + unit;
}

class AccessibleFigure : public QAccessibleWidget {
  public:
    explicit AccessibleFigure(FigureLabel& figure)
        : QAccessibleWidget(&figure, QAccessible::StaticText) {}
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
        return WithUnit(static_cast<const FigureLabel*>(widget())->text(), *widget());
    }
};

class AccessibleChart : public QAccessibleWidget {
  public:
    explicit AccessibleChart(ChartWidget& chart) : QAccessibleWidget(&chart, QAccessible::Chart) {}
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
        return static_cast<const ChartWidget*>(widget())->StateUnderPointer();
    }
};

class AccessibleBar : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleBar(Bar& bar) : QAccessibleWidget(&bar, QAccessible::Slider), bar_(bar) {}
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
        return bar_.value_text ? bar_.value_text() : QString();
    }
    QVariant currentValue() const override { return bar_.value() / Units(); }
    void setCurrentValue(const QVariant& value) override {
        bar_.setSliderPosition(qRound(value.toReal() * Units()));
    }
    QVariant maximumValue() const override { return bar_.maximum() / Units(); }
    QVariant minimumValue() const override { return bar_.minimum() / Units(); }
    QVariant minimumStepSize() const override { return 1 / Units(); }

  private:
    double Units() const { return bar_.units_per_value ? bar_.units_per_value() : 1; }

    Bar& bar_;
};

QAccessibleInterface* Make(const QString&, QObject* object) {
    if (auto* figure = dynamic_cast<FigureLabel*>(object)) return new AccessibleFigure(*figure);
    if (auto* bar = dynamic_cast<Bar*>(object)) return new AccessibleBar(*bar);
    if (auto* chart = dynamic_cast<ChartWidget*>(object)) return new AccessibleChart(*chart);
    if (auto* panel = dynamic_cast<FloatingPanel*>(object)) {
        return new QAccessibleWidget(panel, QAccessible::Grouping);
    }
    return nullptr;
}

}  // namespace

CaptionParts PartsOf(const QString& caption) {
    static const QRegularExpression bracket(QStringLiteral(R"(\s*/?\s*\[([^\]]+)\])"));
    CaptionParts parts{caption, {}};
    const auto match = bracket.match(caption);
    if (match.hasMatch()) {
        parts.unit = match.captured(1);
        parts.quantity.remove(match.capturedStart(), match.capturedLength());
    }
    parts.quantity.remove(QLatin1Char(':'));
    parts.quantity = parts.quantity.simplified();
    return parts;
}

void InstallAccessibles() {
    QAccessible::removeFactory(Make);
    QAccessible::installFactory(Make);
}

}  // namespace zandrell
