#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace zandrell::fuzz {

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// What must hold for every input; a breach is a find.
inline void Require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace zandrell::fuzz
