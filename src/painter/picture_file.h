#pragma once

#include <QImage>
#include <string_view>

#include "base/data_files.h"

namespace zandrell {

// A picture of the suite or of its user, of any format that the toolkit knows. It is opened like
// every other file, so that a pipe in its place holds nobody up; null where it cannot be read or
// claims to be larger than any such picture.
QImage ReadPicture(const DataFiles& files, std::string_view name);

}  // namespace zandrell
