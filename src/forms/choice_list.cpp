#include "forms/choice_list.h"

#include <algorithm>

namespace zandrell {

void ChoiceList::Fill(std::vector<std::string> texts) {
    items = std::move(texts);
    index = -1;
    text.clear();
}

bool ChoiceList::Choose(int item) {
    if (item < 0 || item >= static_cast<int>(items.size())) return false;
    index = item;
    text = items[static_cast<std::size_t>(item)];
    return true;
}

bool ChoiceList::Choose(std::string_view item) {
    const auto found = std::find(items.begin(), items.end(), item);
    if (found != items.end()) return Choose(static_cast<int>(found - items.begin()));
    if (!takes_any_text) return false;
    index = -1;
    text = item;
    return true;
}

ChoiceList* AsChoiceList(Control* control) {
    const bool fits = control != nullptr && (control->kind == ControlKind::List ||
                                             control->kind == ControlKind::ComboBox);
    return fits ? static_cast<ChoiceList*>(control) : nullptr;
}

}  // namespace zandrell
