#include "base/number_text.h"
#include "processes/point_panel.h"

namespace zandrell {

void PointPanel::BindActs(ActTable& acts) {
    BindState(acts, Temp1, Tscroll1);
    BindState(acts, Temp2, Tscroll2);
    BindState(acts, relF1, FScroll1);
    BindState(acts, relF2, FScroll2);
    BindEntry(acts, entry1);
    BindEntry(acts, entry2);
    BindFlow(acts, FirstFlow());
    BindFlow(acts, SecondFlow());
    const auto take_capacity = [this] { VolumeFromCapacity(context_.Rechenmodus); };
    acts.Add(Kleist.name, ActKind::Return, take_capacity);
    for (const Button* button : {&VolBer, &VolBer_l}) {
        acts.Add(button->name, ActKind::Click, take_capacity);
    }
}

void PointPanel::BindState(ActTable& acts, TextField& field, ScrollBar& bar) {
    acts.Add(field.name, ActKind::Return, [this] {
        SchieberAbgleich();
        ZustandRechnen(context_.Rechenmodus, MarkPlacing::FromFields);
    });
    bar.on_change = [this, &bar, &field] {
        if (bars_run_nothing_ || !IsPointMode(context_.Rechenmodus)) return;
        FollowBar(field, bar.Position() / kBarUnitsPerField, true);
    };
}

void PointPanel::BindFlow(ActTable& acts, const FlowInput& flow) {
    acts.Add(flow.field.name, ActKind::Return, [this, flow] {
        ZustandRechnen(context_.Rechenmodus, MarkPlacing::FromFields);
        SchieberAbgleich();
        TakeFlowStep(flow);
        if (flow.echoes) context_.shared.ZurueckVomDialog = DialogEcho::FlowTyped;
    });
    flow.bar.on_change = [this, flow] {
        if (!IsPointMode(context_.Rechenmodus) || !(ParsedNumber(flow.field.text) > 0)) return;
        FollowBar(flow.field, flow.bar.Position() * flow.step, flow.echoes);
    };
}

// A bar writes its field and computes. The flag keeps an echoing activation from reloading.
void PointPanel::FollowBar(TextField& field, double value, bool echoes) {
    if (const std::string text = NumberText(value); !text.empty()) field.text = text;
    ZustandRechnen(context_.Rechenmodus, MarkPlacing::FromFields);
    SchieberAbgleich();
    if (echoes) context_.shared.ZurueckVomDialog = DialogEcho::None;
}

}  // namespace zandrell
