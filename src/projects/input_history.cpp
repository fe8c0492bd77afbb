#include "projects/input_history.h"

namespace zandrell {

void InputHistory::Reset(InputSnapshot inputs) {
    snapshots_.clear();
    snapshots_.push_back(std::move(inputs));
    present_ = 0;
    gesture_.clear();
}

void InputHistory::Note(InputSnapshot inputs, std::string_view gesture) {
    if (inputs == snapshots_[present_]) return;
    const bool same_step = !gesture.empty() && gesture == gesture_ && CanUndo() && !CanRedo();
    gesture_ = gesture;
    if (same_step) {
        snapshots_[present_] = std::move(inputs);
        return;
    }
    snapshots_.resize(present_ + 1);
    snapshots_.push_back(std::move(inputs));
    if (snapshots_.size() > kMostSteps + 1) snapshots_.erase(snapshots_.begin());
    present_ = snapshots_.size() - 1;
}

const InputSnapshot& InputHistory::Undo() {
    gesture_.clear();
    return snapshots_[--present_];
}

const InputSnapshot& InputHistory::Redo() {
    gesture_.clear();
    return snapshots_[++present_];
}

void InputHistory::Settle(InputSnapshot inputs) { snapshots_[present_] = std::move(inputs); }

}  // namespace zandrell
