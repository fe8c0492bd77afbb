#pragma once

#include <string>
#include <string_view>

#include "base/random_file.h"
#include "selection/catalogue.h"

namespace zandrell {

// The records of one series, in ascending order of capacity.
struct Serie {
    static constexpr int kUnits = 48;

    std::string_view bytes;

    // Record 1 to 48 of the series; an empty one where the file ends.
    KatalogSatz Satz(int number) const;

    // The units in front of the first end mark.
    int Units() const;
};

// Reads series out of the files of the data folder. The file that was read last stays open for the
// next series that stands in it.
class SeriesReader {
  public:
    explicit SeriesReader(const DataFiles& files) : files_(files) {}

    // The series whose unit i stands in record `address` + i + 2 of the file. The suite counts so:
    // callers pass SerieAdresse - 2. A file that is missing, or an address outside it, gives a
    // series of empty records. What is returned holds until the next call.
    Serie SerieLesen(std::string_view KatalogDatei, long address);

    // How the last file could be opened.
    FileStatus Status() const { return file_.Status(); }

  private:
    const DataFiles& files_;
    std::string open_name_;
    RandomFile file_;
    std::string bytes_;
};

}  // namespace zandrell
