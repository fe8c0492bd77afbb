#include "shell/status_line.h"

namespace zandrell {
namespace {

constexpr std::size_t kKept = 5;

}  // namespace

void StatusLine::Say(const std::string& text) {
    if (text.empty()) return;
    ++count_;
    line.text = begun_ ? line.text + " - " + text : text;
    if (begun_) last_.pop_front();
    begun_ = true;
    last_.push_front(line.text);
    if (last_.size() > kKept) last_.pop_back();
    line.tool_tip.clear();
    for (const std::string& said : last_) {
        if (!line.tool_tip.empty()) line.tool_tip += '\n';
        line.tool_tip += said;
    }
}

}  // namespace zandrell
