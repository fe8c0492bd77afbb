#include "base/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace zandrell {
namespace {

// Windows-1252 differs from Latin-1 in 0x80..0x9F only; the five free places keep their own code.
constexpr std::array<std::uint16_t, 32> kHighCodes = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct CodePoint {
    std::uint32_t code = 0;
    std::size_t length = 0;  // 0: the bytes are not UTF-8
};

CodePoint NextCodePoint(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return {lead, 1};
    std::size_t length = 0;
    if (lead >= 0xC2 && lead < 0xE0) length = 2;
    if (lead >= 0xE0 && lead < 0xF0) length = 3;
    if (lead >= 0xF0 && lead < 0xF5) length = 4;
    if (length == 0 || text.size() < length) return {};
    std::uint32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) return {};
        code = (code << 6U) | (byte(i) & 0x3FU);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xD800 && code < 0xE000;
    if (overlong || surrogate || code > 0x10FFFF) return {};
    return {code, length};
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto next = NextCodePoint(bytes);
        if (next.length == 0) return false;
        bytes.remove_prefix(next.length);
    }
    return true;
}

std::optional<char> CodePageByte(std::uint32_t code) {
    const auto high = std::find(kHighCodes.begin(), kHighCodes.end(), code);
    if (high != kHighCodes.end()) return static_cast<char>(0x80 + (high - kHighCodes.begin()));
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
    return std::nullopt;
}

char UpperLetter(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

std::string DecodeByte(unsigned char byte) {
    if (byte < 0x80) return std::string(1, static_cast<char>(byte));
    const std::uint32_t code = byte < 0xA0 ? kHighCodes[byte - 0x80U] : byte;
    std::string text;
    if (code < 0x800) {
        text += static_cast<char>(0xC0U | (code >> 6U));
    } else {
        text += static_cast<char>(0xE0U | (code >> 12U));
        text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    }
    return text += static_cast<char>(0x80U | (code & 0x3FU));
}

std::string DecodeText(std::string_view bytes) {
    if (IsUtf8(bytes)) {
        if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
        return std::string(bytes);
    }
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) text += DecodeByte(static_cast<unsigned char>(c));
    return text;
}

std::string EncodeText(std::string_view text) {
    std::string bytes;
    for (auto rest = text; !rest.empty();) {
        const auto next = NextCodePoint(rest);
        if (next.length == 0) return std::string(text);
        const auto byte = CodePageByte(next.code);
        if (!byte) return std::string(text);
        bytes += *byte;
        rest.remove_prefix(next.length);
    }
    return bytes != text && IsUtf8(bytes) ? std::string(text) : bytes;
}

std::string UpperCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), UpperLetter);
    return result;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return UpperLetter(a) == UpperLetter(b); });
}

std::string Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace zandrell
