#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace zandrell {

// Texts of which one can be chosen: a list, a combo box or a folder tree. `text` is what is chosen
// or, in a combo box, typed.
struct ChoiceList : Control {
    std::vector<std::string> items;
    int index = -1;  // of the chosen item; -1: none
    // A text that is none of the items can be chosen too: typed into a combo box, or a folder that
    // the tree does not show yet.
    bool takes_any_text = false;

    void Fill(std::vector<std::string> texts);
    // False where there is no such item; the choice stays.
    bool Choose(int item);
    bool Choose(std::string_view item);

  protected:
    ChoiceList(std::string_view list_name, ControlKind list_kind) : Control(list_name, list_kind) {}
};

struct ListBox : ChoiceList {
    explicit ListBox(std::string_view list_name) : ChoiceList(list_name, ControlKind::List) {}
};

struct ComboBox : ChoiceList {
    explicit ComboBox(std::string_view box_name) : ChoiceList(box_name, ControlKind::ComboBox) {}
};

// Null unless the control is a list or a combo box.
ChoiceList* AsChoiceList(Control* control);

}  // namespace zandrell
