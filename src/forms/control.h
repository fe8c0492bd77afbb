#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zandrell {

enum class ControlKind {
    Label,
    TextField,
    Button,
    MenuEntry,
    OptionButton,
    CheckBox,
    List,
    ComboBox,
    Grid,
    Panel,
    Picture,
    ScrollBar,
    Mark,
    Line,
    ChartLabel
};

// The word for a kind in dumps of a form: "label", "text", "button" ...
std::string_view KindWord(ControlKind kind);

// What every control of a window has. The structs below are what the routines of the program read
// and write; a window with real widgets mirrors them.
struct Control {
    Control(std::string_view control_name, ControlKind control_kind)
        : name(control_name), kind(control_kind) {}

    std::string_view name;  // must outlive the control: a literal
    ControlKind kind;
    std::string text;
    std::string tool_tip;
    bool visible = true;
    bool enabled = true;
    bool checked = false;  // a button or entry whose tool is running
    // What a user has to know of the text: alone why a field's value is not used, with one of the
    // flags what that flag means.
    std::string hint;
    bool stale = false;             // a figure of inputs that have changed since
    bool pending = false;           // typed and not yet confirmed
    std::optional<int> foreground;  // palette numbers, where the program sets them
    std::optional<int> background;
};

struct Label : Control {
    explicit Label(std::string_view label_name) : Control(label_name, ControlKind::Label) {}
};

struct TextField : Control {
    explicit TextField(std::string_view field_name) : Control(field_name, ControlKind::TextField) {}
};

// A picture button or the caption label that lies on one.
struct Button : Control {
    explicit Button(std::string_view button_name, std::string_view picture_file = {})
        : Control(button_name, ControlKind::Button), picture(picture_file) {}
    std::string_view picture;  // file in the data folder; empty: none
    bool pressed = false;      // shows its pressed border
};

struct MenuEntry : Control {
    explicit MenuEntry(std::string_view entry_name) : Control(entry_name, ControlKind::MenuEntry) {}
};

struct OptionButton : Control {
    explicit OptionButton(std::string_view option_name, bool is_on = false)
        : Control(option_name, ControlKind::OptionButton), on(is_on) {}
    bool on;
};

// Option buttons of which one is on: choosing one puts the others out.
void Choose(OptionButton& chosen, OptionButton& other);

struct CheckBox : Control {
    explicit CheckBox(std::string_view box_name) : Control(box_name, ControlKind::CheckBox) {}
    bool on = false;
};

// A panel, or a picture box. Its place is in canvas units of the window that it floats over; sizes
// of 0 are left to the layout.
struct Panel : Control {
    explicit Panel(std::string_view panel_name, ControlKind panel_kind = ControlKind::Panel)
        : Control(panel_name, panel_kind) {}
    std::string picture;  // background, file in the data folder; empty: as designed
    double left = 0, top = 0, width = 0, height = 0;
};

}  // namespace zandrell
