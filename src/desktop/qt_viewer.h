#pragma once

#include "help/viewer.h"

namespace zandrell {

// Starts the suite's viewer of documents, or what the desktop has for them.
class QtViewer : public ViewerHost {
  public:
    bool StartProgram() override;
    void OpenDocument(const std::string& path) override;
};

}  // namespace zandrell
