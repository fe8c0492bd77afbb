#pragma once

#include <functional>
#include <string_view>

#include "selection/catalogue_index.h"
#include "selection/series_reader.h"

namespace zandrell {

// One series of a catalogue, with its records while the visitor looks at them.
struct ScannedSeries {
    const IndexLine& line;
    Serie serie;
    FileStatus status = FileStatus::Ok;  // of its series file
    bool hidden = false;                 // Prodhide.dat names it
};

// Goes through the catalogue of a kind in the order of its index, each series in one read. Lines
// that no list takes are passed over, hidden series are not. Returns how the index could be read;
// unless that is Ok, nothing is visited.
FileStatus ScanCatalogue(const DataFiles& files, std::string_view KatalogIndex,
                         const std::function<void(const ScannedSeries&)>& visit);

}  // namespace zandrell
