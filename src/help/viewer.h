#pragma once

#include <string>

#include "base/data_files.h"

namespace zandrell {

// The program that shows the documents of the suite. The windows start it, scripts note it.
class ViewerHost {
  public:
    virtual ~ViewerHost() = default;

    // Starts the viewer that stands in the program's own folder, as a separate process, without
    // waiting for it. False when there is none.
    virtual bool StartProgram() = 0;
    // Opens a document, a name as of the data folder, with the desktop's own application.
    virtual void OpenDocument(const std::string& path) = 0;
};

// Writes "zdview.dat" in the data folder: picture, an empty text, topic and help text, each quoted.
// Then the viewer is started, or where there is none the picture is opened. `host` may be null.
// Answers how the writing went; without the file nothing is started.
FileStatus StartViewer(const DataFiles& files, ViewerHost* host, const std::string& pictureName,
                       const std::string& topic, const std::string& text);

}  // namespace zandrell
