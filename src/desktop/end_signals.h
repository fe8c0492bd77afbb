#pragma once

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

#include "desktop/qt_user.h"

namespace zandrell {

// The system asks for the end (SIGTERM, SIGHUP: a session that closes, a terminal that goes): what
// the program saves at its end is saved, open dialogs are left, and nobody is asked anything. One
// a program.
class EndSignals {
  public:
    // `save` runs before all else; `user` outlives the object.
    EndSignals(std::function<void()> save, QtUser& user);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

  private:
    void End();

    std::function<void()> save_;
    QtUser& user_;
    std::array<int, 2> ends_{-1, -1};  // of a pipe, which is all that a handler may touch
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zandrell
