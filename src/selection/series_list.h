#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "selection/catalogue_index.h"
#include "selection/series_filter.h"
#include "selection/unit_table.h"

namespace zandrell {

// What the user typed to search for: one word, or two.
struct SearchWords {
    std::string first, second;
    bool two = false;
};

SearchWords WordsToSearch(std::string_view text);

// The grid `KatalogSpread`: the series of a kind, each with the range that it can deliver.
class SeriesList {
  public:
    SeriesList(const SelectionContext& context, VentZeigControls& controls, UnitTable& units,
               ProgressBar& progress)
        : context_(context),
          controls_(controls),
          units_(units),
          progress_(progress),
          searched_(context.files) {}

    // The columns and widths of the first load.
    void Load();
    // All series that are not hidden, and their makers.
    void FillAll();
    // The series that match a text; hidden ones are found too.
    void SerieSuchen(std::string_view text);

  private:
    void KopfZeile();
    void Fill(const std::function<bool(const IndexLine&)>& wanted);
    void AddSeries(const IndexLine& line, int row);
    void NoteMaker(const std::string& maker);
    bool Matches(const IndexLine& line, const SearchWords& words);
    bool MatchesUnits(const IndexLine& line, const SearchWords& words);
    void TellStatus(FileStatus status, const std::string& name);

    SelectionContext context_;
    VentZeigControls& controls_;
    UnitTable& units_;
    ProgressBar& progress_;
    SeriesReader searched_;  // a reader of its own: the other one keeps the file of the ranges open
    std::string missing_file_;  // the first series file of a fill that could not be read
};

}  // namespace zandrell
