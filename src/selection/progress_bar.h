#pragma once

#include <functional>

#include "forms/control.h"

namespace zandrell {

// The bar of a task whose length nobody knows: it counts 1 to 100 and begins anew.
class ProgressBar {
  public:
    ProgressBar(const Panel& frame, Panel& bar) : frame_(frame), bar_(bar) {}

    std::function<void()> on_step;

    void ProgressB_Count() {
        count_ = count_ >= kSteps ? 1 : count_ + 1;
        bar_.width = count_ * frame_.width / kSteps;
        if (on_step) on_step();
    }
    // The next step is the last one before the bar is full.
    void Finish() {
        count_ = kSteps - 1;
        ProgressB_Count();
    }

  private:
    static constexpr int kSteps = 100;

    const Panel& frame_;
    Panel& bar_;
    int count_ = 0;
};

}  // namespace zandrell
