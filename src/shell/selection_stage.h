#pragma once

#include "shell/script_stage.h"
#include "shell/selection_desk.h"

namespace zandrell {

// The selection window as scripts see it: they play its opener too.
class SelectionStage : public ScriptStage {
  public:
    explicit SelectionStage(SelectionDesk& desk)
        : desk_(desk), values_(NamedValuesOf(desk.selection, desk.shared)) {}

    WindowForm& Window() override { return desk_.window; }
    bool IsOpen() override { return !desk_.window.closed; }
    std::vector<ModalForm*> Windows() override { return desk_.Windows(); }
    SharedValues& Shared() override { return desk_.shared; }
    Json DumpAll() override;
    Json Dump(std::string_view name) override;
    bool PrintToFile(const std::string& path) override { return desk_.PrintToFile(path); }
    void OpenHelp(std::string_view window) override;
    std::optional<bool> RunAct(const ScriptLine& line, const ModalForm* open,
                               std::string& error) override;

  private:
    bool Share(const ScriptLine& line, std::string& error);
    bool Show(const ScriptLine& line, std::string& error);
    bool Open(const ScriptLine& line, const ModalForm* open, std::string& error);
    const NamedValue* Find(std::string_view name) const;

    SelectionDesk& desk_;
    std::vector<NamedValue> values_;
};

}  // namespace zandrell
