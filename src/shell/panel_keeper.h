#pragma once

#include "shell/pointer_machine.h"

namespace zandrell {

// The two floating panels: where they stand, which of them is open, and how a user drags them.
class PanelKeeper {
  public:
    // `outline` is what follows the pointer while a panel is dragged. All of it outlives the
    // keeper.
    PanelKeeper(SharedValues& shared, ChartEngine& chart, Overlay& overlay,
                ProcessPanels& processes, PointerMachine& pointer, Panel& outline);
    PanelKeeper(const PanelKeeper&) = delete;
    PanelKeeper& operator=(const PanelKeeper&) = delete;

    // The size of the window in device-independent pixels. A panel that no user has moved keeps its
    // place in it.
    void Resize(int width, int height);
    int WidthTwips() const { return width_twips_; }

    // Shows the point panel for a mode, in place of the plant.
    void OpenPointPanel(Calculation mode, bool calculate);
    // The same for capacity and the tools, which are refused while a panel is open.
    // Whether a click on a calculation or on a tool opens it; the panel in the way comes first.
    bool MayCalculate() const;
    bool MayOpenTool() const;
    bool IsOpen() const;
    void OpenTool(Calculation mode);
    void AnlageOeffnen();
    void Close(Panel& panel);
    // After an activation the pointer belongs again to the panel that is still open.
    void KeepOpenPanel();
    // Both, without a word to the pointer.
    void HideBoth();

    // A panel is dragged by its ground: only its outline follows the pointer.
    void Press(Panel& panel, CanvasPoint place);
    void Move(CanvasPoint place);
    void Release();

  private:
    void PlacePointPanel();
    void PlacePlantPanel();
    // The corner of a panel, from the lower right corner of the window in twips.
    void PlaceFromCorner(Panel& panel, double left_of, double above);

    SharedValues& shared_;
    ChartEngine& chart_;
    Overlay& overlay_;
    ProcessPanels& processes_;
    PointerMachine& pointer_;
    Panel& outline_;
    int width_twips_ = 0, height_twips_ = 0;
    double twips_per_unit_x_ = 1, twips_per_unit_y_ = 1;
    // By the user; the program then leaves a panel there.
    bool point_panel_moved_ = false, plant_panel_moved_ = false;
    Panel* dragged_ = nullptr;
    CanvasPoint drag_offset_;
};

}  // namespace zandrell
