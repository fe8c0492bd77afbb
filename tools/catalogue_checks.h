#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue_tables.h"

namespace zandrell::catalogues {

// The tables of a folder of sources, as far as they could be read.
struct Sources {
    struct Index {
        int KatalogArt = 0;
        std::string file;
        std::vector<IndexLine> lines;
        std::vector<std::size_t> line_numbers;
    };
    std::map<std::string, Index> indexes;        // by the name of the table without ".csv"
    std::map<std::string, std::string> records;  // of a series file by its base name
};

// Whether a program that selects by these catalogues would go astray: addresses that no series
// begins at, series without an end or out of order, figures out of proportion.
void CheckCatalogues(const Sources& sources, Faults& faults);

}  // namespace zandrell::catalogues
