#pragma once

#include <string>

#include "forms/grid.h"

namespace zandrell {

class Captions;
class DataFiles;

// The order of a grid that its user asked for.
struct GridOrder {
    int column = -1;  // -1: as it was filled
    bool descending = false;

    // A head was acted on: its column, the other way round when it is in force already, and as it
    // was filled when that is in force too.
    void Ask(int asked_column);
};

// Sorts the rows behind the head, numbers by size and in front of texts; rows without contents stay
// behind. The chosen row stays the same one. Equal rows keep their order. Without a column the rows
// come back to where they were made.
void SortRows(Grid& grid, const GridOrder& order);

// The visible columns and rows as comma-separated values, CR LF behind each line. Cells lose the
// blanks around them; one with a comma, a quote or a line end stands in double quotes.
std::string GridAsCsv(const Grid& grid);

// Replaces the file by them; how that went, in the words of the language in force.
std::string SaveAsCsv(const Grid& grid, const std::string& file, const DataFiles& files,
                      const Captions& captions);

}  // namespace zandrell
