#pragma once

#include <QSlider>
#include <QString>
#include <functional>

namespace zandrell {

// What a caption says: the quantity and, where it tells one, the unit in brackets.
struct CaptionParts {
    QString quantity, unit;
};
CaptionParts PartsOf(const QString& caption);

// A bar that tells its value as the field beside it shows it, not in its own units.
class Bar : public QSlider {
  public:
    explicit Bar(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}
    // Its least width: a layout that hears of less than that gives less.
    QSize sizeHint() const override { return {minimumWidth(), QSlider::sizeHint().height()}; }
    std::function<QString()> value_text;  // with the unit
    std::function<int()> units_per_value;
};

// Lets screen readers find figures with name, value and unit, bars with their value, and the chart
// with the state under the pointer. Once for the application.
void InstallAccessibles();

}  // namespace zandrell
