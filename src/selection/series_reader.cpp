#include "selection/series_reader.h"

namespace zandrell {

KatalogSatz Serie::Satz(int number) const {
    if (number < 1 || number > kUnits) return {};
    const auto offset = static_cast<std::size_t>(number - 1) * KatalogSatz::kLength;
    if (offset >= bytes.size()) return {};
    return KatalogSatz(bytes.substr(offset));
}

int Serie::Units() const {
    int units = 0;
    while (units < kUnits && !Satz(units + 1).IsEndMark()) ++units;
    return units;
}

Serie SeriesReader::SerieLesen(std::string_view KatalogDatei, long address) {
    if (open_name_ != KatalogDatei) {
        file_ = RandomFile(files_, KatalogDatei, KatalogSatz::kLength);
        open_name_ = KatalogDatei;
    }
    file_.Read(address + 3, Serie::kUnits, bytes_);
    return {bytes_};
}

}  // namespace zandrell
