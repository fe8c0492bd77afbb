#include "selection/catalogue_scan.h"

#include "selection/series_filter.h"

namespace zandrell {

FileStatus ScanCatalogue(const DataFiles& files, std::string_view KatalogIndex,
                         const std::function<void(const ScannedSeries&)>& visit) {
    const IndexFile index = ReadIndex(files, KatalogIndex);
    if (index.status != FileStatus::Ok) return index.status;
    const HiddenSeries hidden = ReadHiddenSeries(files);
    SeriesReader reader(files);
    for (const auto& line : index.lines) {
        if (!IsListed(line)) continue;
        const Serie serie = reader.SerieLesen(KatalogDateiOf(line.SerieDatei), AddressOf(line) - 2);
        visit({line, serie, reader.Status(), Ventp(line.SerieText, kIsHidden, "", hidden) == 1});
    }
    return index.status;
}

}  // namespace zandrell
