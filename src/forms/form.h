#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace zandrell {

// The controls of one window by their names, in the order in which they were added.
class Form {
  public:
    explicit Form(std::string_view form_name) : name_(form_name) {}

    const std::string& Name() const { return name_; }
    // Requires: the controls outlive the form, and no two have the same name.
    void Add(std::initializer_list<Control*> controls);
    // Null when there is no control of that name.
    Control* Find(std::string_view control_name) const;
    const std::vector<Control*>& Controls() const { return controls_; }

  private:
    std::string name_;
    std::vector<Control*> controls_;
    std::map<std::string, Control*, std::less<>> by_name_;
};

}  // namespace zandrell
