#include "forms/control.h"

namespace zandrell {

std::string_view KindWord(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
        case ControlKind::ChartLabel:
            return "label";
        case ControlKind::TextField:
            return "text";
        case ControlKind::Button:
            return "button";
        case ControlKind::MenuEntry:
            return "menu";
        case ControlKind::OptionButton:
            return "option";
        case ControlKind::CheckBox:
            return "check";
        case ControlKind::List:
            return "list";
        case ControlKind::ComboBox:
            return "combo";
        case ControlKind::Grid:
            return "grid";
        case ControlKind::Panel:
            return "panel";
        case ControlKind::Picture:
            return "picture";
        case ControlKind::ScrollBar:
            return "scroll";
        case ControlKind::Mark:
            return "mark";
        case ControlKind::Line:
            break;
    }
    return "line";
}

void Choose(OptionButton& chosen, OptionButton& other) {
    chosen.on = true;
    other.on = false;
}

}  // namespace zandrell
