#include "desktop/qt_user.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPushButton>
#include <QThread>
#include <algorithm>
#include <cstdio>

#include "desktop/help_window.h"
#include "desktop/options_window.h"
#include "desktop/print_setup_window.h"
#include "desktop/project_window.h"
#include "desktop/state_table_window.h"
#include "painter/chart_file.h"
#include "shell/help_in_hand.h"

namespace zandrell {
namespace {

constexpr int kCopyWidth = 2400, kCopyHeight = 1350;       // pixels of the copied picture
constexpr int kDrawingWidth = 1200, kDrawingHeight = 675;  // nominal size of the copied drawing
constexpr int kLongestWait = 2000;                         // ms; a pause never looks like a hang

}  // namespace

void QtUser::Refresh() const {
    if (opener_.refresh) opener_.refresh();
}

void QtUser::ShowMessage(const Message& message) {
    if (nobody_answers) {
        std::fprintf(stderr, "zandrell: %s\n", message.text.c_str());
        return;
    }
    Refresh();
    if (on_message) on_message(message);
    const auto icon =
        message.icon == MessageIcon::Stop ? QMessageBox::Critical : QMessageBox::Information;
    QWidget* active = QApplication::activeModalWidget();
    QMessageBox box(icon, QString::fromStdString(message.title),
                    QString::fromStdString(message.text), QMessageBox::Ok,
                    active ? active : opener_.window);
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Ok)->setIcon(QIcon());
    box.exec();
}

bool QtUser::Confirm(const Message& question) {
    if (nobody_answers) return false;
    Refresh();
    if (on_message) on_message(question);
    QWidget* active = QApplication::activeModalWidget();
    QMessageBox box(QMessageBox::Question, QString::fromStdString(question.title),
                    QString::fromStdString(question.text), QMessageBox::Yes | QMessageBox::No,
                    active ? active : opener_.window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void QtUser::ShowModal(ModalForm& window) {
    Refresh();
    if (!opener_.window) return Refuse(window);
    QWidget* active = QApplication::activeModalWidget();
    QWidget* parent = active ? active : opener_.window;
    auto* options = dynamic_cast<OptionsForm*>(&window);
    if (options && opener_.form) {
        OptionsWindow dialog(*options, opener_.form->captions, opener_.form->chart.picture,
                             *opener_.pictures, parent);
        return Run(dialog, window);
    }
    if (auto* projects = dynamic_cast<ProjectDialog*>(&window)) {
        ProjectWindow dialog(*projects, *opener_.pictures, parent);
        return Run(dialog, window);
    }
    if (auto* setup = dynamic_cast<PrintSetupForm*>(&window)) {
        PrintSetupWindow dialog(*setup, *opener_.pictures, parent);
        return Run(dialog, window);
    }
    if (auto* help = dynamic_cast<HelpForm*>(&window)) {
        HelpWindow dialog(*help, *opener_.pictures, parent);
        return Run(dialog, window);
    }
    Refuse(window);
}

void QtUser::ShowBeside(StateTableForm& table) {
    if (!opener_.window) return Refuse(table);
    if (!beside_ || !beside_->isVisible()) {
        delete beside_;
        beside_ = new StateTableWindow(table, *opener_.pictures, opener_.window);
        OfferHelp(*beside_, table);
        QObject::connect(beside_, &QDialog::finished, beside_, [this] {
            if (on_window) on_window(nullptr);
        });
        if (on_window) on_window(&table);
    }
    beside_->StandBeside();
}

void QtUser::FollowBeside() const {
    if (beside_ && beside_->isVisible()) beside_->Refresh();
}

void QtUser::OfferHelp(ModalWindow& dialog, const ModalForm& window) const {
    // Help on the help would only open it again.
    if (opener_.form == nullptr) {
        if (&window != opener_.help) dialog.on_help = opener_.open_help;
    } else if (&window != &opener_.form->help) {
        dialog.on_help = [form = opener_.form, name = window.form.Name()] {
            form->OpenHelp(TopicInHand(*form, name));
        };
    }
}

void QtUser::Run(ModalWindow& dialog, ModalForm& window) const {
    OfferHelp(dialog, window);
    if (on_window) on_window(&window);
    dialog.Run();
    if (on_window) on_window(nullptr);
}

void QtUser::Refuse(ModalForm& window) { window.UserClick(window.cancel_control); }

void QtUser::WaitMilliseconds(int milliseconds) {
    if (milliseconds <= 0) return;
    QThread::msleep(static_cast<unsigned long>(std::min(milliseconds, kLongestWait)));
}

void QtUser::CopyChart() {
    if (!opener_.form) return;
    const MainForm& form = *opener_.form;
    const auto& picture = form.chart.picture;
    auto* data = new QMimeData;
    data->setImageData(ChartImage(picture, form.overlay, kCopyWidth, kCopyHeight));
    data->setData(QStringLiteral("image/svg+xml"),
                  ChartSvg(picture, form.overlay, kDrawingWidth, kDrawingHeight));
    QGuiApplication::clipboard()->setMimeData(data);
}

QPrinter& QtUser::Printer() {
    if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *printer_;
}

bool QtUser::ChoosePrinter(const std::string& title) {
    Refresh();
    if (on_message) on_message({title, "", MessageIcon::Information});
    if (!print_file.empty()) return true;
    QWidget* active = QApplication::activeModalWidget();
    QPrintDialog dialog(&Printer(), active ? active : opener_.window);
    dialog.setWindowTitle(QString::fromStdString(title));
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace zandrell
