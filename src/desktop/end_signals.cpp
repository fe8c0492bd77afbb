#include "desktop/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace zandrell {
namespace {

volatile std::sig_atomic_t write_end = -1;

void TellOfSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(write_end, &byte, 1);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> save, QtUser& user)
    : save_(std::move(save)), user_(user) {
    if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    write_end = ends_[1];
    notifier_ = std::make_unique<QSocketNotifier>(ends_[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { End(); });
    for (const int number : {SIGTERM, SIGHUP}) std::signal(number, TellOfSignal);
}

EndSignals::~EndSignals() {
    for (const int number : {SIGTERM, SIGHUP}) std::signal(number, SIG_DFL);
    write_end = -1;
    for (const int end : ends_) {
        if (end >= 0) ::close(end);
    }
}

// Dialogs run in loops of their own, one in the other: each ends before the program does.
void EndSignals::End() {
    notifier_->setEnabled(false);
    user_.nobody_answers = true;
    save_();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(widget)) dialog->done(QDialog::Rejected);
    }
    QTimer::singleShot(0, qApp, [] { QApplication::exit(EXIT_SUCCESS); });
}

}  // namespace zandrell
