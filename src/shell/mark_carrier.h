#pragma once

#include <array>
#include <string>
#include <vector>

#include "chart/read_out.h"
#include "processes/process_panels.h"

namespace zandrell {

// The marks of the chart that a hand can carry, and the states that they stand for. What is carried
// takes its state from the read-out, which belongs to the pointer by the time that it is asked.
class MarkCarrier {
  public:
    // All of it outlives the carrier.
    MarkCarrier(Overlay& overlay, ReadOutPanel& read_out, ProcessPanels& processes);

    bool CarriesAny() const;
    bool IsCarried(const Mark& mark) const;
    std::vector<const Mark*> VisibleMarks() const;

    // Every mark under the place; its state of now is kept for the way back.
    void PickUp(CanvasPoint place);
    // What is carried follows the read-out, and its process is computed.
    void Move();
    // The first carried mark takes the state of the read-out; the others are carried on.
    void DropFirst();
    // Marks that were carried and not dropped go back to where they came from. Without `draw` the
    // caller computes and draws their process.
    void PutBack(bool draw);

  private:
    // A mark, and its state: in the plant, and for the first two on the point panel.
    struct Carrier {
        Mark& mark;
        TextField &plant_temperature, &plant_humidity;
        ScrollBar *plant_temperature_bar, *plant_humidity_bar;
        TextField *temperature = nullptr, *humidity = nullptr;
        double* x = nullptr;  // g/kg
        MarkPlacing placing = MarkPlacing::FromFields;
        bool carried = false;
        // As they were when the mark was picked up.
        std::string former_temperature{}, former_humidity{};
        double former_x = 0;
    };

    // The humidity ratio of the state that follows the mark.
    double& HumidityOf(Carrier& carrier);
    void LetGo(Carrier& carrier);
    void TakeDroppedState(const Carrier& carrier);
    bool TakeReadOut(TextField& temperature, TextField& humidity);

    Overlay& overlay_;
    ReadOutPanel& read_out_;
    ProcessPanels& processes_;
    std::array<Carrier, 4> carriers_;
};

}  // namespace zandrell
