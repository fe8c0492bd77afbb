#include "desktop/tool_column.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/floating_panel.h"
#include "desktop/look.h"
#include "desktop/look_colours.h"
#include "desktop/panel_builder.h"
#include "desktop/tool_keys.h"

namespace zandrell {
namespace {

constexpr int kLeastWidth = 173;                      // pixels at scale 1
constexpr int kToolIcon = 28, kCompactToolIcon = 20;  // pixels at scale 1
constexpr int kLongestProjectText = 32767;            // what an edit would cut off would be lost

// The name of a tool's key stands behind its tool tip.
void AddShortcut(QPushButton* button, const Button& picture, FormMirror& mirror) {
    const auto* row = std::ranges::find(kToolKeys, picture.name, &ToolKey::button);
    if (row == kToolKeys.end()) return;
    const QKeySequence sequence{row->key};
    auto* shortcut = new QShortcut(sequence, button);
    QObject::connect(shortcut, &QShortcut::activated, button,
                     [&mirror, name = picture.name] { mirror.Click(name); });
    button->setProperty("key", sequence.toString(QKeySequence::NativeText));
}

}  // namespace

ToolColumn::ToolColumn(MainForm& form, FormMirror& mirror, bool compact, QWidget* parent)
    : QWidget(parent), form_(form), mirror_(mirror), compact_(compact) {
    setMinimumWidth(Scaled(*this, kLeastWidth));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    mirror.BindPanel(this, form.controls.FunktButtPn);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(compact_ ? 4 : 8);
    layout->addWidget(MakeToolButtons());
    layout->addStretch(1);
    layout->addWidget(MakeReadOut());
    layout->addStretch(1);
    layout->addWidget(MakeProjectTexts());
    layout->addWidget(MakeEndButtons());
}

QWidget* ToolColumn::MakeToolButtons() {
    auto* group = new QWidget(this);
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    const auto add = [&](const Button& picture, const Button* caption) {
        auto* button = new QPushButton(group);
        button->setProperty("tool", true);
        button->setProperty("skinned", mirror_.SkinTexts());
        button->setIconSize(QSize(1, 1) * Scaled(*button, compact_ ? kCompactToolIcon : kToolIcon));
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        mirror_.Bind(button, picture, caption);
        layout->addWidget(button);
        return button;
    };
    for (ToolButton* tool : form_.controls.ToolButtons()) {
        AddShortcut(add(tool->picture, &tool->caption), tool->picture, mirror_);
    }
    // Its place is kept while it is hidden, so that nothing jumps when the chart is zoomed.
    auto* zoom = add(form_.controls.ZOOMMIN, nullptr);
    AddShortcut(zoom, form_.controls.ZOOMMIN, mirror_);
    QSizePolicy policy = zoom->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    zoom->setSizePolicy(policy);
    return group;
}

QWidget* ToolColumn::MakeReadOut() {
    auto& read_out = form_.read_out;
    auto& words = form_.controls;
    auto* panel = new InnerPanel(read_out.Pn1, mirror_.PictureStore(), this);
    mirror_.BindPanel(panel, read_out.Pn1);
    panel->setAccessibleName(ShownText(form_.captions[Caption::StateUnderPointer]));
    QSizePolicy policy = panel->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    panel->setSizePolicy(policy);
    PanelBuilder build(mirror_, panel);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(compact_ ? 0 : 3);
    auto* heading = build.Caption(words.Label7);
    heading->setProperty("role", QStringLiteral("band"));
    MakeBold(heading);
    grid->addWidget(heading, 0, 0, 1, 2);
    int row = 1;
    for (const auto& figure : read_out.rows) {
        grid->addWidget(build.Caption(figure.word), row, 0);
        grid->addWidget(build.Figure(*figure.figure, figure.word, {}, 6), row, 1);
        ++row;
    }
    grid->setColumnStretch(0, 1);
    return panel;
}

QWidget* ToolColumn::MakeProjectTexts() {
    auto& controls = form_.controls;
    auto* group = new QWidget(this);
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    PanelBuilder build(mirror_, group);
    for (const auto& [caption, field] :
         {std::pair{&controls.Label24, &controls.Proj_T}, {&controls.Label25, &controls.Schr_T}}) {
        layout->addWidget(build.Caption(*caption));
        auto* edit = build.Field(*field, *caption);
        edit->setAlignment(Qt::AlignLeft);
        edit->setMaxLength(kLongestProjectText);
        layout->addWidget(edit);
    }
    return group;
}

QWidget* ToolColumn::MakeEndButtons() {
    auto& controls = form_.controls;
    auto* group = new QWidget(this);
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, group);
    auto* vendor = build.Caption(controls.Label19);
    vendor->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(vendor, 1);
    auto* printer = build.QuietButton(controls.mPributt);
    mirror_.Describe(printer, controls.druckbutt.caption);
    layout->addWidget(printer);
    layout->addWidget(build.QuietButton(controls.Command3D7));
    layout->addWidget(build.QuietButton(controls.Command3D2));
    return group;
}

void ToolColumn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPanelGround(painter, QRectF(rect()), 0, form_.controls.FunktButtPn.picture,
                     mirror_.PictureStore(), palette().color(QPalette::Window));
    painter.fillRect(QRect(0, 0, 1, height()), ColourOf(LookColour::Hairline));
}

}  // namespace zandrell
