#include "desktop/script_runner.h"

#include <QApplication>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
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
    : WindowScript("zandrell", FormScript(form, std::cout), user), window_(window) {}

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
