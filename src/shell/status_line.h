#pragma once

#include <deque>
#include <string>

#include "forms/control.h"

namespace zandrell {

// The quiet line at the foot of the chart: what has just happened. The window takes a text away
// after some seconds; the last ones stay in the tool tip.
class StatusLine {
  public:
    Label line{"StatusLine"};

    // What is said within one act stands side by side. An empty text, as of a caption that the
    // language lacks, says nothing.
    void Say(const std::string& text);
    void EndAct() { begun_ = false; }
    void Fade() { line.text.clear(); }
    // Grows with each saying, so that the same words twice are seen twice.
    int Count() const { return count_; }

  private:
    std::deque<std::string> last_;  // the latest first
    int count_ = 0;
    bool begun_ = false;  // something was said in this act
};

}  // namespace zandrell
