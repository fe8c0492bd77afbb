#include "processes/point_panel.h"

// How the two states of the point panel are given.
namespace zandrell {

PointPanel::PointPanel(const ProcessContext& context)
    : entry1(context, {"GiveAs1", "Given1AWord", "Given1A", "Given1BWord", "Given1B"}, Temp1,
             relF1),
      entry2(context, {"GiveAs2", "Given2AWord", "Given2A", "Given2BWord", "Given2B"}, Temp2,
             relF2),
      context_(context) {}

void PointPanel::FollowStates() {
    entry1.FollowState();
    entry2.FollowState();
}

// The bars follow without their handlers, which would round the state to tenths.
void PointPanel::BindEntry(ActTable& acts, StateEntry& entry) {
    for (const ActKind kind : {ActKind::Select, ActKind::Change}) {
        acts.Add(entry.choice.name, kind, [&entry] { entry.FollowState(); });
    }
    for (const TextField* field : {&entry.first, &entry.second}) {
        acts.Add(field->name, ActKind::Return, [this, &entry] {
            if (!entry.TakePair()) return;
            bars_run_nothing_ = true;
            SchieberAbgleich();
            bars_run_nothing_ = false;
            ZustandRechnen(context_.Rechenmodus, MarkPlacing::FromFields);
        });
    }
}

}  // namespace zandrell
