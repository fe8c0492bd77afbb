#include "catalogue_checks.h"

#include <algorithm>
#include <set>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "command/table_cells.h"
#include "selection/series_reader.h"
#include "selection/unit_figures.h"

namespace zandrell::catalogues {
namespace {

using enum KatalogFeld;

constexpr std::size_t kShortestBaseName = 5, kLongestBaseName = 7, kLongestAddress = 4;

// The records of one series file, and which of them a series has claimed.
struct RecordBook {
    std::string file;
    std::string_view bytes;
    std::set<std::size_t> claimed;

    std::size_t Count() const { return bytes.size() / KatalogSatz::kLength; }
    KatalogSatz Record(std::size_t number) const {
        return KatalogSatz(bytes.substr((number - 1) * KatalogSatz::kLength));
    }
    static std::size_t LineOf(std::size_t number) { return number + 1; }  // below the header
};

// What the units of a series stand in order by.
double SizeOf(KatalogFamilie family, const UnitNumbers& unit) {
    switch (family) {
        case KatalogFamilie::AirCoolers:
        case KatalogFamilie::Condensers:
            return unit.KatLeistung;
        case KatalogFamilie::StoredCapacity:
            return unit.KatLeistung == 0 ? unit.KatAntrieb : unit.KatLeistung;
        default:
            return unit.KatWert;
    }
}

KatalogFeld SizeField(KatalogFamilie family) {
    const bool by_capacity = family == KatalogFamilie::AirCoolers ||
                             family == KatalogFamilie::Condensers ||
                             family == KatalogFamilie::StoredCapacity;
    return by_capacity ? KatLeistung : KatWert;
}

class UnitCheck {
  public:
    UnitCheck(const RecordBook& book, std::size_t number, KatalogFamilie family, Faults& faults)
        : book_(book),
          record_(book.Record(number)),
          unit_(ReadUnit(record_)),
          number_(number),
          family_(family),
          faults_(faults) {}

    void Run(double size_before) {
        // The search takes the first unit without a name for the end of the series.
        if (record_.Text(KatTyp).empty()) Refuse(KatTyp, "a unit without a name");
        CheckNumbers();
        const double size = Size();
        if (!(size > 0)) Refuse(SizeField(family_), "not above 0");
        if (size < size_before) Refuse(SizeField(family_), "smaller than the unit before");
        CheckFamily();
    }
    double Size() const { return SizeOf(family_, unit_); }

  private:
    void Refuse(KatalogFeld field, const std::string& fault) {
        faults_.Add(book_.file, RecordBook::LineOf(number_),
                    std::string(PlaceOf(field).name) + ": " + fault);
    }

    void CheckNumbers() {
        for (const auto field : {KatWert, KatBasis, KatLamelle, KatLeistung, KatAntrieb}) {
            if (field == KatLeistung && family_ == KatalogFamilie::Compressors) continue;
            const std::string text = record_.Text(field);
            if (text.empty()) continue;
            const auto number = NumberInCell(text);
            if (!number) Refuse(field, "no number: \"" + text + "\"");
            if (number && *number < 0) Refuse(field, "below 0");
        }
    }

    void CheckFamily() {
        const bool cooler = family_ == KatalogFamilie::AirCoolers;
        if (cooler || family_ == KatalogFamilie::Condensers) {
            if (unit_.KatAntrieb > unit_.KatLeistung) Refuse(KatAntrieb, "above the capacity");
        }
        if (cooler && !(unit_.KatLamelle > 0)) Refuse(KatLamelle, "the class needs it above 0");
        if (cooler && (unit_.KatBasis < 0 || unit_.KatBasis > 2)) Refuse(KatBasis, "not 0, 1 or 2");
        const bool regulates = family_ == KatalogFamilie::RegulatingComponents;
        if (regulates && !(unit_.KatAntrieb > 0)) Refuse(KatAntrieb, "no lowest pressure drop");
    }

    const RecordBook& book_;
    KatalogSatz record_;
    UnitNumbers unit_;
    std::size_t number_;
    KatalogFamilie family_;
    Faults& faults_;
};

class SeriesCheck {
  public:
    SeriesCheck(const Sources::Index& index, std::size_t place, Faults& faults)
        : index_(index),
          line_(index.lines[place]),
          line_number_(index.line_numbers[place]),
          family_(FamilyOf(index.KatalogArt)),
          faults_(faults) {}

