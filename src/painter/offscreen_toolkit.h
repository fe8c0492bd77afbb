#pragma once

#include <memory>

class QGuiApplication;

namespace zandrell {

// The toolkit for a program without windows: it needs no display and takes no options of its own.
// One has to stand while charts are written to files.
class OffscreenToolkit {
  public:
    explicit OffscreenToolkit(char** arguments);
    ~OffscreenToolkit();
    OffscreenToolkit(const OffscreenToolkit&) = delete;
    OffscreenToolkit& operator=(const OffscreenToolkit&) = delete;

  private:
    int argument_count_ = 1;
    std::unique_ptr<QGuiApplication> application_;
};

}  // namespace zandrell
