#include "desktop/grid_columns.h"

#include <algorithm>

namespace zandrell {
namespace {

constexpr double kWidest = 1.6;  // of the width as designed

int SumOf(const std::vector<int>& widths) {
    int sum = 0;
    for (const int width : widths) sum += width;
    return sum;
}

void Shrink(const std::vector<ColumnWish>& wishes, int missing, std::vector<int>& widths) {
    for (std::size_t i = 0; i < widths.size() && missing > 0; ++i) {
        const int given = std::min(missing, widths[i] - wishes[i].least);
        widths[i] -= given;
        missing -= given;
    }
}

void Grow(const std::vector<ColumnWish>& wishes, int spare, std::vector<int>& widths) {
    double designed = 0;
    for (const ColumnWish& wish : wishes) designed += wish.grows ? wish.designed : 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (!wishes[i].grows) continue;
        const int grown = widths[i] + static_cast<int>(spare * wishes[i].designed / designed);
        const int widest = static_cast<int>(kWidest * wishes[i].designed);
        widths[i] = std::max(widths[i], std::min(grown, widest));
    }
}

}  // namespace

std::vector<int> WidthsInRoom(const std::vector<ColumnWish>& wishes, std::size_t longest, int room,
                              int narrowest) {
    std::vector<int> widths;
    widths.reserve(wishes.size());
    for (const ColumnWish& wish : wishes) widths.push_back(std::max(wish.wanted, wish.least));
    if (longest >= widths.size()) return widths;
    const int spare = room - SumOf(widths);
    if (spare < 0) Shrink(wishes, -spare, widths);
    if (spare > 0) Grow(wishes, spare, widths);
    const int rest = room - SumOf(widths);
    widths[longest] = std::max(widths[longest] + rest, std::min(widths[longest], narrowest));
    return widths;
}

}  // namespace zandrell
