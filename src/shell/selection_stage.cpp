#include "shell/selection_stage.h"

#include <algorithm>

#include "base/number_text.h"

namespace zandrell {
namespace {

Json ValueOf(const NamedValue& value) {
    if (value.number != nullptr) return *value.number;
    if (value.whole != nullptr) return *value.whole;
    if (value.position != nullptr) return *value.position;
    return *value.text;
}

// A script is read line by line, so a line end inside a text is written as "\n".
std::string WithLineEnds(std::string text) {
    for (auto mark = text.find("\\n"); mark != std::string::npos; mark = text.find("\\n", mark)) {
        text.replace(mark, 2, CrLf);
    }
    return text;
}

}  // namespace

const NamedValue* SelectionStage::Find(std::string_view name) const {
    const auto found = std::find_if(values_.begin(), values_.end(),
                                    [&](const NamedValue& value) { return value.name == name; });
    return found == values_.end() ? nullptr : &*found;
}

Json SelectionStage::DumpAll() {
    Json json = Json::object();
    for (const Control* control : desk_.window.form.Controls()) {
        json[std::string(control->name)] = DumpControl(*control);
    }
    json["title"] = desk_.window.title;
    json["loaded"] = desk_.window.loaded;
    for (const NamedValue& value : values_) json[std::string(value.name)] = ValueOf(value);
    DumpOpenWindows(desk_.Windows(), json);
    return json;
}

Json SelectionStage::Dump(std::string_view name) {
    if (name == "title") return desk_.window.title;
    if (name == "loaded") return desk_.window.loaded;
    if (const Control* control = desk_.window.form.Find(name)) return DumpControl(*control);
    if (const NamedValue* value = Find(name)) return ValueOf(*value);
    return DumpOfWindows(desk_.Windows(), name);
}

void SelectionStage::OpenHelp(std::string_view) { desk_.OpenHelp(); }

std::optional<bool> SelectionStage::RunAct(const ScriptLine& line, const ModalForm* open,
                                           std::string& error) {
    const std::string& act = line.words[0];
    if (act == "share") return Share(line, error);
    if (act == "show") return Show(line, error);
    if (act == "open") return Open(line, open, error);
    if (act == "close" && open == nullptr) {
        return !IsOpen() || desk_.window.UserClick(desk_.window.cancel_control);
    }
    if (act == "edit") {
        desk_.window.UserSetText(desk_.window.controls.venttabText.name, line.BehindAct());
        return true;
    }
    return std::nullopt;
}

bool SelectionStage::Share(const ScriptLine& line, std::string& error) {
    if (line.words.size() < 2) return Refused(error, "share needs a name");
    const std::string& name = line.words[1];
    if (const NamedValue* value = Find(name)) {
        if (!value->from_opener) return Refused(error, name + " is no shared input");
        if (TakeValue(*value, WithLineEnds(line.Value()))) return true;
        return Refused(error, name + ": no number: " + line.Value());
    }
    Control* control = desk_.window.form.Find(name);
    if (control == nullptr || control->kind != ControlKind::Label) {
        return Refused(error, "unknown name: " + name);
    }
    control->text = WithLineEnds(line.Value());
    return true;
}

bool SelectionStage::Show(const ScriptLine& line, std::string& error) {
    Control* control = line.words.size() == 3 ? desk_.window.form.Find(line.words[1]) : nullptr;
    if (control == nullptr) return Refused(error, "show needs a control, and on or off");
    if (line.words[2] != "on" && line.words[2] != "off") {
        return Refused(error, "show needs on or off");
    }
    control->visible = line.words[2] == "on";
    return true;
}

bool SelectionStage::Open(const ScriptLine& line, const ModalForm* open, std::string& error) {
    if (open != nullptr) return Refused(error, open->form.Name() + " is open");
    if (line.words.size() == 1) {
        desk_.window.Open();
        return true;
    }
    if (line.words[1] != "Hilfebox") return Refused(error, "no such window");
    desk_.shared.DateText = line.Value();
    desk_.help.ShowHelp();
    return true;
}

}  // namespace zandrell
