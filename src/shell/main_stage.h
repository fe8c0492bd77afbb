#pragma once

#include "shell/main_form.h"
#include "shell/script_stage.h"

namespace zandrell {

// The main form, as scripts see it.
class MainStage : public ScriptStage {
  public:
    explicit MainStage(MainForm& form) : form_(form) {}

    WindowForm& Window() override { return form_; }
    std::vector<ModalForm*> Windows() override;
    SharedValues& Shared() override { return form_.shared; }
    Json DumpAll() override;
    Json Dump(std::string_view name) override;
    bool PrintToFile(const std::string& path) override;
    void OpenHelp(std::string_view window) override;
    std::optional<bool> RunAct(const ScriptLine& line, const ModalForm* open,
                               std::string& error) override;

  private:
    bool RunWindowAct(const ScriptLine& line, std::string& error);
    bool OpenWindow(const ScriptLine& line, std::string& error);
    bool RunPointer(const std::vector<std::string>& words, std::string& error);

    MainForm& form_;
};

}  // namespace zandrell
