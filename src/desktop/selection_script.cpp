#include "desktop/selection_script.h"

#include <QApplication>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace zandrell {

SelectionScript::SelectionScript(SelectionDesk& desk, PlannerForm& planner, SelectionWindow& window,
                                 QtUser& user)
    : planner_(planner), window_(window), stage_(desk), script_(stage_, std::cout) {
    user.on_window = [this](ModalForm* opened) {
        if (opened) {
            script_.WindowOpened(*opened);
        } else {
            script_.WindowClosed();
        }
    };
    user.on_message = [this](const Message& message) { script_.NoteMessage(message); };
}

bool SelectionScript::Start(const std::string& path) {
    std::ifstream file(path);
    if (!file) return false;
    for (std::string line; std::getline(file, line);) {
        for (std::string& act : ActsOf(line)) lines_.push_back(std::move(act));
    }
    Schedule();
    return true;
}

void SelectionScript::Schedule() {
    QTimer::singleShot(0, &context_, [this] { RunNextLine(); });
}

void SelectionScript::RunNextLine() {
    if (window_.IsFilling()) return Schedule();
    if (lines_.empty()) return QApplication::exit(failed_ ? EXIT_FAILURE : EXIT_SUCCESS);
    const std::string line = lines_.front();
    lines_.pop_front();
    Schedule();
    std::string error;
    if (!RunLine(line, error)) {
        std::fprintf(stderr, "zandrell-selection: %s: %s\n", line.c_str(), error.c_str());
        failed_ = true;
        lines_.clear();
    }
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
