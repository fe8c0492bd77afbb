#pragma once

#include <vector>

namespace zandrell {

// What a column of a table wants of the room, in pixels.
struct ColumnWish {
    int least = 0;     // below that something is cut off; 0: the column is hidden
    int wanted = 0;    // where there is room for it
    int designed = 0;  // its share of what is left
    bool grows = false;
};

// The widths of the columns in `room`, in their order. What is left goes to those that grow, up to
// where the eye would lose the row between two of them, and the rest to `longest`. Where the room
// does not do, columns shrink to their least and then `longest` to `narrowest`.
std::vector<int> WidthsInRoom(const std::vector<ColumnWish>& wishes, std::size_t longest, int room,
                              int narrowest);

}  // namespace zandrell
