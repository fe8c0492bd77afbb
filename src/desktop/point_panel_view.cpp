#include "desktop/point_panel_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/choice_button.h"
#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

const QString kFirst = QStringLiteral("1"), kSecond = QStringLiteral("2"),
              kMixture = QStringLiteral("1 + 2");

enum Column { kCaptionColumn, kFirstColumn, kSecondColumn, kMixtureColumn };

void AddHeads(PointPanel& panel, PanelBuilder& build, QGridLayout& grid) {
    for (const auto& [column, text] : {std::pair{kFirstColumn, kFirst}, {kSecondColumn, kSecond}}) {
        auto* head = build.Words(text, panel.Label35);
        MakeBold(head);
        grid.addWidget(head, 0, column, Qt::AlignCenter);
    }
    grid.addWidget(build.Caption(panel.mixture_label, true), 0, kMixtureColumn, Qt::AlignCenter);
}

// A row of the two typed figures with their bars, and the figure of the mixture.
void AddTypedRow(PanelBuilder& build, QGridLayout& grid, int row, const Label& caption,
                 const TextField& field1, const ScrollBar& bar1, const TextField& field2,
                 const ScrollBar& bar2, const Label* mixture) {
    grid.addWidget(build.Caption(caption), row, kCaptionColumn);
    grid.addWidget(build.Field(field1, caption, kFirst), row, kFirstColumn);
    grid.addWidget(build.Field(field2, caption, kSecond), row, kSecondColumn);
    if (mixture) grid.addWidget(build.Figure(*mixture, caption, kMixture), row, kMixtureColumn);
    grid.addWidget(build.BarOf(bar1, caption, kFirst), row + 1, kFirstColumn);
    grid.addWidget(build.BarOf(bar2, caption, kSecond), row + 1, kSecondColumn);
}

void AddFigureRow(PanelBuilder& build, QGridLayout& grid, int row, const Label& caption,
                  const Label& figure1, const Label& figure2, const Label* mixture) {
    grid.addWidget(build.Caption(caption), row, kCaptionColumn);
    grid.addWidget(build.Figure(figure1, caption, kFirst), row, kFirstColumn);
    grid.addWidget(build.Figure(figure2, caption, kSecond), row, kSecondColumn);
    if (mixture) grid.addWidget(build.Figure(*mixture, caption, kMixture), row, kMixtureColumn);
}

// The figures by which a state is given stand below those that follow, each under its word.
void AddEntryRows(const StateEntry& entry, PanelBuilder& build, QGridLayout& grid, int row,
                  int column, const QString& state) {
    for (const auto& [word, field] :
         {std::pair(&entry.first_word, &entry.first), {&entry.second_word, &entry.second}}) {
        grid.addWidget(build.Caption(*word), row, column);
        grid.addWidget(build.Field(*field, *word, state), row + 1, column);
        row += 2;
    }
}

QGridLayout* MakeStateGrid(PointPanel& panel, PanelBuilder& build, FormMirror& mirror,
                           QWidget* parent) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);
    AddHeads(panel, build, *grid);
    for (const auto& [entry, column, state] : {std::tuple{&panel.entry1, kFirstColumn, kFirst},
                                               {&panel.entry2, kSecondColumn, kSecond}}) {
        auto* button = MakeChoiceButton(entry->choice, state, mirror, parent);
        mirror.Follow(button, panel.Label35);
        grid->addWidget(button, 1, column, Qt::AlignCenter);
    }
    AddTypedRow(build, *grid, 2, panel.Label35, panel.Temp1, panel.Tscroll1, panel.Temp2,
                panel.Tscroll2, &panel.TempM);
    AddTypedRow(build, *grid, 4, panel.Label36, panel.relF1, panel.FScroll1, panel.relF2,
                panel.FScroll2, &panel.relFM);
    AddFigureRow(build, *grid, 6, panel.label37, panel.absF1, panel.absF2, &panel.absFM);
    AddFigureRow(build, *grid, 7, panel.enthPN, panel.enth1, panel.enth2, nullptr);
    AddEntryRows(panel.entry1, build, *grid, 8, kFirstColumn, kFirst);
    AddEntryRows(panel.entry2, build, *grid, 8, kSecondColumn, kSecond);
    AddTypedRow(build, *grid, 12, panel.Label33, panel.LuftM1, panel.VScroll1, panel.LuftM2,
                panel.Vscroll2, nullptr);
    grid->setColumnStretch(kCaptionColumn, 1);
    return grid;
}

QWidget* MakeCapacityPanel(PointPanel& panel, FormMirror& mirror, QWidget* parent) {
    PanelBuilder build(mirror, parent);
    auto* grid = build.InnerGrid(panel.Panel3D9, panel.capacity_label, 3);
    grid->addWidget(build.Caption(panel.capacity_label), 0, 0);
    grid->addWidget(build.Field(panel.Kleist, panel.capacity_label), 0, 1);
    auto* volume = build.PictureButton(panel.VolBer, &panel.VolBer_l);
    grid->addWidget(volume, 0, 2);
    int row = 1;
    for (const auto& [caption, figure] : {std::pair{&panel.latent_label, &panel.KLatent},
                                          {&panel.sensible_label, &panel.Ksensibel},
                                          {&panel.water_label, &panel.KondW}}) {
        grid->addWidget(build.Caption(*caption), row, 0);
        grid->addWidget(build.Figure(*figure, *caption), row, 1);
        ++row;
    }
    grid->setColumnStretch(0, 1);
    return grid->parentWidget();
}

QHBoxLayout* MakeFooter(PointPanel& panel, PanelBuilder& build, const MenuEntry& heat_recovery) {
    auto* row = new QHBoxLayout;
    row->addWidget(build.PictureButton(panel.wrgButt, &heat_recovery));
    row->addStretch(1);
    row->addWidget(build.PictureButton(panel.Command3D4));
    row->addWidget(build.PictureButton(panel.abbcom));
    return row;
}

}  // namespace

FloatingPanel* MakePointPanelView(MainForm& form, FormMirror& mirror, ChartWidget& chart) {
    PointPanel& panel = form.processes.point;
    auto* view = new FloatingPanel(form, panel.Anlage1PN, mirror, chart, panel.abbcom.name);
    UsePanelFont(view);
    PanelBuilder build(mirror, view);
    auto* layout = build.TitledLayout(panel.Label15, panel.tool_name, panel.Picture3, panel.abbcom,
                                      FloatingPanel::kShadow);
    auto* content = new QWidget(view);
    build.SetParent(content);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(layout->spacing());
    column->addLayout(MakeStateGrid(panel, build, mirror, content));
    column->addWidget(MakeCapacityPanel(panel, mirror, content));
    column->addLayout(MakeFooter(panel, build, form.controls.wrgEinst));
    view->SetContent(content);
    mirror.Describe(view, panel.Label15);
    return view;
}

}  // namespace zandrell
