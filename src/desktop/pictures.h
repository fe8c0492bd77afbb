#pragma once

#include <QIcon>
#include <QPixmap>
#include <map>
#include <string>
#include <string_view>

#include "base/data_files.h"

namespace zandrell {

// The suite's pictures out of the data folder, read once. A picture that is missing or unreadable
// is null: the widget then stays as designed.
class Pictures {
  public:
    // `files` outlives the pictures.
    explicit Pictures(const DataFiles& files) : files_(files) {}

    // As the file has it.
    QPixmap Opaque(std::string_view file_name);
    // With its white ground turned transparent: drawings on white, put on a coloured button.
    QPixmap OnGround(std::string_view file_name);
    // The same with light and dark exchanged where the windows are dark.
    QPixmap OnButton(std::string_view file_name);

  private:
    const DataFiles& files_;
    std::map<std::string, QPixmap, std::less<>> opaque_, on_ground_, on_dark_;
};

}  // namespace zandrell
