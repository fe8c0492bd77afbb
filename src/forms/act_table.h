#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace zandrell {

// What a user can do to a control. Change is typing; nearly all fields wait for Return instead. A
// bar has its own handler for Scroll.
enum class ActKind {
    Click,
    Press,
    Release,
    Return,
    Choose,
    Check,
    Change,
    Select,
    DoubleClick,
    Scroll,
    // In a grid: the pointer let go over a cell, keys and wheel, the letter that asks where a row
    // comes from, the pointer over another row or away, and a head that sorts.
    Pick,
    RowsUp,
    RowsDown,
    Tell,
    Hover,
    Leave,
    Sort
};

// The one list of what happens when a user acts in a window. Every act of a widget, a script or a
// test ends in Perform; a control without an entry takes the act and runs nothing.
class ActTable {
  public:
    using Handler = std::function<void()>;

    void Add(std::string_view control, ActKind kind, Handler handler) {
        handlers_[{std::string(control), kind}] = std::move(handler);
    }
    bool Has(std::string_view control, ActKind kind) const {
        return handlers_.contains({std::string(control), kind});
    }
    // Runs the handler if there is one. Returns whether there was.
    bool Perform(std::string_view control, ActKind kind) const {
        const auto found = handlers_.find({std::string(control), kind});
        if (found == handlers_.end()) return false;
        found->second();
        return true;
    }
    const std::map<std::pair<std::string, ActKind>, Handler>& Handlers() const { return handlers_; }

  private:
    std::map<std::pair<std::string, ActKind>, Handler> handlers_;
};

}  // namespace zandrell
