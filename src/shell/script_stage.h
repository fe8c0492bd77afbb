#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/window_form.h"
#include "shell/control_dump.h"
#include "shell/script_words.h"

namespace zandrell {

struct SharedValues;

// What a script acts on: a window and what stands behind it.
class ScriptStage {
  public:
    virtual ~ScriptStage() = default;

    // Its controls stand in scripts and dumps without a prefix.
    virtual WindowForm& Window() = 0;
    // A window that is hidden passes over what a user would do in it.
    virtual bool IsOpen() { return true; }
    // Those that it can open, with the prefix "WINDOW.".
    virtual std::vector<ModalForm*> Windows() = 0;
    virtual SharedValues& Shared() = 0;
    // Every control and value, and one of them; null when there is no such name.
    virtual Json DumpAll() = 0;
    virtual Json Dump(std::string_view name) = 0;
    // From here on pages go to that PDF. False where there is no device.
    virtual bool PrintToFile(const std::string& path) = 0;
    // The help to a window; the empty name is that of the stage's own.
    virtual void OpenHelp(std::string_view window) = 0;
    // An act that only this stage has; empty when it has none of that name. `open` is the window
    // that is open over its own, null when there is none.
    virtual std::optional<bool> RunAct(const ScriptLine& line, const ModalForm* open,
                                       std::string& error) = 0;
};

}  // namespace zandrell
