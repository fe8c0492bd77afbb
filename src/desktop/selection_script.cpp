#include "desktop/selection_script.h"

#include <QApplication>
#include <QPixmap>
#include <iostream>

namespace zandrell {

SelectionScript::SelectionScript(SelectionStage& stage, PlannerForm& planner,
                                 SelectionWindow& window, QtUser& user)
    : WindowScript("zandrell-selection", FormScript(stage, std::cout), user),
      planner_(planner),
      window_(window) {}

void SelectionScript::RefreshWindows() {
    if (auto* dialog = dynamic_cast<ModalWindow*>(QApplication::activeModalWidget())) {
        dialog->Refresh();
    } else {
        window_.Refresh();
    }
}

bool SelectionScript::RunLine(const std::string& text, std::string& error) {
    const ScriptLine line(text);
    if (line.words.empty()) return true;
    if (line.words[0] == "shot") return TakeShot(line.BehindAct(), error);
    const bool to_planner = line.words.size() > 1 && line.words[1].starts_with("Planner.");
    if (line.words[0] == "duty" || to_planner) return RunPlannerAct(line, error);
    return script_.RunLine(text, error);
}

bool SelectionScript::RunPlannerAct(const ScriptLine& line, std::string& error) {
    const std::string& act = line.words[0];
    std::string name = line.words.size() > 1 ? line.words[1] : "";
    if (name.starts_with("Planner.")) name.erase(0, 8);
    bool done = false;
    if (act == "duty") {
        done = planner_.UserPick(name, line.Value()) ||
               (planner_.UserSetText(name, line.Value()) && planner_.UserReturn(name));
    }
    if (act == "click") done = planner_.UserClick(name);
    if (act == "check") done = planner_.UserCheck(name, line.Value() == "on");
    return done ? true : Refused(error, act + " does not fit " + name);
}

bool SelectionScript::TakeShot(const std::string& path, std::string& error) {
    window_.Refresh();
    QWidget* top = QApplication::activeModalWidget();
    const QPixmap picture = top ? top->grab() : window_.grab();
    if (picture.save(QString::fromStdString(path), "PNG")) return true;
    return Refused(error, path + ": can not be written");
}

}  // namespace zandrell
