#include "printing/logo.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <string_view>

namespace zandrell {

bool IsPictureFile(const std::filesystem::path& path) {
    constexpr std::array<std::string_view, 4> kStarts = {"BM", "\xFF\xD8\xFF", "\x89PNG", "GIF8"};
    // A folder or a named pipe would hold the program up or read as nothing.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return false;
    std::array<char, 4> start{};
    std::ifstream file(path, std::ios::binary);
    file.read(start.data(), start.size());
    const std::string_view read(start.data(), static_cast<std::size_t>(file.gcount()));
    return std::any_of(kStarts.begin(), kStarts.end(),
                       [read](std::string_view known) { return read.starts_with(known); });
}

}  // namespace zandrell
