#include "desktop/script_runner.h"

#include <QApplication>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "desktop/look.h"
#include "desktop/look_colours.h"
#include "desktop/modal_window.h"

namespace zandrell {
namespace {

constexpr int kTitleHeight = 30;  // pixels, of the frame that a window manager would draw

// A dialog over the window that opened it, with a plain title bar of its own.
void PaintDialog(QPixmap& picture, QWidget& dialog, QWidget& window) {
    QPainter painter(&picture);
    painter.fillRect(window.rect(), QColor(20, 35, 45, 70));
    const QPixmap content = dialog.grab();
    const QSize size = dialog.size();
    const QRect body(QPoint((window.width() - size.width()) / 2,
                            (window.height() - size.height() + kTitleHeight) / 2),
                     size);
    const QRect bar(body.left(), body.top() - kTitleHeight, body.width(), kTitleHeight);
    painter.fillRect(bar.united(body).adjusted(-1, -1, 1, 1), ColourOf(LookColour::Border));
    painter.fillRect(bar, ColourOf(LookColour::Field));
    painter.setPen(ColourOf(LookColour::Ink));
    painter.drawText(bar.adjusted(12, 0, -12, 0), Qt::AlignVCenter, dialog.windowTitle());
    painter.drawPixmap(body.topLeft(), content);
}

}  // namespace

ScriptRunner::ScriptRunner(MainForm& form, MainWindow& window, QtUser& user)
    : window_(window), script_(form, std::cout) {
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

bool ScriptRunner::Start(const std::string& path) {
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
void ScriptRunner::Schedule() {
    QTimer::singleShot(0, &context_, [this] { RunNextLine(); });
}

// A line that opens a window returns only when that has closed; the lines in between run inside it.
void ScriptRunner::RunNextLine() {
    if (lines_.empty()) {
        if (shot_taken_) QApplication::exit(EXIT_SUCCESS);
        return;
    }
    const auto [number, line] = lines_.front();
    lines_.pop_front();
    Schedule();
    std::string error;
    if (!RunLine(line, error)) Fail(std::to_string(number), error);
    RefreshWindows();
}

void ScriptRunner::Fail(const std::string& line, const std::string& error) {
    std::fprintf(stderr, "zandrell: line %s: %s\n", line.c_str(), error.c_str());
    failed_ = true;
    lines_.clear();
    shot_taken_ = false;
    QApplication::exit(EXIT_FAILURE);
}

bool ScriptRunner::RunLine(const std::string& line, std::string& error) {
    std::istringstream words(line);
    std::string act;
    words >> act;
    if (act == "shot") {
        std::string path;
        std::getline(words >> std::ws, path);
        return TakeShot(path, error);
    }
    if (int width = 0, height = 0; act == "window" && words >> width >> height) {
        window_.resize(width, height);
        return true;
    }
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (act == "answer" && box) {
        box->accept();
        return true;
    }
    return script_.RunLine(line, error);
}

void ScriptRunner::RefreshWindows() {
    if (auto* dialog = dynamic_cast<ModalWindow*>(QApplication::activeModalWidget())) {
        dialog->Refresh();
    }
    window_.Mirror().Mirror();
    window_.Refresh();
}

bool ScriptRunner::TakeShot(const std::string& path, std::string& error) {
    shot_taken_ = true;
    RefreshWindows();
    window_.LayOut();
    QPixmap picture = window_.grab();
    QWidget* top = QApplication::activeModalWidget();
    auto* below = top ? dynamic_cast<ModalWindow*>(top->parentWidget()) : nullptr;
    for (QWidget* dialog : {static_cast<QWidget*>(below), top}) {
        if (dialog) PaintDialog(picture, *dialog, window_);
    }
    if (picture.save(QString::fromStdString(path), "PNG")) return true;
    error = path + ": can not be written";
    return false;
}

}  // namespace zandrell
