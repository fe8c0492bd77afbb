#include "selection/catalogue.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/text_helpers.h"

namespace zandrell {
namespace {

// The first `count` characters of a UTF-8 text.
std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const bool starts = (static_cast<unsigned char>(text[end]) & 0xC0U) != 0x80U;
        if (starts && count-- == 0) break;
    }
    return text.substr(0, end);
}

}  // namespace

constexpr std::array<FieldPlace, kKatalogFelder> kFieldPlaces = {{
    {"KatTyp", 0, 40, true},      {"KatWert", 40, 5},        {"Field3", 45, 15},
    {"KatWert2", 60, 12},         {"KatTyp2", 72, 40, true}, {"Field6", 112, 3},
    {"KatBasis", 115, 2},         {"KatGewicht", 117, 6},    {"KatVolumen", 123, 5},
    {"KatWurf", 128, 5},          {"KatLamelle", 133, 4},    {"Field12", 137, 6},
    {"Field13", 143, 6},          {"Field14", 149, 5},       {"Field15", 154, 5},
    {"Field16", 159, 6},          {"KatLeistung", 165, 5},   {"KatAntrieb", 170, 5},
    {"KatText10", 175, 10, true}, {"Group1Field1", 185, 2},  {"Group1Field2", 187, 15},
    {"Group1Field3", 202, 30},    {"Group1Field4", 232, 30}, {"Group2Field1", 262, 2},
    {"Group2Field2", 264, 15},    {"Group2Field3", 279, 30}, {"Group2Field4", 309, 30},
    {"Group3Field1", 339, 2},     {"Group3Field2", 341, 15}, {"Group3Field3", 356, 30},
    {"Group3Field4", 386, 30},    {"Group4Field1", 416, 2},  {"Group4Field2", 418, 15},
    {"Group4Field3", 433, 30},    {"Group4Field4", 463, 30}, {"Group5Field1", 493, 2},
    {"Group5Field2", 495, 15},    {"Group5Field3", 510, 30}, {"KatBild", 540, 30},
}};

std::string_view KatalogSatz::operator[](KatalogFeld field) const {
    const FieldPlace& place = PlaceOf(field);
    if (place.offset >= bytes_.size()) return {};
    return bytes_.substr(place.offset, place.width);
}

double KatalogSatz::Number(KatalogFeld field) const {
    return ParsedNumber(std::string((*this)[field]));
}

std::string KatalogSatz::Text(KatalogFeld field) const {
    const FieldPlace& place = PlaceOf(field);
    if (!place.oem) return StoredText(field);
    return Trimmed(FirstCharacters(OemTextToAnsi((*this)[field]), place.width));
}

std::string KatalogSatz::StoredText(KatalogFeld field) const {
    // A field has one byte a character by definition, so bytes that look like UTF-8 are none.
    std::string text;
    for (const char c : (*this)[field]) text += DecodeByte(static_cast<unsigned char>(c));
    return Trimmed(text);
}

bool KatalogSatz::IsEndMark() const {
    using enum KatalogFeld;
    for (const auto field : {KatWert, KatWert2, KatLeistung, KatAntrieb}) {
        if (Number(field) != 0) return false;
    }
    return true;
}

KatalogFamilie FamilyOf(int KatalogArt) {
    switch (KatalogArt) {
        case 600:
            return KatalogFamilie::AirCoolers;
        case 650:
            return KatalogFamilie::Condensers;
        case 550:
            return KatalogFamilie::Compressors;
        case 100:
            return KatalogFamilie::StoredCapacity;
        case 50:
        case 250:
            return KatalogFamilie::RegulatingComponents;
        case 1:
        case 150:
        case 200:
        case 300:
        case 350:
        case 450:
        case 700:
        case 750:
            return KatalogFamilie::LineComponents;
        default:
            return KatalogFamilie::Unknown;
    }
}

std::string_view FamilyName(KatalogFamilie family) {
    switch (family) {
        case KatalogFamilie::AirCoolers:
            return "air coolers";
        case KatalogFamilie::Condensers:
            return "condensers";
        case KatalogFamilie::Compressors:
            return "compressors";
        case KatalogFamilie::StoredCapacity:
            return "units by stored capacity";
        case KatalogFamilie::RegulatingComponents:
            return "regulating line components";
        case KatalogFamilie::LineComponents:
            return "line components";
        case KatalogFamilie::Unknown:
            break;
    }
    return "unknown";
}

std::string_view KatalogPrefix(std::string_view ModuleTag) {
    return EqualIgnoringCase(ModuleTag, "MOLK") ? "C" : "I";
}

std::string KatalogIndex(std::string_view ModuleTag, int KatalogArt) {
    return std::string(KatalogPrefix(ModuleTag)) + std::to_string(KatalogArt) + ".DAT";
}

}  // namespace zandrell
