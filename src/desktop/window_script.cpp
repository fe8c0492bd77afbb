#include "desktop/window_script.h"

#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace zandrell {

WindowScript::WindowScript(std::string_view program, FormScript script, QtUser& user)
    : script_(std::move(script)), program_(program) {
    std::cout << std::unitbuf;  // who reads the dumps acts on them
    user.on_window = [this](ModalForm* opened) {
        if (opened) {
            script_.WindowOpened(*opened);
        } else {
            script_.WindowClosed();
        }
    };
    user.on_message = [this](const Message& message) { script_.NoteMessage(message); };
}

bool WindowScript::Start(const std::string& path) {
    std::error_code error;
    std::ifstream file(path);
    if (!file || std::filesystem::is_directory(path, error)) return false;
    int number = 0;
    for (std::string line; ReadScriptLine(file, line);) {
        ++number;
        if (line.size() > kLongestScriptLine) return false;
        for (std::string& act : ActsOf(line)) lines_.emplace_back(number, std::move(act));
    }
    Schedule();
    return true;
}

// A timer of its own for each line: one timer would not fire again inside its own handler.
void WindowScript::Schedule() {
    QTimer::singleShot(0, &context_, [this] { RunNextLine(); });
}

// A line that opens a window returns only when that has closed; the lines in between run inside it.
void WindowScript::RunNextLine() {
    if (IsBusy()) return Schedule();
    if (lines_.empty()) {
        if (EndsProgram()) QApplication::exit(failed_ ? EXIT_FAILURE : EXIT_SUCCESS);
        return;
    }
    const auto [number, line] = lines_.front();
    lines_.pop_front();
    Schedule();
    std::string error;
    if (!RunLine(line, error)) Fail(number, error);
    RefreshWindows();
}

void WindowScript::Fail(int number, const std::string& error) {
    std::fprintf(stderr, "%s: line %d: %s\n", program_.c_str(), number, error.c_str());
    failed_ = true;
    lines_.clear();
    QApplication::exit(EXIT_FAILURE);
}

}  // namespace zandrell
