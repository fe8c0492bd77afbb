#include "desktop/plant_panel_view.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

constexpr int kWideWindow = 1150;  // pixels from which results stand beside the inputs

// One kind of air: its name, temperature and humidity with their bars.
struct AirRow {
    const Label& name;
    const Label& temperature_caption;
    const TextField& temperature;
    const ScrollBar* temperature_bar;
    const Label& humidity_caption;
    const TextField& humidity;
    const ScrollBar* humidity_bar;
};

void AddAirRow(PanelBuilder& build, QGridLayout& grid, int row, const AirRow& air) {
    // In brackets, where a caption has its unit.
    const QString temperature = QStringLiteral("t [°C]"), humidity = QStringLiteral("φ [%]");
    grid.addWidget(build.Caption(air.name, true), row, 0);
    grid.addWidget(build.Caption(air.temperature_caption), row, 1);
    grid.addWidget(build.Field(air.temperature, air.name, temperature, 5), row, 2);
    if (air.temperature_bar) {
        grid.addWidget(build.BarOf(*air.temperature_bar, air.name, temperature), row, 3);
    }
    grid.addWidget(build.Caption(air.humidity_caption), row, 4);
    grid.addWidget(build.Field(air.humidity, air.name, humidity, 5), row, 5);
    if (air.humidity_bar) {
        grid.addWidget(build.BarOf(*air.humidity_bar, air.name, humidity), row, 6);
    }
}

QWidget* MakeAirPanel(PlantPanel& panel, FormMirror& mirror, QWidget* parent) {
    auto* inner = new InnerPanel(panel.Panel3D2, mirror.PictureStore(), parent);
    mirror.BindPanel(inner, panel.Panel3D2);
    PanelBuilder build(mirror, inner);
    auto* grid = new QGridLayout(inner);
    grid->setContentsMargins(10, 8, 10, 8);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    const AirRow rows[] = {
        {panel.exhaust_label, panel.Label34, panel.tabLuft, &panel.tabScroll, panel.Label57,
         panel.PHIAbluft, &panel.PHIAbscroll},
        {panel.outside_label, panel.Label38, panel.Taus, &panel.taScroll, panel.Label43,
         panel.PhiAussen, &panel.Phiaussenscroll},
        {panel.supply_label, panel.Label39, panel.TZuluft, &panel.tzuScroll, panel.Label56,
         panel.PHIZuluft, &panel.PhiZuscroll},
        {panel.coil_label, panel.coil_temperature_label, panel.tKA, nullptr, panel.Label11,
         panel.phiKanal, nullptr},
    };
    int row = 0;
    for (const AirRow& air : rows) AddAirRow(build, *grid, row++, air);
    grid->addWidget(build.Words(QStringLiteral("%"), panel.Label11), row - 1, 6);
    grid->setColumnStretch(3, 1);
    grid->setColumnStretch(6, 1);
    return inner;
}

