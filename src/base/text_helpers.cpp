#include "base/text_helpers.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text_encoding.h"

namespace zandrell {

std::string MakeFileNameSafe(int mode, std::string& text) {
    if (mode == 1) {
        const auto quote = text.find('"');
        if (quote != std::string::npos) text.replace(quote, 1, "''");
        return text;
    }
    for (const char c : std::string_view(".,:-&=! ")) {
        const auto place = text.find(c);
        if (place != std::string::npos) text.erase(place, 1);
    }
    return text;
}

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), text) != words.end();
}

std::string Excerpt(std::string_view text) {
    constexpr std::size_t kLongest = 40;  // bytes
    std::size_t length = std::min(text.size(), kLongest);
    const auto in_character = [text](std::size_t place) {
        return place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U;
    };
    for (int i = 0; i < 3 && in_character(length); ++i) --length;
    std::string excerpt(text.substr(0, length));
    for (char& c : excerpt) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = ' ';
    }
    return length < text.size() ? excerpt + "..." : excerpt;
}

int OemCharToAnsi(int code) {
    constexpr std::array<std::pair<int, int>, 9> kMoved = {{{129, 252},
                                                            {132, 228},
                                                            {142, 196},
                                                            {148, 246},
                                                            {153, 214},
                                                            {154, 220},
                                                            {225, 223},
                                                            {248, 176},
                                                            {34, -1}}};
    for (const auto& [from, to] : kMoved) {
        if (code == from) return to;
    }
    return code;
}

std::string OemTextToAnsi(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const int code = OemCharToAnsi(static_cast<unsigned char>(c));
        if (code < 0) text += "''";
        if (code > 0) text += DecodeByte(static_cast<unsigned char>(code));
    }
    return text;
}

}  // namespace zandrell
