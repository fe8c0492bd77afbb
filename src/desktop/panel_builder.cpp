#include "desktop/panel_builder.h"

#include <QFontMetrics>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/floating_panel.h"

namespace zandrell {
namespace {

constexpr double kPanelFontShare = 0.94;
constexpr int kRoomyWindow = 1280;  // pixels
constexpr int kLeastBarWidth = 64, kLongBarWidth = 162, kIconSize = 20,
              kQuietSize = 28;  // pixels at scale 1

int WidthOfDigits(const QWidget& widget, int digits) {
    return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits + Scaled(widget, 18);
}

QSize IconSize(const QWidget& widget) { return QSize(1, 1) * Scaled(widget, kIconSize); }

}  // namespace

QLabel* PanelBuilder::Caption(const Control& control, bool heading) {
    auto* label = new QLabel(parent_);
    if (heading) MakeBold(label);
    mirror_.Bind(label, control);
    return label;
}

QGridLayout* PanelBuilder::InnerGrid(const Panel& panel, const Control& name, int spacing) {
    auto* inner = new InnerPanel(panel, mirror_.PictureStore(), parent_);
    mirror_.BindPanel(inner, panel);
    mirror_.Describe(inner, name);
    SetParent(inner);
    auto* grid = new QGridLayout(inner);
    grid->setContentsMargins(10, 8, 10, 8);
    grid->setVerticalSpacing(spacing);
    return grid;
}

QLabel* PanelBuilder::Words(const QString& text, const Control& like) {
    auto* label = new QLabel(text, parent_);
    mirror_.Follow(label, like);
    return label;
}

QLineEdit* PanelBuilder::Field(const TextField& control, const Control& caption,
                               const QString& addition, int digits) {
    auto* field = new FigureField(digits, parent_);
    field->setAlignment(Qt::AlignRight);
    field->setMaxLength(40);
    mirror_.Bind(field, control);
    mirror_.Describe(field, caption, addition);
    return field;
}

FigureLabel* PanelBuilder::Figure(const Label& control, const Control& caption,
                                  const QString& addition, int digits) {
    auto* figure = new FigureLabel(parent_);
    figure->setMinimumWidth(WidthOfDigits(*figure, digits));
    mirror_.Bind(figure, control);
    mirror_.Describe(figure, caption, addition);
    return figure;
}

QSlider* PanelBuilder::BarOf(const ScrollBar& control, const Control& caption,
                             const QString& addition) {
    auto* bar = new Bar(parent_);
    // Bars of flows count in hundredths of the flow that was typed last, the others in tenths.
    const auto counts_tenths = [bar] {
        const QString unit = bar->property("unit").toString();
        return unit == QString::fromUtf8("°C") || unit == QLatin1String("%");
    };
    bar->units_per_value = [counts_tenths] {
        return counts_tenths() ? static_cast<int>(kBarUnitsPerField) : 1;
    };
    bar->value_text = [bar, &control, counts_tenths] {
        const bool tenths = counts_tenths();
        const QString named = bar->property("unit").toString();
        const bool frequency = named == QLatin1String("Hz");
        const QString unit = tenths || frequency ? named : QStringLiteral("%");
        const std::string value = tenths ? control.TenthsText() : control.PositionText();
        return ShownText(value) + QLatin1Char(' ') + unit;
    };
    const bool roomy = parent_->window()->width() >= kRoomyWindow;
    const int least = Scaled(*bar, roomy ? kLongBarWidth : kLeastBarWidth);
    bar->setMinimumWidth(roomy ? std::max(least, kLongBarWidth) : least);
    bar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    mirror_.Bind(bar, control);
    mirror_.Describe(bar, caption, addition);
    return bar;
}

QRadioButton* PanelBuilder::Option(const OptionButton& control) {
    auto* option = new QRadioButton(parent_);
    mirror_.Bind(option, control);
    return option;
}

QPushButton* PanelBuilder::PictureButton(const Button& picture, const Control* caption) {
    auto* button = new QPushButton(parent_);
    button->setIconSize(IconSize(*button));
    button->setAutoDefault(false);
    mirror_.Bind(button, picture, caption);
    return button;
}

QPushButton* PanelBuilder::QuietButton(const Button& picture) {
    auto* button = new QPushButton(parent_);
    button->setProperty("quiet", true);
    button->setProperty("picture_only", true);
    button->setIconSize(IconSize(*button));
    button->setAutoDefault(false);
    button->setFixedSize(QSize(1, 1) * Scaled(*button, kQuietSize));
    mirror_.Bind(button, picture);
    return button;
}

QVBoxLayout* PanelBuilder::TitledLayout(const Label& title, const Label& tool, const Button& close,
                                        const Button& cancel, int shadow) {
    auto* row = new QHBoxLayout;
    row->addWidget(Caption(title, true), 1);
    auto* cross = QuietButton(close);
    cross->setText(QStringLiteral("×"));
    mirror_.Follow(cross, title);
    mirror_.Describe(cross, cancel);
    row->addWidget(cross);
    auto* layout = new QVBoxLayout(parent_);
    layout->setContentsMargins(shadow + 12, shadow + 6, shadow + 12, shadow + 10);
    layout->setSpacing(6);
    layout->addLayout(row);
    layout->addWidget(Caption(tool, true));
    return layout;
}

void UsePanelFont(QWidget* panel) {
    QFont font = panel->font();
    font.setPointSizeF(kPanelFontShare * font.pointSizeF());
    panel->setFont(font);
}

}  // namespace zandrell
