#include "command/air_choice.h"

#include <algorithm>
#include <memory>

#include "command/real_air_figures.h"
#include "command/table_cells.h"

namespace zandrell {
namespace {

// Up to the end of the first line, or of the input.
std::string ReadAhead(const ByteSource& source) {
    constexpr std::size_t kBlock = 1U << 12U;
    std::string text;
    while (text.size() < LineReader::kLongestLine && text.find('\n') == std::string::npos) {
        const std::size_t before = text.size();
        text.resize(before + kBlock);
        const auto found = source(std::span(text).subspan(before));
        text.resize(before + found.value_or(0));
        if (found.value_or(0) == 0) break;
    }
    return text;
}

}  // namespace

bool NamesPairOfRealAir(std::string_view header) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF", kBlanks = " \t\r";
    if (header.starts_with(kByteOrderMark)) header.remove_prefix(kByteOrderMark.size());
    std::vector<std::string_view> cells;
    if (!SplitCells(header.substr(0, header.find_first_of("\r\n")), cells)) return false;
    std::array<bool, kPairFigures> named{};
    for (const auto cell : cells) {
        const std::string text = CellText(cell);
        std::string_view name = text;
        name.remove_prefix(std::min(name.find_first_not_of(kBlanks), name.size()));
        name = name.substr(0, name.find_last_not_of(kBlanks) + 1);
        for (std::size_t i = 0; i < named.size(); ++i) {
            named[i] = named[i] || name == kPairFigureNames[i].name;
        }
    }
    return std::count(named.begin(), named.end(), true) >= 2 && !(named[0] && named[1]);
}

bool TableIsOfRealAir(ByteSource& source) {
    struct Ahead {
        std::string text;
        std::size_t given = 0;
    };
    const auto ahead = std::make_shared<Ahead>(Ahead{ReadAhead(source)});
    source = [ahead, rest = source](std::span<char> block) -> std::optional<std::size_t> {
        const std::size_t count = std::min(block.size(), ahead->text.size() - ahead->given);
        if (count == 0) return rest(block);
        std::copy_n(ahead->text.begin() + static_cast<std::ptrdiff_t>(ahead->given), count,
                    block.begin());
        ahead->given += count;
        return count;
    };
    return NamesPairOfRealAir(ahead->text);
}

}  // namespace zandrell
