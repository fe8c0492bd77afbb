#pragma once

#include <QSocketNotifier>
#include <array>
#include <memory>

#include "desktop/qt_user.h"
#include "shell/main_form.h"

namespace zandrell {

// The system asks for the end (SIGTERM, SIGHUP: a session that closes, a terminal that goes): the
// inputs are saved as at any end, open dialogs are left, and nobody is asked anything. One a
// program.
class EndSignals {
  public:
    // Both outlive the object.
    EndSignals(MainForm& form, QtUser& user);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

  private:
    void End();

    MainForm& form_;
    QtUser& user_;
    std::array<int, 2> ends_{-1, -1};  // of a pipe, which is all that a handler may touch
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zandrell
