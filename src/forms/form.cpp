#include "forms/form.h"

namespace zandrell {

void Form::Add(std::initializer_list<Control*> controls) {
    for (Control* control : controls) {
        if (by_name_.emplace(control->name, control).second) controls_.push_back(control);
    }
}

Control* Form::Find(std::string_view control_name) const {
    const auto found = by_name_.find(control_name);
    return found == by_name_.end() ? nullptr : found->second;
}

}  // namespace zandrell