QGridLayout* MakeFlowGrid(PlantPanel& panel, PanelBuilder& build) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(10, 0, 10, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    struct Entry {
        const Label& caption;
        const TextField& field;
        int row, column;
    };
    const Entry entries[] = {
        {panel.flow_label, panel.vhAnlage, 0, 0},
        {panel.ratio_label, panel.aussenAnt, 1, 0},
        {panel.supply_fan_label, panel.dtVent1, 2, 0},
        {panel.inner_flow_label, panel.vhinnen, 0, 3},
        {panel.outer_flow_label, panel.vhaussen, 1, 3},
        {panel.return_fan_label, panel.dtVent2, 2, 3},
    };
    for (const Entry& entry : entries) {
        grid->addWidget(build.Caption(entry.caption), entry.row, entry.column);
        grid->addWidget(build.Field(entry.field, entry.caption, {}, 6), entry.row,
                        entry.column + 1);
    }
    // The ratio counts against one part of outer air.
    grid->addWidget(build.Words(QStringLiteral(": 1"), panel.ratio_label), 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

QHBoxLayout* MakeHumidifierRow(PlantPanel& panel, PanelBuilder& build, QWidget* parent) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(10, 0, 10, 0);
    row->addWidget(build.Caption(panel.humidifier_label));
    auto* kinds = new QButtonGroup(parent);
    for (const OptionButton* option : {&panel.Option3D3, &panel.Option3D4}) {
        auto* button = build.Option(*option);
        kinds->addButton(button);
        row->addWidget(button);
    }
    row->addStretch(1);
    return row;
}

QWidget* MakeResultPanel(PlantPanel& panel, FormMirror& mirror, QWidget* parent) {
    PanelBuilder build(mirror, parent);
    auto* grid = build.InnerGrid(panel.Panel3D10, panel.room_label, 4);
    grid->addWidget(build.Caption(panel.room_label, true), 0, 0, 1, 2);
    int row = 1;
    for (const auto& [caption, figure] : {std::pair{&panel.room_total_label, &panel.RaumLeist},
                                          {&panel.room_sensible_label, &panel.RaumSensLeist},
                                          {&panel.room_latent_label, &panel.RaumLatLeist},
                                          {&panel.room_water_label, &panel.RaumWasserLeist},
                                          {&panel.cooler_label, &panel.Kuehl},
                                          {&panel.heater_label, &panel.Heiz2},
                                          {&panel.humidifier_label, &panel.Bef}}) {
        if (row == 5) grid->setRowMinimumHeight(row++, 6);
        grid->addWidget(build.Caption(*caption), row, 0);
        grid->addWidget(build.Figure(*figure, *caption, {}, 9), row, 1);
        ++row;
    }
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(0, 1);
    return grid->parentWidget();
}

QHBoxLayout* MakeFooter(PlantPanel& panel, const MainControls& controls, PanelBuilder& build,
                        FormMirror& mirror) {
    auto* row = new QHBoxLayout;
    auto* printer = build.QuietButton(controls.mPributt_2);
    mirror.Describe(printer, controls.druckbutt.caption);
    row->addWidget(printer);
    row->addStretch(1);
    row->addWidget(build.PictureButton(panel.Command3D6, &panel.Command3D6_l));
    row->addWidget(build.PictureButton(panel.AnlageAbButt, &panel.AnlageAbButt_l));
    return row;
}

}  // namespace

FloatingPanel* MakePlantPanelView(MainForm& form, FormMirror& mirror, ChartWidget& chart) {
    PlantPanel& panel = form.processes.plant;
    auto* view = new FloatingPanel(form, panel.Frame1, mirror, chart, panel.AnlageAbButt.name);
    UsePanelFont(view);
    PanelBuilder build(mirror, view);
    build.TitledLayout(panel.Label16, panel.tool_name, panel.Picture12, panel.AnlageAbButt,
                       FloatingPanel::kShadow);
    auto* content = new QWidget(view);
    build.SetParent(content);
    auto* body = new QHBoxLayout(content);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(10);
    auto* inputs = new QVBoxLayout;
    inputs->addWidget(MakeAirPanel(panel, mirror, content));
    inputs->addLayout(MakeFlowGrid(panel, build));
    inputs->addLayout(MakeHumidifierRow(panel, build, content));
    auto* results = new QVBoxLayout;
    results->addWidget(MakeResultPanel(panel, mirror, content), 1);
    results->addLayout(MakeFooter(panel, form.controls, build, mirror));
    body->addLayout(inputs, 1);
    body->addLayout(results);
    view->SetContent(content);
    mirror.Describe(view, panel.Label16);
    view->arrange = [view, body, fitted = QSize()](QSize room) mutable {
        if (fitted == room) return;
        fitted = room;
        // The results stand beside the inputs where the window has the width for both.
        body->setDirection(QBoxLayout::LeftToRight);
        const int beside = body->sizeHint().width() + view->layout()->contentsMargins().left() +
                           view->layout()->contentsMargins().right();
        if (view->window()->width() < kWideWindow || beside > room.width()) {
            body->setDirection(QBoxLayout::TopToBottom);
        }
    };
    return view;
}

}  // namespace zandrell
