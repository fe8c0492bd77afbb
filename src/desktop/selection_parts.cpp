#include "desktop/selection_parts.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "desktop/class_scale.h"
#include "desktop/look.h"
#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

constexpr int kPictureSide = 84;  // pixels at scale 1

QComboBox* ChoiceOf(const ComboBox& box, const Label& caption, FormMirror& mirror,
                    QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(5);
    mirror.Bind(combo, box);
    mirror.Describe(combo, caption);
    // To some readers the name of a choice is what is chosen.
    mirror.AddWriter([combo, &caption] {
        const QString words = ShownText(caption.text);
        if (combo->accessibleDescription() != words) combo->setAccessibleDescription(words);
    });
    return combo;
}

void AddFields(PlannerForm& planner, FormMirror& mirror, QGridLayout& grid, DutyColumn& column) {
    PanelBuilder build(mirror, column.panel);
    int row = grid.rowCount();
    for (const auto& field : planner.fields) {
        auto* caption = build.Caption(field->label);
        caption->setWordWrap(true);
        grid.addWidget(caption, row, 0);
        auto* edit = build.Field(field->field, field->label, {}, 5);
        edit->setFixedWidth(edit->sizeHint().width());
        grid.addWidget(edit, row++, 1, Qt::AlignRight);
        if (field->value != &SelectionDuty::capacity) continue;
        column.first_field = edit;
        grid.addWidget(build.Caption(planner.AirFlowLabel), row, 0);
        grid.addWidget(build.Figure(planner.AirFlow, planner.AirFlowLabel, {}, 6), row++, 1);
    }
}

void AddHeadings(VentZeigControls& c, PanelBuilder& build, QVBoxLayout& layout) {
    for (const Label* heading : {&c.PN19, &c.ventlabel}) {
        auto* label = build.Caption(*heading, true);
        label->setWordWrap(true);
        layout.addWidget(label);
    }
}

QBoxLayout* PictureAndClass(VentZeigControls& c, FormMirror& mirror, const Captions& captions,
                            QWidget* panel) {
    auto* row = new QHBoxLayout;
    auto* picture = new QLabel(panel);
    picture->setFixedSize(Scaled(*panel, kPictureSide), Scaled(*panel, kPictureSide));
    BindPicture(picture, c.Picture1, kPictureSide, mirror);
    row->addWidget(picture);
    auto* scale = new ClassScale(c.Picture5, c.R_Label, panel);
    mirror.AddWriter([scale, &c, &captions, shown = std::string("?")]() mutable {
        if (shown == c.R_Label.text) return;
        shown = c.R_Label.text;
        scale->setAccessibleName(ShownText(captions[Caption::EfficiencyClass]) + QLatin1Char(' ') +
                                 ShownText(shown));
        scale->setVisible(!shown.empty());
        scale->update();
    });
    row->addWidget(scale);
    QLabel* name = PanelBuilder(mirror, panel).Caption(c.R_Label, true);
    name->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    row->addWidget(name);
    row->addStretch(1);
    return row;
}

QGridLayout* FigurePairs(VentZeigControls& c, PanelBuilder& build) {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(4);
    const std::initializer_list<std::pair<Label*, Label*>> pairs = {
        {&c.Label13, &c.Label3},  {&c.Label15, &c.Label14}, {&c.Label29, &c.Label25},
        {&c.Label30, &c.Label26}, {&c.Label24, &c.Label23}, {&c.Label39, &c.relFeuchte},
        {&c.Label31, &c.Label27}, {&c.Label32, &c.Label28}, {&c.Label6, &c.GewLab},
        {&c.Label41, &c.RVol}};
    int line = 0;
    for (const auto& [label, figure] : pairs) {
        auto* caption = build.Caption(*label);
        caption->setWordWrap(true);
        grid->addWidget(caption, line, 0);
        grid->addWidget(build.Figure(*figure, *label, {}, 6), line++, 1);
    }
    grid->setColumnStretch(0, 1);
    return grid;
}

QWidget* Frequency(VentZeigControls& c, FormMirror& mirror) {
    auto* row = new QWidget;
    auto* grid = new QGridLayout(row);
    grid->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror, row);
    grid->addWidget(build.Caption(c.KPFreqLabel), 0, 0);
    grid->addWidget(build.Field(c.KPFreq, c.KPFreqLabel, {}, 5), 0, 1);
    grid->addWidget(build.BarOf(c.HScroll1, c.KPFreqLabel), 1, 0, 1, 2);
    auto* economizer = new QCheckBox(row);
    mirror.Bind(economizer, c.EcoCheck);
    grid->addWidget(economizer, 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    return row;
}

