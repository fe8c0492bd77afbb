#pragma once

#include <filesystem>

namespace zandrell {

// Whether a file can be read and starts like a picture: BMP, JPEG, PNG or GIF, whatever its name
// says.
bool IsPictureFile(const std::filesystem::path& path);

}  // namespace zandrell
