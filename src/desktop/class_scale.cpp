#include "desktop/class_scale.h"

#include <QPainter>
#include <array>

#include "desktop/form_mirror.h"
#include "desktop/look.h"
#include "desktop/look_colours.h"

namespace zandrell {
namespace {

struct Step {
    const char* name;
    std::uint32_t colour;
};

// The last one holds two classes, as the places of the mark do.
constexpr std::array<Step, 5> kSteps = {
    {{"A++ A+", 0x8CCB86}, {"A", 0xB9DE93}, {"B", 0xE8E28A}, {"C", 0xF0C77E}, {"D E", 0xEFA08E}}};
constexpr int kTopOfFirst = 60, kTopOfLast = 2135;  // twips of the mark
constexpr int kStepHeight = 17, kScaleWidth = 118;  // pixels at scale 1

}  // namespace

ClassScale::ClassScale(const Panel& mark, const Label& name, QWidget* parent)
    : QWidget(parent), mark_(mark), name_(name) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ClassScale::sizeHint() const {
    return {Scaled(*this, kScaleWidth),
            static_cast<int>(kSteps.size()) * Scaled(*this, kStepHeight)};
}

void ClassScale::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double step = height() / static_cast<double>(kSteps.size());
    for (std::size_t i = 0; i < kSteps.size(); ++i) {
        const double y = static_cast<double>(i) * step;
        const double length = (0.54 + 0.07 * static_cast<double>(i)) * width();
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(QRgb{kSteps[i].colour}));
        painter.drawRoundedRect(QRectF(0, y + 1, length, step - 2), 2, 2);
        painter.setPen(ColourOf(LookColour::Ink, LookScheme::Light));
        painter.drawText(QRectF(6, y, length, step), Qt::AlignVCenter,
                         QString::fromLatin1(kSteps[i].name));
    }
    if (name_.text.empty()) return;
    const double share = (mark_.top - kTopOfFirst) / (kTopOfLast - kTopOfFirst);
    const double y = share * step * static_cast<double>(kSteps.size() - 1) + step / 2;
    const double x = 0.86 * width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColourOf(LookColour::Ink));
    painter.drawPolygon(QPolygonF({{x, y}, {x + 9, y - 6}, {x + 9, y + 6}}));
}

}  // namespace zandrell
