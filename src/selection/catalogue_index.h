#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/data_files.h"

namespace zandrell {

// One series, as the index of its kind names it.
struct IndexLine {
    std::string SerieDatei;    // base name of its series file, 5 to 7 characters
    std::string SerieKennung;  // asked only whether it is empty
    std::string SerieText;     // the maker as the first word, then the name of the series
    std::string SerieAdresse;  // whole number as text: the record behind which the series begins
};

// The lines of an index: four items each, read one after another as delimited text. A line whose
// first two items are both empty ends it, whatever follows. What the last line lacks stays empty.
std::vector<IndexLine> ParseIndex(std::string_view text);

struct IndexFile {
    FileStatus status = FileStatus::Missing;
    std::vector<IndexLine> lines;
};

IndexFile ReadIndex(const DataFiles& files, std::string_view KatalogIndex);

// Whether the list of all series takes a line at all: its trimmed text has more than 2 characters.
bool IsListed(const IndexLine& line);

// The text of a series up to its first blank.
std::string_view MakerOf(std::string_view SerieText);

// The text behind the maker.
std::string SeriesNameOf(std::string_view SerieText);

// The address as a number; what is none is 0.
long AddressOf(const IndexLine& line);

// The file that holds the series: "N.rdm" behind the base name.
std::string KatalogDateiOf(std::string_view SerieDatei);

// Where a series stands.
struct SeriesPlace {
    long SerieStart = 0;
    std::string KatalogDatei;
    bool operator==(const SeriesPlace&) const = default;
};

// The hidden cell of a series in the list: address, the marker "#$§", two blanks, base name.
std::string Locator(const IndexLine& line);

// Two ways to take a locator apart that are not alike, since the suite's other modules write
// locators too. The first opens a series: the last 4 characters in front of the marker are
// its address, and the last 7 of the cell its base name, so that one of fewer than 5 characters
// would bring a piece of the marker along. Without a marker the address is 0.
SeriesPlace PlaceToOpen(std::string_view locator);

// The second shows a preview: all that stands in front of the marker, and all behind it.
SeriesPlace PlaceToPreview(std::string_view locator);

}  // namespace zandrell