QWidget* Energy(VentZeigControls& c, FormMirror& mirror) {
    auto* group = new QGroupBox;
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(8, 8, 8, 8);
    PanelBuilder build(mirror, group);
    const struct {
        Label *caption, *figure, *unit;
    } rows[] = {{&c.Label38, &c.BetrKo, &c.Label34},
                {&c.Label19, &c.LeistZ, nullptr},
                {&c.Label46, &c.CO2consum, &c.Label33}};
    int line = 0;
    for (const auto& row : rows) {
        auto* caption = build.Caption(*row.caption);
        caption->setWordWrap(true);
        grid->addWidget(caption, line, 0);
        grid->addWidget(build.Figure(*row.figure, *row.caption, {}, 5), line, 1);
        if (row.unit) grid->addWidget(build.Caption(*row.unit), line, 2);
        ++line;
    }
    grid->setColumnStretch(0, 1);
    return group;
}

}  // namespace

QPushButton* TextButton(const Button& control, FormMirror& mirror, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setAutoDefault(false);
    mirror.Bind(button, control);
    return button;
}

void BindPicture(QLabel* label, const Panel& picture, int side, FormMirror& mirror) {
    const int pixels = Scaled(*label, side);
    Pictures& pictures = mirror.PictureStore();
    mirror.AddWriter([label, &picture, &pictures, pixels, shown = std::string("?")]() mutable {
        if (shown == picture.picture) return;
        shown = picture.picture;
        const QPixmap whole = pictures.Opaque(shown);
        label->setPixmap(whole.isNull() ? QPixmap()
                                        : whole.scaled(pixels, pixels, Qt::KeepAspectRatio,
                                                       Qt::SmoothTransformation));
    });
}

DutyColumn MakeDutyColumn(PlannerForm& planner, FormMirror& mirror) {
    DutyColumn column;
    column.panel = new QWidget;
    auto* grid = new QGridLayout(column.panel);
    grid->setContentsMargins(0, 0, 8, 0);
    grid->setVerticalSpacing(4);
    PanelBuilder build(mirror, column.panel);
    // The kind needs the whole width, and says itself what it is.
    grid->addWidget(ChoiceOf(planner.KindBox, planner.KindLabel, mirror, column.panel), 0, 0, 1, 2);
    grid->addWidget(build.Caption(planner.RefrigerantLabel), 1, 0);
    grid->addWidget(
        ChoiceOf(planner.RefrigerantBox, planner.RefrigerantLabel, mirror, column.panel), 1, 1);
    AddFields(planner, mirror, *grid, column);
    const int row = grid->rowCount();
    auto* message = build.Caption(planner.Message);
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(TextButton(planner.Apply, mirror, column.panel), row, 0, 1, 2);
    grid->addWidget(message, row + 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(row + 2, 1);
    return column;
}

QWidget* MakeUnitColumn(VentZeigControls& c, FormMirror& mirror, const Captions& captions) {
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(6, 0, 0, 0);
    layout->setSpacing(6);
    PanelBuilder build(mirror, panel);
    AddHeadings(c, build, *layout);
    layout->addLayout(PictureAndClass(c, mirror, captions, panel));
    layout->addLayout(FigurePairs(c, build));
    for (const Label* label : {&c.volStrLab, &c.wurfWLab, &c.FlLab, &c.LamALab, &c.DefrLab}) {
        layout->addWidget(build.Caption(*label));
    }
    auto* capacity = new FigureLabel(panel);
    capacity->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    capacity->setWordWrap(true);
    mirror.Bind(capacity, c.Label37_l);
    mirror.Describe(capacity, c.Label37);
    layout->addWidget(capacity);
    layout->addWidget(Frequency(c, mirror));
    layout->addWidget(Energy(c, mirror));
    layout->addStretch(1);
    return panel;
}

QWidget* MakeWishes(PlannerForm& planner, FormMirror& mirror) {
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(6, 0, 0, 0);
    layout->setSpacing(6);
    auto* hide = new QCheckBox(panel);
    mirror.Bind(hide, planner.HideUnfit);
    layout->addWidget(hide);
    for (const Button* button : {&planner.Compare, &planner.Plot, &planner.Csv}) {
        layout->addWidget(TextButton(*button, mirror, panel));
    }
    return panel;
}

}  // namespace zandrell
