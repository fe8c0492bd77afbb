#include "shell/input_keeper.h"

#include <utility>

namespace zandrell {

WorkingStateFields InputKeeper::Fields() {
    auto& plant = processes_.plant;
    auto& point = processes_.point;
    return {
        {&plant.tKA, &plant.Taus, &plant.TZuluft, &plant.tabLuft, &plant.vhAnlage, &plant.aussenAnt,
         &plant.PHIZuluft, &plant.PHIAbluft, &plant.PhiAussen, &point.LuftM1, &point.LuftM2,
         &point.Temp1, &point.Temp2, &point.relF1, &point.relF2, &plant.dtVent1, &plant.dtVent2},
        &plant.Option3D3,
        &plant.Option3D4,
        &plant.phiKanal};
}

void InputKeeper::FollowLoad() {
    // The shares of a flow are no part of a file; the plant splits the flow where they lack.
    processes_.plant.vhinnen.text.clear();
    processes_.plant.vhaussen.text.clear();
    Follow();
}

void InputKeeper::AlignBars() {
    const Calculation mode = std::exchange(processes_.Rechenmodus, Calculation::None);
    // Ranges first: a position outside its range is refused.
    processes_.point.TakeBarRanges();
    processes_.point.SchieberAbgleich();
    processes_.point.FollowStates();
    processes_.plant.TakeBarsFromFields();
    processes_.Rechenmodus = mode;
}

void InputKeeper::Follow() {
    PointPanel& point = processes_.point;
    PlantPanel& plant = processes_.plant;
    const Calculation mode = processes_.Rechenmodus;
    point.LuftSchritt1 = point.LuftSchritt2 = 0;  // steps of flows that are no longer there
    AlignBars();
    if (mode == Calculation::Plant) {
        plant.AnlageBerechnen();
    } else if (mode != Calculation::None) {
        point.ZustandRechnen(mode, MarkPlacing::FromFields);
    }
    ShowProjectTexts();
}

void InputKeeper::ShowProjectTexts() {
    controls_.Proj_T.text = shared_.ProjectTitle;
    controls_.Schr_T.text = shared_.ProjectRemark;
    title_changed_();
}

void InputKeeper::TakeProjectTexts() {
    shared_.ProjectTitle = controls_.Proj_T.text;
    shared_.ProjectRemark = controls_.Schr_T.text;
    title_changed_();
}

}  // namespace zandrell
