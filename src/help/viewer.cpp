#include "help/viewer.h"

#include "base/delimited_text.h"

namespace zandrell {

FileStatus StartViewer(const DataFiles& files, ViewerHost* host, const std::string& pictureName,
                       const std::string& topic, const std::string& text) {
    DelimitedWriter writer;
    for (const std::string& item : {pictureName, std::string(), topic, text}) {
        writer.Text(item).EndLine();
    }
    const FileStatus status = files.OpenForOutput("zdview.dat", writer.Result());
    if (status != FileStatus::Ok || host == nullptr) return status;
    if (host->StartProgram() || pictureName.empty()) return status;
    host->OpenDocument(files.Resolve(pictureName).string());
    return status;
}

}  // namespace zandrell