    // The names of the line; the series itself can be looked at when they hold.
    bool CheckLine() {
        const std::size_t before = faults_.List().size();
        const auto plain = [](char c) {
            return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        };
        const std::string& name = line_.SerieDatei;
        const bool fits = name.size() >= kShortestBaseName && name.size() <= kLongestBaseName;
        if (!fits || !std::all_of(name.begin(), name.end(), plain)) {
            Refuse("SerieDatei", "not 5 to 7 letters and digits");
        }
        if (Trimmed(line_.SerieKennung).empty()) Refuse("SerieKennung", "empty");
        if (!IsListed(line_) || SeriesNameOf(line_.SerieText).empty() ||
            MakerOf(line_.SerieText).empty()) {
            Refuse("SerieText", "not a maker, a blank and a series");
        }
        const std::string& address = line_.SerieAdresse;
        if (address.empty() || address.size() > kLongestAddress ||
            address.find_first_not_of("0123456789") != std::string::npos) {
            Refuse("SerieAdresse", "not a whole number of 1 to 4 digits");
        }
        return faults_.List().size() == before;
    }

    void CheckUnits(RecordBook& book) {
        const auto address = static_cast<std::size_t>(AddressOf(line_));
        std::size_t units = 0;
        double size = 0;
        for (; units < Serie::kUnits && address + units < book.Count(); ++units) {
            const std::size_t number = address + units + 1;
            if (book.Record(number).IsEndMark()) break;
            if (!book.claimed.insert(number).second) {
                Refuse("SerieAdresse", "a unit belongs to another series already");
                return;
            }
            if (units == 0) CheckFirst(book, number);
            UnitCheck unit(book, number, family_, faults_);
            unit.Run(size);
            size = unit.Size();
        }
        if (units == 0) Refuse("SerieAdresse", "no unit behind record " + line_.SerieAdresse);
    }

  private:
    void CheckFirst(const RecordBook& book, std::size_t number) {
        // Without a code of its own it would take that of whatever series was read before.
        const bool blank = book.Record(number).Text(KatLeistung).empty();
        if (family_ == KatalogFamilie::Compressors && blank) {
            faults_.Add(book.file, RecordBook::LineOf(number),
                        "KatLeistung: the first compressor of a series needs a code");
        }
    }
    void Refuse(const std::string& item, const std::string& fault) {
        faults_.Add(index_.file, line_number_, item + ": " + fault);
    }

    const Sources::Index& index_;
    const IndexLine& line_;
    std::size_t line_number_;
    KatalogFamilie family_;
    Faults& faults_;
};

void CheckUnclaimed(const RecordBook& book, Faults& faults) {
    for (std::size_t number = 1; number <= book.Count(); ++number) {
        if (book.claimed.contains(number)) continue;
        const auto bytes =
            book.bytes.substr((number - 1) * KatalogSatz::kLength, KatalogSatz::kLength);
        if (bytes.find_first_not_of(' ') == std::string_view::npos) continue;
        faults.Add(book.file, RecordBook::LineOf(number),
                   book.Record(number).IsEndMark()
                       ? "KatWert, KatWert2, KatLeistung, KatAntrieb: all 0, which ends a series"
                       : "the unit belongs to no series: no SerieAdresse leads to it, or more than "
                         "48 units stand in front of it");
    }
}

}  // namespace

void CheckCatalogues(const Sources& sources, Faults& faults) {
    std::map<std::string, RecordBook> books;
    for (const auto& [name, bytes] : sources.records) books[name] = {name + ".csv", bytes, {}};
    for (const auto& [name, index] : sources.indexes) {
        for (std::size_t i = 0; i < index.lines.size(); ++i) {
            SeriesCheck series(index, i, faults);
            if (!series.CheckLine()) continue;
            const auto book = books.find(index.lines[i].SerieDatei);
            if (book == books.end()) {
                faults.Add(index.file, index.line_numbers[i],
                           "SerieDatei: there is no table " + index.lines[i].SerieDatei + ".csv");
            } else {
                series.CheckUnits(book->second);
            }
        }
    }
    for (const auto& [name, book] : books) CheckUnclaimed(book, faults);
}

}  // namespace zandrell::catalogues
