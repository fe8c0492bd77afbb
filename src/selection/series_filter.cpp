#include "selection/series_filter.h"

#include <algorithm>

#include "base/delimited_text.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

// In capitals, the accented letters of the suite's code page too: in UTF-8 those from U+00E0 on
// are 0xC3 and a byte that lies 0x20 above that of the capital; 0xB7 is the division sign.
std::string Capitals(std::string_view text) {
    std::string capitals = UpperCase(text);
    for (std::size_t i = 1; i < capitals.size(); ++i) {
        const auto byte = static_cast<unsigned char>(capitals[i]);
        const bool accented = capitals[i - 1] == '\xC3' && byte >= 0xA0 && byte <= 0xBE;
        if (accented && byte != 0xB7) capitals[i] = static_cast<char>(byte - 0x20);
    }
    return capitals;
}

bool Contains(const std::string& capitals, std::string_view text) {
    return capitals.find(Capitals(text)) != std::string::npos;
}

}  // namespace

HiddenSeries ParseHiddenSeries(std::string_view text) {
    HiddenSeries hidden;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of("\r\n"), text.size());
        DelimitedReader items(text.substr(0, end));
        text.remove_prefix(end);
        text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
        // Elsewhere list input passes over blank lines. Here one ends the list.
        if (items.AtEnd()) return hidden;
        for (std::string item; items.ReadText(item);) {
            if (Trimmed(item).empty()) return hidden;
            hidden.push_back(item);
        }
    }
    return hidden;
}

HiddenSeries ReadHiddenSeries(const DataFiles& files) {
    return ParseHiddenSeries(files.OpenForInput("Prodhide.dat").text);
}

int Ventp(std::string_view name, int mode, std::string_view list, const HiddenSeries& hidden) {
    const std::string capitals = Capitals(name);
    if (mode == kIsHidden) {
        const auto is_inside = [&](const std::string& text) { return Contains(capitals, text); };
        return std::any_of(hidden.begin(), hidden.end(), is_inside) ? 1 : 0;
    }
    if (mode == kIsMissing) return Contains(capitals, Trimmed(list)) ? 0 : 1;
    return 0;
}

}  // namespace zandrell
