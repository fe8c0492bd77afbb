#include "shell/panel_keeper.h"

namespace zandrell {
namespace {

constexpr int kTwipsPerPixel = 15;
// The panels as designed, in twips, and how much room is left around them.
constexpr double kPointPanelSize = 6400;
constexpr double kPlantPanelHeight = 5500, kPlantPanelWidth = 11500;
// On the Carrier chart, whose lower right corner is full, in canvas units.
constexpr double kCornerOnCarrier = 5;

}  // namespace

PanelKeeper::PanelKeeper(SharedValues& shared, ChartEngine& chart, Overlay& overlay,
                         ProcessPanels& processes, PointerMachine& pointer, Panel& outline)
    : shared_(shared),
      chart_(chart),
      overlay_(overlay),
      processes_(processes),
      pointer_(pointer),
      outline_(outline) {}

void PanelKeeper::Resize(int width, int height) {
    width_twips_ = width * kTwipsPerPixel;
    height_twips_ = height * kTwipsPerPixel;
    twips_per_unit_x_ = width_twips_ / (chart_.BreiteLogisch * ToolColumnShare(width_twips_));
    twips_per_unit_y_ = static_cast<double>(height_twips_) / chart_.HoeheLogisch;
    if (!point_panel_moved_) PlacePointPanel();
    if (!plant_panel_moved_) PlacePlantPanel();
}

void PanelKeeper::PlaceFromCorner(Panel& panel, double left_of, double above) {
    const bool mollier = chart_.settings.DiagrammArt == kMollier;
    panel.top = mollier ? (height_twips_ - above) / twips_per_unit_y_ : kCornerOnCarrier;
    panel.left = mollier ? (width_twips_ - left_of) / twips_per_unit_x_ : kCornerOnCarrier;
}

void PanelKeeper::PlacePointPanel() {
    PlaceFromCorner(processes_.point.Anlage1PN, 1.4 * kPointPanelSize, 1.2 * kPointPanelSize);
}

void PanelKeeper::PlacePlantPanel() {
    PlaceFromCorner(processes_.plant.Frame1, 1.2 * kPlantPanelWidth, 1.1 * kPlantPanelHeight);
}

void PanelKeeper::OpenPointPanel(Calculation mode, bool calculate) {
    pointer_.PanelOpened(PointerOwner::PointPanel);
    processes_.plant.Frame1.visible = false;
    processes_.Rechenmodus = mode;
    if (!point_panel_moved_) PlacePointPanel();
    processes_.point.ShowForMode(mode);
    if (calculate) processes_.point.ZustandRechnen(mode, MarkPlacing::FromFields);
}

bool PanelKeeper::MayCalculate() const {
    return pointer_.PanelZustand() != PointerOwner::PointPanel;
}

bool PanelKeeper::MayOpenTool() const {
    return MayCalculate() && pointer_.PanelZustand() != PointerOwner::PlantPanel;
}

bool PanelKeeper::IsOpen() const {
    return processes_.point.Anlage1PN.visible || processes_.plant.Frame1.visible;
}

void PanelKeeper::OpenTool(Calculation mode) {
    if (!MayOpenTool()) return;
    OpenPointPanel(mode, true);
    // The one tool behind which an activation is no echo.
    if (mode == Calculation::WaterHumidifier) shared_.ZurueckVomDialog = DialogEcho::None;
}

void PanelKeeper::AnlageOeffnen() {
    if (!MayCalculate()) return;
    pointer_.PanelOpened(PointerOwner::PlantPanel);
    processes_.point.Anlage1PN.visible = false;
    if (!plant_panel_moved_) PlacePlantPanel();
    processes_.plant.Frame1.visible = true;
    processes_.plant.TakeBarsFromFields();
    // Marks of the two-state tools would stand among those of the plant.
    if (processes_.Rechenmodus != Calculation::Plant) overlay_.AnlageMarkenLoeschen();
    processes_.Rechenmodus = Calculation::Plant;
    processes_.plant.AnlageBerechnen();
}

void PanelKeeper::Close(Panel& panel) {
    pointer_.PanelClosed();
    panel.visible = false;
}

void PanelKeeper::KeepOpenPanel() {
    if (processes_.plant.Frame1.visible) pointer_.PanelOpened(PointerOwner::PlantPanel);
    if (processes_.point.Anlage1PN.visible) pointer_.PanelOpened(PointerOwner::PointPanel);
}

void PanelKeeper::HideBoth() {
    processes_.point.Anlage1PN.visible = false;
    processes_.plant.Frame1.visible = false;
}

void PanelKeeper::Press(Panel& panel, CanvasPoint place) {
    dragged_ = &panel;
    drag_offset_ = {place.x - panel.left, place.y - panel.top};
    outline_.left = panel.left;
    outline_.top = panel.top;
    outline_.width = panel.width;
    outline_.height = panel.height;
    outline_.visible = true;
    panel.visible = false;
}

void PanelKeeper::Move(CanvasPoint place) {
    if (dragged_ == nullptr) return;
    outline_.left = place.x - drag_offset_.x;
    outline_.top = place.y - drag_offset_.y;
}

void PanelKeeper::Release() {
    if (dragged_ == nullptr) return;
    Panel& panel = *dragged_;
    dragged_ = nullptr;
    (&panel == &processes_.plant.Frame1 ? plant_panel_moved_ : point_panel_moved_) = true;
    panel.left = outline_.left;
    panel.top = outline_.top;
    outline_.visible = false;
    panel.visible = true;
}

}  // namespace zandrell
