#pragma once

#include <functional>
#include <string>

#include "base/data_files.h"
#include "command/byte_streams.h"
#include "selection/catalogue_scan.h"
#include "shell/start_up.h"

namespace zandrell {

// The catalogues of a data folder for the verbs of the command.
class CatalogueFolder {
  public:
    // Reports go to `reports`, which outlives the object.
    CatalogueFolder(const NamedFolder& data, const ByteSink& reports);

    // As ScanCatalogue, without hidden series unless they are asked for. Each series file that
    // cannot be read is reported once a scan. False, with one line in `error`, without the index.
    bool Scan(const std::string& KatalogIndex, bool hidden,
              const std::function<void(const ScannedSeries&)>& visit, std::string& error) const;

    // As Scan, but a kind that the folder does not have is no failure, and an index that cannot be
    // read is reported.
    bool ScanIfThere(const std::string& KatalogIndex, bool hidden,
                     const std::function<void(const ScannedSeries&)>& visit) const;

  private:
    FileStatus Visit(const std::string& KatalogIndex, bool hidden,
                     const std::function<void(const ScannedSeries&)>& visit) const;
    std::string Failure(const std::string& file, FileStatus status) const;

    DataFiles files_;
    const ByteSink& reports_;
};

}  // namespace zandrell
