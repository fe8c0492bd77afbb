#pragma once

#include <string>
#include <utility>
#include <vector>

#include "selection/catalogue.h"

namespace zandrell::selection_test {

using FieldTexts = std::vector<std::pair<KatalogFeld, std::string>>;

// The bytes of a record with these fields, all others blank.
inline std::string RecordBytes(const FieldTexts& fields) {
    std::string bytes(KatalogSatz::kLength, ' ');
    for (const auto& [field, text] : fields) {
        bytes.replace(PlaceOf(field).offset, text.size(), text);
    }
    return bytes;
}

// A unit with a name and a main number, enough not to end a series.
inline std::string Unit(const std::string& name, const std::string& KatWert = "1") {
    return RecordBytes({{KatalogFeld::KatTyp, name}, {KatalogFeld::KatWert, KatWert}});
}

// An air cooler with a throw, a weight and a class, of a capacity in kW.
inline std::string Cooler(const std::string& name, const std::string& capacity) {
    using enum KatalogFeld;
    return RecordBytes({{KatTyp, name},
                        {KatTyp2, "4 mm"},
                        {KatWert2, "DT 8"},
                        {KatGewicht, "70"},
                        {KatVolumen, "7090"},
                        {KatWurf, "19"},
                        {KatLamelle, "4,5"},
                        {KatLeistung, capacity},
                        {KatAntrieb, "0,5"}});
}

inline std::string EndMark() { return RecordBytes({}); }

}  // namespace zandrell::selection_test
