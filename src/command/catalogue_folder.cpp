#include "command/catalogue_folder.h"

#include <set>

namespace zandrell {

CatalogueFolder::CatalogueFolder(const NamedFolder& data, const ByteSink& reports)
    : files_(PrepareDataFolder(data, false)), reports_(reports) {
    SharedValues shared;
    ReadSuiteParameters(data, files_, shared);  // may move the folder
}

FileStatus CatalogueFolder::Visit(const std::string& KatalogIndex, bool hidden,
                                  const std::function<void(const ScannedSeries&)>& visit) const {
    std::set<std::string> reported;
    return ScanCatalogue(files_, KatalogIndex, [&](const ScannedSeries& scanned) {
        if (scanned.hidden && !hidden) return;
        const std::string file = KatalogDateiOf(scanned.line.SerieDatei);
        if (scanned.status != FileStatus::Ok && reported.insert(file).second) {
            reports_(Failure(file, scanned.status) + "\n");
        }
        visit(scanned);
    });
}

std::string CatalogueFolder::Failure(const std::string& file, FileStatus status) const {
    return files_.Resolve(file).string() + ": " + std::string(StatusWord(status));
}

bool CatalogueFolder::Scan(const std::string& KatalogIndex, bool hidden,
                           const std::function<void(const ScannedSeries&)>& visit,
                           std::string& error) const {
    const FileStatus status = Visit(KatalogIndex, hidden, visit);
    if (status != FileStatus::Ok) error = Failure(KatalogIndex, status);
    return status == FileStatus::Ok;
}

bool CatalogueFolder::ScanIfThere(const std::string& KatalogIndex, bool hidden,
                                  const std::function<void(const ScannedSeries&)>& visit) const {
    const FileStatus status = Visit(KatalogIndex, hidden, visit);
    const bool failed = status != FileStatus::Ok && status != FileStatus::Missing;
    if (failed) reports_(Failure(KatalogIndex, status) + "\n");
    return status == FileStatus::Ok;
}

}  // namespace zandrell
