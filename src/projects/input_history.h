#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

// The inputs of a window by their names.
using InputSnapshot = std::map<std::string, std::string>;

// What undo and redo walk through: the snapshots of the inputs after each step of the user.
class InputHistory {
  public:
    static constexpr std::size_t kMostSteps = 500;

    // The history begins anew with these inputs.
    void Reset(InputSnapshot inputs);

    // The inputs as they stand after an act. A step is noted only if they differ from those before.
    // Consecutive acts of one gesture (a drag, typing in one field) are one step; an empty gesture
    // is a step of its own.
    void Note(InputSnapshot inputs, std::string_view gesture = {});
    // The next act is a step of its own, also in the same gesture.
    void EndGesture() { gesture_.clear(); }

    bool CanUndo() const { return present_ > 0; }
    bool CanRedo() const { return present_ + 1 < snapshots_.size(); }
    // The inputs to return to. Requires: there is a step.
    const InputSnapshot& Undo();
    const InputSnapshot& Redo();
    // The inputs that stand now turned out a little different from those that were returned to.
    void Settle(InputSnapshot inputs);

  private:
    std::vector<InputSnapshot> snapshots_ = std::vector<InputSnapshot>(1);
    std::size_t present_ = 0;
    std::string gesture_;
};

}  // namespace zandrell
